#!/bin/sh
# Every test, in the plain debug build.
set -eu
mkdir -p build
. tools/checks/environment.sh
build_and_test dev
