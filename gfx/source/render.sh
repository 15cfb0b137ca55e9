#!/bin/sh
# Renders the drawings beside this script into the pictures one folder up: *.svg becomes *.jpg
# (1600x1000, under 300 KB) and icon.svg becomes icon.png (256x256), and the sizes that a desktop asks
# for in packaging/icons.
#
#   gfx/source/render.sh            all of them
#   gfx/source/render.sh NAME...    only these, by name without an ending
#
# Needs the Debian packages librsvg2-bin, imagemagick, fontconfig and fonts-inter.
set -eu

readonly maxBytes=300000
readonly width=1600
readonly height=1000
# The drawings reach this many pixels past the picture, so that no blur fades at its edge.
readonly bleed=60

fail() {
  echo "render.sh: $1" >&2
  exit 1
}

needTool() {
  command -v "$1" >/dev/null || fail "$1 is missing; install the package $2"
}

renderIcon() {
  for size in 16 22 24 32 48 64 128 256 512; do
    rsvg-convert --width "$size" --height "$size" --output "$icons/$size.png" "$source/icon.svg"
  done
  cp "$icons/256.png" "$target/icon.png"
}

# A faint grey grain hides the steps that eight bits leave in the long dark gradients. Its seed and
# the single thread keep it the same in every run. Quality gives way until the file is small enough.
renderPicture() {
  rsvg-convert --output "$scratch/drawing.png" "$source/$1.svg"
  convert -seed 7 "$scratch/drawing.png" -alpha off \
    -crop "${width}x${height}+${bleed}+${bleed}" +repage \
    \( -size "${width}x${height}" xc:gray50 -attenuate 0.07 +noise Gaussian -colorspace Gray \) \
    -compose Mathematics -define compose:args=0,1,1,-0.5 -composite "$scratch/grained.miff"
  quality=92
  while :; do
    convert "$scratch/grained.miff" -strip -interlace none -sampling-factor 1x1 \
      -quality "$quality" "$scratch/picture.jpg"
    size=$(wc -c <"$scratch/picture.jpg")
    [ "$size" -gt "$maxBytes" ] || break
    quality=$((quality - 2))
    [ "$quality" -ge 70 ] || fail "$1 does not fit into $maxBytes bytes"
  done
  mv "$scratch/picture.jpg" "$target/$1.jpg"
  echo "$1.jpg: quality $quality, $size bytes"
}

needTool rsvg-convert librsvg2-bin
needTool convert imagemagick
needTool fc-match fontconfig
[ "$(fc-match --format='%{family[0]}' Inter)" = Inter ] ||
  fail "the font Inter is missing; install the package fonts-inter"

source=$(cd "$(dirname "$0")" && pwd)
target=$(dirname "$source")
icons=$(dirname "$target")/packaging/icons
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export MAGICK_THREAD_LIMIT=1

if [ $# -eq 0 ]; then
  for drawing in "$source"/*.svg; do
    set -- "$@" "$(basename "$drawing" .svg)"
  done
fi
for name; do
  [ -f "$source/$name.svg" ] || fail "there is no drawing $name.svg"
  if [ "$name" = icon ]; then renderIcon; else renderPicture "$name"; fi
done
