#!/usr/bin/env python3
"""Measures the game in a browser: measure.py [ROUNDS], run in the project's folder by bench/web/run.sh, prints
a table. The floor is a page with two pictures of the size of the title's."""
import gzip
import pathlib
import shutil
import statistics
import sys
import tempfile
import time

sys.path.insert(0, "tests/web")
import browser  # noqa: E402

FOLDER = pathlib.Path("build/web/gra")
DEVELOPER = pathlib.Path("build/web-dev/gra")
FLOOR = """<!DOCTYPE html><title>floor</title><body><img src="tytul-s.webp" width="50%"><img src="tytul-noc-s.webp" width="49%">"""
# The times until both pictures of the title are painted, and until the window over them is.
PAINTED = """globalThis.painted = new Promise((done) => {
  const times = [];
  const pictures = () => [...document.images].slice(0, 2);
  const arePictures = () => pictures().length === 2 && pictures().every((image) => image.complete && image.naturalWidth > 0);
  const isWindow = () => !document.querySelector('#Main') || !document.querySelector('#Main').hidden;
  const paint = (isReady, part) => {
    if (!isReady()) return requestAnimationFrame(() => paint(isReady, part));
    requestAnimationFrame(() => requestAnimationFrame(() => {
      times[part] = performance.now();
      if (times[0] && times[1]) done(times);
    }));
  };
  paint(arePictures, 0);
  paint(() => arePictures() && isWindow(), 1);
});"""
# From a click to the frame behind it; of which the program's part, and the same of a click that does nothing.
CLICK = """const [id, done] = arguments;
const button = id ? document.getElementById(id) : document.createElement('button');
requestAnimationFrame(() => {
  const began = performance.now();
  button.click();
  const worked = performance.now() - began;
  requestAnimationFrame(() => setTimeout(() => done([performance.now() - began, worked])));
});"""
WAY = [("set-up to creation", "Main.gracz(0)"), ("creation to set-up", "CTmhero.Save"), ("set-up to shop", "Main.Start"),
       ("opening the sheet", "CTsklep.Heroshow"), ("closing the sheet", "FHero.HeroClose"), ("shop to preparation", "CTsklep.w1"),
       ("preparation to fight", "Prefight.Zakoncz")]
LAST = "fight to set-up or shop"  # behind as many turns as it takes to lose
BARE = "a click that does nothing"
LOOK = 3  # seconds that a person looks at the title before the first click
REST = 0.3


def start(folder):
    """The milliseconds until the pictures are painted and until the window over them is, and the names of what the
    page had fetched by then, with nothing kept from before."""
    with browser.serving(folder) as address, browser.browsing() as driver:
        browser.Page(driver, address).size(1366, 768)
        driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": PAINTED})
        driver.get(address)
        painted = driver.execute_async_script("painted.then(arguments[0]);")
        names = driver.execute_script("return performance.getEntriesByType('resource').filter((one) => one.startTime < arguments[0])"
                                      ".map((one) => decodeURIComponent(new URL(one.name).pathname.slice(1)))", painted[1])
        return painted, {"index.html", *names}


def sizes(names):
    plain = {name: (FOLDER / name).read_bytes() for name in names if (FOLDER / name).is_file()}
    return sum(map(len, plain.values())), sum(min(len(gzip.compress(data, 9)), len(data)) for data in plain.values())


def change(driver, found, name, control):
    """Notes what a click on a control takes, and lets the page come to rest."""
    found.setdefault(name, []).append(driver.execute_async_script(CLICK, control))
    time.sleep(REST)


def go_round(page, found):
    """From the set-up to a fight and on, through every screen."""
    for name, control in WAY:
        change(page.driver, found, name, control)
    while page.screen() == "Fight":
        is_hurt = page.script("return !document.getElementById('Fight.FDamage').hidden")
        last = page.driver.execute_async_script(CLICK, "Fight.CloseDMG" if is_hurt else "Fight.NastTura")
        time.sleep(REST)
    found.setdefault(LAST, []).append(last)


def changes():
    """Of every change of screen, the first time and the second, the milliseconds to the next frame, and of them
    those of the program."""
    with browser.serving(FOLDER) as address, browser.browsing() as driver:
        page = browser.Page(driver, address)
        page.size(1366, 768)
        page.open()
        time.sleep(LOOK)
        found = {}
        for _ in range(2):
            change(driver, found, BARE, "")
        go_round(page, found)
        if page.screen() != "Main":
            page.close("Brolgan")
            page.script("document.getElementById('anew').click()")
            time.sleep(REST)
        go_round(page, found)
        return found


def processor_time(driver):
    found = driver.execute_cdp_cmd("Performance.getMetrics", {})["metrics"]
    return next(one["value"] for one in found if one["name"] == "TaskDuration")


def idle(folder):
    """Milliseconds of the page's processor time in ten seconds without a hand."""
    with browser.serving(folder) as address, browser.browsing() as driver:
        driver.get(address)
        time.sleep(LOOK)
        driver.execute_script("document.activeElement.blur()")
        driver.execute_cdp_cmd("Performance.enable", {})
        time.sleep(3)
        before = processor_time(driver)
        time.sleep(10)
        return 1000 * (processor_time(driver) - before)


def memory():
    """Bytes of the script and of the program behind a whole game of two players."""
    with browser.serving(DEVELOPER) as address, browser.browsing() as driver:
        page = browser.Page(driver, address)
        page.open(36000)
        for name in ("bron.cfg", "monsters.cfg"):
            page.write(name, (pathlib.Path("tests/data/game") / name).read_bytes())
        for number, act in enumerate(browser.acts("tests/data/game/whole-game.txt"), 1):
            page.seed(36000 + 0.25 * number)
            page.perform(act)
        return page.memory()[:2]


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 5
    with tempfile.TemporaryDirectory() as floor:
        (pathlib.Path(floor) / "index.html").write_text(FLOOR)
        for name in ("tytul-s.webp", "tytul-noc-s.webp"):
            shutil.copy(FOLDER / name, floor)
        pairs = [(start(floor)[0], start(FOLDER)) for _ in range(rounds)]
        bare_idle = idle(floor)
    floor = statistics.median(pictures for (pictures, _), _ in pairs)
    title, window = (statistics.median(painted[part] for _, (painted, _) in pairs) for part in (0, 1))
    plain, packed = sizes(set.union(*(names for _, (_, names) in pairs)))
    wasm = len(gzip.compress((FOLDER / "brolgan.wasm").read_bytes(), 9))
    print("| quantity in a browser | floor | game | aim |\n| --- | --- | --- | --- |")
    print(f"| bytes until title and set-up are painted | - | {plain / 1000:.0f} kB, {packed / 1000:.0f} kB compressed | 600 kB |")
    print(f"| of them the program | - | {wasm / 1000:.0f} kB compressed | 120 kB |")
    print(f"| time until the title's pictures are painted | {floor:.0f} ms | {title:.0f} ms | 1.5 of the floor |")
    print(f"| time until the set-up over them is | - | {window:.0f} ms | - |")
    seen = [changes() for _ in range(rounds)]
    median = lambda name, turn, part: statistics.median(one[name][turn][part] for one in seen)
    bare = median(BARE, 1, 0)
    for turn, time_of, aim in ((1, "second", "16 ms beyond the floor"), (0, "first", "-")):
        for name in [*(name for name, _ in WAY), LAST]:
            taken = f"{median(name, turn, 0):.1f} ms, {median(name, turn, 1):.1f} of the program"
            print(f"| {name}, {time_of} time | {bare:.1f} ms | {taken} | {aim} |")
    script, program = memory()
    print(f"| memory behind a whole game | - | {script / 1e6:.1f} MB of the script, {program / 1e6:.1f} MB of the program | - |")
    print(f"| processor time in 10 idle seconds | {bare_idle:.1f} ms | {idle(FOLDER):.1f} ms | none |")


if __name__ == "__main__":
    main()
