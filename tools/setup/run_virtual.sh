#!/bin/sh
# run_virtual.sh FOLDER: starts the game of that folder on a virtual display, says where its first
# screenshot lies, and waits for the end of the game.
set -eu
. "$(dirname "$0")/display.sh"
cd "$1"
picture=$PWD/pierwszy-ekran.png
rm -f "$picture"
trap stop_display EXIT INT TERM
start_display 1366 768 env

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
