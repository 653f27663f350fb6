#!/usr/bin/env python3
"""refused.py GAME FOLDER: starts an installed game whose player may not make FOLDER, and expects the error
box that says which folder and why, and the end of the game behind it. Expects a display, a session bus and
a home."""
import os
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "access"))
from follow import Bus, Player, wait_for  # noqa: E402


def main():
    game, folder = sys.argv[1:]
    bus = Bus()
    environment = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    running = subprocess.Popen([game], cwd="/", env=environment)
    try:
        wanted = f"Gra nie może pisać w folderze gracza.\nFolder: {folder}\nPowód: brak uprawnień"
        wait_for("why the game does not start", lambda: any(name == wanted for name, _ in bus.things()))
        Player(bus).presses("Return")
        assert running.wait(timeout=20) == 1, running.returncode
    finally:
        running.kill()
    print("a folder that may not be written is told of")


if __name__ == "__main__":
    main()
