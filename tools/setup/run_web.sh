#!/bin/sh
# Builds the game for a browser and serves it to this machine alone, until it is stopped. Installs nothing:
# packages.txt tells what is needed behind the words play and web.
set -eu
command -v em++ >/dev/null || {
  echo "The game for a browser needs emscripten; install it with: tools/setup/install.sh play web" >&2
  exit 1
}
mkdir -p build
cmake --preset web >build/run-web.log 2>&1 && cmake --build --preset web >>build/run-web.log 2>&1 || {
  cat build/run-web.log
  exit 1
}
port=8080
is_free() { python3 -c "import socket; socket.socket().bind(('127.0.0.1', $port))" 2>/dev/null; }
until is_free || [ "$port" -ge 8099 ]; do port=$((port + 1)); done
is_free || { echo "No port from 8080 to 8099 is free." >&2; exit 1; }
echo "The game is at http://127.0.0.1:$port/ until you press Ctrl+C."
exec python3 -m http.server "$port" --bind 127.0.0.1 --directory build/web/gra
