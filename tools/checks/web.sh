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
# The program, as the compiler for browsers sees it.
find web -name '*.cpp' | xargs -n 3 -P 2 clang-tidy --quiet -p build/web-dev --header-filter='/web/[a-z_]+\.h$' \
  --extra-arg=--target=wasm32-unknown-emscripten --extra-arg=-D__EMSCRIPTEN__ \
  --extra-arg=--sysroot=/usr/share/emscripten/cache/sysroot >build/web-tidy.txt 2>build/web-tidy.err || {
  cat build/web-tidy.txt
  exit 1
}
quietly web-table sh -c "cmake --preset dev && cmake --build --preset dev --target web_table"
quietly web-npm npm ci --prefix tests/web --no-audit --no-fund
python3 tests/web/places.py build/dev/tests/web/web_table
# The system's own python, which has the system's packages. The robot plays beside the other tests. A browser
# that hangs ends after a while.
limit=${BROLGAN_WEB_LIMIT:-1800}
timeout -s INT -k 10 "$limit" /usr/bin/python3 tests/web/robot_test.py >build/web-robot.log 2>&1 &
robot=$!
trap 'kill "$robot" 2>/dev/null || true' EXIT
timeout -s INT -k 10 "$limit" /usr/bin/python3 tests/web/page_test.py || {
  [ $? -lt 124 ] || echo "the browser was not done within $limit seconds"
  exit 1
}
wait "$robot" || {
  cat build/web-robot.log
  exit 1
}
cat build/web-robot.log
