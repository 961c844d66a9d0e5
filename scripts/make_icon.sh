#!/bin/sh
# Redraws support/IconApp.ico from support/icons/iconapp.svg: 16, 32 and 48 pixels, 32 bits with
# alpha. Run it after a change of the drawing and commit both; the build only copies the icon.
# Needs rsvg-convert and icotool.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for size in 16 32 48; do
  rsvg-convert --width "$size" --height "$size" --output "$work/$size.png" \
    "$root/support/icons/iconapp.svg"
done
icotool --create --bit-depth=32 --output "$root/support/IconApp.ico" \
  "$work/16.png" "$work/32.png" "$work/48.png"
