// The files by which one screen tells the next what to do.
#include "rules/handover.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/rules/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

// The file of that name after one writing, which gets the store to open it in.
template <class Write>
std::string written(const char* name, Write write) {
  MemoryFiles files;
  write(files);
  return files.read(name);
}

// gra.cfg.

PlayerOrder order(const Lines& lines) { return readPlayerOrder(readerOver("gra.cfg", lines)); }

Failure orderFailure(const Lines& lines) {
  return failureOf([&] { order(lines); });
}

const Lines kFourPlayers = {" 4 ", "hero1.boh", "hero2.boh", "Żółw.boh", "hero4.boh"};

TEST(PlayerOrderFile, HoldsTheCountAndTheNames) {
  const PlayerOrder read = order(kFourPlayers);
  EXPECT_EQ(read.count, 4);
  EXPECT_EQ(read.Gracz(0), "hero1.boh");
  EXPECT_EQ(read.Gracz(2), "Żółw.boh");
  EXPECT_EQ(read.Gracz(3), "hero4.boh");
}

TEST(PlayerOrderFile, IsWrittenAsTheCountAndTheNamesOneALine) {
  EXPECT_EQ(written("gra.cfg",
                    [](Files& files) {
                      writePlayerOrder({files, "gra.cfg"}, 2, {"a.boh", "b.boh"});
                    }),
            " 2 \r\na.boh\r\nb.boh\r\n");
}

TEST(PlayerOrderFile, CutAfterAnyLineIsReadPastItsEndOnTheNext) {
  for (std::size_t count = 0; count < kFourPlayers.size(); ++count) {
    EXPECT_EQ(orderFailure(firstOf(kFourPlayers, count)), (Failure{62, "gra.cfg", static_cast<int>(count) + 1}));
  }
}

TEST(PlayerOrderFile, CutShortNamesTheFieldThatIsMissing) {
  const std::string past = "Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: gra.cfg\nWiersz: ";
  EXPECT_EQ(errorTextOf([] { order({}); }), past + "1\nPole: liczba graczy");
  for (std::size_t names = 0; names < 4; ++names) {
    EXPECT_EQ(errorTextOf([&] { order(firstOf(kFourPlayers, names + 1)); }),
              past + std::to_string(names + 2) + "\nPole: Gracz(" + std::to_string(names + 1) + ")");
  }
}

TEST(PlayerOrderFile, AFifthNameIsASubscriptError) {
  Lines lines = withLine(kFourPlayers, 1, " 5 ");
  lines.emplace_back("hero5.boh");
  EXPECT_EQ(errorTextOf([&] { order(lines); }),
            "Błąd wykonania 9: Indeks poza zakresem\nPlik: gra.cfg\nWiersz: 5\nPole: Gracz(5)");
}

TEST(PlayerOrderFile, AWordOrNothingAsTheCountIsZero) {
  EXPECT_EQ(order(withLine(kFourPlayers, 1, "słowo")).count, 0);
  EXPECT_EQ(order(withLine(kFourPlayers, 1, "")).count, 0);
}

TEST(PlayerOrderFile, ACountBeyondAnIntegerOverflows) {
  EXPECT_EQ(orderFailure(withLine(kFourPlayers, 1, " 32768 ")), (Failure{6, "gra.cfg", 1}));
}

TEST(PlayerOrderFile, ACommaSplitsAName) {
  const PlayerOrder read = order({" 2 ", "a,b.boh", "c.boh"});
  EXPECT_EQ(read.Gracz(0), "a");
  EXPECT_EQ(read.Gracz(1), "b.boh");
}

// sklep.cfg, pref.cfg, makehro.cfg.

TEST(ShopFile, HoldsTheHeroFileAndTheMode) {
  EXPECT_EQ(written("sklep.cfg",
                    [](Files& files) {
                      writeShop({files, "sklep.cfg"}, "hero1.boh", 3);
                    }),
            "hero1.boh\r\n 3 \r\n");
}

TEST(ZoneFile, HoldsTheHeroFileTheTwoBoundsAndTheListsName) {
  EXPECT_EQ(written("pref.cfg",
                    [](Files& files) {
                      writeZone({files, "pref.cfg"}, "hero1.boh", 27, 33);
                    }),
            "hero1.boh\r\n 27 \r\n 33 \r\nmonsters.cfg\r\n");
}

struct Zone {
  const char* button;
  int lowest;
  int highest;
};
class ZoneButton : public testing::TestWithParam<Zone> {};

TEST_P(ZoneButton, WritesItsBounds) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.runtime.Show("CTsklep");
  const auto& [button, lowest, highest] = GetParam();
  world.roll(lowest, highest, {lowest});
  world.click("CTsklep", button);
  EXPECT_EQ(world.lines("pref.cfg"), (Lines{"hero1.boh", " " + std::to_string(lowest) + " ",
                                            " " + std::to_string(highest) + " ", "monsters.cfg"}));
}

INSTANTIATE_TEST_SUITE_P(Zones, ZoneButton,
                         testing::Values(Zone{"w1", 1, 5}, Zone{"w2", 4, 9}, Zone{"w3", 8, 13}, Zone{"w4", 12, 17},
                                         Zone{"w5", 16, 21}, Zone{"w6", 20, 25}, Zone{"w7", 24, 29}, Zone{"w8", 27, 33},
                                         Zone{"w9", 32, 37}, Zone{"w10", 36, 41}, Zone{"w11", 1, 45},
                                         Zone{"w12", 42, 45}),
                         [](const auto& each) { return each.param.button; });

// A file of a screen, with what the screen needs beside it.
struct ScreenFile {
  const char* screen;
  const char* file;
  Lines lines;
  std::vector<int> numbers;  // The numeric lines, where 0 does no harm.
};

void PrintTo(const ScreenFile& each, std::ostream* out) { *out << each.file; }

class ScreensFile : public testing::TestWithParam<ScreenFile> {
 protected:
  static Failure open(const Lines& lines) {
    World world;
    world.writeHero("hero1.boh", plainHero());
    world.write("gra.cfg", {" 1 ", "hero1.boh"});
    world.write(GetParam().file, lines);
    for (int i = 0; i < 9; ++i) world.scripted.add(0.5F);
    return failureOf([&] { world.runtime.Show(GetParam().screen); });
  }
  static Failure failureIn(int code, int line) { return {code, GetParam().file, line}; }
};

INSTANTIATE_TEST_SUITE_P(
    HandOver, ScreensFile,
    testing::Values(ScreenFile{"CTmhero", "makehro.cfg", {"hero1.boh", "12"}, {2}},
                    ScreenFile{"CTsklep", "sklep.cfg", {"hero1.boh", " 1 "}, {2}},
                    ScreenFile{"Prefight", "pref.cfg", {"hero1.boh", " 3 ", " 3 ", "monsters.cfg"}, {2, 3}},
                    ScreenFile{"Fight",
                               "fight.cfg",
                               {" 0 ", "hero1.boh", " 0 ", " 0 ", " 1 ", "Szczur", "szczur.jpg", " 5 ", " 1 ", " 4 ",
                                " 1 ", " 0 ", " 20 ", " 0 ", " 0 "},
                               {1, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15}},
                    ScreenFile{"FHero", "gra.cfg", {" 1 ", "hero1.boh"}, {1}}));

TEST_P(ScreensFile, IsReadWhenTheScreenLoads) { EXPECT_EQ(open(GetParam().lines), Failure{}); }

TEST_P(ScreensFile, MissingEndsTheProgram) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  EXPECT_EQ(failureOf([&] { world.runtime.Show(GetParam().screen); }), failureIn(53, 0));
}

TEST_P(ScreensFile, CutAfterAnyLineIsReadPastItsEndOnTheNext) {
  for (std::size_t count = 0; count < GetParam().lines.size(); ++count) {
    EXPECT_EQ(open(firstOf(GetParam().lines, count)), failureIn(62, static_cast<int>(count) + 1));
  }
}

TEST_P(ScreensFile, ANumberBeyondAnIntegerOverflowsOnEveryNumericLine) {
  for (const int line : GetParam().numbers) {
    EXPECT_EQ(open(withLine(GetParam().lines, line, " 32768 ")), failureIn(6, line));
  }
}

// Where 0 is no place of an array, a word or an empty line leads to no error of the reading.
TEST_P(ScreensFile, AWordOrNothingOnANumericLineIsReadAsZero) {
  for (const int line : GetParam().numbers) {
    const Lines zero = withLine(GetParam().lines, line, " 0 ");
    EXPECT_EQ(open(withLine(GetParam().lines, line, "słowo")), open(zero)) << line;
    EXPECT_EQ(open(withLine(GetParam().lines, line, "")), open(zero)) << line;
  }
}

TEST(MakeHeroFile, AWordOrNothingForTheStartingPointsIsZero) {
  for (const char* const points : {"", "dużo", " 0 "}) {
    World world;
    world.write("makehro.cfg", {"hero1.boh", points});
    world.runtime.Show("CTmhero");
    EXPECT_EQ(world.caption("CTmhero", "Ile_jeszcze"), "0") << points;
  }
}

TEST(MakeHeroFile, OnlyTheFirstWordOfTheStartingPointsCounts) {
  World world;
  world.write("makehro.cfg", {"hero1.boh", "12 punktów"});
  world.runtime.Show("CTmhero");
  EXPECT_EQ(world.caption("CTmhero", "Ile_jeszcze"), "12");
}

TEST(MakeHeroFile, HoldsTheTextsOfTheSetUpAsTheyStand) {
  World world;
  world.runtime.Show("Main");
  world.type("Main", "ile_punktow", " 7,5 x");
  world.click("Main", "gracz(0)");
  EXPECT_EQ(world.lines("makehro.cfg"), (Lines{"hero1.boh", " 7,5 x"}));
}

TEST(ShopFile, AWordAsTheModeOpensAllDepartments) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  world.write("sklep.cfg", {"hero1.boh", "słowo"});
  world.runtime.Show("CTsklep");
  for (const char* const frame : {"fbron", "fstat", "fczar"}) EXPECT_TRUE(world.isVisible("CTsklep", frame)) << frame;
}

// fight.cfg.

FightSetup numberedFight() {
  FightSetup fight{1, "hero2.boh", 3, 4, {}, 15};
  fight.potwor = {5, "Król Zagłady", "krol.jpg", 8, {9, 10, 11, -12}, 13, 14};
  return fight;
}

const Lines kNumberedFight = {" 1 ", "hero2.boh", " 3 ",  " 4 ",  " 5 ",  "Król Zagłady", "krol.jpg", " 8 ",
                              " 9 ", " 10 ",      " 11 ", "-12 ", " 13 ", " 14 ",         " 15 "};

TEST(FightFile, EveryFieldIsWrittenOnItsLine) {
  EXPECT_EQ(written("fight.cfg",
                    [](Files& files) {
                      writeFight({files, "fight.cfg"}, numberedFight());
                    }),
            bytesOf(kNumberedFight));
}

TEST(FightFile, EveryLineIsReadIntoItsField) {
  const FightSetup fight = readFight(readerOver("fight.cfg", kNumberedFight));
  const FightSetup expected = numberedFight();
  EXPECT_EQ(fight.PotworPierwszy, expected.PotworPierwszy);
  EXPECT_EQ(fight.PlikBohatera, expected.PlikBohatera);
  EXPECT_EQ(fight.BonusPancerza, expected.BonusPancerza);
  EXPECT_EQ(fight.RundyNiesmiertelnosci, expected.RundyNiesmiertelnosci);
  EXPECT_EQ(fight.potwor, expected.potwor);
  EXPECT_EQ(fight.NrPotwora, expected.NrPotwora);
}

TEST(FightFile, ErrorsNameTheirFields) {
  const auto field = [](int line) {
    const std::string text =
        errorTextOf([&] { readFight(readerOver("fight.cfg", withLine(kNumberedFight, line, " 32768 "))); });
    return text.substr(text.rfind(' ') + 1);
  };
  EXPECT_EQ(field(1), "PotworPierwszy");
  EXPECT_EQ(field(3), "BonusPancerza");
  EXPECT_EQ(field(4), "RundyNiesmiertelnosci");
  EXPECT_EQ(field(5), "Ilosc");
  EXPECT_EQ(field(13), "Wytrzymalosc");
  EXPECT_EQ(field(15), "NrPotwora");
}

TEST(FightFile, TwentySixOpponentsFitAndTwentySevenAreASubscriptError) {
  const auto open = [](int count) {
    World world;
    world.writeHero("hero1.boh", plainHero());
    FightSetup fight = plainFight();
    fight.potwor.Ilosc = count;
    world.writeFightFile(fight);
    return errorOf([&] { world.runtime.Show("Fight"); });
  };
  EXPECT_EQ(open(26), 0);
  EXPECT_EQ(open(27), 9);
}

// Across the screens.

TEST(PlayerOrderFile, ASingleHeroIsWrittenBackAfterHisFightAndShopsAgain) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  world.write("gra.cfg", {" 1 ", "hero1.boh"});
  FightSetup fight = plainFight();
  fight.potwor.Wytrzymalosc = 0;
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  world.roll(1, 4, {2});
  world.click("Fight", "NastTura");
  EXPECT_EQ(world.lines("gra.cfg"), (Lines{" 1 ", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Lines{"hero1.boh", " 2 "}));
  EXPECT_TRUE(world.isShown("CTsklep"));
}

TEST(ShopFile, StillSaysTheFirstDefaultNameWhenTheFirstBoxWasEditedAndTheFirstShopFails) {
  World world;
  world.runtime.Show("Main");
  world.type("Main", "gracz(0)", "inny.boh");
  world.click("Main", "gracz(0)");
  world.click("CTmhero", "Save");
  world.roll(1, 4, {1});
  EXPECT_EQ(errorTextOf([&] { world.click("Main", "Start"); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: hero1.boh");
  EXPECT_EQ(world.lines("gra.cfg"), (Lines{" 1 ", "inny.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Lines{"hero1.boh", " 1 "}));
}

TEST(ShopFile, AnOldFileOfTheFirstDefaultNameIsOpenedInstead) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  world.runtime.Show("Main");
  world.type("Main", "gracz(0)", "inny.boh");
  world.click("Main", "gracz(0)");
  world.type("CTmhero", "Imie", "Nowy");
  world.click("CTmhero", "Save");
  world.roll(1, 4, {1});
  world.click("Main", "Start");
  EXPECT_EQ(world.text("CTsklep", "Imie"), "Kosiarz");
}

TEST(FightFile, AnEnduranceLoweredToZeroOrBelowIsHandedOverAndTheFightOpens) {
  World world;
  Bohater hero = plainHero();
  hero.Przedmioty(0) = 1;
  world.writeHero("hero1.boh", hero);
  Lines monsters = world.lines("monsters.cfg");
  monsters = withLine(monsters, 10, " 5 ");
  world.write("monsters.cfg", monsters);
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.roll(1, 1, {1});
  world.runtime.Show("Prefight");
  world.roll(1, 6, {4, 3});
  world.select("Prefight", "Przedmioty", "Zatruta Ryba");
  world.click("Prefight", "Uzyj");
  for (int i = 0; i < 60; ++i) world.scripted.add(0);
  world.click("Prefight", "Zakoncz");
  EXPECT_EQ(world.line("fight.cfg", 13), "-2 ");
  EXPECT_TRUE(world.isShown("Fight"));
}

}  // namespace
}  // namespace brolgan::test
