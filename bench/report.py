"""Makes one table of the figures that bench/run.sh has collected: report.py FIGURES LOAD HOW."""

import collections
import csv
import os
import statistics
import sys

CHANGES = [
    "set-up to creation",
    "creation to set-up",
    "set-up to shop",
    "shop to preparation",
    "preparation to fight",
    "fight to shop",
    "opening the sheet",
]
PULLED = ["creation", "shop", "preparation", "fight"]


def read_figures(path):
    """The figures by (who, quantity), one a round; benchmark rows by (who, name, column)."""
    figures = collections.defaultdict(list)
    header = []
    for line in open(path, encoding="utf-8"):
        who, rest = line.rstrip("\n").split("\t", 1)
        if "\t" in rest:
            quantity, figure = rest.split("\t")
            figures[who, quantity].append(float(figure))
            continue
        row = next(csv.reader([rest]))
        if row[0] == "name":
            header = row
            continue
        for column in ("cpu_time", "turns_per_second"):
            text = row[header.index(column)]
            if text:
                figures[who, row[0].split("/iterations")[0], column].append(float(text))
    return figures


def median(figures, *key):
    return statistics.median(figures[key]) if figures[key] else None


def text(figure, unit):
    return "-" if figure is None else f"{figure:,.{0 if figure >= 1000 else 1}f} {unit}".strip()


class Table:
    def __init__(self):
        self.rows = []

    def add(self, quantity, unit, floor, game, aim, is_met, compared=False):
        ratio = f"{game / floor:.2f}" if compared and floor else "-"
        verdict = "-" if is_met is None else "yes" if is_met else "**no**"
        self.rows.append([quantity, text(floor, unit), text(game, unit), ratio, aim, verdict])

    def add_ratio(self, quantity, unit, floor, game, most):
        self.add(quantity, unit, floor, game, f"at most {most} of the floor", game <= most * floor, True)

    def add_limit(self, quantity, unit, floor, game, most):
        self.add(quantity, unit, floor, game, f"at most {most} {unit}".strip(), game <= most)

    def lines(self):
        head = ["quantity", "floor", "game", "ratio", "aim", "met"]
        for row in [head, ["---"] * len(head)] + self.rows:
            yield "| " + " | ".join(row) + " |"


def fill(table, figures):
    both = lambda quantity: (median(figures, "floor", quantity), median(figures, "game", quantity))
    table.add_ratio("exec to first window painted", "ms", *both("first_window_ms"), 1.6)
    table.add("exec to the set-up painted as well", "ms", None, median(figures, "game", "next_window_ms"), "-", None)
    kilobytes = lambda figure: figure / 1024
    table.add_ratio("resident with the first window", "MB", *map(kilobytes, both("resident_kb")), 1.35)
    floor_peak = kilobytes(median(figures, "floor", "peak_kb"))
    game_peak = kilobytes(median(figures, "game", "peak_after_all_kb"))
    table.add_ratio("peak after all forms", "MB", floor_peak, game_peak, 2.0)
    pulled_peak = kilobytes(median(figures, "game", "peak_after_pulling_kb"))
    table.add("peak after each was pulled", "MB", floor_peak, pulled_peak, "-", None, True)
    bare = median(figures, "floor", "bare change")
    for change in CHANGES:
        table.add_limit(f"{change}, second time", "ms", bare, median(figures, "game", f"change second: {change}"), 16)
    for screen in PULLED:
        pulled = median(figures, "game", f"change third: frame of the pulled {screen}")
        table.add_limit(f"slowest frame while the {screen} is pulled", "ms", None, pulled, 16)
    for change in CHANGES:
        game = median(figures, "game", f"change first: {change}")
        table.add(f"{change}, first time", "ms", bare, game, "-", None)
    hold = median(figures, "game", "longest_hold_first_ms")
    table.add_limit("longest hold of the event thread after start", "ms", None, hold, 16)
    hold = median(figures, "game", "longest_hold_second_ms")
    table.add("longest hold in the second session", "ms", None, hold, "-", None)
    table.add_limit("processor time in 10 idle seconds", "ms", *both("idle_cpu_ms"), 0)
    table.add_limit("wake-ups in 10 idle seconds", "", *both("idle_wakeups"), 0)
    table.add("forced switches in 10 idle seconds", "", *both("idle_forced_switches"), "-", None)
    turns = median(figures, "game", "robotTurns", "turns_per_second")
    table.add("whole turns a second of the robot", "", None, turns, "2,000 or more", turns >= 2000)


def rooms(figures):
    yield "| step without a window | processor time |"
    yield "| --- | --- |"
    for key in figures:
        if len(key) == 3 and key[2] == "cpu_time" and key[1] != "robotTurns":
            yield f"| {key[1]} | {median(figures, *key):.2f} µs |"


def main():
    figures = read_figures(sys.argv[1])
    loads = [float(line.split()[0]) for line in open(sys.argv[2], encoding="utf-8")]
    table = Table()
    fill(table, figures)
    how = "before all other programs" if sys.argv[3] != "plain" else "among all other programs"
    rounds = len(figures["floor", "first_window_ms"])
    print(f"Medians of {len(loads)} rounds ({rounds} starts of each program) on {os.cpu_count()} cores, which were kept")
    print(f"awake; run {how}, load of the machine {min(loads):.1f} to {max(loads):.1f}. The floor is a bare Qt")
    print("program of one label, or a change between two bare windows.\n")
    print("\n".join(table.lines()) + "\n")
    print("\n".join(rooms(figures)))


main()
