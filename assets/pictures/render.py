#!/usr/bin/env python3
"""render.py [--check] [NAME...]: makes the game's pictures from their sources.

Each src/NAME.svg becomes a file in rendered/, at the largest size at which a screen shows it or more,
so that it is sharp at 200 %; an icon becomes a file a size. The ledger remembers what each was made
from: a source that has not changed since is not rendered again. --check renders nothing and fails when a
picture is missing, was made from something else, or has no source. Needs rsvg-convert and
ImageMagick to render."""
import hashlib
import os
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor, as_completed

HERE = os.path.dirname(os.path.abspath(__file__))
SRC, OUT = os.path.join(HERE, "src"), os.path.join(HERE, "rendered")
LEDGER = os.path.join(OUT, "ledger.txt")

# Pictures that are no monsters: the files made of each source and their widths in pixels.
OTHERS = {
    "tytul": {"tytul.jpg": 1680}, "tytul-noc": {"tytul-noc.jpg": 1680}, "walka": {"walka.jpg": 2680},
    "stragan-bron": {"stragan-bron.jpg": 1000}, "stragan-czary": {"stragan-czary.jpg": 1000},
    "stragan-cechy": {"stragan-cechy.jpg": 1000}, "szyld": {"szyld.png": 768}, "lampa": {"lampa.png": 240},
    "cios": {"cios.png": 240}, "rana": {"rana.png": 240}, "arkusz": {"arkusz.png": 144},
    "zamknij": {"zamknij.png": 96}, "zamknij-rana": {"zamknij-rana.png": 96},
    "tworz-miecz": {"tworz-miecz.png": 320}, "tworz-ksiega": {"tworz-ksiega.png": 320},
    "tworz-kufel": {"tworz-kufel.png": 320}, "strefy": {"strefy.png": 960}, "herb": {"herb.png": 320}, "kosci": {"kosci.png": 300},
    "ikona": {"ikona.png": 512, "ikona-256.png": 256, "ikona-128.png": 128, "ikona-64.png": 64, "ikona-48.png": 48},
    "ikona-mala": {"ikona-32.png": 32, "ikona-24.png": 24, "ikona-16.png": 16},
    **{f"tarcza-{player}": {f"tarcza-{player}.png": 280} for player in range(1, 5)},
    **{f"klasa-{number}": {f"klasa-{number}.png": 240} for number in range(1, 11)},
}
MONSTER_WIDTH = 1248

# The heads of the monsters, cut from their finished pictures: the middle and the side of a square, in
# hundredths of the picture.
HEADS = {
    "szczur": (36, 62, 68), "nietoperze": (56, 48, 36), "krasnal": (50, 40, 50), "komary": (48, 46, 40),
    "kluska": (50, 60, 76), "karaluchy": (52, 47, 36), "strach": (52, 29, 42), "bazyliszek": (36, 36, 44),
    "utopce": (55, 40, 42), "wilkolak": (38, 36, 60), "kikimora": (62, 28, 40), "szczeki": (53, 62, 46),
    "rycerz": (61, 36, 66), "zombi": (34, 26, 38), "harpia": (50, 30, 34), "diabel": (47, 52, 56),
    "jeze": (29, 66, 56), "golem": (53, 28, 44), "hutnicy": (59, 30, 34), "smok": (36, 30, 50),
    "mlotoglowy": (40, 27, 46), "kosiarki": (40, 66, 46), "mohair": (50, 42, 60), "maszynka": (50, 42, 44),
    "trolle": (68, 36, 44), "minotaur": (63, 29, 50), "babcia": (50, 30, 34), "wampiry": (50, 38, 46),
    "ogr": (50, 32, 40), "olbrzym": (50, 34, 46), "gargulce": (42, 30, 50), "kapusta": (53, 55, 62),
    "hydra": (52, 27, 54), "husaria": (50, 23, 36), "czarownica": (42, 36, 36), "kraken": (53, 47, 50),
    "cienie": (55, 50, 42), "pajak": (50, 53, 42), "kostucha": (55, 40, 44), "cyklopi": (37, 38, 46),
    "lewiatan": (37, 27, 44), "osa": (48, 35, 38), "jezdzcy": (27, 38, 30), "krol": (53, 33, 40),
    "car": (50, 46, 50),
}
HEAD_WIDTH = 72

# Pixels drawn for a unit of the source before the picture is brought to its width: never fewer than the
# width asks for, so that the detail is drawn and not enlarged.
MONSTER_ZOOM, ICON_ZOOM, ZOOM = "2.5", "4", "2"

# Colour at full resolution: at half of it the red edges bleed into the ink.
JPEG = ["-quality", "80", "-sampling-factor", "4:4:4"]

# The scenes that stand there when a window opens are quick to decode: colour at half of the resolution,
# and the one behind the fight in the very proportion of its window, which is half as wide at a unit a
# pixel, so that it is scaled while it is decoded and not once more after.
SCENE = ["-quality", "80", "-sampling-factor", "4:2:0"]
# The shut stalls stand on the paper of the shop and nowhere else: a JPEG with the paper in it is decoded
# close to the size at which it shows, where all three PNG were decoded whole.
ON_PAPER = ["-background", "#efe2c4", "-flatten", *JPEG]
STALLS = {f"stragan-{ware}.jpg": ON_PAPER for ware in ("bron", "czary", "cechy")}
SCENES = {"tytul.jpg": SCENE, "tytul-noc.jpg": SCENE, "walka.jpg": ["-resize", "2680x1432!", *SCENE], **STALLS}

# 255 colours, each row as the difference to the one above: decodes in half the time of all colours. Not
# as a palette, which is scaled down without blending its colours.
FEW_COLOURS = ["-depth", "8", "+dither", "-colors", "255", "-define", "png:color-type=6",
               "-define", "png:compression-filter=2", "-define", "png:compression-level=9"]


def sources():
    return sorted(f[:-4] for f in os.listdir(SRC) if f.endswith(".svg"))


def targets(name):
    return OTHERS.get(name, {name + ".jpg": MONSTER_WIDTH})


def zoom(name):
    if name not in OTHERS:
        return MONSTER_ZOOM
    return ICON_ZOOM if name.startswith("ikona") else ZOOM


def head_of(name):
    return f"glowa-{name}.jpg"


def finish(picture):
    return SCENES.get(picture, JPEG) if picture.endswith("jpg") else FEW_COLOURS


def fingerprint(name, picture):
    recipe = (picture, targets(name)[picture], zoom(name), finish(picture))
    digest = hashlib.sha256(repr(recipe).encode())
    for path in (os.path.join(SRC, name + ".svg"), os.path.join(HERE, "art-defs.xml"), os.path.join(HERE, "build.py")):
        with open(path, "rb") as file:
            digest.update(file.read())
    return digest.hexdigest()


def head_fingerprint(name):
    recipe = (HEADS[name], HEAD_WIDTH, fingerprint(name, name + ".jpg"))
    return hashlib.sha256(repr(recipe).encode()).hexdigest()


def read_ledger():
    if not os.path.exists(LEDGER):
        return {}
    with open(LEDGER, encoding="utf-8") as file:
        return dict(line.split() for line in file if line.strip())


def write_ledger(ledger):
    with open(LEDGER, "w", encoding="utf-8") as file:
        file.writelines(f"{picture} {made_from}\n" for picture, made_from in sorted(ledger.items()))


def shrink(big, picture, width):
    shape = ["-filter", "Lanczos", "-resize", f"{width}x", "-strip"]
    subprocess.run(["convert", big, *shape, *finish(picture), os.path.join(OUT, picture)], check=True)


def render(name, pictures):
    with tempfile.TemporaryDirectory() as folder:
        svg, big = os.path.join(folder, "a.svg"), os.path.join(folder, "a.png")
        subprocess.run([sys.executable, os.path.join(HERE, "build.py"), os.path.join(SRC, name + ".svg"),
                        "-o", svg, "--scale", zoom(name)], check=True)
        subprocess.run(["rsvg-convert", "-z", zoom(name), svg, "-o", big], check=True)
        for picture in pictures:
            shrink(big, picture, targets(name)[picture])


def cut_head(name):
    x, y, side = (round(MONSTER_WIDTH * share / 100) for share in HEADS[name])
    shape = ["-crop", f"{side}x{side}+{x - side // 2}+{y - side // 2}", "+repage", "-filter", "Lanczos",
             "-resize", f"{HEAD_WIDTH}x{HEAD_WIDTH}!", "-strip", *JPEG]
    subprocess.run(["convert", os.path.join(OUT, name + ".jpg"), *shape, os.path.join(OUT, head_of(name))], check=True)


def is_head_fresh(ledger, name):
    return ledger.get(head_of(name)) == head_fingerprint(name) and os.path.exists(os.path.join(OUT, head_of(name)))


def cut_heads(ledger, names):
    for name in names:
        if name in HEADS and not is_head_fresh(ledger, name):
            cut_head(name)
            ledger[head_of(name)] = head_fingerprint(name)
            print(head_of(name), flush=True)
    write_ledger(ledger)


def is_fresh(ledger, name, picture):
    return ledger.get(picture) == fingerprint(name, picture) and os.path.exists(os.path.join(OUT, picture))


def check():
    ledger, faults = read_ledger(), []
    wanted = {picture: name for name in sources() for picture in targets(name)}
    for picture, name in wanted.items():
        if not os.path.exists(os.path.join(OUT, picture)):
            faults.append(f"{picture} is missing")
        elif not is_fresh(ledger, name, picture):
            faults.append(f"{picture} was not made from src/{name}.svg as it stands")
    heads = {head_of(name): name for name in HEADS}
    faults += [f"{head} was not cut as it stands" for head, name in heads.items() if not is_head_fresh(ledger, name)]
    monsters = {name for name in sources() if name not in OTHERS}
    faults += [f"{name} has no head" for name in sorted(monsters ^ set(HEADS))]
    for picture in sorted(set(os.listdir(OUT)) - set(wanted) - set(heads) - {"ledger.txt"}):
        faults.append(f"{picture} has no source")
    print("\n".join(faults) if faults else f"{len(wanted) + len(heads)} pictures agree with their sources")
    return 1 if faults else 0


def main():
    if "--check" in sys.argv:
        return check()
    os.makedirs(OUT, exist_ok=True)
    ledger, stale = read_ledger(), {}
    for name in sys.argv[1:] or sources():
        pictures = [picture for picture in targets(name) if not is_fresh(ledger, name, picture)]
        if pictures:
            stale[name] = pictures
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        done = {pool.submit(render, name, pictures): name for name, pictures in stale.items()}
        for job in as_completed(done):
            job.result()
            name = done[job]
            ledger.update({picture: fingerprint(name, picture) for picture in stale[name]})
            write_ledger(ledger)
            print(*stale[name], flush=True)
    cut_heads(ledger, sys.argv[1:] or sources())
    return 0


if __name__ == "__main__":
    sys.exit(main())
