# Shared by ./run, ./test and ./package: says what is done, installs packages, builds. Sourced, not run.

build_packages=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev libfreeimage-dev libjpeg-dev libpng-dev libtiff-dev zlib1g-dev libdeflate-dev libzstd-dev libhwy-dev libexiv2-dev liblcms2-dev nettle-dev libraw-dev libheif-dev libjxl-dev libseccomp-dev libavformat-dev libavcodec-dev libswscale-dev libavutil-dev libxcb1-dev fonts-dejavu-core)
pack_packages=(dpkg-dev binutils python3-dev pybind11-dev python3-numpy)
test_packages=("${build_packages[@]}" ffmpeg qt6-translations-l10n libgtest-dev liblensfun-data-v1 libimage-exiftool-perl xvfb xauth parallel pkg-config
  "${pack_packages[@]}" desktop-file-utils appstream mandoc bash-completion lintian python3 lua5.3)

# What looks at the sources and builds them in other ways, for .ci/run and .ci/nightly.
ci_packages=(git clang clang-format clang-tidy libclang-rt-14-dev libbenchmark-dev universal-ctags abigail-tools)

# What only .ci/nightly needs: clusters, packages built on different days, builds for other systems, and what looks
# at their recipes.
arm64_packages=(g++-aarch64-linux-gnu qemu-user)
windows_packages=(g++-mingw-w64-x86-64-posix)
nightly_packages=(slurmctld slurmd slurm-client munge snakemake faketime diffoscope-minimal "${arm64_packages[@]}"
  "${windows_packages[@]}" shellcheck python3-yaml mypy patchelf)

say() { printf '== %s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"
  elif command -v sudo > /dev/null; then sudo "$@"
  else fail "root or sudo is needed to install packages"
  fi
}

install_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2> /dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  say "Installing ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  as_root apt-get update -q > /dev/null || fail "the package lists could not be read (apt-get update)"
  as_root apt-get install -y -q --no-install-recommends "${missing[@]}" > /dev/null ||
    fail "packages could not be installed: ${missing[*]}"
}

# build PRESET [TARGET...]
build() {
  local preset=$1; shift
  say "Building ($preset)"
  (
    cd "$here"
    cmake --preset "$preset" > "build-$preset.log" 2>&1 || { cat "build-$preset.log" >&2; exit 1; }
    rm -f "build-$preset.log"
    cmake --build --preset "$preset" ${1:+--target "$@"}
  ) || fail "the build failed, see above"
}
