#!/bin/sh
# take.sh [SCALE]: takes the pictures of every screen into docs/screens, at 1366 x 768 and 100 %, or
# with SCALE 2 those of creation and fight into docs/screens/200, at twice that and 200 %.
set -eu
cd "$(dirname "$0")/../.."
. tools/setup/display.sh
scale=${1:-1}
cmake --preset release >/dev/null && cmake --build build/release --target brolgan_screens brolgan_assets >/dev/null
target=$PWD/docs/screens
[ "$scale" = 1 ] || target=$PWD/docs/screens/200
play=$(mktemp -d)
trap 'rm -rf "$play"; stop_display' EXIT INT TERM
cp build/release/gra/*.jpg build/release/gra/*.png build/release/gra/*.cfg "$play"
start_display $((1366 * scale)) $((768 * scale)) env
export QT_SCALE_FACTOR="$scale"
binary=$PWD/build/release/tools/screens/brolgan_screens
hero=$PWD/tools/screens/hero.boh
mkdir "$play/taken"
cd "$play"
"$binary" "$play/taken" "$hero"
rm -f "$target"/*.png
mkdir -p "$target"
for picture in taken/*.png; do
  name=${picture#taken/}
  case $scale/$name in
    1/* | */creation.png | */fight.png) convert "$picture" -depth 8 -colors 256 "PNG8:$target/$name" ;;
  esac
done
