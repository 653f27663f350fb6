#!/bin/sh
# build.sh TARGET WORK: makes the Debian packages from a copy of the project in the folder WORK, which goes
# when they are done, and lays them and the log of the build into TARGET.
set -eu
cd "$(dirname "$0")/../.."
target=$1 work=$2
rm -rf "$work" "$target"
mkdir -p "$work/brolgan" "$target"
tar --exclude=./build --exclude=./.git --exclude=__pycache__ -cf - . | tar -xf - -C "$work/brolgan"
(cd "$work/brolgan" && dpkg-buildpackage -us -uc -b) >"$target/build.log" 2>&1 || {
  tail -n 60 "$target/build.log"
  exit 1
}
mv "$work"/brolgan*_* "$target"
rm -rf "$work"
