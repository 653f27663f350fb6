# Sourced: keeps the processors awake by loops that run only when nothing else does, since one that sleeps
# takes its time to wake. The caller ends them with let_sleep, best in a trap.
keep_awake() {
  awake=
  for _ in $(seq "$(nproc)"); do
    chrt -i 0 sh -c 'while :; do :; done' &
    awake="$awake $!"
  done
}

let_sleep() { kill ${awake:-} 2>/dev/null || true; }
