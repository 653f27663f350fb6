#!/bin/sh
# Plays the games again and writes docs/balans.md with its plots, from the data files in assets.
set -eu
cd "$(dirname "$0")/.."
build=build/raport
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF
cmake --build "$build" --target symulacja -j
"$(find "$build" -name symulacja -type f)" --dane assets --wyniki docs --gry 1000 --pojedynki-umyslow 60 --ziarno 1
