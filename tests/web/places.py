#!/usr/bin/env python3
"""Every control of every screen has one place on the page, as the right kind of element, and nothing else
has: places.py TABLE, run in the project's folder. Needs no browser."""
import collections
import sys

sys.path.insert(0, "web")
import assemble  # noqa: E402
from without_face import WithoutFace  # noqa: E402

# What each screen needs to open, and the acts that open it.
WAY = ["click Main gracz(0)", "click CTmhero Save", "click Main Start", "click CTsklep Heroshow", "click CTsklep w1",
       "click Prefight Zakoncz"]
ORDER_TAGS = {"button", "input", "select", "textarea"}


def controls(program):
    """All controls of all screens in the order of the keyboard, by the name of their form."""
    game = WithoutFace(program)
    game.tell("file bron.cfg tests/data/game/bron.cfg")
    game.tell("file monsters.cfg tests/data/game/monsters.cfg")
    found = {}
    for line in ["start", *WAY]:
        for seen in game.ask(line).split("\t"):
            name, *parts = seen.split("\1")
            form, _, control = name.partition(".")
            if parts and control and name not in found.setdefault(form, []):
                found[form].append(name)
    game.close()
    return found


class Elements(assemble.Tree):
    """Ids with their tags in the order of the page."""

    def __init__(self, text):
        self.found = []
        super().__init__(text)

    def handle_starttag(self, tag, attrs):
        if "." in dict(attrs).get("id", ""):
            self.found.append((dict(attrs)["id"], tag))
        super().handle_starttag(tag, attrs)


def places(form):
    sizes = collections.defaultdict(lambda: (2, 2))
    return Elements(assemble.screen(form, sizes)).found


def faults(program):
    table = controls(program)
    if set(table) != set(assemble.SCREENS):
        yield f"the game shows {sorted(table)}, the page {sorted(assemble.SCREENS)}"
    for form in assemble.SCREENS:
        placed = places(form)
        names = [name for name, _ in placed]
        wanted = table.get(form, [])
        yield from (f"{name} has {count} places" for name, count in collections.Counter(names).items() if count > 1)
        yield from (f"{name} is a control that no page places" for name in wanted if name not in names)
        yield from (f"{name} is placed, but the form has no such control" for name in names if name not in wanted)
        order = [name for name, tag in placed if tag in ORDER_TAGS]
        if order != [name for name in wanted if name in order]:
            yield f"{form}: the keyboard goes {order}"


def main():
    found = list(faults(sys.argv[1]))
    print("\n".join(found) if found else "every control has its place")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
