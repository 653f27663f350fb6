// The hero sheet.
#include "sheet/sheet.h"

#include <gtest/gtest.h>

#include "tests/flow/control_rows.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

using Lines = std::vector<std::string>;

// A hero file that gra.cfg names first, and the sheet over it.
struct Sheet {
  Sheet() {
    hero = plainHero();
    world.write("gra.cfg", {" 2 ", "zofia.boh", "hero2.boh"});
  }
  void open() {
    world.writeHero("zofia.boh", hero);
    world.runtime.Reopen("FHero");
  }
  [[nodiscard]] std::string caption(const std::string& label) const { return world.caption("FHero", label); }
  [[nodiscard]] Lines weapons() const { return world.rows("FHero", "Bron"); }
  [[nodiscard]] Lines kills() const { return world.rows("FHero", "Stwory"); }
  int openError() {
    return errorOf([this] { open(); });
  }

  World world;
  Bohater hero;
};

// As many monsters as wanted, named "Potwór 1" and so on.
Lines monsterLines(int count) {
  Lines lines = {" " + std::to_string(count) + " "};
  for (int i = 1; i <= count; ++i) {
    for (const std::string& line :
         Lines{"1", "Potwór " + std::to_string(i), "p.jpg", "5", "1", "4", "1", "0", "9", "0"})
      lines.push_back(line);
  }
  return lines;
}

Lines weaponLines(int melee, int ranged) {
  Lines lines;
  for (const int count : {melee, ranged}) {
    lines.push_back(std::to_string(count));
    for (int i = 0; i < count; ++i) {
      for (const std::string& line : Lines{"Broń " + std::to_string(i), "x.wav", "1", "4", "1", "0", "False", "0", "1"})
        lines.push_back(line);
    }
  }
  return lines;
}

TEST(HeroSheet, HasTheseControls) {
  World world;
  FHero form(world.runtime);
  Lines rows = {"Imie: label 'Kosiarz1'",
                "klasa: label 'wojownik'",
                "Label1: label 'Posiadane bronie :'",
                "Label2: label 'Pokonane Stwory:'",
                "Bron: list box ''",
                "Stwory: list box ''",
                "HeroClose: button ''"};
  addRows(rows, "Pstat", "label", {"50", "50", "50", "50", "50", "50"});
  addRows(rows, "pstatl", "label", {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Modyfikator O."});
  EXPECT_EQ(controlRows(form), sorted(rows));
  EXPECT_EQ(form.Caption, "Bohater");
}

TEST(HeroSheet, ShowsTheFirstHeroOfTheOrder) {
  Sheet sheet;
  sheet.hero.Imie = "Żółta Zofia";
  sheet.hero.Klasa = "Złota rączka";
  sheet.open();
  EXPECT_EQ(sheet.caption("Imie"), "Żółta Zofia");
  EXPECT_EQ(sheet.caption("klasa"), "Złota rączka");
}

TEST(HeroSheet, DoesNotUseTheCountOfTheOrder) {
  Sheet sheet;
  for (const char* count : {" 0 ", " 77 ", "słowo"}) {
    sheet.world.write("gra.cfg", {count, "zofia.boh"});
    EXPECT_EQ(sheet.openError(), 0) << count;
    EXPECT_EQ(sheet.caption("Imie"), "Kosiarz");
  }
}

TEST(HeroSheet, ShowsTheMaximaAndNotTheCurrentValues) {
  Sheet sheet;
  const int values[] = {29, 5, 17, 24, 7};
  for (int i = 0; i < 5; ++i) sheet.hero.Wartosci(i) = values[i];
  sheet.hero.AktWytrzymalosc = 3;
  sheet.hero.AktMoc = 1;
  sheet.open();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(sheet.caption("Pstat(" + std::to_string(i) + ")"), std::to_string(values[i]));
}

TEST(HeroSheet, ShowsTheDamageModifierWithTheBlanksOfItsTwoForms) {
  Sheet sheet;
  sheet.open();
  EXPECT_EQ(sheet.caption("Pstat(5)"), " 1k 4");
  sheet.hero.MO = {1, 6, 2, 3};
  sheet.open();
  EXPECT_EQ(sheet.caption("Pstat(5)"), "2k6+ 3");
}

TEST(HeroSheet, ListsOwnedWeaponsMeleeFirstEachInCatalogueOrder) {
  Sheet sheet;
  for (const int i : {0, 6, 9}) sheet.hero.MaBronww(i) = true;
  sheet.hero.MaBronss(0) = false;
  for (const int i : {4, 9}) sheet.hero.MaBronss(i) = true;
  sheet.hero.BronwwProc(6) = 47;
  sheet.hero.BronssProc(4) = 120;
  sheet.open();
  EXPECT_EQ(sheet.weapons(), (Lines{"Nóż (+0%)", "Miecz (+47%)", "Oczożłop (+0%)", "Działo (+120%)", "UltiGun (+0%)"}));
}

TEST(HeroSheet, ShowsTheShootersBonusBehindHisBow) {
  Sheet sheet;
  sheet.hero.MaBronww(0) = false;
  for (Integer& percent : sheet.hero.BronssProc) percent = 55;
  sheet.open();
  EXPECT_EQ(sheet.weapons(), Lines{"Łuk (+55%)"});
}

TEST(HeroSheet, AWeaponWithPercent0ShowsItsNameAndPlus0Percent) {
  Sheet sheet;
  sheet.hero.MaBronss(0) = false;
  sheet.open();
  EXPECT_EQ(sheet.weapons(), Lines{"Nóż (+0%)"});
}

TEST(HeroSheet, DoesNotShowTheFlatBonus) {
  Sheet sheet;
  for (Integer& plus : sheet.hero.BronwwPlus) plus = 5;
  for (Integer& plus : sheet.hero.BronssPlus) plus = 5;
  sheet.open();
  EXPECT_EQ(sheet.weapons(), (Lines{"Nóż (+0%)", "Łuk (+0%)"}));
}

TEST(HeroSheet, ShowsANegativePercentBehindThePlusSign) {
  Sheet sheet;
  sheet.hero.BronwwProc(0) = -4;
  sheet.hero.MaBronss(0) = false;
  sheet.open();
  EXPECT_EQ(sheet.weapons(), Lines{"Nóż (+-4%)"});
}

TEST(HeroSheet, AHeroWithoutWeaponsHasAnEmptyList) {
  Sheet sheet;
  sheet.hero.MaBronww(0) = false;
  sheet.hero.MaBronss(0) = false;
  sheet.open();
  EXPECT_TRUE(sheet.weapons().empty());
}

TEST(HeroSheet, ListsOnlyWeaponsThatTheCatalogueHas) {
  Sheet sheet;
  for (bool& owned : sheet.hero.MaBronww) owned = true;
  sheet.world.write("bron.cfg", weaponLines(2, 0));
  sheet.open();
  EXPECT_EQ(sheet.weapons(), (Lines{"Broń 0 (+0%)", "Broń 1 (+0%)"}));
}

TEST(HeroSheet, AHeroWithNoKillsHasAnEmptyListOfMonsters) {
  Sheet sheet;
  sheet.open();
  EXPECT_TRUE(sheet.kills().empty());
}

TEST(HeroSheet, ListsKilledMonstersWithTheirCountsInListOrder) {
  Sheet sheet;
  sheet.world.write("monsters.cfg", monsterLines(45));
  sheet.hero.Stwory(44) = 2;
  sheet.hero.Stwory(0) = 13;
  sheet.hero.Stwory(7) = 1;
  sheet.hero.Stwory(8) = -1;
  sheet.open();
  EXPECT_EQ(sheet.kills(), (Lines{"Potwór 1 (13)", "Potwór 8 (1)", "Potwór 45 (2)"}));
}

TEST(HeroSheet, KnowsThePictureOfTheMonsterInEachRow) {
  Sheet sheet;
  Lines lines = monsterLines(3);
  lines[2 * 10 + 3] = "trzeci.jpg";
  sheet.world.write("monsters.cfg", lines);
  sheet.hero.Stwory(1) = 1;
  sheet.hero.Stwory(2) = 4;
  sheet.hero.Stwory(20) = 1;
  sheet.open();
  const auto& shown = dynamic_cast<const FHero&>(*sheet.world.runtime.find("FHero"));
  EXPECT_EQ(shown.pictureOfKill(0), "p.jpg");
  EXPECT_EQ(shown.pictureOfKill(1), "trzeci.jpg");
  EXPECT_EQ(shown.pictureOfKill(2), "");
  EXPECT_THROW(std::ignore = shown.pictureOfKill(3), std::out_of_range);
}

TEST(HeroSheet, AKillBeyondTheListOfMonstersShowsAnEmptyName) {
  Sheet sheet;
  sheet.world.write("monsters.cfg", monsterLines(2));
  sheet.hero.Stwory(20) = 3;
  sheet.open();
  EXPECT_EQ(sheet.kills(), Lines{" (3)"});
}

TEST(HeroSheet, FortySixMonstersAreReadAndOneMoreEndsTheProgram) {
  Sheet sheet;
  sheet.world.write("monsters.cfg", monsterLines(46));
  EXPECT_EQ(sheet.openError(), 0);
  sheet.world.write("monsters.cfg", monsterLines(47));
  EXPECT_EQ(sheet.openError(), 9);
}

TEST(HeroSheet, TenWeaponsOfAKindAreReadAndOneMoreEndsTheProgram) {
  Sheet sheet;
  for (const auto& [melee, ranged, error] : {std::tuple{10, 10, 0}, {11, 0, 9}, {0, 11, 9}, {12, 0, 9}, {0, 12, 9}}) {
    sheet.world.write("bron.cfg", weaponLines(melee, ranged));
    EXPECT_EQ(sheet.openError(), error) << melee << " " << ranged;
  }
}

// The eleventh weapon has a place in the catalogue and none among the hero's; the twelfth has not
// even that.
TEST(HeroSheet, ReadsElevenWeaponsOfAKindAndStopsInTheFileAtTheTwelfth) {
  const std::string wording = "Błąd wykonania 9: Indeks poza zakresem";
  const auto textOf = [](int melee, int ranged) {
    Sheet sheet;
    sheet.world.write("bron.cfg", weaponLines(melee, ranged));
    return errorTextOf([&] { sheet.open(); });
  };
  EXPECT_EQ(textOf(11, 11), wording);
  EXPECT_EQ(textOf(12, 0), wording + "\nPlik: bron.cfg\nWiersz: 100\nPole: KatalogWw(11)");
  EXPECT_EQ(textOf(0, 12), wording + "\nPlik: bron.cfg\nWiersz: 101\nPole: KatalogSs(11)");
}

TEST(HeroSheet, TheMonsterFileIsAlwaysMonstersCfg) {
  Sheet sheet;
  sheet.world.write("inne.cfg", monsterLines(45));
  sheet.world.write("pref.cfg", {"zofia.boh", " 1 ", " 5 ", "inne.cfg"});
  sheet.hero.Stwory(0) = 1;
  sheet.open();
  EXPECT_EQ(sheet.kills(), Lines{"Szczur Piwniczny (1)"});
}

class SheetWithout : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Files, SheetWithout, testing::Values("gra.cfg", "zofia.boh", "bron.cfg", "monsters.cfg"));

TEST_P(SheetWithout, AFileThatIsMissingEndsTheProgramAndIsNamed) {
  Sheet sheet;
  sheet.world.writeHero("zofia.boh", sheet.hero);
  sheet.world.files.contents.erase(GetParam());
  const auto open = [&] { sheet.world.runtime.Show("FHero"); };
  const std::string text = errorTextOf(open);
  EXPECT_NE(text.find("53"), std::string::npos) << text;
  EXPECT_NE(text.find(GetParam()), std::string::npos) << text;
}

TEST(HeroSheet, CloseHidesAndUnloadsIt) {
  Sheet sheet;
  sheet.open();
  EXPECT_TRUE(sheet.world.click("FHero", "HeroClose"));
  EXPECT_FALSE(sheet.world.isOpen("FHero"));
}

TEST(HeroSheet, WritesNothing) {
  Sheet sheet;
  sheet.open();
  const auto before = sheet.world.files.contents;
  sheet.world.runtime.Reopen("FHero");
  sheet.world.click("FHero", "HeroClose");
  EXPECT_EQ(sheet.world.files.contents, before);
}

TEST(HeroSheet, OpeningItAgainReadsTheFilesAfresh) {
  Sheet sheet;
  sheet.open();
  sheet.hero.Imie = "Inna";
  sheet.world.write("gra.cfg", {" 2 ", "hero2.boh", "zofia.boh"});
  sheet.world.writeHero("hero2.boh", sheet.hero);
  sheet.world.runtime.Reopen("FHero");
  EXPECT_EQ(sheet.caption("Imie"), "Inna");
  EXPECT_EQ(sheet.weapons().size(), 2U);
}

// A shop, a preparation or a fight of the hero whose turn it is, with files made by hand.
struct BesideScreen {
  explicit BesideScreen(const std::string& screen) {
    Bohater hero = plainHero();
    hero.Ile_jeszcze = 30;
    hero.AktWytrzymalosc = 4;
    hero.OstatniaBron = "Nóż";
    world.writeHero("hero1.boh", hero);
    world.write("gra.cfg", {" 1 ", "hero1.boh"});
    world.write("sklep.cfg", {"hero1.boh", " 1 "});
    world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
    world.writeFightFile(plainFight());
    if (screen == "Prefight") world.roll(1, 1, {1});
    world.runtime.Show(screen);
  }
  World world;
};

class SheetBeside : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Screens, SheetBeside, testing::Values("CTsklep", "Prefight", "Fight"),
                         [](const auto& screen) { return std::string(screen.param); });

TEST_P(SheetBeside, OpensBesideTheScreenWhichStaysUsable) {
  BesideScreen beside(GetParam());
  EXPECT_TRUE(beside.world.click(GetParam(), "Heroshow"));
  EXPECT_TRUE(beside.world.isShown("FHero"));
  EXPECT_TRUE(beside.world.isShown(GetParam()));
  EXPECT_TRUE(beside.world.click(GetParam(), "Heroshow"));
}

TEST_P(SheetBeside, OpenedTwiceInARowItIsOneSheetLoadedAfresh) {
  BesideScreen beside(GetParam());
  beside.world.click(GetParam(), "Heroshow");
  beside.world.get<Label>("FHero", "Imie").Caption = "zmienione";
  beside.world.click(GetParam(), "Heroshow");
  EXPECT_EQ(beside.world.caption("FHero", "Imie"), "Kosiarz");
  EXPECT_EQ(beside.world.runtime.loaded(), (Lines{GetParam(), "FHero"}));
}

TEST_P(SheetBeside, AMissingFileEndsTheProgramFromHereToo) {
  BesideScreen beside(GetParam());
  beside.world.files.contents.erase("monsters.cfg");
  EXPECT_EQ(errorOf([&] { beside.world.click(GetParam(), "Heroshow"); }), 53);
}

TEST(HeroSheet, AWeaponBoughtInTheShopDoesNotShowUntilTheHeroFileIsWritten) {
  BesideScreen beside("CTsklep");
  beside.world.select("CTsklep", "LBronww", "Miecz");
  beside.world.click("CTsklep", "Kupww");
  beside.world.click("CTsklep", "Heroshow");
  EXPECT_EQ(beside.world.rows("FHero", "Bron"), (Lines{"Nóż (+0%)", "Łuk (+0%)"}));
  beside.world.roll(1, 5, {2});
  beside.world.click("CTsklep", "w1");
  beside.world.click("Prefight", "Heroshow");
  EXPECT_EQ(beside.world.rows("FHero", "Bron"), (Lines{"Nóż (+0%)", "Miecz (+0%)", "Łuk (+0%)"}));
}

TEST(HeroSheet, DuringAFightItShowsTheWeaponAsItCameFromThePreparation) {
  BesideScreen beside("Fight");
  beside.world.roll(1, 4, {2, 2});
  beside.world.roll(1, 120, {60});
  beside.world.click("Fight", "Atak");
  EXPECT_EQ(beside.world.caption("Fight", "Pstat(3)"), " 1k 4+ 1k 4+ 0+ 2%");
  beside.world.click("Fight", "Heroshow");
  EXPECT_EQ(beside.world.rows("FHero", "Bron"), (Lines{"Nóż (+0%)", "Łuk (+0%)"}));
}

TEST(HeroSheet, StaysOpenWhenTheScreenBesideItIsLeft) {
  BesideScreen beside("CTsklep");
  beside.world.click("CTsklep", "Heroshow");
  beside.world.roll(1, 5, {2});
  beside.world.click("CTsklep", "w1");
  EXPECT_TRUE(beside.world.isShown("FHero"));
  EXPECT_TRUE(beside.world.isShown("Prefight"));
}

}  // namespace
}  // namespace brolgan::test
