#!/bin/sh
# validate.sh FOLDER: asks every validator about the packages of FOLDER; each must keep silent.
set -eu
export LC_ALL=C.UTF-8
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT INT TERM

# silent NAME COMMAND...: fails when the command fails or says a word.
silent() {
  name=$1
  shift
  "$@" >"$work/said" 2>&1 && [ ! -s "$work/said" ] || {
    echo "$name:"
    cat "$work/said"
    exit 1
  }
}
manual() { man --warnings -E UTF-8 -l "$1" 2>&1 >/dev/null; }
appstream() { appstreamcli validate --pedantic --no-net --no-color "$1" | grep -v 'Validation was successful' || true; }
hardened() {
  blhc "$1" || return 1
  grep -q -- '-fstack-protector-strong' "$1"
}

dpkg-deb -x "$1"/brolgan_*.deb "$work/tree"
dpkg-deb -x "$1"/brolgan-data_*.deb "$work/tree"
silent lintian lintian -i -I --pedantic --fail-on error,warning,info,pedantic --allow-root "$1"/brolgan_*.changes
silent desktop-file-validate desktop-file-validate "$work"/tree/usr/share/applications/brolgan.desktop
silent appstreamcli appstream "$work"/tree/usr/share/metainfo/com.example.brolgan.metainfo.xml
for page in "$work"/tree/usr/share/man/man6/*.gz "$work"/tree/usr/share/man/pl/man6/*.gz; do
  silent man manual "$page"
done
silent blhc hardened "$1/build.log"
echo "no validator has anything to say"
