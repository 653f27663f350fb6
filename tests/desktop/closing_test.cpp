// The close boxes of the windows: the title's ends the program, the others take their form away and
// leave the title.
#include <gtest/gtest.h>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Files = decltype(MemoryFiles::contents);

// Files for any of the screens; the preparation draws the second monster.
void setAll(Stage& stage) {
  setCreation(stage.world, 12);
  setPreparation(stage.world, richHero());
  stage.world.writeFightFile(plainFight());
}

// After the close box only the title is left, and it lives.
void expectTitleAlone(const Stage& stage) {
  EXPECT_FALSE(stage.runtime.ended());
  for (const char* name : {"Main", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"}) {
    EXPECT_FALSE(stage.isShown(name)) << name;
  }
  EXPECT_TRUE(stage.isShown("Brolgan"));
}

TEST(Closing, SetUpLeavesTheTitle) {
  Stage stage;
  stage.start();
  stage.close("Main");
  EXPECT_EQ(stage.runtime.find("Main"), nullptr);
  expectTitleAlone(stage);
}

TEST(Closing, TitleEndsTheProgramWhateverIsOpen) {
  for (const char* name : {"Main", "CTmhero", "CTsklep", "Prefight", "Fight"}) {
    Stage stage;
    setAll(stage);
    stage.open({"Brolgan", name, "FHero"});
    ASSERT_TRUE(stage.isShown(name));
    const Files before = stage.world.files.contents;
    stage.close("Brolgan");
    EXPECT_TRUE(stage.runtime.ended()) << name;
    EXPECT_EQ(stage.errors.size(), 0U);
    EXPECT_EQ(stage.world.files.contents, before) << name;
  }
}

TEST(Closing, NothingActsOnceTheTitleIsClosed) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  stage.close("Brolgan");
  stage.click("Main", "GraczM(0)");
  EXPECT_FALSE(stage.world.exists("makehro.cfg"));
  EXPECT_FALSE(stage.isShown("CTmhero"));
}

TEST(Closing, CreationLeavesTheSetUpHiddenWithItsMark) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  stage.click("Main", "GraczM(0)");
  stage.close("CTmhero");
  EXPECT_EQ(stage.runtime.find("CTmhero"), nullptr);
  ASSERT_NE(stage.runtime.find("Main"), nullptr);
  EXPECT_FALSE(stage.runtime.find("Main")->Visible);
  EXPECT_EQ(std::get<Label*>(stage.runtime.find("Main")->controls().find("Czygra(0)").control)->Caption, "+");
  EXPECT_FALSE(stage.world.exists("hero1.boh"));
  expectTitleAlone(stage);
}

TEST(Closing, ShopPreparationAndFightUnloadAndWriteNothing) {
  for (const char* name : {"CTsklep", "Prefight", "Fight"}) {
    Stage stage;
    setAll(stage);
    stage.open({"Brolgan"});
    stage.close("Main");
    stage.open({name});
    ASSERT_TRUE(stage.isShown(name));
    const Files before = stage.world.files.contents;
    stage.close(name);
    EXPECT_EQ(stage.runtime.find(name), nullptr) << name;
    EXPECT_EQ(stage.world.files.contents, before) << name;
    EXPECT_EQ(stage.errors.size(), 0U);
    if (std::string(name) == "Prefight") {
      EXPECT_EQ(stage.world.sounds.events.back(), "Music1 stop");
    }
    expectTitleAlone(stage);
  }
}

TEST(Closing, SheetGoesAndLeavesTheScreenBesideIt) {
  Stage stage;
  setAll(stage);
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  stage.close("FHero");
  EXPECT_FALSE(stage.isShown("FHero"));
  EXPECT_EQ(stage.runtime.find("FHero"), nullptr);
  EXPECT_TRUE(stage.isShown("CTsklep"));
  stage.click("CTsklep", "Heroshow");
  EXPECT_TRUE(stage.isShown("FHero"));
}

TEST(Closing, SheetStaysWhenItsScreenGoes) {
  Stage stage;
  setAll(stage);
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  stage.click("CTsklep", "w1");
  EXPECT_TRUE(stage.isShown("Prefight"));
  EXPECT_TRUE(stage.isShown("FHero"));
}

TEST(Closing, BeatingTheLastMonsterEndsTheProgram) {
  Stage stage;
  FightSetup setup = plainFight();
  setup.potwor.Nazwa = "Król Zagłady";
  setFight(stage.world, richHero(), setup);
  stage.open({"Fight"});
  stage.world.roll(1, 30, {30});
  stage.choose("Fight", "Przedmiot", "Granat");
  stage.click("Fight", "Uzyj");
  EXPECT_EQ(stage.text("Fight", "OpisZad"), "Wygrałeś - tura  1");
  EXPECT_TRUE(stage.isVisible("Fight", "OpisZad"));
  EXPECT_FALSE(stage.runtime.ended());
  stage.click("Fight", "NastTura");
  EXPECT_TRUE(stage.runtime.ended());
  EXPECT_EQ(stage.errors.size(), 0U);
}

}  // namespace
}  // namespace brolgan::test
