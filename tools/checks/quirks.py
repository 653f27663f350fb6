#!/usr/bin/env python3
"""Keeps docs/quirks.md true: every mark MEANT(name) in the sources has one row there, every row has
its mark in the file that it names, and the test that it names exists."""
import pathlib
import re
import sys

from tree import files

ROW = re.compile(r"^\| `([a-z0-9-]+)` \| .+ \| `([^`]+)` \| `([^`]+)` \|$")


def sources(folder):
    return [pathlib.Path(path) for path in sorted(files(folder, (".cpp", ".h")))]


def marks():
    found = {}
    for path in sources("."):
        if path.parts[0] != "tests":
            for name in re.findall(r"\bMEANT\(([a-z0-9-]+)\)", path.read_text(encoding="utf-8")):
                found.setdefault(name, []).append(str(path))
    return found


def rows():
    lines = pathlib.Path("docs/quirks.md").read_text(encoding="utf-8").splitlines()
    return [match.groups() for match in map(ROW.match, lines) if match]


def tests():
    text = "\n".join(path.read_text(encoding="utf-8") for path in sources("tests"))
    return {f"{suite}.{name}" for suite, name in re.findall(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)", text)}


def main():
    faults, marked, listed, known = [], marks(), rows(), tests()
    names = [name for name, _, _ in listed]
    for name, places in marked.items():
        if len(places) != 1:
            faults.append(f"{name} is marked {len(places)} times: {', '.join(places)}")
        if names.count(name) != 1:
            faults.append(f"{name} has {names.count(name)} rows in docs/quirks.md")
    for name, place, test in listed:
        if marked.get(name) != [place]:
            faults.append(f"the row of {name} names {place}, where it is not marked")
        if test not in known:
            faults.append(f"the row of {name} names the test {test}, which does not exist")
    print("\n".join(faults) if faults else f"{len(listed)} quirks are marked, listed and tested")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
