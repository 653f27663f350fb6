#!/bin/sh
# Every test once more under the address and undefined-behaviour sanitizers. Leaks of the libraries
# that draw text at start-up are not ours and are left out by name.
set -eu
mkdir -p build
. tools/checks/environment.sh
export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tools/checks/leaks.txt:print_suppressions=0
build_and_test asan
