#!/usr/bin/env python3
"""follow.py GAME FOLDER: plays a turn by keys alone and follows it from what the accessibility bus says
alone, one test a screen. Expects a display, a session bus, and a folder with the game's pictures; lays
weapons and monsters of its own there, so that nothing depends on the dice."""
import os
import pathlib
import subprocess
import sys
import threading
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20  # seconds until something that should be told counts as not told


def lines(*texts):
    return "".join(text + "\r\n" for text in texts).encode("cp1250")


def lay_data(folder):
    """One knife and one bow that always do five; rats in twos, of which each always bites two and falls at
    the first blow."""
    weapon = ["miecz.wav", " 5 ", " 5 ", " 1 ", " 0 "]
    (folder / "bron.cfg").write_bytes(
        lines(" 1 ", "Nóż", *weapon, "False", " 0 ", " 1 ", " 1 ", "Łuk", *weapon, " 0 ", " 0 ", " 1 "))
    rat = [" 2 ", "Szczur", "szczur.jpg", " 50 ", " 2 ", " 2 ", " 1 ", " 0 ", " 2 ", " 0 "]
    (folder / "monsters.cfg").write_bytes(lines(" 6 ", *(rat * 6)))


class Bus:
    """All that the bus says of the game: what there is now, and what was announced."""

    def __init__(self):
        self.announced = []
        self.listener = Atspi.EventListener.new(self.hear)
        self.listener.register("object:state-changed:showing")
        loop = threading.Thread(target=GLib.MainLoop().run, daemon=True)
        loop.start()

    def hear(self, event):
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
            self.announced.append(event.source.get_name())

    @staticmethod
    def things():
        """Every thing that is showing now: its name and the thing."""
        desktop, found, todo = Atspi.get_desktop(0), [], []
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_name() == "brolgan":
                todo.append(child)
        while todo:
            thing = todo.pop()
            try:
                found.append((thing.get_name(), thing))
                todo += [thing.get_child_at_index(i) for i in range(thing.get_child_count())]
            except (GLib.Error, AttributeError):
                continue
        return found

    def showing(self, name):
        for known, thing in self.things():
            try:
                if known == name and thing.get_state_set().contains(Atspi.StateType.SHOWING):
                    return thing
            except GLib.Error:
                continue
        return None

    def focused(self):
        for known, thing in self.things():
            try:
                if thing.get_state_set().contains(Atspi.StateType.FOCUSED) and thing.get_child_count() == 0:
                    return known
            except GLib.Error:
                continue
        return ""


def wait_for(what, told):
    """Waits until told() answers something, and fails with what was missed."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = told()
        if answer:
            return answer
        time.sleep(0.2)
    raise AssertionError("never told: " + what)


class Player:
    def __init__(self, bus):
        self.bus = bus

    def hears(self, name):
        return wait_for(name, lambda: self.bus.showing(name))

    def presses(self, key):
        subprocess.run(["xdotool", "key", key], check=True)
        time.sleep(0.3)

    def is_told(self, words):
        wait_for("announcement of " + words, lambda: words in self.bus.announced)


def set_up(player):
    player.hears("Gracz 1 nie gra")
    player.hears("Plik bohatera gracza 1")
    player.hears("Stwórz bohatera gracza 1")
    player.presses("alt+1")


def creation(player):
    player.hears("Pozostało punktów: 12")
    player.hears("Wytrzymałość, stopień 12, obecny")
    spell = player.hears("Leczenie")
    assert spell.get_role() == Atspi.Role.CHECK_BOX, spell.get_role_name()
    assert not spell.get_state_set().contains(Atspi.StateType.CHECKED)
    assert spell.do_action(0)
    owned = player.hears("Leczenie, masz")
    assert owned.get_state_set().contains(Atspi.StateType.CHECKED)
    player.hears("Pozostało punktów: 11")
    player.presses("alt+t")


def start(player):
    player.hears("Gracz 1 gra")
    player.presses("alt+z")


def shop(player):
    player.hears("Tura numer: 1")
    player.hears("Pozostało punktów: 11")
    sheet = player.hears("Karta bohatera")
    assert sheet.get_role() == Atspi.Role.PUSH_BUTTON
    player.presses("alt+h")


def sheet(player):
    player.hears("Klasa: Wojownik")
    player.hears("Modyfikator obrażeń: 1k 4")
    player.presses("Escape")
    wait_for("end of the sheet", lambda: player.bus.showing("Klasa: Wojownik") is None)
    player.hears("Tura numer: 1")
    player.presses("alt+1")


def preparation(player):
    player.hears("Potwór: Szczur")
    player.hears("Wytrzymałość potwora: 2")
    player.hears("Obecna wytrzymałość: 12")
    player.bus.announced.clear()
    player.presses("alt+z")


def fight(player):
    # The rats are faster, so they bite first.
    player.is_told("Otrzymałeś: 2 2")
    player.hears("Twoja wytrzymałość: 8")
    player.presses("alt+b")
    player.presses("Down")
    player.hears("Broń: Nóż")
    player.hears("Ilu przeciwników zostało: 2")
    player.bus.announced.clear()
    player.presses("alt+a")
    wait_for("announcement of the blow", lambda: any(words.startswith("Zadałeś: ") for words in player.bus.announced))
    player.is_told("Zabity!")
    player.hears("Ilu przeciwników zostało: 1")
    player.bus.announced.clear()
    player.presses("alt+n")
    player.is_told("Otrzymałeś: 2")
    player.hears("Twoja wytrzymałość: 6")
    player.bus.announced.clear()
    player.presses("alt+a")
    player.is_told("Czysto!")
    player.presses("alt+n")


def death(player):
    player.hears("Tura numer: 2")
    player.presses("alt+1")
    player.hears("Potwór: Szczur")
    player.bus.announced.clear()
    player.presses("alt+z")
    player.is_told("Otrzymałeś: 2 2")
    while "Śmierć!" not in player.bus.announced:
        player.bus.announced.clear()
        player.presses("alt+n")
        wait_for("announcement of a bite", lambda: player.bus.announced)


def main():
    game, folder = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
    lay_data(folder)
    bus = Bus()
    complaints = folder / "complaints.txt"
    running = subprocess.Popen([game], cwd=folder, env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"},
                               stderr=complaints.open("w"))
    passed = 0
    try:
        for test in (set_up, creation, start, shop, sheet, preparation, fight, death):
            test(Player(bus))
            passed += 1
            print("followed:", test.__name__, flush=True)
    finally:
        running.kill()
    said = complaints.read_text()
    assert not said, "the game complained on standard error:\n" + said
    print(f"a turn was followed by ear, {passed} screens")


if __name__ == "__main__":
    main()
