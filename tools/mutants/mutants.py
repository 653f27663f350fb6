#!/usr/bin/env python3
"""mutants.py [--sample N] [--seed N] [FILE...]: changes one token of the rooms at a time and
sees whether a test notices.

Works on a copy of the tree in build/mutants. For each change of the sample (300) it builds and runs the
tests of the changed room, and when those pass the tests of all rooms. Prints each survivor as it is
found, and at the end the score: the share of changes noticed, those of equivalent.txt left out of the
count (one a line: FILE | the line as it stands | the line as changed | why no test can tell).
A change that does not compile counts for nothing. Needs about seven seconds a change."""
import argparse
import filecmp
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys

TREE = pathlib.Path(__file__).resolve().parents[2]
COPY = TREE / "build/mutants"
ROOMS = {"flow/text": "text", "flow/stage": "stage", "flow": "flow", "rules": "rules", "departments": "departments",
         "creation": "creation", "shop": "shop", "preparation": "preparation", "fight": "fight", "sheet": "sheet",
         "game": "game", "game/guide": "guide"}
# What stands between blanks is an operator: the formatter sets none around the brackets of a template.
SWAPS = [(r" < ", [" <= ", " >= "]), (r" > ", [" >= ", " <= "]), (r" <= ", [" < ", " > "]), (r" >= ", [" > ", " < "]),
         (r" == ", [" != "]), (r" != ", [" == "]), (r" && ", [" || "]), (r" \|\| ", [" && "]),
         (r"(?<=[\w)\]]) \+ ", [" - "]), (r"(?<=[\w)\]]) - ", [" + "]), (r"(?<=[\w)\]]) \* (?=[\w(])", [" + "]),
         (r" / ", [" * "]), (r" \+= ", [" -= "]), (r" -= ", [" += "]), (r"\btrue\b", ["false"]),
         (r"\bfalse\b", ["true"]), (r"\bstd::min\b", ["std::max"]), (r"\bstd::max\b", ["std::min"]),
         (r"(?<=[(\s])!(?=\w)", [""]), (r"\+\+", ["--"]),
         (r"(?<![\w.\"])(\d+)(?![\w.\"])", [lambda found: str(int(found.group(1)) + 1)])]
CALL = re.compile(r"^\s+[\w.>()\[\]:-]+\([^;]*\);$")


def places(text):
    """Every change of one file: the number of its line, and the line as it would be."""
    for number, line in enumerate(text.split("\n")):
        code = line.split("//")[0].rstrip()
        if not code or code.lstrip().startswith(("#", "namespace", "using", "template", "static_assert")):
            continue
        quoted = [found.span() for found in re.finditer(r'"(?:[^"\\]|\\.)*"', code)]
        for pattern, replacements in SWAPS:
            for found in re.finditer(pattern, code):
                if any(start <= found.start() < end for start, end in quoted):
                    continue
                for new in replacements:
                    word = new(found) if callable(new) else new
                    yield number, code[:found.start()] + word + code[found.end():]
        if CALL.match(code) and "return" not in code:
            yield number, ""


def room_of(path):
    return ROOMS[max((folder for folder in ROOMS if path.startswith(folder + "/")), key=len)]


def read_equivalents():
    path = TREE / "tools/mutants/equivalent.txt"
    rows = [row.split(" | ") for row in path.read_text("utf-8").splitlines() if row and not row.startswith("#")]
    return {(row[0], row[1], row[2]) for row in rows}


def candidates(files):
    for path in files:
        text = (TREE / path).read_text("utf-8")
        lines = text.split("\n")
        for number, changed in places(text):
            yield path, number, lines[number], changed


def run(command, seconds):
    try:
        done = subprocess.run(command, cwd=COPY, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=seconds,
                              check=False)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


def copy_changed(source, target):
    """As shutil.copy, but a file that is the same already keeps its time, and so what was built from it."""
    if not os.path.exists(target) or not filecmp.cmp(source, target, shallow=False):
        shutil.copy(source, target)


def remove_gone(source, target):
    for path in list(target.rglob("*")):
        if path.is_file() and not (source / path.relative_to(target)).exists():
            path.unlink()


def prepare():
    COPY.mkdir(parents=True, exist_ok=True)
    for entry in TREE.iterdir():
        if entry.name in ("build", ".git"):
            continue
        target = COPY / entry.name
        if entry.is_dir():
            shutil.copytree(entry, target, copy_function=copy_changed, dirs_exist_ok=True)
            remove_gone(entry, target)
        else:
            copy_changed(entry, target)
    configure = ["cmake", "-S", ".", "-B", "out", "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0 -w",
                 "-DBROLGAN_FACE=OFF"]
    if not run(configure, 600) or not run(["cmake", "--build", "out", "--target", "game_tests"], 3600):
        sys.exit("The unchanged tree does not build.")
    if not everything_passes():
        sys.exit("The tests of the unchanged tree fail.")


def room_passes(room):
    return run([f"out/tests/test_{room}", "--gtest_brief=1", "--gtest_fail_fast"], 120)


def everything_passes():
    return all(room_passes(room) for room in sorted(set(ROOMS.values())))


def judge(path, number, changed):
    """"killed", "survived" or "broken" (it does not compile)."""
    source = COPY / path
    whole = source.read_text("utf-8")
    lines = whole.split("\n")
    lines[number] = changed
    source.write_text("\n".join(lines), "utf-8")
    try:
        room = room_of(path)
        if not run(["cmake", "--build", "out", "--target", f"test_{room}"], 600):
            return "broken"
        if not room_passes(room):
            return "killed"
        if not run(["cmake", "--build", "out", "--target", "game_tests"], 1200):
            return "broken"
        return "survived" if everything_passes() else "killed"
    finally:
        source.write_text(whole, "utf-8")


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--sample", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("files", nargs="*")
    options = parser.parse_args()
    files = options.files or sorted(os.path.relpath(path, TREE) for folder in ("flow", "rules", "departments", "creation",
                                    "shop", "preparation", "fight", "sheet", "game") for path in
                                    (TREE / folder).rglob("*.cpp"))
    equivalent = read_equivalents()
    every = list(candidates(files))
    random.Random(options.seed).shuffle(every)
    prepare()
    tally = {"killed": 0, "survived": 0, "broken": 0, "equivalent": 0}
    for path, number, line, changed in every:
        if tally["killed"] + tally["survived"] >= options.sample:
            break
        if (path, line.strip(), changed.strip()) in equivalent:
            tally["equivalent"] += 1
            continue
        verdict = judge(path, number, changed)
        tally[verdict] += 1
        if verdict == "survived":
            print(f"{path}:{number + 1} | {line.strip()} | {changed.strip()}", flush=True)
    judged = tally["killed"] + tally["survived"]
    print(f"{tally['killed']} of {judged} changes noticed ({100 * tally['killed'] / max(judged, 1):.1f} %), "
          f"{tally['equivalent']} equivalent ones left out, {tally['broken']} do not compile; seed {options.seed}")
    return 0 if tally["killed"] >= 0.98 * judged else 1


if __name__ == "__main__":
    sys.exit(main())
