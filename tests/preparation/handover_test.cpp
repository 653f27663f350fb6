// The end of the preparation: the hero file, fight.cfg and the way to the fight.
#include <gtest/gtest.h>

#include "tests/flow/stage.h"
#include "tests/preparation/preparation.h"

namespace brolgan::test {
namespace {

struct Initiative {
  int hero;
  int monster;
  const char* line;
};

class FirstStrike : public testing::TestWithParam<Initiative> {};

INSTANTIATE_TEST_SUITE_P(Speeds, FirstStrike,
                         testing::Values(Initiative{12, 11, " 0 "}, Initiative{12, 12, " 1 "},
                                         Initiative{12, 13, " 1 "}));

TEST_P(FirstStrike, IsTheHerosOnlyIfHisInitiativeIsAboveTheMonstersSpeed) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = GetParam().hero;
  preparation.monster.Szybkosc = GetParam().monster;
  preparation.monster.Atak.kile = 0;
  preparation.open();
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 1), GetParam().line);
}

TEST(Handover, AnInitiativeEqualToTheSpeedGoesToTheMonster) {
  Preparation preparation;
  preparation.monster.Szybkosc = 12;
  preparation.open();
  preparation.world.roll(1, 4, {3});
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 1), " 1 ");
  EXPECT_EQ(preparation.world.caption("Fight", "Pstat(0)"), "7");
}

TEST(Handover, TheInitiativeGainedHereCounts) {
  Preparation preparation;
  preparation.monster.Szybkosc = 15;
  preparation.hero.MaCzar(9) = true;
  preparation.open();
  preparation.world.roll(1, 6, {4});
  preparation.cast("Autostart");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 1), " 0 ");
}

TEST(Handover, WritesTheFifteenLinesOfTheFight) {
  Preparation preparation;
  preparation.hero.Przedmioty(0) = 1;
  preparation.hero.Przedmioty(4) = 1;
  preparation.hero.Przedmioty(7) = 1;
  preparation.world.writeHero("hero1.boh", preparation.hero);
  const Potwor drawn = {3, "Żółw Gęś", "zolw.jpg", 5, {1, 6, 2, -1}, 20, 4};
  writeMonsters(preparation.world, "monsters.cfg", {plainMonster(), drawn});
  writeZone(preparation.world, 1, 2);
  preparation.world.roll(1, 2, {2});
  preparation.world.runtime.Show("Prefight");
  preparation.world.roll(1, 6, {3, 4, 1, 1, 5});
  for (const char* item : {"Zatruta Ryba", "Tabaka", "Nieśmiertelność"}) preparation.use(item);
  preparation.finish();
  EXPECT_EQ(bytes(preparation.world, "fight.cfg"),
            " 0 \r\nhero1.boh\r\n 2 \r\n 5 \r\n 3 \r\n\xAF\xF3\xB3w G\xEA\x9C\r\nzolw.jpg\r\n 5 \r\n 1 \r\n 6 \r\n 2 "
            "\r\n-1 \r\n 13 \r\n 4 \r\n 1 \r\n");
}

TEST(Handover, NothingDoneGivesNoBonusesAndChangesOnlyTheHeadStartInTheHero) {
  Preparation preparation;
  for (int i = 0; i < 17; ++i) preparation.hero.Przedmioty(i) = i;
  preparation.hero.Stwory(44) = 3;
  preparation.hero.OstatniaBron = "Miecz";
  preparation.open();
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 3), " 0 ");
  EXPECT_EQ(preparation.world.line("fight.cfg", 4), " 0 ");
  Bohater expected = preparation.hero;
  expected.Przedmioty(1) = 0;
  EXPECT_EQ(preparation.world.hero("hero1.boh"), expected);
}

TEST(Handover, TheHeroFileChangesInNoOtherByte) {
  Preparation preparation;
  preparation.open();
  const std::string before = bytes(preparation.world, "hero1.boh");
  preparation.finish();
  EXPECT_EQ(bytes(preparation.world, "hero1.boh"), before);
}

TEST(Handover, TurnsTheWordOfANewHeroIntoTheNumberZero) {
  Preparation preparation;
  preparation.open();
  auto lines = preparation.world.lines("hero1.boh");
  lines[95] = "False";
  preparation.world.write("hero1.boh", lines);
  preparation.world.roll(1, 1, {1});
  preparation.world.runtime.Reopen("Prefight");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("hero1.boh", 96), " 0 ");
  EXPECT_EQ(preparation.world.lines("hero1.boh").size(), 161U);
}

TEST(Handover, ASecondOneLeavesNoLineOfTheFirst) {
  Preparation preparation;
  preparation.world.write("fight.cfg", std::vector<std::string>(40, "stare"));
  preparation.open();
  preparation.finish();
  EXPECT_EQ(preparation.world.lines("fight.cfg").size(), 15U);
}

TEST(Handover, TheFightOpensAndThePreparationIsGoneWithItsMusic) {
  Preparation preparation;
  preparation.open();
  preparation.finish();
  EXPECT_TRUE(preparation.world.isShown("Fight"));
  EXPECT_FALSE(preparation.world.isOpen("Prefight"));
  EXPECT_EQ(preparation.world.sounds.events.back(), "Music1 stop");
}

TEST(Handover, AFightThatIsStillLoadedStartsAfresh) {
  Preparation preparation;
  preparation.world.writeHero("hero1.boh", preparation.hero);
  preparation.world.writeFightFile(plainFight());
  preparation.world.runtime.Show("Fight");
  preparation.open();
  preparation.world.get<Label>("Fight", "OpisZad").Caption = "z dawnej walki";
  preparation.finish();
  EXPECT_EQ(preparation.world.caption("Fight", "OpisZad"), "");
  EXPECT_EQ(preparation.world.runtime.loaded(), std::vector<std::string>{"Fight"});
}

TEST(Handover, WritesToTheHeroFileThatTheZoneNames) {
  Preparation preparation;
  preparation.hero.MaCzar(0) = true;
  preparation.world.writeHero("Zofia.boh", preparation.hero);
  writeMonsters(preparation.world, "monsters.cfg", {preparation.monster});
  preparation.world.write("pref.cfg", {"Zofia.boh", " 1 ", " 1 ", "monsters.cfg"});
  preparation.world.roll(1, 1, {1});
  preparation.world.runtime.Show("Prefight");
  preparation.world.roll(1, 6, {1});
  preparation.cast("Leczenie");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("Zofia.boh").AktWytrzymalosc, 11);
  EXPECT_EQ(preparation.world.line("fight.cfg", 2), "Zofia.boh");
  EXPECT_FALSE(preparation.world.exists("hero1.boh"));
}

TEST(Handover, ThePlayersNotesAreNotKeptInAnyFile) {
  Preparation preparation;
  preparation.open();
  preparation.world.type("Prefight", "historia", "Sekret");
  preparation.finish();
  for (const auto& [name, content] : preparation.world.files.contents) {
    EXPECT_EQ(content.find("Sekret"), std::string::npos) << name;
  }
}

}  // namespace
}  // namespace brolgan::test
