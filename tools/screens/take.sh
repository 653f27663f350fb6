#!/bin/sh
# take.sh [FOLDER]: takes the pictures of docs/screens (or of FOLDER): every screen at 1366 x 768; those
# of creation, fight and shop at other sizes, each in a folder of its own, and at 200 %.
set -eu
target=${1:-}
case $target in "" | /*) ;; *) target=$PWD/$target ;; esac
cd "$(dirname "$0")/../.."
target=${target:-$PWD/docs/screens}
cmake --preset release >/dev/null && cmake --build build/release --target brolgan_screens brolgan_assets >/dev/null
binary=$PWD/build/release/tools/screens/brolgan_screens
hero=$PWD/tools/screens/hero.boh
work=$(mktemp -d)
server=
trap 'rm -rf "$work"; kill $server 2>/dev/null || true' EXIT

# take WIDTH HEIGHT SCALE FOLDER [maximised]
take() {
  play=$work/$1x$2x$3
  mkdir -p "$play/taken" "$4"
  cp build/release/gra/*.jpg build/release/gra/*.png build/release/gra/*.cfg "$play"
  Xvfb -displayfd 3 -screen 0 "$1x$2x24" -nolisten tcp 3>"$work/number" >/dev/null 2>&1 &
  server=$!
  while [ ! -s "$work/number" ]; do sleep 0.1; done
  DISPLAY=:$(cat "$work/number")
  export DISPLAY
  openbox >/dev/null 2>&1 &
  sleep 0.5
  (cd "$play" && QT_SCALE_FACTOR=$3 "$binary" taken "$hero" ${5:-})
  kill $server
  wait $server 2>/dev/null || true
  rm -f "$work/number" "$4"/*.png
  for picture in "$play"/taken/*.png; do
    name=${picture##*/}
    case $4/$name in
      "$target/$name" | */creation.png | */fight.png | */shop.png)
        convert "$picture" -depth 8 -colors 256 "PNG8:$4/$name" ;;
    esac
  done
}

take 1366 768 1 "$target"
take 2732 1536 2 "$target/200"
take 1024 600 1 "$target/1024x600"
take 2560 1440 1 "$target/2560x1440"
take 1920 1080 1 "$target/1920x1080" maximised
