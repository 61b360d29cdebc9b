# What bench/compare/run runs: every tool of every row with its exact command. Sourced, not run; wants
# $work (photo.jpg and the folders ten, small and middle are in it), $bin, $quick and empty lists.
# shellcheck shell=bash disable=SC2004,SC2034,SC2154

rows=(jpeg turned tiff png deep ten one small middle)
row_title=(
  [jpeg]="JPEG to JPEG 95, one file" [turned]="JPEG to JPEG 95, one file, the camera turned and rolled"
  [tiff]="JPEG to TIFF LZW, one file" [png]="JPEG to PNG, one file"
  [deep]="TIFF to TIFF, 16 bits deflated, one file"
  [ten]="Ten files, JPEG to JPEG 95, two cores"
  [one]="One file of 600 x 400, from the start of the program to its end"
  [small]="Many files of 600 x 400, JPEG to JPEG 95" [middle]="Many files of 1200 x 800, JPEG to JPEG 95")
row_pieces=([turned]=yes [deep]=yes [one]=yes [small]=yes [middle]=yes)  # of these no true pictures were made

# tool ROW NAME NEEDS FILES COMMAND...
# NEEDS is the program without which there is no such tool, FILES how many it writes. A @@ in COMMAND
# stands for the folder to write to.
tool() {
  local folder=$work/out/${#tool_row[@]} quoted
  tool_row+=("$1") tool_name+=("$2") tool_needs+=("$3") tool_files+=("$4")
  shift 4
  printf -v quoted '%q ' "${@//@@/$folder}"
  tool_command+=("$quoted")
}
full() { [ -n "$quick" ] || "$@"; }  # left out of --quick

photo=$work/photo.jpg
ten=("$work"/ten/*.jpg)
varnel=("$bin/varnel-convert" --quiet --projection rectilinear --output-aov 90
  --camera "Canon/EOS 5D" --lens "Sigma/EX 15 mm f:2.8" --set SensorWidth=36 --set SensorHeight=24
  --set LensMapScale=30 --set LensMapFactor=0.5 --set EffectRectilinear=100)
jobs=()
if "$bin/varnel-convert" --help | grep -q -e '--jobs'; then jobs=(--jobs 2); fi
# The photo is 147.48 degrees wide and 94.31 high, the view 90 and 67.38. Barrel's numbers are the
# polynomial nearest to the lens, two pixels off at worst.
v360=v360=equisolid:flat:ih_fov=147.479593:iv_fov=94.313:h_fov=90:v_fov=67.380135:interp=linear:w=6000:h=4000
ffmpeg=(ffmpeg -loglevel error -nostdin -y)
barrel=(-virtual-pixel black -filter point -interpolate bilinear
  -distort Barrel "0.0318933478 -0.1188104189 -0.0287942612 0.8404382849" -quality 95)
# nona reads the job from a file: f21 is an equisolid lens, i5 reads bilinearly.
printf '%s\n' "p f0 w6000 h4000 v90" "m i5" "i w6000 h4000 f21 v147.479593 n\"$photo\"" > "$work/nona.pto"

# opencv ROW NAME MAP NUMBERS THREADS PROCESSES TYPE FILE...
opencv() {
  local row=$1 name=$2
  shift 2
  tool "$row" "OpenCV, $name" "$bin/peer_opencv" $(($# - 5)) "$bin/peer_opencv" "${@:1:5}" @@ "${@:6}"
}

tool jpeg Varnel "" 1 "${varnel[@]}" --type jpeg --quality 95 --output @@/photo.jpg "$photo"
opencv jpeg "hand-made map, float" hand float 2 1 jpg "$photo"
opencv jpeg "hand-made map, fixed point" hand fixed 2 1 jpg "$photo"
opencv jpeg "its fisheye model, fixed point" fisheye fixed 2 1 jpg "$photo"
tool jpeg "OpenCV, its start alone (in all its times)" "$bin/peer_opencv" 0 "$bin/peer_opencv" hand float 2 1 jpg @@
full tool jpeg "nona, bilinear" nona 1 nona -m JPEG -z 95 -o @@/photo "$work/nona.pto"
full tool jpeg "ffmpeg, 4:2:0 planes" ffmpeg 1 \
  "${ffmpeg[@]}" -i "$photo" -vf "$v360" -q:v 1 -qmin 1 -frames:v 1 -update 1 @@/photo.jpg
tool jpeg "ffmpeg, RGB planes" ffmpeg 1 \
  "${ffmpeg[@]}" -i "$photo" -vf "format=gbrp,$v360" -q:v 1 -qmin 1 -frames:v 1 -update 1 @@/photo.jpg
full tool jpeg "ImageMagick, bilinear lookup" convert-im6.q16 1 \
  convert-im6.q16 "$photo" "${barrel[@]}" @@/photo.jpg
tool jpeg "lensfun, 2 threads" "$bin/peer_lensfun" 1 "$bin/peer_lensfun" 2 1 jpg @@ "$photo"
full tool jpeg "plain library" "" 1 "$bin/plain_library" "$photo" @@/photo.jpg

tool tiff Varnel "" 1 "${varnel[@]}" --type tiff --output @@/photo.tif "$photo"
opencv tiff "hand-made map, float" hand float 2 1 tif "$photo"
opencv tiff "its fisheye model, fixed point" fisheye fixed 2 1 tif "$photo"
tool tiff "lensfun, 2 threads" "$bin/peer_lensfun" 1 "$bin/peer_lensfun" 2 1 tif @@ "$photo"
full tool tiff "ImageMagick, bilinear lookup" convert-im6.q16 1 \
  convert-im6.q16 "$photo" "${barrel[@]}" -compress LZW @@/photo.tif
full tool tiff "ffmpeg, RGB planes" ffmpeg 1 "${ffmpeg[@]}" -i "$photo" -vf "format=gbrp,$v360" \
  -pix_fmt rgb24 -compression_algo lzw -frames:v 1 -update 1 @@/photo.tif
full tool tiff "nona, bilinear" nona 1 nona -m TIFF -z LZW -o @@/photo "$work/nona.pto"
full tool tiff "plain library" "" 1 "$bin/plain_library" "$photo" @@/photo.tif

# A hand-made map costs OpenCV the same however the camera is turned.
for degrees in "10 20 15" "0 0 45" "0 0 90"; do
  read -r tilt pan roll <<< "$degrees"
  tool turned "Varnel: tilt $tilt, pan $pan, roll $roll degrees" "" 1 "${varnel[@]}" \
    --rotate-x "$tilt" --rotate-y "$pan" --rotate-z "$roll" --type jpeg --quality 95 --output @@/photo.jpg "$photo"
done
opencv turned "hand-made map, float" hand float 2 1 jpg "$photo"

tool png Varnel "" 1 "${varnel[@]}" --type png --output @@/photo.png "$photo"
tool png "plain library" "" 1 "$bin/plain_library" "$photo" @@/photo.png
opencv png "hand-made map, float" hand float 2 1 png "$photo"

deep=$work/photo16.tif
tool deep Varnel "" 1 "${varnel[@]}" --tiff deflate --output @@/photo.tif "$deep"
tool deep "ImageMagick, a copy without any view" convert-im6.q16 1 \
  convert-im6.q16 "$deep" -compress Zip -define tiff:predictor=2 @@/photo.tif

tool ten "Varnel${jobs:+ ${jobs[*]}}" "" 10 \
  "${varnel[@]}" --type jpeg --quality 95 "${jobs[@]}" --output-dir @@ "${ten[@]}"
opencv ten "hand-made map, float, 2 processes" hand float 1 2 jpg "${ten[@]}"
opencv ten "hand-made map, fixed point, 2 processes" hand fixed 1 2 jpg "${ten[@]}"
full opencv ten "its fisheye model, fixed point, 2 processes" fisheye fixed 1 2 jpg "${ten[@]}"
full opencv ten "hand-made map, float, 2 threads" hand float 2 1 jpg "${ten[@]}"
full tool ten "ffmpeg, RGB planes, one process" ffmpeg 10 "${ffmpeg[@]}" -i "$work/ten/photo%d.jpg" \
  -vf "format=gbrp,$v360" -q:v 1 -qmin 1 @@/photo%d.jpg
full tool ten "lensfun, 2 processes" "$bin/peer_lensfun" 10 "$bin/peer_lensfun" 1 2 jpg @@ "${ten[@]}"
full tool ten "ImageMagick, bilinear lookup, 2 processes" convert-im6.q16 10 \
  env -C "$work/ten" MAGICK_THREAD_LIMIT=1 xargs -a "$work/ten.txt" -P 2 -I '{}' \
  convert-im6.q16 '{}' "${barrel[@]}" '@@/{}'

piece=$work/small/piece10000.jpg
tool one Varnel "" 1 "${varnel[@]}" --type jpeg --quality 95 --output @@/piece.jpg "$piece"
tool one "Decoding, remapping, encoding and writing alone" "" 1 "$bin/compare_one_photo" "$piece" @@/piece.jpg

for size in small middle; do
  many=("$work/$size"/*.jpg)
  [ -z "$quick" ] || many=("${many[@]:0:200}")
  row_title[$size]=${row_title[$size]/Many/${#many[@]}}
  tool "$size" "Varnel${jobs:+ ${jobs[*]}}" "" ${#many[@]} \
    "${varnel[@]}" --type jpeg --quality 95 "${jobs[@]}" --output-dir @@ "${many[@]}"
  tool "$size" "Decoding, remapping and encoding alone, one thread" "" 1 \
    "$bin/compare_stages" @@ "${many[@]}"
done
