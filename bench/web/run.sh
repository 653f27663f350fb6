#!/bin/sh
# run.sh [ROUNDS]: builds the page and measures it in a browser; prints a table for docs/measurements.md.
set -eu
cd "$(dirname "$0")/../.."
tools/setup/install.sh web
mkdir -p build
for preset in web-dev web; do
  cmake --preset "$preset" >build/bench-web.log 2>&1 && cmake --build --preset "$preset" >>build/bench-web.log 2>&1 || {
    cat build/bench-web.log
    exit 1
  }
done
exec /usr/bin/python3 bench/web/measure.py "$@"
