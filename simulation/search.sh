#!/bin/sh
# Looks for better numbers, from those in assets on, until it is stopped; started again it goes on.
# Its log and its state lie in docs/balans. With the word "settle" first it moves the monsters one by one instead
# and leaves the best data files in build/report/settled; with "climb" it moves single numbers, keeps what helps
# and leaves data files and log in build/report/climbed. Further words go to the program, "--games 100" for one.
set -eu
cd "$(dirname "$0")/.."
build=build/report
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF
cmake --build "$build" --target search -j
search=$(find "$build" -name search -type f)
if [ "${1:-}" = settle ]; then
  exec nice -n 19 "$search" "$@" --data assets --results "$build/settled"
fi
if [ "${1:-}" = climb ]; then
  exec nice -n 19 "$search" "$@" --data assets --results "$build/climbed"
fi
exec nice -n 19 "$search" run --data assets --results docs/balans "$@"
