# The surroundings in which the tests run: a Polish locale, whose decimal sign is a comma, and a
# time zone far from UTC. Sourced by the other checks.
mkdir -p build/locale
[ -d build/locale/pl_PL.UTF-8 ] || localedef -i pl_PL -f UTF-8 build/locale/pl_PL.UTF-8
export LOCPATH="$PWD/build/locale" LC_ALL=pl_PL.UTF-8 TZ=Asia/Kathmandu

# build_played TARGET...: builds targets of the game as it is played, with the measurements beside.
build_played() {
  cmake --preset release -B build/played -DBROLGAN_WERROR=ON -DBROLGAN_BENCH=ON >build/played.log 2>&1 &&
    cmake --build build/played --target "$@" >>build/played.log 2>&1 || {
    tail -n 60 build/played.log
    return 1
  }
}

# build_and_test PRESET: configures, builds and runs the tests of a preset, quietly while all is well.
build_and_test() {
  cmake --preset "$1" >"build/$1.log" 2>&1 && cmake --build --preset "$1" >>"build/$1.log" 2>&1 || {
    tail -n 60 "build/$1.log"
    return 1
  }
  ctest --preset "$1" -j2 --timeout 1200 >"build/$1-tests.log" 2>&1 || {
    grep -v ' Passed ' "build/$1-tests.log" | tail -n 120
    return 1
  }
  tail -n 4 "build/$1-tests.log"
}
