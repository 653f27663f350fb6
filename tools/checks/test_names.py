#!/usr/bin/env python3
"""Test names are sentences in one style: words with a capital each, no underscore."""
import pathlib
import re
import sys

from tree import files

TEST = re.compile(r"\bTEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)")
STYLE = re.compile(r"^[A-Z][A-Za-z0-9]*$")


def main():
    faults, count = [], 0
    for path in sorted(files("tests", (".cpp",))):
        for names in TEST.findall(pathlib.Path(path).read_text(encoding="utf-8")):
            count += 1
            faults += [f"{path}: the name {name} is not of the style" for name in names if not STYLE.match(name)]
    print("\n".join(faults) if faults else f"{count} tests are named in one style")
    return 1 if faults or not count else 0


if __name__ == "__main__":
    sys.exit(main())
