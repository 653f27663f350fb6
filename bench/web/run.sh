#!/bin/sh
# run.sh [ROUNDS]: builds the page and measures it in a browser, with the processors
# kept awake; prints a table for docs/measurements.md.
set -eu
cd "$(dirname "$0")/../.."
. bench/awake.sh
tools/setup/install.sh web
mkdir -p build
for preset in web-dev web; do
  cmake --preset "$preset" >build/bench-web.log 2>&1 && cmake --build --preset "$preset" >>build/bench-web.log 2>&1 || {
    cat build/bench-web.log
    exit 1
  }
done
trap let_sleep EXIT INT TERM
keep_awake
/usr/bin/python3 bench/web/measure.py "$@"
