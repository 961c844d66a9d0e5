#!/bin/sh
# Redraws the pictures of examples/clock. Run it after a change here and commit the files too;
# nothing else needs it. Bitmaps have 24 bits: the clock draws its hands into the face, and a
# palette would change their colours. The icon has 256 colours, which every Windows shows.
# Needs ImageMagick's convert.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
out=$root/examples/clock
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The marks of the twelve hours: a short stroke, turned about the middle of a face of 480 pixels.
marks=""
for hour in 0 1 2 3 4 5 6 7 8 9 10 11; do
  width=8
  [ $((hour % 3)) -ne 0 ] || width=16
  turn=$((hour * 30))
  marks="$marks push graphic-context translate 240,240 rotate $turn stroke-width $width"
  marks="$marks line 0,-176 0,-204 pop graphic-context"
done

# face BACKGROUND: the face, large, so that its edges come out smooth when it is made small.
face() {
  convert -size 480x480 "xc:$1" -fill white -stroke '#28507c' -strokewidth 20 \
    -draw "circle 240,240 240,14" -fill none -stroke '#28507c' -draw "$marks" \
    -stroke none -fill '#28507c' -draw "circle 240,240 240,222" "$2"
}

# bitmap FILE SIZE IN: 24 bits, no palette, no alpha, and no time of day in the file.
bitmap() {
  convert "$3" -resize "$2x$2" -alpha off -type TrueColor -define bmp:format=bmp3 "BMP3:$out/$1"
}

face '#f0f0f0' "$work/face.png"
bitmap face.bmp 120 "$work/face.png"

face none "$work/icon.png"
convert "$work/icon.png" -fill none -stroke '#b02828' -strokewidth 28 \
  -draw "line 240,240 240,100 line 240,240 330,290" "$work/clock.png"
convert \( "$work/clock.png" -resize 32x32 \) \( "$work/clock.png" -resize 16x16 \) \
  -channel A -threshold 50% +channel -colors 64 "$out/clock.ico"

# Three signs for buttons.
convert -size 96x96 xc:'#f0f0f0' -fill none -stroke '#b02828' -strokewidth 14 \
  -draw "line 22,22 74,74 line 74,22 22,74" "$work/close.png"
bitmap close.bmp 24 "$work/close.png"

convert -size 96x96 xc:'#f0f0f0' -fill none -stroke '#2c8040' -strokewidth 14 \
  -draw "polyline 16,52 38,74 80,24" "$work/ok.png"
bitmap ok.bmp 24 "$work/ok.png"

convert -size 96x96 xc:'#f0f0f0' -fill none -stroke '#404850' -strokewidth 8 \
  -draw "line 12,24 84,24 line 12,48 84,48 line 12,72 84,72" \
  -fill '#f0f0f0' -stroke '#28507c' -strokewidth 6 \
  -draw "circle 32,24 32,14 circle 64,48 64,38 circle 44,72 44,62" "$work/settings.png"
bitmap settings.bmp 24 "$work/settings.png"
