// Leaving the shop for a zone: the two files that are written, and where the second is cut.
#include <gtest/gtest.h>

#include <set>

#include "game/game.h"
#include "shop/shop.h"
#include "tests/shop/shop.h"

namespace brolgan::test {
namespace {

using ShopLeave = Shop;

TEST_F(ShopLeave, WritesAVisitOfManyPurchasesToTheByte) {
  openOn(dataLines("shop/hero-before.txt"));
  for (const int plus : {0, 0, 2, 5, 5, 7, 8, 8}) press(numbered("PLUS", plus));
  pick("LBronww", 6);
  press("Kupww");
  pick("Lbronss", 1);
  press("Kupss");
  for (const std::string good : {"Czarn(0)", "Czarn(7)", "Spec(0)", "Spec(2)"}) press(good);
  EXPECT_EQ(points(), "0");
  world.roll(16, 21, {18});
  press("w5");

  EXPECT_EQ(world.files.contents.at("hero1.boh"), bytesOf(dataLines("shop/hero-after.txt")));
  EXPECT_EQ(world.files.contents.at("pref.cfg"), bytesOf(dataLines("shop/pref-after.txt")));
}

struct ZoneFile {
  const char* button;
  int low;
  int high;
  const char* bytes;
};

class ShopZone : public ShopLeave, public ::testing::WithParamInterface<ZoneFile> {};

INSTANTIATE_TEST_SUITE_P(Zones, ShopZone,
                         ::testing::Values(ZoneFile{"w1", 1, 5, "hero1.boh\r\n 1 \r\n 5 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w2", 4, 9, "hero1.boh\r\n 4 \r\n 9 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w3", 8, 13, "hero1.boh\r\n 8 \r\n 13 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w4", 12, 17, "hero1.boh\r\n 12 \r\n 17 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w5", 16, 21, "hero1.boh\r\n 16 \r\n 21 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w6", 20, 25, "hero1.boh\r\n 20 \r\n 25 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w7", 24, 29, "hero1.boh\r\n 24 \r\n 29 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w8", 27, 33, "hero1.boh\r\n 27 \r\n 33 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w9", 32, 37, "hero1.boh\r\n 32 \r\n 37 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w10", 36, 41, "hero1.boh\r\n 36 \r\n 41 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w11", 1, 45, "hero1.boh\r\n 1 \r\n 45 \r\nmonsters.cfg\r\n"},
                                           ZoneFile{"w12", 42, 45, "hero1.boh\r\n 42 \r\n 45 \r\nmonsters.cfg\r\n"}),
                         [](const auto& zone) { return std::string(zone.param.button); });

TEST_P(ShopZone, WritesItsBoundsToTheByteAndOpensThePreparation) {
  openShop(heroWith(3));
  world.roll(GetParam().low, GetParam().high, {GetParam().high});
  press(GetParam().button);

  EXPECT_EQ(world.files.contents.at("pref.cfg"), GetParam().bytes);
  EXPECT_EQ(world.unusedRolls(), 0U);
  EXPECT_FALSE(world.isOpen(form));
  EXPECT_TRUE(world.isShown("Prefight"));
}

TEST_F(ShopLeave, WritesFourLinesForTheZoneWithNoneOfTheLastVisit) {
  world.write(kPreparationFile, repeated(9, {"a line of the last visit"}));
  openShop(heroWith(3));
  leave();
  EXPECT_EQ(world.lines("pref.cfg"), Lines({"hero1.boh", " 1 ", " 5 ", "monsters.cfg"}));
  world.runtime.Unload("Prefight");
  openShop(heroWith(3));
  world.roll(42, 45, {43});
  press("w12");

  EXPECT_EQ(world.lines("pref.cfg"), Lines({"hero1.boh", " 42 ", " 45 ", "monsters.cfg"}));
}

TEST_F(ShopLeave, WritesTheNameOfTheHerosOwnFileForTheZone) {
  world.writeHero("żółw.boh", heroWith(3));
  world.write(kShopFile, {"żółw.boh", " 1 "});
  world.runtime.Show(form);
  leave();

  EXPECT_EQ(world.files.contents.at("pref.cfg"), "\xBF\xF3\xB3w.boh\r\n 1 \r\n 5 \r\nmonsters.cfg\r\n");
  EXPECT_EQ(world.hero("żółw.boh").Tura, 2);
  EXPECT_FALSE(world.exists("hero1.boh"));
}

TEST_F(ShopLeave, MayMeetTheLastMonsterOfPandoriaOnTheFirstVisit) {
  openShop(heroWith(3));
  world.roll(1, 45, {45});
  press("w11");

  const Lines monsters = world.lines("monsters.cfg");
  EXPECT_EQ(world.caption("Prefight", "Moname"), monsters.at(1 + 44 * 10 + 1));
}

TEST_F(ShopLeave, GoesWithoutPointsAsWithAnyOtherNumber) {
  openShop(heroWith(0));
  leave();

  EXPECT_TRUE(world.isShown("Prefight"));
  EXPECT_EQ(world.hero("hero1.boh").Ile_jeszcze, 0);
}

TEST_F(ShopLeave, GoesInDebtTooAndKeepsIt) {
  openShop(heroWith(-4));

  EXPECT_EQ(left().Ile_jeszcze, -4);
}

TEST_F(ShopLeave, LoadsThePreparationAfreshWhenItIsOpenAlready) {
  openShop(heroWith(3));
  world.write(kPreparationFile, {"hero1.boh", " 42 ", " 42 ", "monsters.cfg"});
  world.roll(42, 42, {42});
  world.runtime.Show("Prefight");
  world.type("Prefight", "historia", "old notes");
  leave();

  EXPECT_EQ(world.caption("Prefight", "Moname"), world.lines("monsters.cfg").at(2));
  EXPECT_EQ(world.text("Prefight", "historia"), "");
}

TEST_F(ShopLeave, ChangesNoOtherFile) {
  openShop(heroWith(3));
  auto before = world.files.contents;
  leave();
  auto after = world.files.contents;
  before.erase("hero1.boh");
  after.erase("hero1.boh");
  after.erase("pref.cfg");

  EXPECT_EQ(after, before);
}

TEST_F(ShopLeave, TakesEveryUnspentPointFromAGamblerAndFromNoOtherClass) {
  for (const char* klasa : {"Wojownik", "Strzelec", "Czarownik", "Wiedźmin", "Awanturnik", "Satrapa", "Berserker",
                            "Ryzykant", "Zabobonny mnich zakonny", "Złota rączka", "ryzykant", "Ryzykant "}) {
    Bohater hero = heroWith(7);
    hero.Klasa = klasa;
    openShop(hero);
    EXPECT_EQ(left().Ile_jeszcze, std::string(klasa) == "Ryzykant" ? 0 : 7) << klasa;
    world.runtime.Unload("Prefight");
  }
}

TEST_F(ShopLeave, TakesTheLastUnspentPointFromAGamblerToo) {
  Bohater hero = heroWith(7);
  hero.Klasa = "Ryzykant";
  openShop(hero);
  press("PLUS(0)", 3);
  ASSERT_EQ(points(), "1");

  EXPECT_EQ(left().Ile_jeszcze, 0);
}

TEST_F(ShopLeave, TakesTheDebtFromAGamblerToo) {
  Bohater hero = heroWith(-4);
  hero.Klasa = "Ryzykant";
  openShop(hero);

  EXPECT_EQ(left().Ile_jeszcze, 0);
}

TEST_F(ShopLeave, KeepsALossOfEnduranceAndReplacesAnyOtherValueByItsLadders) {
  Bohater hero = heroWith(0);
  hero.Poziomy(0) = 3;
  hero.Wartosci(0) = 16;
  hero.Poziomy(1) = 5;
  hero.Wartosci(1) = 1;
  openShop(hero);
  const Bohater after = left();

  EXPECT_EQ(after.Wartosci(0), 16);
  EXPECT_EQ(after.Wartosci(1), 4);
}

TEST_F(ShopLeave, CarriesTheLossOfEnduranceThroughARise) {
  Bohater hero = heroWith(2);
  hero.Poziomy(0) = 3;
  hero.Wartosci(0) = 16;
  openShop(hero);
  press("PLUS(0)");
  const Bohater after = left();

  EXPECT_EQ(after.Poziomy(0), 4);
  EXPECT_EQ(after.Wartosci(0), 19);
}

TEST_F(ShopLeave, CarriesAGainOfEnduranceThroughARiseToo) {
  Bohater hero = heroWith(2);
  hero.Wartosci(0) = 20;
  openShop(hero);
  press("PLUS(0)");

  EXPECT_EQ(left().Wartosci(0), 23);
}

TEST_F(ShopLeave, PutsNoBoundOnTheLossOfEndurance) {
  Bohater hero = heroWith(2);
  hero.Wartosci(0) = -100;
  openShop(hero);
  press("PLUS(0)");

  EXPECT_EQ(left().Wartosci(0), -97);
}

TEST_F(ShopLeave, WritesTheLaddersValueOfEveryStepOfTheFourOtherNumbers) {
  const std::vector<std::vector<int>> ladders = {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10},
                                                 {2, 4, 6, 8, 11, 14, 17, 20},
                                                 {6, 9, 12, 16, 20, 24, 29, 34},
                                                 {1, 3, 5, 7, 10}};
  for (int statistic = 1; statistic <= 4; ++statistic) {
    const std::vector<int>& ladder = ladders[static_cast<std::size_t>(statistic - 1)];
    for (int step = 1; step <= static_cast<int>(ladder.size()); ++step) {
      Bohater hero = heroWith(0);
      hero.Poziomy(statistic) = step;
      hero.Wartosci(statistic) = 77;
      openShop(hero);
      EXPECT_EQ(left().Wartosci(statistic), ladder[static_cast<std::size_t>(step - 1)]) << statistic << " " << step;
      world.runtime.Unload("Prefight");
    }
  }
}

TEST_F(ShopLeave, RebuildsTheModifiersDiceFromItsStepWhateverTheFileSaid) {
  const Lines dice = {" 1  4  1  0 ", " 1  6  1  0 ", " 1  6  1  2 ", " 1  6  2  0 ", " 1  6  2  3 "};
  for (int step = 1; step <= 5; ++step) {
    Bohater hero = heroWith(0);
    hero.Poziomy(5) = step;
    hero.MO = {9, -8, 7, 6};
    openShop(hero);
    leave();
    EXPECT_EQ(world.line("hero1.boh", 17), dice[static_cast<std::size_t>(step - 1)]);
    world.runtime.Unload("Prefight");
  }
}

TEST_F(ShopLeave, LetsTheModifiersDiceFollowARise) {
  openShop(heroWith(4));
  press("PLUS(5)", 2);

  EXPECT_EQ(left().MO, (Kostka{1, 6, 1, 2}));
}

TEST_F(ShopLeave, HealsNothingAndKeepsTheLivesLeft) {
  Bohater hero = heroWith(8);
  hero.AktWytrzymalosc = -3;
  hero.AktMoc = 0;
  hero.Poziomy(6) = 4;
  hero.Wcielenia = 2;
  openShop(hero);
  press("PLUS(0)", 2);
  press("PLUS(2)", 2);
  const Bohater after = left();

  EXPECT_EQ(after.AktWytrzymalosc, -3);
  EXPECT_EQ(after.AktMoc, 0);
  EXPECT_EQ(after.Poziomy(6), 4);
  EXPECT_EQ(after.Wcielenia, 2);
}

TEST_F(ShopLeave, GivesABoughtWeaponTheBonusThatStoodInItsPlace) {
  Bohater hero = heroWith(20);
  hero.BronwwProc(6) = 45;
  hero.BronwwPlus(6) = 3;
  hero.BronssProc(1) = 55;
  openShop(hero);
  pick("LBronww", 6);
  press("Kupww");
  pick("Lbronss", 1);
  press("Kupss");
  const Bohater after = left();

  EXPECT_TRUE(after.MaBronww(6));
  EXPECT_EQ(after.BronwwProc(6), 45);
  EXPECT_EQ(after.BronwwPlus(6), 3);
  EXPECT_TRUE(after.MaBronss(1));
  EXPECT_EQ(after.BronssProc(1), 55);
}

TEST_F(ShopLeave, CountsATurnThatTheScreenDidNotShowYet) {
  openShop(heroWith(0));
  EXPECT_EQ(caption("Tura"), "1");

  EXPECT_EQ(left().Tura, 2);
}

TEST_F(ShopLeave, PassesEverythingElseOnAsItWasRead) {
  Bohater hero = heroWith(5);
  hero.Imie = "Wanda \"Ćma\"";
  for (int i = 0; i < 17; ++i) hero.Przedmioty(i) = 1000 + i;
  for (int i = 0; i < 45; ++i) hero.Stwory(i) = -i;
  for (int i = 0; i < 10; ++i) hero.BronwwPlus(i) = i;
  hero.MaCzar(4) = true;
  hero.MaSpec(3) = true;
  hero.OstatniCzar = "Damage!";
  hero.OstatniaBron = "Oczożłop";
  openShop(hero);
  const Bohater after = left();
  hero.Tura = 2;

  EXPECT_EQ(after, hero);
}

TEST_F(ShopLeave, CutsTheFileBehindTheGrenadesWhenTheAmmunitionOverflows) {
  Bohater hero = heroWith(1);
  hero.Wyp(1) = 32758;
  openShop(hero);
  press("PLUS(8)");

  EXPECT_EQ(errorOf([this] { world.click(form, "w1"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh"), firstOf(withLine(plainLines(), 2, " 0 "), 90));
  EXPECT_EQ(world.lines("pref.cfg"), Lines({"hero1.boh", " 1 ", " 5 ", "monsters.cfg"}));
}

TEST_F(ShopLeave, KeepsTheLastAmmunitionThatAnIntegerHolds) {
  Bohater hero = heroWith(1);
  hero.Wyp(1) = 32757;
  openShop(hero);
  press("PLUS(8)");

  EXPECT_EQ(left().Wyp(1), 32767);
}

TEST_F(ShopLeave, CutsTheFileBehindTheSpellsWhenTheGrenadesOverflow) {
  Bohater hero = heroWith(1);
  hero.Wyp(0) = 32767;
  openShop(hero);
  press("PLUS(7)");

  EXPECT_EQ(errorOf([this] { world.click(form, "w1"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh").size(), 89U);
}

TEST_F(ShopLeave, CutsTheFileBehindTheItemsWhenTheTurnOverflows) {
  Bohater hero = heroWith(0);
  hero.Tura = 32767;
  openShop(hero);

  EXPECT_EQ(errorOf([this] { world.click(form, "w1"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh"), firstOf(plainLines(), 112));
}

TEST_F(ShopLeave, CutsTheFileBehindTheFirstStepWhenTheEnduranceOverflows) {
  Bohater hero = heroWith(2);
  hero.Wartosci(0) = 32767;
  openShop(hero);
  press("PLUS(0)");

  EXPECT_EQ(errorOf([this] { world.click(form, "w1"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh"), firstOf(withLine(withLine(plainLines(), 2, " 0 "), 6, " 2 "), 6));
}

TEST_F(ShopLeave, KeepsTheLargestEnduranceWithoutARise) {
  Bohater hero = heroWith(2);
  hero.Wartosci(0) = 32767;
  openShop(hero);

  EXPECT_EQ(left().Wartosci(0), 32767);
}

TEST_F(ShopLeave, LeavesACutFileThatTheNextShopCannotRead) {
  Bohater hero = heroWith(0);
  hero.Tura = 32767;
  openShop(hero);
  EXPECT_EQ(errorOf([this] { world.click(form, "w1"); }), 6);
  world.runtime.Unload(form);

  EXPECT_EQ(errorOf([this] { world.runtime.Show(form); }), 62);
}

// Files of which some can be read and not written.
class LockedFiles : public MemoryFiles {
 public:
  void create(const std::string& name) override {
    if (locked.contains(name)) throw RuntimeError(ErrorCode::pathAccess, {name, 0, {}});
    MemoryFiles::create(name);
  }
  std::set<std::string> locked;
};

class ShopOnLockedFiles : public ::testing::Test {
 protected:
  ShopOnLockedFiles() {
    World other;
    other.writeHero("hero1.boh", plainHero());
    other.write(kShopFile, {"hero1.boh", " 1 "});
    files.contents = other.files.contents;
    offerScreens(runtime, random);
    runtime.Show("CTsklep");
  }
  int errorOfLeaving() {
    Form& shop = *runtime.find("CTsklep");
    return errorOf([&] { click(runtime, shop, shop.controls().find("w2")); });
  }

  LockedFiles files;
  ScriptedRandom random;
  FixedClock clock;
  FakePictures pictures;
  RecordingSounds sounds;
  Runtime runtime{{files, clock, pictures, sounds}};
};

TEST_F(ShopOnLockedFiles, EndsBeforeTheHeroIsTouchedWhenTheZoneCannotBeWritten) {
  files.locked = {"pref.cfg"};
  const auto before = files.contents;

  EXPECT_EQ(errorOfLeaving(), 75);
  EXPECT_EQ(files.contents, before);
}

TEST_F(ShopOnLockedFiles, EndsBehindACompleteZoneWhenTheHeroCannotBeWritten) {
  files.locked = {"hero1.boh"};

  EXPECT_EQ(errorOfLeaving(), 75);
  EXPECT_EQ(files.contents.at("pref.cfg"), "hero1.boh\r\n 4 \r\n 9 \r\nmonsters.cfg\r\n");
}

}  // namespace
}  // namespace brolgan::test
