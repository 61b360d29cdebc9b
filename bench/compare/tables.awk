# Tables in Markdown, and a file in CSV, from what bench/compare/run wrote: tools.txt says which tools
# there are, runs.csv what each run took. The first tool of a row is Varnel, the ratios are its median by
# the tool's. Of the peaks of memory the highest counts.

FILENAME ~ /tools.txt$/ {
  split($0, field, "|")
  n = field[1]; tools = n + 1
  row[n] = field[2]; title[n] = field[3]; name[n] = field[4]; note[n] = field[5]; psnr[n] = field[6]
  bytes[n] = field[7]; files[n] = field[8]
  next
}
FNR > 1 {
  split($0, field, ",")
  n = field[1]
  if (field[2] == "time") { ++count[n]; wall[n, count[n]] = field[3] + 0; processor[n, count[n]] = field[4] + 0 }
  if (field[2] == "memory" && field[5] + 0 > peak[n]) peak[n] = field[5] + 0
}

# Sorts the values of tool n in place.
function sort(values, n,    i, j, swap) {
  for (i = 2; i <= count[n]; ++i)
    for (j = i; j > 1 && values[n, j] < values[n, j - 1]; --j) {
      swap = values[n, j]; values[n, j] = values[n, j - 1]; values[n, j - 1] = swap
    }
}
function median(values, n,    half) {
  half = int((count[n] + 1) / 2)
  return count[n] % 2 ? values[n, half] : (values[n, half] + values[n, half + 1]) / 2
}
function ratio(varnel, n, other) {
  return n == first || !files[n] || varnel == "" || !other ? "" : sprintf("%.3f", varnel / other)
}
function figure(format, value) { return value == "" ? "" : sprintf(format, value) }

END {
  print "row,tool,runs,wall_s,wall_min_s,wall_max_s,processor_s,peak_mb,files_mb,psnr_db,wall_ratio,processor_ratio,note" > csv
  for (n = 0; n < tools; ++n) {
    if (!count[n] && note[n] == "") continue  # a row that was not asked for
    if (count[n]) { sort(wall, n); sort(processor, n) }
    w = count[n] ? median(wall, n) : ""
    p = count[n] ? median(processor, n) : ""
    if (row[n] != shown) {
      shown = row[n]; varnelWall = w; varnelProcessor = p; first = n
      printf "\n### %s\n\n", title[n]
      print "| | wall s (least..most) | processor s | peak MB | files MB | PSNR dB | Varnel's wall / its | Varnel's processor / its |"
      print "| --- | ---: | ---: | ---: | ---: | ---: | ---: | ---: |"
    }
    mb = bytes[n] == "" ? "" : bytes[n] / 1e6
    toWall = ratio(varnelWall, n, w)
    toProcessor = ratio(varnelProcessor, n, p)
    range = w == "" ? "" : sprintf("%.3f (%.3f..%.3f)", w, wall[n, 1], wall[n, count[n]])
    label = name[n] (note[n] == "" ? "" : " (**" note[n] "**)")
    printf "| %s | %s | %s | %s | %s | %s | %s | %s |\n", label, range, figure("%.3f", p),
      figure("%.0f", peak[n]), figure("%.1f", mb), psnr[n], toWall, toProcessor
    printf "%s,\"%s\",%d,%s,%s,%s,%s,%s,%s,%s,%s,%s,%s\n", row[n], name[n], count[n], w, count[n] ? wall[n, 1] : "",
      count[n] ? wall[n, count[n]] : "", p, peak[n], figure("%.3f", mb), psnr[n], toWall, toProcessor, note[n] > csv
  }
}
