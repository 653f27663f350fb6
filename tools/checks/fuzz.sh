#!/bin/sh
# One minute of fuzzing, spread over the readers of text files.
set -eu
mkdir -p build
cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_CXX_FLAGS=-O1 \
  -DBROLGAN_FUZZ=ON -DBROLGAN_FACE=OFF -DBROLGAN_TESTS=OFF >build/fuzz.log 2>&1
cmake --build build/fuzz >>build/fuzz.log 2>&1 || {
  tail -n 60 build/fuzz.log
  exit 1
}
fuzzers=$(find build/fuzz -type f -name 'fuzz_*' -perm -u+x | sort)
[ -n "$fuzzers" ] || { echo "There are no fuzzers." >&2; exit 1; }
seconds=$((60 / $(echo "$fuzzers" | wc -l)))
for fuzzer in $fuzzers; do
  target=$(basename "$fuzzer")
  mkdir -p "build/fuzz/found/$target"
  "$fuzzer" -max_total_time=$seconds -timeout=5 -artifact_prefix="build/fuzz/found/$target/" \
    "build/fuzz/found/$target" "fuzz/corpus/${target#fuzz_}" >"build/fuzz/$target.log" 2>&1 || {
    tail -n 40 "build/fuzz/$target.log"
    exit 1
  }
done
echo "$(echo "$fuzzers" | wc -l) readers fuzzed for $seconds s each"
