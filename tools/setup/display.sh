# Sourced: a virtual display with a window manager, for whatever must run where no screen is.
#
# start_display WIDTH HEIGHT [PREFIX...]: starts both, each behind the prefix, waits until they are
# there, and exports DISPLAY. The caller stops them with stop_display, best in a trap.
start_display() {
  size=$1x$2x24
  shift 2
  display_number=$(mktemp)
  "$@" Xvfb -displayfd 3 -screen 0 "$size" -nolisten tcp 3>"$display_number" >/dev/null 2>&1 &
  display_server=$!
  wait_until "The virtual display does not start." test -s "$display_number"
  DISPLAY=:$(cat "$display_number")
  export DISPLAY
  "$@" openbox >/dev/null 2>&1 &
  display_manager=$!
  # A window that comes before its manager may never be shown.
  wait_until "The window manager does not start." manager_is_there
}

stop_display() {
  kill ${display_manager:-} ${display_server:-} 2>/dev/null || true
  rm -f "${display_number:-}"
}

manager_is_there() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# wait_until MESSAGE COMMAND...: asks ten times a second for ten seconds, then ends with the message.
wait_until() {
  message=$1
  shift
  waited=0
  until "$@"; do
    waited=$((waited + 1))
    [ $waited -le 100 ] || { echo "$message" >&2; exit 1; }
    sleep 0.1
  done
}
