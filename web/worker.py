#!/usr/bin/env python3
"""Writes the service worker of a finished folder: worker.py FOLDER. It knows every file that a game without
a net needs, and its name of the store changes with any of them."""
import hashlib
import json
import pathlib
import sys

HERE = pathlib.Path(__file__).parent


def needed(folder):
    """Of the pictures the modern format alone; what a browser takes instead is kept when it is taken."""
    old = (".png", ".jpg")
    names = sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file())
    kept = [name for name in names if not name.endswith(old) or name.startswith("ikona")]
    return [name for name in kept if name not in ("worker.js", "index.html") and not name.endswith(".txt")]


def main():
    folder = pathlib.Path(sys.argv[1])
    names = needed(folder)
    digest = hashlib.sha256()
    for name in [*names, "index.html"]:
        digest.update(name.encode() + (folder / name).read_bytes())
    worker = (HERE / "worker.js").read_text("utf-8")
    worker = worker.replace("@VERSION@", digest.hexdigest()[:16]).replace("@FILES@", json.dumps(["./", *names]))
    (folder / "worker.js").write_text(worker, "utf-8")


if __name__ == "__main__":
    main()
