#!/usr/bin/env python3
"""turn.py GAME: plays one turn of an installed game with the weapons and monsters that are installed, by
keys alone, until the hero is in the shop again or dead. Expects a display, a session bus and a home."""
import os
import pathlib
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "access"))
from follow import Bus, Player, wait_for  # noqa: E402

ROUNDS = 60


def is_over(bus):
    return bus.showing("Tura numer: 2") is not None or any(words == "Śmierć!" for words in bus.announced)


def fight(player):
    wait_for("the fight", lambda: any(name.startswith("Twoja wytrzymałość: ") for name, _ in player.bus.things()))
    player.presses("alt+b")
    player.presses("Down")
    for _ in range(ROUNDS):
        if is_over(player.bus):
            return
        player.presses("alt+a")
        player.presses("alt+n")
    raise AssertionError("the fight has no end")


def main():
    bus = Bus()
    player = Player(bus)
    environment = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    running = subprocess.Popen([sys.argv[1]], cwd="/", env=environment)
    try:
        player.hears("Gracz 1 nie gra")
        player.presses("alt+1")
        player.hears("Pozostało punktów: 12")
        player.presses("alt+t")
        player.hears("Gracz 1 gra")
        player.presses("alt+z")
        player.hears("Tura numer: 1")
        player.presses("alt+1")
        wait_for("a monster", lambda: any(name.startswith("Potwór: ") for name, _ in bus.things()))
        player.presses("alt+z")
        fight(player)
        assert running.poll() is None or running.returncode == 0, "the game ended with an error"
    finally:
        running.kill()
    print("a turn was played with what is installed")


if __name__ == "__main__":
    main()
