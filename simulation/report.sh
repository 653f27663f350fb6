#!/bin/sh
# Plays the games again and writes docs/balans.md with its plots, from the data files in assets.
set -eu
cd "$(dirname "$0")/.."
build=build/report
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF
cmake --build "$build" --target simulate -j
"$(find "$build" -name simulate -type f)" --data assets --results docs --games 1000 --seed 1
