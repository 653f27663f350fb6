#!/bin/sh
# The game in a browser: builds it twice, as it is played and with its files open to tests, and plays it
# there beside the game without a face.
set -eu
tools/setup/install.sh web
command -v npm >/dev/null || tools/setup/install.sh npm
mkdir -p build
. tools/checks/environment.sh

quietly() {
  log=$1
  shift
  "$@" >"build/$log.log" 2>&1 || {
    tail -n 60 "build/$log.log"
    return 1
  }
}

for preset in web-dev web; do
  quietly "$preset" sh -c "cmake --preset $preset && cmake --build --preset $preset"
done
quietly web-table sh -c "cmake --preset dev && cmake --build --preset dev --target web_table"
quietly web-npm npm ci --prefix tests/web --no-audit --no-fund
python3 tests/web/places.py build/dev/tests/web/web_table
# The system's own python, which has the system's packages. The robot plays beside the other tests.
/usr/bin/python3 tests/web/robot_test.py >build/web-robot.log 2>&1 &
robot=$!
trap 'kill "$robot" 2>/dev/null || true' EXIT
/usr/bin/python3 tests/web/page_test.py
wait "$robot" || {
  cat build/web-robot.log
  exit 1
}
cat build/web-robot.log
