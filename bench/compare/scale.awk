# From lines of KIND,NUMBER,WALL,PROCESSOR,PEAK: for each kind what each number of megapixels, or of files,
# takes, and the fixed part and the part for each that come nearest to it: least squares of the relative
# errors, so that small numbers count as much as large ones. Within 10 % is called well described.

function keep(kind, number) {
  if (!(kind in count)) kinds[++kindCount] = kind
  if (!((kind, number) in seen)) { seen[kind, number] = 1; numbers[kind, ++count[kind]] = number }
}
{
  keep($1, $2)
  if ($3 != "") { n = ++runs[$1, $2]; wall[$1, $2, n] = $3; processor[$1, $2, n] = $4 }
  if ($5 != "") peak[$1, $2] = $5
}

# Of the runs of a kind and number; sorts them.
function median(values, kind, number,    n, i, j, swap, half) {
  n = runs[kind, number]
  for (i = 2; i <= n; ++i)
    for (j = i; j > 1 && values[kind, number, j] + 0 < values[kind, number, j - 1] + 0; --j) {
      swap = values[kind, number, j]
      values[kind, number, j] = values[kind, number, j - 1]
      values[kind, number, j - 1] = swap
    }
  half = int((n + 1) / 2)
  return n % 2 ? values[kind, number, half] : (values[kind, number, half] + values[kind, number, half + 1]) / 2
}

# Sets fixed and each, worst (of the relative errors) and where it is.
function fit(measured, kind,    n, x, y, w, s, sx, sy, sxx, sxy, error) {
  s = sx = sy = sxx = sxy = 0
  for (n = 1; n <= count[kind]; ++n) {
    x = numbers[kind, n]; y = measured[n]; w = 1 / (y * y)
    s += w; sx += w * x; sy += w * y; sxx += w * x * x; sxy += w * x * y
  }
  each = count[kind] > 1 ? (s * sxy - sx * sy) / (s * sxx - sx * sx) : 0
  fixed = (sy - each * sx) / s
  worst = 0
  for (n = 1; n <= count[kind]; ++n) {
    off[n] = (fixed + each * numbers[kind, n]) / measured[n] - 1
    error = off[n] < 0 ? -off[n] : off[n]
    if (error > worst) { worst = error; where = numbers[kind, n] }
  }
}
function verdict(what, unit, factor, of,    text) {
  text = worst <= 0.10 ? "every one within 10 %" : "NOT within 10 %"
  printf "%s: %.4g %s and %.4g for each %s; %s (at worst %.1f %%, at %g)\n", what, fixed * factor, unit, each * factor,
    of, text, worst * 100, where
}

END {
  for (k = 1; k <= kindCount; ++k) {
    kind = kinds[k]
    of = kind == "files" ? "file" : "megapixel"
    for (n = 1; n <= count[kind]; ++n) {
      walls[n] = median(wall, kind, numbers[kind, n])
      processors[n] = median(processor, kind, numbers[kind, n])
      peaks[n] = peak[kind, numbers[kind, n]]
    }
    printf "\n### %s\n\n", kind == "files" ? "Files of 300 x 200, JPEG to JPEG 95" : "A JPEG to " toupper(kind)
    printf "| %ss | wall s | off the fit | processor s | off the fit | ms a %s | peak MB |\n", of, of
    print "| ---: | ---: | ---: | ---: | ---: | ---: | ---: |"
    fit(walls, kind)
    for (n = 1; n <= count[kind]; ++n) wallOff[n] = off[n]
    fit(processors, kind)
    for (n = 1; n <= count[kind]; ++n)
      printf "| %g | %.3f | %+.1f %% | %.3f | %+.1f %% | %.2f | %.1f |\n", numbers[kind, n], walls[n],
        wallOff[n] * 100, processors[n], off[n] * 100, processors[n] * 1000 / numbers[kind, n], peaks[n]
    print ""
    verdict("Processor time", "ms", 1000, of)
    fit(walls, kind)
    verdict("By the clock", "ms", 1000, of)
    fit(peaks, kind)
    verdict("Memory", "MB", 1, of)
  }
}
