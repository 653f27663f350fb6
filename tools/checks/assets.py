#!/usr/bin/env python3
"""Keeps assets/ledger.md true: it lists every file below assets/ and nothing else; every picture and
sound that the data or the program name is made from a source there, and no source makes one that
nothing names."""
import pathlib
import re
import sys

from tree import files

ROW = re.compile(r"^\| `([^`]+)` \| .+ \| .+ \|$")
ASSETS = pathlib.Path("assets")
# Pictures and sounds that no data file names: the program names them itself.
QUOTED = re.compile(r'"([a-z0-9-]+\.(?:jpg|png|wav)|guit\\\\[a-z0-9]+\.wav)"')


def lines(name):
    return (ASSETS / name).read_bytes().decode("cp1250").split("\r\n")


def named_by_data():
    monsters, weapons = lines("monsters.cfg"), lines("bron.cfg")
    pictures = {monsters[1 + 10 * i + 2] for i in range(int(monsters[0]))}
    heads = {"glowa-" + picture for picture in pictures}
    melee = int(weapons[0])
    ranged_at = 1 + 9 * melee
    sounds = {weapons[1 + 9 * i + 1] for i in range(melee)}
    sounds |= {weapons[ranged_at + 1 + 9 * i + 1] for i in range(int(weapons[ranged_at]))}
    return pictures | heads | sounds


def named_by_program():
    names = set()
    for path in files(endings=(".cpp", ".h")):
        if path.split("/")[0] not in ("tests", "bench", "fuzz", "tools"):
            names |= set(QUOTED.findall(pathlib.Path(path).read_text(encoding="utf-8")))
    return {name.replace("guit\\\\", "") for name in names}


def made_by_sources():
    pictures = {path.name for path in (ASSETS / "pictures/rendered").glob("*") if path.suffix in (".jpg", ".png")}
    # "hard2-2.csd" makes a variant of the sound that "hard2.csd" makes.
    stems = {re.sub(r"-[2-9]$", "", path.stem) for path in (ASSETS / "sounds").glob("*.csd")}
    return pictures | {stem + ".wav" for stem in stems}


def main():
    ledger = [match.group(1) for match in map(ROW.match, (ASSETS / "ledger.md").read_text("utf-8").splitlines()) if match]
    there = files("assets") - {"assets/ledger.md"}
    faults = [f"{path} is not in assets/ledger.md" for path in sorted(there - set(ledger))]
    faults += [f"assets/ledger.md lists {path}, which is not there" for path in sorted(set(ledger) - there)]
    faults += [f"assets/ledger.md lists {path} twice" for path in sorted({p for p in ledger if ledger.count(p) > 1})]
    named, made = named_by_data() | named_by_program(), made_by_sources()
    faults += [f"{name} is named, but no source makes it" for name in sorted(named - made)]
    faults += [f"{name} is made, but nothing names it" for name in sorted(made - named)]
    print("\n".join(faults) if faults else f"{len(ledger)} assets are listed, {len(made)} pictures and sounds are named")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
