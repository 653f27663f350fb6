// The title window.
#include "flow/title.h"

#include <gtest/gtest.h>

#include "tests/flow/control_rows.h"
#include "tests/flow/stage.h"

namespace brolgan::test {
namespace {

TEST(Title, HoldsTwoPicturesAndNothingElse) {
  World world;
  Brolgan title(world.runtime);
  EXPECT_EQ(title.Caption, "Brolgan XP version");
  EXPECT_EQ(controlRows(title), (std::vector<std::string>{"pics(0): picture ''", "pics(1): picture ''"}));
  EXPECT_NE(title.pics[0].Picture, "");
  EXPECT_NE(title.pics[1].Picture, "");
}

TEST(Title, LoadingItShowsTheSetUp) {
  World world;
  world.runtime.Load("Brolgan");
  EXPECT_TRUE(world.isShown("Main"));
}

TEST(Title, ShowingTheSetUpTwiceChangesNothing) {
  World world;
  world.runtime.Show("Brolgan");
  world.type("Main", "ile_punktow", "7");
  world.runtime.Show("Main");
  EXPECT_EQ(world.text("Main", "ile_punktow"), "7");
  EXPECT_EQ(world.runtime.loaded().size(), 2U);
}

TEST(Title, ClosingItEndsTheProgramFromTheSetUp) {
  World world;
  start(world);
  const auto before = world.files.contents;
  closeWindow(world.runtime, "Brolgan");
  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.files.contents, before);
}

TEST(Title, ClosingItEndsTheProgramFromCreationAndNoFileIsSaved) {
  World world;
  start(world);
  world.click("Main", "GraczM(0)");
  const auto before = world.files.contents;
  closeWindow(world.runtime, "Brolgan");
  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.files.contents, before);
  EXPECT_FALSE(world.exists("hero1.boh"));
}

// Opens a screen over the title from files made by hand; the hero has points and a wound.
void openOverTitle(World& world, const std::string& screen) {
  start(world);
  Bohater hero = plainHero();
  hero.AktWytrzymalosc = 5;
  hero.Ile_jeszcze = 4;
  world.writeHero("hero1.boh", hero);
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", "monsters.cfg"});
  world.writeFightFile(plainFight());
  if (screen == "Prefight") world.roll(1, 1, {1});
  world.runtime.Show(screen);
}

class TitleOver : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(Screens, TitleOver, testing::Values("CTsklep", "Prefight", "Fight"),
                         [](const auto& screen) { return std::string(screen.param); });

TEST_P(TitleOver, ClosingTheTitleEndsTheProgramAndTheFilesStayAsLastWritten) {
  World world;
  openOverTitle(world, GetParam());
  const auto before = world.files.contents;
  closeWindow(world.runtime, "Brolgan");
  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.files.contents, before);
}

TEST_P(TitleOver, NothingHappensAnyMoreAfterTheEnd) {
  World world;
  openOverTitle(world, GetParam());
  closeWindow(world.runtime, "Brolgan");
  const auto before = world.files.contents;
  for (const ControlEntry& entry : world.form(GetParam()).controls().entries()) {
    brolgan::click(world.runtime, world.form(GetParam()), entry);
  }
  EXPECT_EQ(world.files.contents, before);
}

TEST(Title, ClosingItWhileTheFightIsOpenLosesWhatTheFightHolds) {
  World world;
  openOverTitle(world, "Fight");
  const std::string before = bytes(world, "hero1.boh");
  world.roll(1, 4, {4});
  world.click("Fight", "NastTura");
  EXPECT_EQ(world.caption("Fight", "Pstat(0)"), "1");
  closeWindow(world.runtime, "Brolgan");
  EXPECT_EQ(bytes(world, "hero1.boh"), before);
  EXPECT_EQ(world.hero("hero1.boh").AktWytrzymalosc, 5);
}

}  // namespace
}  // namespace brolgan::test
