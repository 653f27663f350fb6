#!/bin/sh
# run.sh [FILE]: builds what the measurements need, measures everything in turn in the same rounds,
# and writes one table, as Markdown, to FILE or to the screen. ROUNDS (12) says how many rounds, and
# BENCH_PLAIN=1 runs the programs like all others.
# On a machine that others use the programs run before all others, where that is allowed. The processors
# are kept awake.
set -eu
out=${1:-/dev/stdout}
case $out in /*) ;; *) out=$PWD/$out ;; esac
cd "$(dirname "$0")/.."
. tools/setup/display.sh
. bench/awake.sh
rounds=${ROUNDS:-12}
build=$PWD/build/bench
report=$PWD/bench/report.py

tools/setup/install.sh play show check

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBROLGAN_TESTS=OFF -DBROLGAN_BENCH=ON >/dev/null
cmake --build "$build" >&2

first=
[ -n "${BENCH_PLAIN:-}" ] || ! chrt -f 5 true 2>/dev/null || first="chrt -f 5"

work=$(mktemp -d)
trap 'stop_display; let_sleep; rm -rf "$work"' EXIT INT TERM
keep_awake
XDG_RUNTIME_DIR=$work
export XDG_RUNTIME_DIR
start_display 1366 768 ${first:-env}
cp -r "$build/gra" "$work/gra"
cd "$work/gra"

# measure NAME WANTED COMMAND...: runs it and keeps the figures wanted, each behind the name.
measure() {
  name=$1
  wanted=$2
  shift 2
  $first "$@" 2>"$work/errors" | grep "$wanted" | sed "s/^/$name\t/" >"$work/figures"
  [ -s "$work/figures" ] || { echo "$* gave no figures:" >&2; cat "$work/errors" >&2; exit 1; }
  cat "$work/figures" >>"$work/all"
}

outside=$build/bench/bench_outside
floor=$build/bench/bench_floor
round=1
while [ "$round" -le "$rounds" ]; do
  echo "round $round of $rounds, load $(cut -d' ' -f1-3 /proc/loadavg)" >&2
  # The first start after other work is slower than the next ones, so one of each is not counted.
  $first "$outside" 1 0 "$floor" >/dev/null 2>&1
  $first "$outside" 2 0 ./brolgan >/dev/null 2>&1
  for _ in 1 2; do
    measure floor "" "$outside" 1 0 "$floor"
    measure game "" "$outside" 2 0 ./brolgan
  done
  measure floor "" "$build/bench/bench_inside" bare
  measure game "" "$build/bench/bench_inside" game
  measure floor idle_ "$outside" 1 10 "$floor"
  measure game idle_ "$outside" 2 10 ./brolgan
  measure game "" "$build/bench/bench_rooms" --benchmark_format=csv
  cut -d' ' -f1-3 /proc/loadavg >>"$work/load"
  round=$((round + 1))
done
python3 "$report" "$work/all" "$work/load" "${first:-plain}" >"$out"
