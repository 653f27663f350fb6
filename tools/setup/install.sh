#!/bin/sh
# install.sh WORD...: installs the packages that packages.txt lists behind these words and that are
# not there yet. Asks for nothing when nothing is missing.
set -eu
here=$(cd "$(dirname "$0")/../.." && pwd)

missing() {
  for word in "$@"; do
    sed -n "s/^$word //p" "$here/packages.txt"
  done | while read -r package; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || echo "$package"
  done
}

wanted=$(missing "$@")
[ -n "$wanted" ] || exit 0

as_root=
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || {
    echo "These packages are missing and need root to install:" $wanted >&2
    exit 1
  }
  as_root=sudo
fi
echo "Installing:" $wanted
$as_root apt-get update -qq
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $wanted </dev/null >/dev/null
