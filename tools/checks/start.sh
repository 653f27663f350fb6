#!/bin/sh
# The game as it is played starts, shows its first window, and ends when the title is closed; a turn of it
# can be followed from what it tells screen readers alone.
set -eu
mkdir -p build
. tools/checks/environment.sh
build_played all
tools/setup/run_virtual.sh build/played/gra >build/start.log 2>&1 &
running=$!
waited=0
until grep -q 'first screenshot' build/start.log; do
  waited=$((waited + 1))
  [ $waited -le 300 ] && kill -0 $running 2>/dev/null || { cat build/start.log; exit 1; }
  sleep 0.1
done
DISPLAY=$(sed -n 's/.*virtual one (\(.*\))\..*/\1/p' build/start.log)
export DISPLAY
wmctrl -F -c 'Brolgan XP version'
wait $running
test -s build/played/gra/pierwszy-ekran.png
echo "the game starts and ends"
tests/access/run.sh build/played/gra >build/access.log 2>&1 || {
  tail -n 30 build/access.log
  exit 1
}
tail -n 1 build/access.log
