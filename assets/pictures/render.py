#!/usr/bin/env python3
"""render.py [--check] [NAME...]: makes the game's pictures from their sources.

Each src/NAME.svg becomes one file in rendered/, at twice the size at which a screen shows it, so
that it is sharp at 200 %. The ledger remembers what each was made from: a source that has not
changed since is not rendered again. --check renders nothing and fails when a picture is missing,
was made from something else, or has no source. Needs rsvg-convert and ImageMagick to render."""
import hashlib
import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
SRC, OUT = os.path.join(HERE, "src"), os.path.join(HERE, "rendered")
LEDGER = os.path.join(OUT, "ledger.txt")

# Pictures that are no monsters: file ending and width in pixels. A monster is a JPEG of 832.
OTHERS = {
    "tytul": ("jpg", 2048), "tytul-noc": ("jpg", 2048), "walka": ("jpg", 2732),
    "stragan-bron": ("jpg", 640), "stragan-czary": ("jpg", 640), "stragan-cechy": ("jpg", 640),
    "szyld": ("png", 768), "lampa": ("png", 240), "cios": ("png", 240), "rana": ("png", 240),
    "arkusz": ("png", 144), "zamknij": ("png", 96), "zamknij-rana": ("png", 96), "ikona": ("png", 512),
    "tworz-miecz": ("png", 320), "tworz-ksiega": ("png", 320), "tworz-kufel": ("png", 320),
}
MONSTER = ("jpg", 832)


def sources():
    return sorted(f[:-4] for f in os.listdir(SRC) if f.endswith(".svg"))


def target(name):
    ending, width = OTHERS.get(name, MONSTER)
    return f"{name}.{ending}", width


def fingerprint(name):
    digest = hashlib.sha256(repr(target(name)).encode())
    for path in (os.path.join(SRC, name + ".svg"), os.path.join(HERE, "art-defs.xml"), os.path.join(HERE, "build.py")):
        with open(path, "rb") as file:
            digest.update(file.read())
    return digest.hexdigest()


def read_ledger():
    if not os.path.exists(LEDGER):
        return {}
    with open(LEDGER, encoding="utf-8") as file:
        return dict(line.split() for line in file if line.strip())


def write_ledger(ledger):
    with open(LEDGER, "w", encoding="utf-8") as file:
        file.writelines(f"{picture} {made_from}\n" for picture, made_from in sorted(ledger.items()))


def render(name):
    picture, width = target(name)
    with tempfile.TemporaryDirectory() as folder:
        svg, big = os.path.join(folder, "a.svg"), os.path.join(folder, "a.png")
        subprocess.run([sys.executable, os.path.join(HERE, "build.py"), os.path.join(SRC, name + ".svg"),
                        "-o", svg, "--scale", "2"], check=True)
        zoom = "4" if name == "ikona" else "2"
        subprocess.run(["rsvg-convert", "-z", zoom, svg, "-o", big], check=True)
        shape = ["-filter", "Lanczos", "-resize", f"{width}x", "-strip"]
        finish = ["-quality", "84", "-sampling-factor", "4:2:0"] if picture.endswith("jpg") else ["-depth", "8"]
        subprocess.run(["convert", big, *shape, *finish, os.path.join(OUT, picture)], check=True)


def check():
    ledger, faults = read_ledger(), []
    wanted = {target(name)[0]: name for name in sources()}
    for picture, name in wanted.items():
        if not os.path.exists(os.path.join(OUT, picture)):
            faults.append(f"{picture} is missing")
        elif ledger.get(picture) != fingerprint(name):
            faults.append(f"{picture} was not made from src/{name}.svg as it stands")
    for picture in sorted(set(os.listdir(OUT)) - set(wanted) - {"ledger.txt"}):
        faults.append(f"{picture} has no source")
    print("\n".join(faults) if faults else f"{len(wanted)} pictures agree with their sources")
    return 1 if faults else 0


def main():
    if "--check" in sys.argv:
        return check()
    os.makedirs(OUT, exist_ok=True)
    ledger = read_ledger()
    for name in sys.argv[1:] or sources():
        picture = target(name)[0]
        if ledger.get(picture) != fingerprint(name) or not os.path.exists(os.path.join(OUT, picture)):
            render(name)
            ledger[picture] = fingerprint(name)
            write_ledger(ledger)
            print(picture, flush=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
