# From lines of ROUND,SIDE,NAME,TIME: for each name that both sides have, the least times, their ratio, the
# quarter, middle and three-quarter points of the rounds' own ratios, and a mark. What else the machine does
# only ever adds to a time, so the least ones say most; but each may have been lucky once. Slower beyond the
# spread is what is slower by 2 % in the least times and in the middle, and slower at the quarter point.

{ time[$2, $3, $1] = $4; if (!($3 in seen)) { seen[$3] = 1; names[++count] = $3 } }

# Sorts the first n values in place.
function sort(values, n,    i, j, swap) {
  for (i = 2; i <= n; ++i)
    for (j = i; j > 1 && values[j] < values[j - 1]; --j) {
      swap = values[j]; values[j] = values[j - 1]; values[j - 1] = swap
    }
}
# Of sorted values, between the two nearest ones.
function point(values, n, part,    at, low) {
  at = 1 + (n - 1) * part
  low = int(at)
  return low >= n ? values[n] : values[low] + (at - low) * (values[low + 1] - values[low])
}

END {
  printf "%-64s %10s %10s %7s  %s\n", "benchmark", "this, ms", "other, ms", "ratio", "of rounds"
  for (n = 1; n <= count; ++n) {
    name = names[n]; pairs = 0
    for (round = 1; round <= rounds; ++round)
      if (("this", name, round) in time && ("other", name, round) in time) {
        ++pairs
        this[pairs] = time["this", name, round]; other[pairs] = time["other", name, round]
        ratios[pairs] = this[pairs] / other[pairs]
      }
    if (!pairs) { printf "%-64s %10s\n", name, "on one side only"; continue }
    sort(this, pairs); sort(other, pairs); sort(ratios, pairs)
    ratio = this[1] / other[1]
    low = point(ratios, pairs, 0.25); middle = point(ratios, pairs, 0.5); high = point(ratios, pairs, 0.75)
    slower = low > 1 && middle > 1.02 && ratio > 1.02
    any = any || slower
    printf "%-64s %10.3f %10.3f %7.3f  %.3f, %.3f to %.3f%s\n", name, this[1], other[1], ratio, middle, low, high,
      slower ? "  SLOWER" : ""
  }
  exit any
}
