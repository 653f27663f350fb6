#!/bin/sh
# preview.sh NAME...: renders src/NAME.svg to OUT/NAME.png at its own size and at 96 px high, for looking at while drawing.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
out=${OUT:-${TMPDIR:-/tmp}/pictures}
mkdir -p "$out"
for name in "$@"; do
  python3 "$here/build.py" "$here/src/$name.svg" -o "$out/$name.svg"
  rsvg-convert "$out/$name.svg" -o "$out/$name.png"
  convert "$out/$name.png" -filter Lanczos -resize x96 "$out/$name-96.png"
done
