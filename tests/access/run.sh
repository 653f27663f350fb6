#!/bin/sh
# run.sh FOLDER: follows a turn of the game that lies in FOLDER from the accessibility bus, on a virtual
# display and a session bus of its own.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
. "$here/../../tools/setup/display.sh"
game=$(cd "$1" && pwd)
play=$(mktemp -d)
trap 'stop_display; rm -rf "$play"' EXIT INT TERM
start_display 1366 768 env
cp "$game"/*.jpg "$game"/*.png "$play"
XDG_RUNTIME_DIR=$play XDG_CURRENT_DESKTOP= dbus-run-session -- /usr/bin/python3 "$here/follow.py" "$game/brolgan" "$play"
