#!/bin/sh
# Every test once more under the address and undefined-behaviour sanitizers. Leaks of the libraries
# that draw text at start-up are not ours and are left out by name.
set -eu
mkdir -p build
. tools/checks/environment.sh
export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tools/checks/leaks.txt:print_suppressions=0
rm -f build/asan-tests.log
if build_and_test asan >build/asan-shown.txt; then
  cat build/asan-shown.txt
  exit 0
fi
# At the end of a program the leak checker stops all its threads to look through their memory. Now and then
# it cannot, and ends a program all of whose tests passed. Those programs run again; whatever else failed stays
# a failure.
log=build/asan-tests.log
[ -f "$log" ] || {
  cat build/asan-shown.txt
  exit 1
}
failed=$(grep -c '\*\*\*' "$log" || true)
gave_up=$(grep -c 'LeakSanitizer has encountered a fatal error' "$log" || true)
if [ "$failed" -eq 0 ] || [ "$failed" -ne "$gave_up" ] || grep -qE 'ERROR: [A-Za-z]+Sanitizer|runtime error:|\[  FAILED  \]' "$log"; then
  cat build/asan-shown.txt
  exit 1
fi
echo "The leak checker itself gave up in $gave_up programs, which run again:"
grep '\*\*\*' "$log"
ctest --preset asan --rerun-failed --timeout 1200 >build/asan-again.log 2>&1 || {
  tail -n 120 build/asan-again.log
  exit 1
}
tail -n 4 build/asan-again.log
