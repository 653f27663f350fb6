#!/usr/bin/env python3
"""Lays the pictures of the game beside the page: pictures.py OUT SIZES INC PICTURE... makes of each one as it
is and one of half its width, both in WebP and in the format that it has. SIZES and INC tell their sizes, to
the page's maker and to the program."""
import concurrent.futures
import json
import pathlib
import shutil
import sys

from PIL import Image

QUALITY = 72


def convert(source, out):
    with Image.open(source) as image:
        image.load()
        half = image.convert("RGBA" if source.suffix == ".png" else "RGB")
        half = half.resize((round(image.width / 2), round(image.height / 2)), Image.LANCZOS)
        image.save(out / f"{source.stem}.webp", quality=QUALITY)
        half.save(out / f"{source.stem}-s.webp", quality=QUALITY)
        half.save(out / f"{source.stem}-s{source.suffix}", quality=80, optimize=True)
        shutil.copy(source, out / source.name)
        return source.name, image.size


def main():
    out, sizes, inc = map(pathlib.Path, sys.argv[1:4])
    sources = [pathlib.Path(name) for name in sys.argv[4:]]
    with concurrent.futures.ProcessPoolExecutor() as pool:
        found = dict(pool.map(convert, sources, [out] * len(sources)))
    sizes.write_text(json.dumps(found), "utf-8")
    inc.write_text("".join(f'{{"{name}", {width}, {height}}},\n' for name, (width, height) in sorted(found.items())), "utf-8")


if __name__ == "__main__":
    main()
