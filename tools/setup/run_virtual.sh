#!/bin/sh
# run_virtual.sh FOLDER: starts the game of that folder on a virtual display, says where its first
# screenshot lies, and waits for the end of the game.
set -eu
cd "$1"
picture=$PWD/pierwszy-ekran.png
rm -f "$picture"

number=$(mktemp)
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
server=$!
trap 'kill $server 2>/dev/null; rm -f "$number"' EXIT INT TERM
waited=0
until [ -s "$number" ]; do
  waited=$((waited + 1))
  [ $waited -le 100 ] || { echo "The virtual display does not start." >&2; exit 1; }
  sleep 0.1
done
DISPLAY=:$(cat "$number")
export DISPLAY
openbox >/dev/null 2>&1 &
# A window that comes before its manager may never be shown.
waited=0
until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
  waited=$((waited + 1))
  [ $waited -le 100 ] || { echo "The window manager does not start." >&2; exit 1; }
  sleep 0.1
done

./brolgan &
game=$!
waited=0
until xwininfo -root -tree 2>/dev/null | grep -q '"MainGame"'; do
  waited=$((waited + 1))
  kill -0 $game 2>/dev/null || { echo "The game ended before it showed a window." >&2; exit 1; }
  [ $waited -le 200 ] || { echo "The game shows no window." >&2; exit 1; }
  sleep 0.1
done

# The first picture that shows more than an empty screen.
brightness=0
while [ "$brightness" -lt 50 ]; do
  waited=$((waited + 1))
  kill -0 $game 2>/dev/null || { echo "The game ended before it showed anything." >&2; exit 1; }
  [ $waited -le 300 ] || { echo "The game shows nothing." >&2; exit 1; }
  sleep 0.3
  import -window root "$picture"
  brightness=$(identify -format '%[fx:int(mean*1000)]' "$picture")
done
echo "There is no display, so the game runs on a virtual one ($DISPLAY)."
echo "Its first screenshot: $picture"
echo "Stop it with Ctrl+C."
wait $game
