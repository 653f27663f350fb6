#!/bin/sh
# Looks for better numbers, from those in assets on, until it is stopped; started again it goes on.
# Its log and its state lie in docs/balans. Further words go to the program, "--games 100" for one.
set -eu
cd "$(dirname "$0")/.."
build=build/report
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF
cmake --build "$build" --target search -j
exec nice -n 19 "$(find "$build" -name search -type f)" run --data assets --results docs/balans "$@"
