#!/bin/sh
# take.sh [FOLDER]: takes the pictures of docs/screens (or of FOLDER): every screen at 1366 x 768; those
# of creation, fight and shop at other sizes, each in a folder of its own, and at 200 %; and a fight that
# moves.
set -eu
target=${1:-}
case $target in "" | /*) ;; *) target=$PWD/$target ;; esac
cd "$(dirname "$0")/../.."
. tools/setup/display.sh
target=${target:-$PWD/docs/screens}
cmake --preset release >/dev/null && cmake --build build/release --target brolgan_screens brolgan_assets >/dev/null
binary=$PWD/build/release/tools/screens/brolgan_screens
hero=$PWD/tools/screens/hero.boh
work=$(mktemp -d)
trap 'rm -rf "$work"; stop_display' EXIT INT TERM

# take WIDTH HEIGHT SCALE FOLDER [maximised]
take() {
  play=$work/$1x$2x$3
  mkdir -p "$play/taken" "$4"
  cp build/release/gra/*.jpg build/release/gra/*.png build/release/gra/*.cfg "$play"
  start_display "$1" "$2" env
  (cd "$play" && QT_SCALE_FACTOR=$3 "$binary" taken "$hero" ${5:-})
  stop_display
  rm -f "$4"/*.png
  for picture in "$play"/taken/*.png; do
    name=${picture##*/}
    case $4/$name in
      */film-*) ;;
      "$target/$name" | */creation.png | */fight.png | */shop.png)
        convert "$picture" -depth 8 -colors 256 "PNG8:$4/$name" ;;
    esac
  done
}

# film FOLDER: makes the moving picture of a fight from the frames of the first run.
film() {
  convert -loop 0 -delay 120 "$work"/1366x768x1/taken/film-*.png -resize 683x -colors 128 +dither -layers Optimize \
    "$1/fight.gif"
}

take 1366 768 1 "$target"
film "$target"
take 2732 1536 2 "$target/200"
take 1024 600 1 "$target/1024x600"
take 2560 1440 1 "$target/2560x1440"
take 1920 1080 1 "$target/1920x1080" maximised
