# Shared by .ci/run and .ci/nightly, after cmake/setup.sh. Sourced, not run.

# step NAME COMMAND...: says how long it took, ends the run when it fails.
step() {
  local name=$1 since=$SECONDS; shift
  "$@" || fail "$name: failed"
  say "$name: passed in $((SECONDS - since)) s"
}

# The targets that need no window's libraries, and all.
quick_targets=(settings numbers answer film)
all_targets=("${quick_targets[@]}" arguments)

# fuzz SECONDS TARGET...: so long for each of those that build/clang has; a crash or a leak is a failure.
fuzz() {
  local seconds=$1 target corpus
  shift
  corpus=$(mktemp -d)
  for target in "$@"; do
    mkdir "$corpus/$target"
    (cd "$corpus" && QT_QPA_PLATFORM=offscreen "$here/build/clang/bin/fuzz_$target" -max_total_time="$seconds" -verbosity=0 "$target") ||
      return 1
  done
  rm -rf "$corpus"
}
