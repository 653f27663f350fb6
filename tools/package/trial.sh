#!/bin/sh
# trial.sh FOLDER: installs the packages of FOLDER into an empty prefix and has another user with an empty
# home play there: a turn with what is installed, an upgrade with heroes in place, a turn with weapons of
# his own, a folder that may not be written, two games at once; removes them, and says after each what is
# where. Only root can become another user; anyone else plays himself, with an empty home.
set -eu
packages=$(cd "$1" && pwd)
cd "$(dirname "$0")/../.."
. tools/setup/display.sh
stage=$(mktemp -d)
trap 'stop_display; rm -rf "$stage"' EXIT INT TERM
prefix=$stage/prefix home=$stage/home folder=$stage/home/.local/share/brolgan
mkdir -p "$prefix/var/lib/dpkg/info" "$prefix/var/lib/dpkg/updates" "$home" "$stage/run" "$stage/tree"
touch "$prefix/var/lib/dpkg/status"
chmod 755 "$stage"
# The player may not see the folder of the project.
tar -cf - debian/tests tests/access tests/package tools/setup | tar -xf - -C "$stage/tree"

say() { echo "$*" >&2; }
fail() { say "$*"; exit 1; }

if [ "$(id -u)" -eq 0 ]; then
  player=65534
  become="setpriv --reuid=$player --regid=$player --clear-groups"
  packager=
  chown $player:$player "$home" "$stage/run"
else
  become=
  packager=fakeroot
fi
chmod 700 "$home" "$stage/run"

install_packages() {
  $packager env DPKG_FRONTEND_LOCKED= dpkg --root="$prefix" --force-depends --force-not-root --force-bad-path \
    --log=/dev/null "$@" >"$stage/dpkg.log" 2>&1 || { cat "$stage/dpkg.log"; exit 1; }
}
# as_player HOME COMMAND...: on the virtual display and a session bus of his own.
as_player() {
  its_home=$1
  shift
  (cd "$stage/tree" && exec $become env -i HOME="$its_home" PATH="$PATH" DISPLAY="$DISPLAY" XDG_RUNTIME_DIR="$stage/run" \
    LC_ALL=C.UTF-8 AUTOPKGTEST_TMP="$its_home" BROLGAN="$prefix/usr/games/brolgan" \
    PYTHONDONTWRITEBYTECODE=1 dbus-run-session -- "$@") 2>"$stage/complaints" || { cat "$stage/complaints"; exit 1; }
}
files_below() { (cd "$1" && find . -type f -not -path './var/lib/dpkg/*' -not -path './.cache/*' | sort); }
sums_below() { (cd "$1" && find . -type f -not -path './var/lib/dpkg/*' -exec sha256sum {} + | sort -k 2); }
heroes() { (cd "$folder" && sha256sum *.boh); }

start_display 1366 768 env
tools/package/before.sh "$packages" "$stage/before"
install_packages -i "$stage"/before/*.deb
[ -f "$prefix/usr/share/games/brolgan/dawny.cfg" ] || fail "The version before lacks its own file."
sums_below "$prefix" >"$stage/installed"

as_player "$home" /usr/bin/python3 tests/package/turn.py "$prefix/usr/games/brolgan"
[ "$(stat -c %a "$folder")" = 700 ] || fail "Others may look into the player's folder."
sums_below "$prefix" | cmp - "$stage/installed" || fail "The game wrote into its prefix."
files_below "$home" >"$stage/written"
say "written in the player's home:" $(cat "$stage/written")
strangers=$(grep -vE '^\./\.local/share/brolgan/(hero1\.boh|(makehro|gra|sklep|pref|fight)\.cfg)$' "$stage/written" || true)
[ -z "$strangers" ] || fail "Nobody knows these files:" $strangers

before=$(heroes)
install_packages -i "$packages"/brolgan_*.deb "$packages"/brolgan-data_*.deb
[ "$(heroes)" = "$before" ] || fail "The upgrade changed the heroes."
[ ! -e "$prefix/usr/share/games/brolgan/dawny.cfg" ] || fail "The upgrade left a file of the version before."
say "upgraded with the heroes in place"

mkdir -m 700 "$home/own"
[ -z "$become" ] || chown $player:$player "$home/own"
as_player "$home/own" debian/tests/turn >"$stage/turn.log" 2>&1 || { cat "$stage/turn.log"; exit 1; }
say "with weapons of his own:" "$(tail -n 1 "$stage/turn.log")"

mkdir -p -m 700 "$home/shut/.local"
[ -z "$become" ] || chown $player:$player "$home/shut"
chmod 555 "$home/shut/.local"
as_player "$home/shut" /usr/bin/python3 tests/package/refused.py "$prefix/usr/games/brolgan" "$home/shut/.local/share"
chmod 755 "$home/shut/.local"

as_player "$home" /usr/bin/python3 tests/package/together.py "$prefix/usr/games/brolgan"

before=$(files_below "$home")
install_packages --purge brolgan brolgan-data
[ -z "$(files_below "$prefix")" ] || fail "Left behind in the prefix:" $(files_below "$prefix")
[ "$(files_below "$home")" = "$before" ] || fail "The removal touched the player's folder."
say "removed; the player's folder is as it was"
