#!/usr/bin/env python3
"""Tests the page in a real browser, screen by screen; run by tools/checks/web.sh."""
import pathlib
import shutil
import tempfile
import unittest

import browser
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys
from in_browser import DEVELOPER, GAME, HERE, RELEASE, START, InBrowser

# Sizes of screens, and whether they are touched.
SIZES = {(1366, 768): False, (2560, 1440): False, (1024, 768): True, (844, 390): True, (390, 844): True}


class WholeGame(InBrowser):
    def test_of_two_players_gives_the_stored_files_and_shows_what_the_game_without_a_face_shows(self):
        self.lay_lists()
        game = self.without_face()
        self.assertEqual(self.page.see(), game.see("start"))
        steps = sorted(path for path in (GAME / "whole-game").iterdir())
        stored = {name: (GAME / name).read_bytes() for name in ("bron.cfg", "monsters.cfg")}
        screen = self.page.screen()
        for number, act in enumerate(browser.acts(GAME / "whole-game.txt"), 1):
            clock = START + 0.25 * number
            self.page.seed(clock)
            game.tell(f"clock {clock}")
            self.page.perform(act)
            self.assertEqual(self.page.see(), game.see(act), act)
            if self.page.screen() == screen and not self.page.has_ended():
                continue
            screen = self.page.screen()
            step = steps.pop(0)
            self.assertTrue(step.name.endswith(screen or "koniec"), step)
            stored |= {path.name: path.read_bytes() for path in step.iterdir()}
            self.assertEqual(self.page.files(), stored, step)
        self.assertEqual(steps, [])
        self.assertTrue(self.page.has_ended())
        self.assertEqual(self.page.shown(), ["Brolgan"])
        self.assertEqual(self.page.faults(), [])


class Sizes(InBrowser):
    def check(self, form, size, touch):
        name = f"{form} at {size}"
        self.page.size(*size, touch=touch)
        found = self.page.script((HERE / "sizes.js").read_text("utf-8"), form, touch)
        self.assertEqual(found, [], name)

    def test_every_screen_shows_everything_at_every_size(self):
        self.page.still()
        for form in self.scenes():
            for size, touch in SIZES.items():
                with self.subTest(form=form, size=size):
                    self.check(form, size, touch)


class Ears(InBrowser):
    def test_an_accessibility_checker_finds_nothing(self):
        axe = pathlib.Path(HERE / "node_modules/axe-core/axe.min.js").read_text("utf-8")
        for form in self.scenes():
            for size in ((1366, 768), (390, 844)):
                self.page.size(*size)
                with self.subTest(form=form, size=size):
                    self.page.script(axe)
                    found = self.driver.execute_async_script(
                        "const done = arguments[0]; axe.run().then((found) => done(found.violations.map("
                        "(one) => [one.id, one.nodes.map((node) => node.html.slice(0, 160) + node.failureSummary)])));")
                    self.assertEqual(found, [])

    def test_what_can_be_owned_tells_whether_it_is(self):
        for form in self.scenes():
            states = self.page.script(
                "return [...document.getElementById(arguments[0]).querySelectorAll('[role=checkbox]')].map("
                "(one) => [one.id, one.getAttribute('aria-checked') === 'true', one.dataset.colour === 'red'])", form)
            for name, checked, red in states:
                self.assertEqual(checked, red, name)

    def test_blows_are_told_as_they_fall_even_in_the_same_words(self):
        self.go_to_fight()
        told = []
        for _ in range(3):
            self.page.click("Fight", "NastTura")
            told.append(self.page.script(
                "return [[...document.querySelectorAll('#news p')].map((one) => one.textContent),"
                " document.getElementById('Fight.IleDMG').getAttribute('aria-label'), document.getElementById('Fight.FDamage').hidden]"))
            self.page.script("document.querySelector('#news').replaceChildren()")
        blows = [(news, blow) for news, blow, hidden in told if not hidden]
        self.assertTrue(blows)
        for news, blow in blows:
            self.assertIn(blow, news)


class Looks(InBrowser):
    """What belongs to no control: it shows the state of those around it and takes no part in acts."""

    LATER = ("CTmhero", "CTsklep", "Prefight", "Fight", "FHero")

    def emblem(self):
        return self.page.script(
            "return [...document.querySelectorAll('#CTmhero .classes img')].map((one) => one.getClientRects().length > 0 ? "
            "new URL(one.src).pathname : '').filter((name) => name !== '')")

    def test_the_screens_to_come_are_laid_out_unseen_once_the_title_is_there(self):
        self.page.wait("document.querySelectorAll('dialog[data-ready][hidden]').length === 5")
        for form in self.LATER:
            laid, words, seen = self.page.script(
                "const form = document.getElementById(arguments[0]); return [form.querySelector('.body, .actions').offsetHeight,"
                " form.textContent.length, form.checkVisibility({ visibilityProperty: true })]", form)
            self.assertGreater(laid, 50, form)
            self.assertGreater(words, 50, form)
            self.assertFalse(seen, form)
        self.assertEqual(sorted(self.page.shown()), ["Brolgan", "Main"])

    def test_every_player_has_his_shield_and_every_class_its_emblem(self):
        shields = self.page.script("return [...document.querySelectorAll('#Main .shield img')].map((one) => one.currentSrc)")
        self.assertEqual([name.rsplit("/", 1)[1] for name in shields], [f"tarcza-{i}-s.webp" for i in range(1, 5)])
        self.page.click("Main", "gracz(0)")
        for number in range(10):
            self.page.click("CTmhero", f"Klasa({number})")
            self.assertEqual(self.emblem(), [f"/klasa-{number + 1}.png"])

    def style(self, name, prop):
        return self.page.script("return getComputedStyle(document.getElementById(arguments[0]))[arguments[1]]", name, prop)

    def test_the_step_to_take_is_lit(self):
        def lit():
            return [name for name in ("GraczM(0)", "GraczM(1)", "Start")
                    if self.style(f"Main.{name}", "backgroundColor") == "rgb(240, 184, 64)"]
        self.assertEqual(lit(), ["GraczM(0)"])
        self.page.click("Main", "gracz(0)")
        self.page.click("CTmhero", "Save")
        self.assertEqual(lit(), ["Start"])

    def test_what_can_be_bought_stands_out_from_what_is_owned(self):
        self.page.click("Main", "gracz(0)")
        ink, nothing = "rgb(28, 23, 20)", "rgba(0, 0, 0, 0)"
        self.assertEqual(self.style("CTmhero.Czarn(0)", "borderTopColor"), ink)
        self.page.click("CTmhero", "Czarn(0)")
        self.page.script("document.activeElement.blur()")
        self.assertNotEqual(self.style("CTmhero.Czarn(0)", "borderTopColor"), ink)
        self.assertEqual(self.style("CTmhero.Czarn(0)", "backgroundColor"), nothing)
        for name in ("Czarn(1)", "Czarn(2)", "Czarn(3)", "Czarn(6)", "Czarn(9)"):
            self.page.click("CTmhero", name)
        self.assertEqual(self.page.script("return document.getElementById('CTmhero.Ile_jeszcze').textContent"), "0")
        self.assertNotEqual(self.style("CTmhero.Czarn(7)", "borderTopColor"), ink)
        self.assertNotEqual(self.style("CTmhero.Czarn(7)", "backgroundColor"), nothing)

    def test_a_field_keeps_its_face_in_focus(self):
        self.page.click("Main", "gracz(0)")
        for name in ("CTmhero.Imie", "CTmhero.LBronww"):
            face = self.style(name, "backgroundColor")
            self.page.script("document.getElementById(arguments[0]).focus({ focusVisible: true })", name)
            self.assertEqual(self.style(name, "outlineStyle"), "solid", name)
            self.assertEqual(self.style(name, "backgroundColor"), face, name)

    def test_the_chosen_class_alone_has_a_frame(self):
        self.page.click("Main", "gracz(0)")
        self.page.click("CTmhero", "Klasa(4)")
        framed = self.page.script("return [...document.querySelectorAll('#CTmhero .classes label')]"
                                  ".map((one, row) => getComputedStyle(one).boxShadow === 'none' ? -1 : row).filter((row) => row >= 0)")
        self.assertEqual(framed, [4])

    def test_the_pictures_of_the_title_have_plain_margins_of_one_width(self):
        left, gap, right, outline = self.page.script(
            "const [one, two] = [...document.querySelectorAll('#Brolgan .pictures img')].map((each) => each.getBoundingClientRect());"
            "return [one.left, two.left - one.right, innerWidth - two.right,"
            " getComputedStyle(document.getElementById('Brolgan.pics(0)')).outline]")
        self.assertEqual((left, gap, right), (8, 8, 8))
        self.assertIn("rgb(143, 130, 98)", outline)

    def test_every_zone_has_its_own_tint_and_emblem(self):
        self.page.click("Main", "gracz(0)")
        self.page.click("CTmhero", "Save")
        self.page.click("Main", "Start")
        looks = self.page.script(
            "return [...Array(12).keys()].map((i) => { const zone = document.getElementById(`CTsklep.w${i + 1}`);"
            " const emblem = getComputedStyle(zone, '::before');"
            " return [getComputedStyle(zone).backgroundColor, emblem.backgroundImage, emblem.backgroundPositionX]; })")
        self.assertEqual(len({tint for tint, _, _ in looks}), 12)
        self.assertEqual(len({place for _, _, place in looks}), 12)
        self.assertTrue(all("strefy.webp" in image for _, image, _ in looks))

    def test_the_zones_stand_in_one_column_at_every_size(self):
        self.page.click("Main", "gracz(0)")
        self.page.click("CTmhero", "Save")
        self.page.click("Main", "Start")
        for (width, height), is_touched in SIZES.items():
            self.page.size(width, height, touch=is_touched)
            places = self.page.script(
                "return [...Array(12).keys()].map((i) => document.getElementById(`CTsklep.w${i + 1}`).getBoundingClientRect())"
                ".map((place) => [place.left, place.top]);")
            self.assertEqual(len({left for left, _ in places}), 1, (width, height))
            self.assertEqual([top for _, top in places], sorted({top for _, top in places}), (width, height))

    def test_a_weapon_bought_before_any_is_chosen_is_red(self):
        self.page.open(START + 1)  # A day on which weapons are sold.
        self.lay_lists()
        self.page.click("Main", "gracz(0)")
        self.page.select("CTmhero", "LBronww", "Nóż")
        self.page.click("CTmhero", "Sprzedajww")
        self.page.click("CTmhero", "Save")
        self.page.click("Main", "Start")
        self.assertEqual(self.colour_of_the_weapon(), "rgb(107, 101, 87)")
        self.page.click("CTsklep", "Kupww")
        self.assertEqual(self.colour_of_the_weapon(), "rgb(255, 0, 0)")

    def colour_of_the_weapon(self):
        return self.page.script("return getComputedStyle(document.getElementById('CTsklep.BWnazwa')).color")

    def test_two_blanks_before_a_turn_are_two_at_every_size(self):
        self.go_to_fight()
        self.page.script("document.getElementById('Fight.FZad').hidden = false;")
        for (width, height), is_touched in SIZES.items():
            self.page.size(width, height, touch=is_touched)
            wide, narrow = self.page.script(
                "const verdict = document.getElementById('Fight.OpisZad'); const words = document.createRange();"
                "return ['tura  7', 'tura 7'].map((told) => { verdict.textContent = told; words.selectNodeContents(verdict);"
                " return words.getBoundingClientRect().width; })")
            self.assertGreater(wide, narrow, (width, height))

    def test_two_blows_do_not_read_as_one_number(self):
        self.go_to_fight()
        self.page.script("document.getElementById('Fight.FDamage').hidden = false;")
        two, one, size = self.page.script(
            "const blows = document.getElementById('Fight.IleDMG'); const words = document.createRange();"
            "const widths = ['5 2', '52'].map((told) => { blows.textContent = told; words.selectNodeContents(blows);"
            " return words.getBoundingClientRect().width; });"
            "return [...widths, parseFloat(getComputedStyle(blows).fontSize)];")
        self.assertGreater(two - one, .4 * size)

    def test_what_is_beaten_stands_in_the_sheet_with_its_head(self):
        last = None
        self.lay_lists()
        for number, act in enumerate(browser.acts(GAME / "whole-game.txt"), 1):
            self.page.seed(START + 0.25 * number)
            self.page.perform(act)
            if last == "Fight" and self.page.screen() == "CTsklep" and self.page.script(
                    "document.getElementById('CTsklep.Heroshow').click();"
                    "return document.getElementById('FHero.Stwory').options.length") > 0:
                break
            last = self.page.screen()
        heads = self.page.script("return [...document.getElementById('FHero.Stwory').options]"
                                 ".map((one) => [one.dataset.picture, getComputedStyle(one).backgroundImage])")
        self.assertTrue(heads)
        for picture, head in heads:
            self.assertIn(f"glowa-{picture.removesuffix('.jpg')}.webp", head)

    def test_many_blows_are_told_smaller(self):
        sizes = self.page.script(
            "const blow = document.getElementById('Fight.IleDMG');"
            "return [1, 2, 3, 4].map((length) => { blow.dataset.length = length; return parseFloat(getComputedStyle(blow).fontSize); })")
        self.assertEqual(sizes, sorted(set(sizes), reverse=True))
        self.go_to_fight()
        self.page.click("Fight", "NastTura")
        told, length = self.page.script("const blow = document.getElementById('Fight.IleDMG'); return [blow.textContent, blow.dataset.length];")
        self.assertEqual(int(length), min(4, -(-len(told.strip()) // 4)))


class Sounds(InBrowser):
    NOTE = """window.played = [];
HTMLMediaElement.prototype.play = function () { window.played.push(new URL(this.src).pathname.slice(1)); return Promise.reject(); };"""

    def test_variants_sound_in_turn_and_silence_holds_nothing_up(self):
        self.page.script(self.NOTE)
        self.go_to_fight()
        self.page.select("Fight", "Bron", "Nóż")
        for _ in range(2):
            self.page.click("Fight", "Atak")
            self.page.click("Fight", "NastTura")
        played = self.page.script("return window.played")
        self.assertIn("guit/hard2.mp3", played)
        self.assertEqual([name for name in played if name.startswith("noz")], ["noz.mp3", "noz-2.mp3"])
        self.assertEqual([name for name in played if not (DEVELOPER / name).is_file()], [])


class Touch(InBrowser):
    def tap(self, form, control):
        x, y = self.page.script("""const element = document.getElementById(arguments[0]);
element.scrollIntoView({ block: 'nearest' });
const box = element.getBoundingClientRect();
return [box.x + box.width / 2, box.y + box.height / 2];""", f"{form}.{control}")
        for kind, points in (("touchStart", [{"x": x, "y": y}]), ("touchEnd", [])):
            self.driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": kind, "touchPoints": points})

    def test_a_finger_goes_from_the_start_into_a_fight(self):
        for size in ((390, 844), (844, 390)):
            self.page.size(*size, touch=True)
            self.page.open(START)
            self.lay_lists()
            for form, control, screen in (("Main", "GraczM(0)", "CTmhero"), ("CTmhero", "Save", "Main"), ("Main", "Start", "CTsklep"),
                                          ("CTsklep", "w1", "Prefight"), ("Prefight", "Zakoncz", "Fight")):
                self.tap(form, control)
                self.assertEqual(self.page.screen(), screen, f"{control} at {size}")
            self.tap("Fight", "NastTura")
            self.assertFalse(self.page.script("return document.getElementById('Fight.FDamage').hidden"), size)


class Keyboard(InBrowser):
    def focus(self):
        return self.page.script("return document.activeElement.id")

    def hidden(self, name):
        return self.page.script("return document.getElementById(arguments[0]).hidden", name)

    def press(self, key, beside=None):
        chain = ActionChains(self.driver)
        chain = chain.key_down(beside).send_keys(key).key_up(beside) if beside else chain.send_keys(key)
        chain.perform()

    def order(self, form):
        """What the keyboard reaches, in the order of the form's controls; of options the chosen one."""
        return self.page.script(
            "return [...document.getElementById(arguments[0]).querySelectorAll('button[id], input, select, textarea')]"
            ".filter((one) => !one.disabled && one.tabIndex >= 0 && one.checkVisibility({ visibilityProperty: true }) &&"
            " (one.type !== 'radio' || one.checked)).map((one) => one.id)", form)

    def test_the_tab_key_goes_through_every_screen_in_its_order(self):
        for form in self.scenes():
            if form == "Brolgan":
                continue
            order = self.order(form)
            self.page.script("document.getElementById(arguments[0]).focus()", order[0])
            walked = [self.focus()]
            for _ in order[1:]:
                self.press(Keys.TAB)
                walked.append(self.focus())
            self.assertEqual(walked, order, form)

    def test_the_game_is_played_by_keys_from_the_start_into_a_fight(self):
        self.lay_lists()
        for key, alt, screen in ((Keys.ENTER, False, "CTmhero"), ("t", True, "Main"), ("z", True, "CTsklep"),
                                 ("h", True, "CTsklep"), (Keys.ESCAPE, False, "CTsklep"), ("1", True, "Prefight"), ("z", True, "Fight")):
            self.press(key, Keys.ALT if alt else None)
            self.assertEqual(self.page.screen(), screen, key)
            self.assertEqual("FHero" in self.page.shown(), key == "h")
        self.press("b", Keys.ALT)
        self.assertEqual(self.focus(), "Fight.Bron")
        self.press(Keys.ARROW_DOWN)
        self.press("a", Keys.ALT)
        self.assertFalse(self.hidden("Fight.FZad"))
        self.press(Keys.ESCAPE)
        self.assertTrue(self.hidden("Fight.FZad"))

    def test_letters_of_what_cannot_be_used_do_nothing(self):
        before = self.page.see()
        self.press(Keys.ALT)
        self.press("a", Keys.ALT)
        self.press("9", Keys.ALT)
        self.press(Keys.ESCAPE)
        self.assertEqual(self.page.see(), before)

    def test_file_names_are_edited_without_opening_creation(self):
        self.page.script("document.getElementById('Main.gracz(0)').focus()")
        self.press("x")
        self.assertEqual(self.page.screen(), "Main")
        self.assertEqual(self.page.script("return document.getElementById('Main.gracz(0)').value"), "hero1.bohx")


class Errors(InBrowser):
    """Odd files beside the page, each of which ends the game as without a face."""

    WAY = ["click Main gracz(0)", "click CTmhero Save", "click Main Start", "click CTsklep w1", "click Prefight Zakoncz"]

    def open_beside(self, name, content):
        folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        shutil.copytree(DEVELOPER, folder / "gra")
        for other in ("bron.cfg", "monsters.cfg"):
            shutil.copy(GAME / other, folder / "gra")
        (folder / "gra" / name).unlink()
        if content is not None:
            (folder / "gra" / name).write_bytes(content)
        page = browser.Page(self.driver, self.enterContext(browser.serving(folder / "gra")))
        page.open(START)
        return page, folder / "gra" / name

    def expect_error(self, name, content, last):
        page, path = self.open_beside(name, content)
        game = self.without_face()
        game.tell("nopicture brak.jpg")
        game.tell(f"folder {page.address.rstrip('/')}")
        game.tell(f"gone {name}" if content is None else f"file {name} {path}")
        game.see("start")
        for number, act in enumerate(self.WAY, 1):
            page.seed(START + number)
            game.tell(f"clock {START + number}")
            page.perform(act)
            seen = page.see()
            self.assertEqual(seen, game.see(act), act)
            if any(line.startswith("error ") for line in seen):
                break
        self.assertEqual(act, last)
        self.assertTrue(page.error(), name)
        page.script("document.querySelector('#error button').click()")
        page.wait("!document.querySelector('#anew').hidden")
        self.assertEqual(page.shown(), ["Brolgan"])
        page.script("document.querySelector('#anew').click()")
        self.assertEqual(sorted(page.shown()), ["Brolgan", "Main"])

    def test_a_missing_list_of_weapons(self):
        self.expect_error("bron.cfg", None, "click Main gracz(0)")

    def test_a_list_of_weapons_that_is_cut(self):
        self.expect_error("bron.cfg", (GAME / "bron.cfg").read_bytes()[:300], "click Main gracz(0)")

    def test_a_missing_list_of_monsters(self):
        self.expect_error("monsters.cfg", None, "click CTsklep w1")

    def test_a_list_of_monsters_that_is_cut(self):
        self.expect_error("monsters.cfg", (GAME / "monsters.cfg").read_bytes()[:200], "click CTsklep w1")

    def test_a_number_beyond_all_bounds(self):
        content = (GAME / "monsters.cfg").read_bytes().split(b"\r\n")
        content[4] = b" 99999 "
        self.expect_error("monsters.cfg", b"\r\n".join(content), "click CTsklep w1")

    def test_a_picture_that_is_not_there(self):
        content = (GAME / "monsters.cfg").read_bytes()
        names = {line for line in content.split(b"\r\n") if line.endswith(b".jpg")}
        for name in names:
            content = content.replace(name, b"brak.jpg")
        self.expect_error("monsters.cfg", content, "click CTsklep w1")

    def test_a_picture_that_is_none_or_cut_is_told_by_its_number(self):
        whole = (DEVELOPER / "smok.jpg").read_bytes()
        for name, picture in (("zly.jpg", b"no picture"), ("ciety.jpg", whole[:len(whole) // 2]), ("ciety.png", b"\x89PNG\r\n\x1a\n")):
            content = (GAME / "monsters.cfg").read_bytes()
            for known in {line for line in content.split(b"\r\n") if line.endswith(b".jpg")}:
                content = content.replace(known, name.encode())
            page, path = self.open_beside("monsters.cfg", content)
            (path.parent / name).write_bytes(picture)
            for act in self.WAY[:4]:
                page.perform(act)
            self.assertEqual(page.error(), f"Błąd wykonania 481: Nieprawidłowy obrazek\nPlik: {name}\n"
                             f"Folder: {page.address.rstrip('/')}")

    def test_a_picture_of_another_is_shown(self):
        content = (GAME / "monsters.cfg").read_bytes()
        for known in {line for line in content.split(b"\r\n") if line.endswith(b".jpg")}:
            content = content.replace(known, b"moj.jpg")
        page, path = self.open_beside("monsters.cfg", content)
        shutil.copy(DEVELOPER / "smok.jpg", path.parent / "moj.jpg")
        for act in self.WAY[:4]:
            page.perform(act)
        self.assertEqual(page.screen(), "Prefight")
        page.wait("document.getElementById('Prefight.Potwór').naturalWidth > 100")

    def test_names_that_can_be_no_file(self):
        for name, code in (("", 75), ("nic\\hero.boh", 76), ("guit", 75)):
            self.page.open()
            self.page.type("Main", "gracz(0)", name)
            self.page.click("Main", "gracz(0)")
            self.page.click("CTmhero", "Save")
            self.assertIn(f"Błąd wykonania {code}: ", self.page.error() or "", name)


class Alone(InBrowser):
    def test_nothing_is_loaded_from_elsewhere(self):
        for _ in self.scenes():
            pass
        loaded = self.page.script("return performance.getEntriesByType('resource').map((one) => one.name)")
        self.assertTrue(loaded)
        self.assertEqual([name for name in loaded if not name.startswith(self.address)], [])
        self.assertEqual(self.page.faults(), [])

    def test_two_tabs_do_not_disturb_each_other(self):
        first = self.driver.current_window_handle
        self.page.type("Main", "ile_punktow", "31")
        self.page.click("Main", "gracz(0)")
        self.driver.switch_to.new_window("tab")
        other = browser.Page(self.driver, self.address)
        other.open(START)
        self.assertEqual(sorted(other.files()), ["bron.cfg", "monsters.cfg"])
        other.type("Main", "ile_punktow", "7")
        other.click("Main", "gracz(0)")
        other.click("CTmhero", "Save")
        self.driver.close()
        self.driver.switch_to.window(first)
        self.assertEqual(self.page.files()["makehro.cfg"], b"hero1.boh\r\n31\r\n")
        self.assertNotIn("hero1.boh", self.page.files())
        self.assertEqual(self.page.screen(), "CTmhero")

    def test_the_title_ends_the_program_and_starts_it_anew(self):
        self.page.click("Main", "gracz(0)")
        self.page.close("Brolgan")
        self.assertTrue(self.page.has_ended())
        self.assertEqual(self.page.shown(), ["Brolgan"])
        self.page.script("document.querySelector('#anew').click()")
        self.assertEqual(sorted(self.page.shown()), ["Brolgan", "Main"])
        self.assertEqual(self.page.script("return document.getElementById('Main.Czygra(0)').textContent"), "")


class WithoutNet(unittest.TestCase):
    def test_a_second_start_plays_with_the_server_gone(self):
        with browser.browsing() as driver:
            with browser.serving(RELEASE) as address:
                page = browser.Page(driver, address)
                page.open()
                self.assertTrue(page.script("return typeof brolgan === 'undefined'"))
                driver.execute_async_script(
                    "const done = arguments[0]; navigator.serviceWorker.ready.then(async () => {"
                    " while ((await caches.keys()).length === 0 || !navigator.serviceWorker.controller)"
                    " await new Promise((next) => setTimeout(next, 50)); done(); });")
            page.open()
            for act in ("click Main gracz(0)", "click CTmhero Save", "click Main Start", "click CTsklep w1"):
                page.perform(act)
            self.assertEqual(page.screen(), "Prefight")
            page.wait("document.getElementById('Prefight.Potwór').complete")
            self.assertGreater(page.script("return document.getElementById('Prefight.Potwór').naturalWidth"), 100)
            self.assertEqual(driver.execute_async_script(
                "const done = arguments[0]; fetch('noz.mp3', { headers: { Range: 'bytes=2-5' } }).then(async (answer) => "
                "done([answer.status, (await answer.arrayBuffer()).byteLength]));"), [206, 4])
            self.assertTrue(driver.execute_async_script(
                "const done = arguments[0], sound = new Audio('noz.mp3'); sound.oncanplay = () => done(true); sound.onerror = () => done(false);"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
