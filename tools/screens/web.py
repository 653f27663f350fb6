#!/usr/bin/env python3
"""Takes the screenshots of the game in a browser: web.py OUT [SIZE...] plays the written game on
build/web-dev/gra and takes each screen at every size, or at those named, into the folder OUT."""
import io
import pathlib
import sys

from PIL import Image

sys.path.insert(0, "tests/web")
import browser  # noqa: E402

SIZES = {"1366x768": False, "2560x1440": False, "1024x768": True, "844x390": True, "390x844": True}
# The scenes of the written game: the name of each, and behind which act it comes.
SCENES = {"setup": "click Main Start", "creation": "click CTmhero Kupss", "shop": "click CTsklep Spec(2)",
          "sheet": "click CTsklep Heroshow", "preparation": "click Prefight Rzuc"}
# Done when every picture in sight has been decoded at the size of the screen.
SHARP = """const done = arguments[0];
requestAnimationFrame(() => requestAnimationFrame(async () => {
  const seen = [...document.images].filter((image) => image.src && image.getClientRects().length > 0);
  await Promise.all(seen.map((image) => image.decode()));
  requestAnimationFrame(done);
}));"""


def take(page, name, out, sizes):
    for size in sizes:
        page.size(*map(int, size.split("x")), touch=SIZES[size])
        page.driver.execute_async_script(SHARP)
        picture = Image.open(io.BytesIO(page.driver.get_screenshot_as_png())).convert("RGB")
        picture.thumbnail((1366, 1366))
        picture.save(out / f"{name}-{size}.jpg", quality=72, optimize=True)


def shots(page, out, sizes):
    pending = dict(SCENES)
    report = False
    for number, act in enumerate(browser.acts("tests/data/game/whole-game.txt")):
        page.seed(36000 + 0.25 * (number + 1))
        page.perform(act)
        for name in [name for name, last in pending.items() if last == act]:
            take(page, name, out, sizes)
            del pending[name]
        both = "!document.getElementById('Fight').hidden && ['FZad', 'FDamage'].every((name) => !document.getElementById('Fight.' + name).hidden)"
        if not report and page.script(f"return {both}"):
            take(page, "fight", out, sizes)
            report = True
        if report and not pending:
            return


def main():
    out, sizes = pathlib.Path(sys.argv[1]), sys.argv[2:] or list(SIZES)
    out.mkdir(parents=True, exist_ok=True)
    with browser.serving("build/web-dev/gra") as address, browser.browsing() as driver:
        page = browser.Page(driver, address)
        page.open(36000)
        page.still()
        page.write("bron.cfg", pathlib.Path("tests/data/game/bron.cfg").read_bytes())
        page.write("monsters.cfg", pathlib.Path("tests/data/game/monsters.cfg").read_bytes())
        shots(page, out, sizes)
        page.close("Brolgan")
        take(page, "title", out, sizes)


if __name__ == "__main__":
    main()
