#!/bin/sh
# The Debian packages: built twice in different surroundings to the same bits, without a word from any
# validator, and played by another user from an empty prefix.
set -eu
mkdir -p build/package
. tools/checks/environment.sh
tools/setup/install.sh package
elsewhere=$(mktemp -d)
trap 'rm -rf "$elsewhere"' EXIT INT TERM

version=$(sed -n 's/^project(brolgan VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ "$(dpkg-parsechangelog -S Version)" = "$version" ] || {
  echo "debian/changelog is not at version $version" >&2
  exit 1
}

LC_ALL=C.UTF-8 TZ=UTC tools/package/build.sh build/package/first "$PWD/build/package/tree"
tools/package/build.sh build/package/second "$elsewhere/a-folder-of-a-longer-name"
for package in build/package/first/*.deb; do
  cmp "$package" "build/package/second/${package##*/}"
done
echo "two builds agree in every bit: $(cd build/package/first && echo *.deb)"

tools/package/validate.sh build/package/first
tools/package/trial.sh build/package/first
