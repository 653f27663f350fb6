// Every screen with every file missing that it opens on.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "tests/flow/stage.h"
#include "tests/game/replay.h"

namespace brolgan::test {
namespace {

struct Case {
  const char* screen;
  const char* file;
};

std::string nameOf(const testing::TestParamInfo<Case>& info) {
  std::string name = std::string(info.param.screen) + "_" + info.param.file;
  for (char& c : name) {
    if (c == '.') c = '_';
  }
  return name;
}

// A world in which each screen can be opened on its files.
void prepare(World& world) {
  Bohater hero = plainHero();
  hero.OstatniaBron = "Nóż";
  world.writeHero("hero1.boh", hero);
  world.write("makehro.cfg", {"hero1.boh", "12"});
  world.write("gra.cfg", {" 1 ", "hero1.boh"});
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.writeFightFile(plainFight());
}

// The preparation draws its monster.
void show(World& world, const std::string& screen) {
  if (screen == "Prefight") world.roll(1, 1, {1});
  world.runtime.Show(screen);
}

void expectMissing(World& world, const std::string& file, const Handler& doing) {
  const Contents before = world.files.contents;
  const std::string text = errorTextOf(doing);
  EXPECT_TRUE(text.starts_with("Błąd wykonania 53: Nie znaleziono pliku")) << text;
  EXPECT_NE(text.find("Plik: " + file), std::string::npos) << text;
  EXPECT_EQ(world.files.contents, before);
}

class OpenedWithout : public testing::TestWithParam<Case> {};

INSTANTIATE_TEST_SUITE_P(
    Screens, OpenedWithout,
    testing::Values(Case{"CTmhero", "makehro.cfg"}, Case{"CTmhero", "bron.cfg"}, Case{"CTsklep", "sklep.cfg"},
                    Case{"CTsklep", "hero1.boh"}, Case{"CTsklep", "bron.cfg"}, Case{"Prefight", "pref.cfg"},
                    Case{"Prefight", "hero1.boh"}, Case{"Prefight", "monsters.cfg"}, Case{"Fight", "fight.cfg"},
                    Case{"Fight", "hero1.boh"}, Case{"Fight", "bron.cfg"}, Case{"FHero", "gra.cfg"},
                    Case{"FHero", "hero1.boh"}, Case{"FHero", "bron.cfg"}, Case{"FHero", "monsters.cfg"}),
    nameOf);

TEST_P(OpenedWithout, ItsFileAScreenFailsNamesTheFileAndWritesNothing) {
  World world;
  prepare(world);
  world.files.contents.erase(GetParam().file);
  expectMissing(world, GetParam().file, [&] { show(world, GetParam().screen); });
}

TEST_P(OpenedWithout, AnyOtherFileAScreenOpens) {
  const std::map<std::string, std::set<std::string>> needed = {
      {"CTmhero", {"makehro.cfg", "bron.cfg"}},
      {"CTsklep", {"sklep.cfg", "hero1.boh", "bron.cfg"}},
      {"Prefight", {"pref.cfg", "hero1.boh", "monsters.cfg"}},
      {"Fight", {"fight.cfg", "hero1.boh", "bron.cfg"}},
      {"FHero", {"gra.cfg", "hero1.boh", "bron.cfg", "monsters.cfg"}}};
  World world;
  prepare(world);
  std::erase_if(world.files.contents,
                [&](const auto& file) { return !needed.at(GetParam().screen).contains(file.first); });
  EXPECT_EQ(errorOf([&] { show(world, GetParam().screen); }), 0);
  EXPECT_TRUE(world.isShown(GetParam().screen));
}

class WithoutPicture : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Screens, WithoutPicture, testing::Values("Prefight", "Fight"));

TEST_P(WithoutPicture, OfTheMonsterAScreenFailsNamesThePictureAndWritesNothing) {
  World world;
  prepare(world);
  useStoredLists(world);
  world.pictures.missing = {"szczur.jpg"};
  expectMissing(world, "szczur.jpg", [&] { show(world, GetParam()); });
}

TEST(OpenedWithout, TheMonsterFileThatTheZoneNamesThePreparationFails) {
  World world;
  prepare(world);
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "inne.cfg"});
  expectMissing(world, "inne.cfg", [&] { show(world, "Prefight"); });
}

TEST(OpenedWithout, TheOrderOfPlayersAWonFightCannotEndAndTheHeroIsNotWritten) {
  World world;
  prepare(world);
  FightSetup fight = plainFight();
  fight.potwor.Wytrzymalosc = 0;
  world.writeFightFile(fight);
  world.files.contents.erase("gra.cfg");
  world.runtime.Show("Fight");
  expectMissing(world, "gra.cfg", [&] { world.click("Fight", "NastTura"); });
}

TEST(OpenedWithout, TheOrderOfPlayersALostFightHasWrittenTheFallenHeroBeforeItFails) {
  World world;
  prepare(world);
  world.files.contents.erase("gra.cfg");
  world.runtime.Show("Fight");
  for (int i = 0; i < 3; ++i) {
    world.roll(1, 4, {4});
    world.click("Fight", "NastTura");
  }
  EXPECT_EQ(errorOf([&] { world.click("Fight", "CloseDMG"); }), 53);
  EXPECT_EQ(world.hero("hero1.boh").AktWytrzymalosc, 0);
  EXPECT_EQ(world.hero("hero1.boh").Wcielenia, 1);
  EXPECT_FALSE(world.exists("gra.cfg"));
}

TEST(OpenedWithout, TheNextPlayersHeroTheShopFailsBehindACompleteFight) {
  World world;
  prepare(world);
  world.write("gra.cfg", {" 2 ", "hero1.boh", "hero2.boh"});
  FightSetup fight = plainFight();
  fight.potwor.Wytrzymalosc = 0;
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  world.roll(1, 4, {2});
  EXPECT_EQ(errorOf([&] { world.click("Fight", "NastTura"); }), 53);
  EXPECT_EQ(bytes(world, "gra.cfg"), " 2 \r\nhero2.boh\r\nhero1.boh\r\n");
  EXPECT_EQ(world.hero("hero1.boh").Stwory(0), 1);
}

}  // namespace
}  // namespace brolgan::test
