#!/bin/sh
# Plays the games again and writes docs/balans.md with its plots, from the data files in assets.
# Further words go to the program, "--games 200" for a shorter study.
set -eu
cd "$(dirname "$0")/.."
build=build/report
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF
cmake --build "$build" --target simulate -j
"$(find "$build" -name simulate -type f)" --data assets --results docs "$@"
