// The three ends of the game, and what is no end.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "tests/flow/stage.h"
#include "tests/game/replay.h"

namespace brolgan::test {
namespace {

using Lines = std::vector<std::string>;

// A game in the midst of a fight of the first player of so many; the monster strikes with a k4.
struct LastFight {
  explicit LastFight(int players) {
    start(world);
    Lines order = {" " + std::to_string(players) + " "};
    for (int i = 1; i <= players; ++i) {
      hero.Imie = "Gracz " + std::to_string(i);
      order.push_back("hero" + std::to_string(i) + ".boh");
      world.writeHero(order.back(), hero);
    }
    world.write("gra.cfg", order);
    world.write("sklep.cfg", {"hero1.boh", " 2 "});
    fight.potwor.Wytrzymalosc = 1;
  }
  void open() {
    hero.Imie = "Gracz 1";
    hero.OstatniaBron = "Nóż";
    world.writeHero("hero1.boh", hero);
    world.writeFightFile(fight);
    world.runtime.Hide("Main");
    world.runtime.Unload("Main");
    world.runtime.Show("Fight");
    before = world.files.contents;
  }
  void beatTheGroup() {
    world.roll(1, 4, {2, 2});
    world.roll(1, 120, {60});
    world.click("Fight", "Atak");
  }
  void fall() {
    world.roll(1, 4, {4});
    world.click("Fight", "NastTura");
  }

  World world;
  Bohater hero = plainHero();
  FightSetup fight = plainFight();
  Contents before;
};

class LastMonster : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Players, LastMonster, testing::Range(1, 5));

TEST_P(LastMonster, BeatenEndsTheGameForAllAndNoFileIsWritten) {
  LastFight last(GetParam());
  last.fight.potwor.Nazwa = "Król Zagłady";
  last.hero.Tura = 7;
  last.open();
  last.beatTheGroup();
  EXPECT_EQ(last.world.caption("Fight", "OpisZad"), "Wygrałeś - tura  7");
  EXPECT_EQ(last.world.sounds.played().back(), "wygr.wav");
  EXPECT_FALSE(last.world.runtime.ended());
  last.world.click("Fight", "NastTura");
  EXPECT_TRUE(last.world.runtime.ended());
  EXPECT_EQ(last.world.files.contents, last.before);
  EXPECT_FALSE(last.world.isOpen("CTsklep"));
}

TEST(Ends, TheLastLifeOfTheOnlyPlayerEndsTheGame) {
  LastFight last(1);
  last.hero.AktWytrzymalosc = 2;
  last.open();
  last.fall();
  EXPECT_EQ(last.world.caption("Fight", "OpisDMG"), "Śmierć!");
  last.world.click("Fight", "CloseDMG");
  EXPECT_TRUE(last.world.runtime.ended());
  EXPECT_FALSE(last.world.isOpen("CTsklep"));
}

TEST(Ends, TheLastLifeLeavesTheHeroFileAsHeFellAndTheOrderUntouched) {
  LastFight last(1);
  last.hero.AktWytrzymalosc = 2;
  last.open();
  last.fall();
  last.world.click("Fight", "CloseDMG");
  Bohater fallen = last.hero;
  fallen.AktWytrzymalosc = -2;
  EXPECT_EQ(last.world.hero("hero1.boh"), fallen);
  EXPECT_EQ(fallen.Wcielenia, 1);
  EXPECT_EQ(bytes(last.world, "gra.cfg"), last.before.at("gra.cfg"));
  EXPECT_EQ(bytes(last.world, "sklep.cfg"), last.before.at("sklep.cfg"));
}

TEST(Ends, ALastLifeIsNoEndWhileOthersPlay) {
  LastFight last(3);
  last.hero.AktWytrzymalosc = 2;
  last.open();
  last.fall();
  last.world.roll(1, 4, {2});
  last.world.click("Fight", "CloseDMG");
  EXPECT_FALSE(last.world.runtime.ended());
  EXPECT_TRUE(last.world.isShown("CTsklep"));
  EXPECT_EQ(bytes(last.world, "gra.cfg"), " 2 \r\nhero2.boh\r\nhero3.boh\r\n");
  EXPECT_EQ(last.world.text("CTsklep", "Imie"), "Gracz 2");
}

TEST(Ends, ALifeLostIsNoEndWhileAnotherIsLeft) {
  LastFight last(1);
  last.hero.AktWytrzymalosc = 2;
  last.hero.Wcielenia = 2;
  last.open();
  last.fall();
  last.world.roll(1, 4, {2});
  last.world.click("Fight", "CloseDMG");
  EXPECT_FALSE(last.world.runtime.ended());
  EXPECT_EQ(last.world.hero("hero1.boh").Wcielenia, 1);
  EXPECT_EQ(last.world.hero("hero1.boh").AktWytrzymalosc, 12);
}

TEST(Ends, ABeatenMonsterOfAnotherNameIsNoEnd) {
  for (const char* name : {"Szczur", "Król Zagłady ", "król Zagłady", "Król"}) {
    LastFight last(1);
    last.fight.potwor.Nazwa = name;
    last.open();
    last.beatTheGroup();
    last.world.roll(1, 4, {2});
    last.world.click("Fight", "NastTura");
    EXPECT_FALSE(last.world.runtime.ended()) << name;
    EXPECT_TRUE(last.world.isShown("CTsklep"));
  }
}

TEST(Ends, FallingToTheLastMonsterIsALostLifeAndNoVictory) {
  LastFight last(2);
  last.fight.potwor.Nazwa = "Król Zagłady";
  last.fight.potwor.Wytrzymalosc = 50;
  last.hero.AktWytrzymalosc = 2;
  last.open();
  last.fall();
  last.world.roll(1, 4, {1});
  last.world.click("Fight", "CloseDMG");
  EXPECT_FALSE(last.world.runtime.ended());
  EXPECT_EQ(last.world.text("CTsklep", "Imie"), "Gracz 2");
}

class TitleClosedAt : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Stages, TitleClosedAt,
                         testing::Values("01-zofia-setup", "02-zofia-creation", "05-start", "06-zofia-shop",
                                         "07-zofia-preparation", "08-zofia-fight"),
                         [](const auto& stage) { return std::string(stage.param).substr(0, 2); });

// The states are those in which a turn of two players stands after each hand-over.
TEST_P(TitleClosedAt, ClosingTheTitleEndsTheGameWithAllFilesAsLastWritten) {
  const std::map<std::string, std::pair<const char*, int>> screens = {
      {"01-zofia-setup", {"CTmhero", 0}}, {"02-zofia-creation", {"Main", 0}},     {"05-start", {"CTsklep", 0}},
      {"06-zofia-shop", {"Prefight", 1}}, {"07-zofia-preparation", {"Fight", 3}}, {"08-zofia-fight", {"CTsklep", 0}}};
  const auto& [screen, draws] = screens.at(GetParam());
  World world;
  start(world);
  useStoredLists(world);
  world.files.contents = StoredStates("game/turn", world.files.contents).after(GetParam());
  for (int i = 0; i < draws; ++i) world.scripted.add(0.5F);
  world.runtime.Show(screen);
  const Contents before = world.files.contents;
  closeWindow(world.runtime, "Brolgan");
  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.files.contents, before);
}

TEST(Ends, AfterAnEndNoClickDoesAnythingMore) {
  LastFight last(1);
  last.hero.AktWytrzymalosc = 2;
  last.open();
  last.fall();
  last.world.click("Fight", "CloseDMG");
  const Contents ended = last.world.files.contents;
  for (const char* button : {"NastTura", "Heroshow", "CloseDMG"}) last.world.click("Fight", button);
  EXPECT_EQ(last.world.files.contents, ended);
  EXPECT_FALSE(last.world.isOpen("FHero"));
}

TEST(Ends, ClosingAnyOtherWindowLeavesTheTitleAndIsNoEnd) {
  for (const char* screen : {"Main", "CTmhero", "CTsklep", "FHero"}) {
    World world;
    start(world);
    createHero(world, 0);
    world.roll(1, 4, {1});
    if (std::string(screen) == "CTmhero") world.click("Main", "gracz(0)");
    if (std::string(screen) == "CTsklep" || std::string(screen) == "FHero") world.click("Main", "Start");
    if (std::string(screen) == "FHero") world.click("CTsklep", "Heroshow");
    const Contents before = world.files.contents;
    ASSERT_TRUE(world.isShown(screen));
    closeWindow(world.runtime, screen);
    EXPECT_FALSE(world.isOpen(screen));
    EXPECT_FALSE(world.runtime.ended()) << screen;
    EXPECT_TRUE(world.isShown("Brolgan"));
    EXPECT_EQ(world.files.contents, before);
  }
}

}  // namespace
}  // namespace brolgan::test
