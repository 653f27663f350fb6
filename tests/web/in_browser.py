"""What the tests in a real browser stand on: run in the project's folder by tools/checks/web.sh, which builds
what they need. The game without a face does the same acts, and both must show the same."""
import pathlib
import unittest

import browser
from without_face import WithoutFace

DEVELOPER = pathlib.Path("build/web-dev/gra")
RELEASE = pathlib.Path("build/web/gra")
TABLE = "build/dev/tests/web/web_table"
GAME = pathlib.Path("tests/data/game")
HERE = pathlib.Path("tests/web")
START = 36000

# Acts of the written game behind which a screen is full of things.
SCENES = {"Main": "click Main Start", "CTmhero": "click CTmhero Kupss", "CTsklep": "click CTsklep Spec(2)",
          "FHero": "click CTsklep Heroshow", "Prefight": "click Prefight Rzuc", "Fight": "click Fight Atak"}


class InBrowser(unittest.TestCase):
    """Tests that share one browser, each with the page anew."""

    @classmethod
    def setUpClass(cls):
        cls.address = cls.enterClassContext(browser.serving(DEVELOPER))
        cls.driver = cls.enterClassContext(browser.browsing())

    def setUp(self):
        self.page = browser.Page(self.driver, self.address)
        self.page.size(1366, 768)
        self.page.open(START)
        self.page.faults()

    def lay_lists(self, page=None):
        for name in ("bron.cfg", "monsters.cfg"):
            (page or self.page).write(name, (GAME / name).read_bytes())

    def go_to_fight(self):
        self.lay_lists()
        for act in ("click Main gracz(0)", "click CTmhero Save", "click Main Start", "click CTsklep w1", "click Prefight Zakoncz"):
            self.page.perform(act)

    def without_face(self):
        game = WithoutFace(TABLE)
        self.addCleanup(game.close)
        for name in ("bron.cfg", "monsters.cfg"):
            game.tell(f"file {name} {GAME / name}")
        return game

    def scenes(self):
        """Plays the written game and stops at every scene, giving the name of its form."""
        self.lay_lists()
        yield "Brolgan"
        pending = dict(SCENES)
        for number, act in enumerate(browser.acts(GAME / "whole-game.txt"), 1):
            self.page.seed(START + 0.25 * number)
            self.page.perform(act)
            for form in [form for form, last in pending.items() if last == act]:
                del pending[form]
                yield form
            if not pending:
                return
