#!/usr/bin/env python3
"""together.py GAME: two installed games play at once in one folder, as keys by chance have it. What the
files hold then is anybody's guess; each game may end in its error box, but none may crash. Expects a
display and a home."""
import random
import subprocess
import sys
import time

KEYS = ["alt+1", "alt+2", "alt+t", "alt+z", "alt+z", "alt+a", "alt+n", "alt+h", "Escape", "Tab", "Down", "space", "Return"]
STEPS = 80


def windows_of(game):
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(game.pid), "--name", "."],
                           capture_output=True, text=True, check=False)
    return found.stdout.split()


def expect_no_crash(game):
    if game.poll() not in (None, 0, 1):
        raise AssertionError(f"a game ended with {game.returncode}")


def main():
    chance = random.Random(1)
    games = [subprocess.Popen([sys.argv[1]], cwd="/") for _ in range(2)]
    started, sent = 2, 0
    try:
        time.sleep(3)
        for _ in range(STEPS):
            for i, game in enumerate(games):
                expect_no_crash(game)
                if game.poll() is not None:
                    games[i] = subprocess.Popen([sys.argv[1]], cwd="/")
                    started += 1
                    continue
                for window in windows_of(game):
                    subprocess.run(["xdotool", "key", "--window", window, chance.choice(KEYS)], check=False,
                                   stderr=subprocess.DEVNULL)
                    sent += 1
        for game in games:
            expect_no_crash(game)
    finally:
        for game in games:
            game.kill()
    assert sent > STEPS, f"only {sent} keys reached a game"
    print(f"two games at once took {sent} keys, {started} were started, none crashed")


if __name__ == "__main__":
    main()
