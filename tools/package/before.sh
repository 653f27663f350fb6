#!/bin/sh
# before.sh FOLDER TARGET: lays into TARGET what stands in for the version before of the packages in FOLDER:
# the same with an older number, and with a file that the newer one has no more.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT INT TERM
mkdir -p "$2"
for name in brolgan brolgan-data; do
  dpkg-deb -R "$1/$name"_*.deb "$work/$name"
  sed -i 's/^Version: .*/Version: 0.9.0/; s/brolgan-data (= [^)]*)/brolgan-data (= 0.9.0)/' "$work/$name/DEBIAN/control"
done
echo dawny >"$work/brolgan-data/usr/share/games/brolgan/dawny.cfg"
for name in brolgan brolgan-data; do
  dpkg-deb -Znone --root-owner-group -b "$work/$name" "$2/${name}_0.9.0.deb" >/dev/null
done
