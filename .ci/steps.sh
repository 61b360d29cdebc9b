# Shared by .ci/run and .ci/nightly, after cmake/setup.sh. Sourced, not run.

# step NAME COMMAND...: says how long it took, ends the run when it fails.
step() {
  local name=$1 since=$SECONDS; shift
  "$@" || fail "$name: failed"
  say "$name: passed in $((SECONDS - since)) s"
}

# fuzz SECONDS: so long for each of the targets that build/clang has; a crash or a leak is a failure.
fuzz() {
  local target corpus
  corpus=$(mktemp -d)
  for target in settings numbers arguments answer; do
    mkdir "$corpus/$target"
    (cd "$corpus" && QT_QPA_PLATFORM=offscreen "$here/build/clang/bin/fuzz_$target" -max_total_time="$1" -verbosity=0 "$target") ||
      return 1
  done
  rm -rf "$corpus"
}
