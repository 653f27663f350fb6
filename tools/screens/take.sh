#!/bin/sh
# take.sh [SCALE]: takes the pictures of every screen into docs/screens, at 1366 x 768 and 100 %, or
# with SCALE 2 those of creation and fight into docs/screens/200, at twice that and 200 %.
set -eu
cd "$(dirname "$0")/../.."
scale=${1:-1}
cmake --preset release >/dev/null && cmake --build build/release --target brolgan_screens brolgan_assets >/dev/null
target=$PWD/docs/screens
[ "$scale" = 1 ] || target=$PWD/docs/screens/200
play=$(mktemp -d)
trap 'rm -rf "$play"; kill $server 2>/dev/null || true' EXIT
cp build/release/gra/*.jpg build/release/gra/*.png build/release/gra/*.cfg "$play"
number=$(mktemp)
Xvfb -displayfd 3 -screen 0 $((1366 * scale))x$((768 * scale))x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
server=$!
while [ ! -s "$number" ]; do sleep 0.1; done
export DISPLAY=:$(cat "$number") QT_SCALE_FACTOR="$scale"
openbox >/dev/null 2>&1 &
sleep 0.5
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
