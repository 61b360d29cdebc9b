# Expectations for the scripts beside this one. Sourced, not run.

failures=0

# expect_equal WHAT EXPECTED ACTUAL
expect_equal() {
  [ "$2" = "$3" ] && return
  printf '%s\n  expected: %s\n  is:       %s\n' "$1" "$2" "$3" >&2
  failures=$((failures + 1))
}

# expect WHAT COMMAND...: the command succeeds.
expect() {
  local what=$1; shift
  "$@" > "$work/said" 2>&1 && return
  printf '%s: failed: %s\n' "$what" "$*" >&2
  cat "$work/said" >&2
  failures=$((failures + 1))
}
