#!/bin/sh
# monsters.sh: makes docs/potwory.jpg, all 45 monsters in the order of the list.
set -eu
cd "$(dirname "$0")/../.."
pictures=$(iconv -f cp1250 -t utf-8 assets/monsters.cfg | tr -d '\r' | awk 'NR > 1 && (NR - 2) % 10 == 2' |
  sed 's|^|assets/pictures/rendered/|')
montage $pictures -tile 9x5 -geometry 200x200+6+6 -background '#efe2c4' -quality 82 docs/potwory.jpg
