#!/bin/sh
# What no other stage builds: the measurements, the maker of screenshots, the game without sound; and
# the tests of the sound under the thread sanitizer.
set -eu
mkdir -p build
. tools/checks/environment.sh
build_played brolgan_assets brolgan_screens brolgan_silent bench_floor bench_outside bench_inside bench_rooms
cmake -S . -B build/tsan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS=-O1 -DBROLGAN_WERROR=ON \
  -DBROLGAN_SANITIZE=thread >build/tsan.log 2>&1 &&
  cmake --build build/tsan --target test_sound >>build/tsan.log 2>&1 || {
  tail -n 60 build/tsan.log
  exit 1
}
build/tsan/tests/sound/test_sound --gtest_brief=1 >build/tsan-tests.log 2>&1 || {
  tail -n 60 build/tsan-tests.log
  exit 1
}
tail -n 1 build/tsan-tests.log
