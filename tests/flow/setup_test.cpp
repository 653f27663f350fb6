// The set-up screen.
#include "flow/setup.h"

#include <gtest/gtest.h>

#include "flow/text/number_text.h"
#include "game/game.h"
#include "tests/flow/control_rows.h"
#include "tests/flow/stage.h"

namespace brolgan::test {
namespace {

std::string numbered(const char* name, int index) { return std::string(name) + "(" + std::to_string(index) + ")"; }

// A started game in which the first players take part already.
struct Beginning {
  explicit Beginning(int players = 0) {
    start(world);
    for (int i = 0; i < players; ++i) createHero(world, i);
  }
  World world;
};

TEST(SetUp, HasTheseControls) {
  World world;
  Main form(world.runtime, world.scripted);
  std::vector<std::string> rows = {"ile_punktow: text box '12'",
                                   "Start: button 'Zacznij'",
                                   "Label1: label 'Bohaterowie graczy'",
                                   "Label2: label 'Ile punktów startowych'",
                                   "Label3: label 'Kliknij na nazwie pliku, aby stworzyć bohatera '",
                                   "Label4: label 'Czy gra?'"};
  addRows(rows, "gracz", "text box", {"hero1.boh", "hero2.boh", "hero3.boh", "hero4.boh"});
  addRows(rows, "GraczM", "button", {"Stwórz", "Stwórz", "Stwórz", "Stwórz"});
  addRows(rows, "Czygra", "label", {"", "", "", ""});
  EXPECT_EQ(controlRows(form), sorted(rows));
  EXPECT_EQ(form.Caption, "MainGame");
}

TEST(SetUp, LoadSeedsTheGeneratorOnceFromTheTimerAndDoesNothingElse) {
  World world;
  SeedRecorder random;
  Runtime runtime({world.files, world.clock, world.pictures, world.sounds});
  offerScreens(runtime, random);
  world.clock.now = 61234.5;
  const auto before = world.files.contents;
  runtime.Show("Main");
  EXPECT_EQ(random.seeds, std::vector<double>{61234.5});
  EXPECT_EQ(world.files.contents, before);
}

class EachPlayer : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Players, EachPlayer, testing::Range(0, 4));

TEST_P(EachPlayer, AClickOnHisBoxWritesHisNameAndThePointsAndOpensCreation) {
  Beginning set(GetParam());
  EXPECT_TRUE(set.world.click("Main", numbered("gracz", GetParam())));
  const std::string name = "hero" + std::to_string(GetParam() + 1) + ".boh";
  EXPECT_EQ(bytes(set.world, "makehro.cfg"), name + "\r\n12\r\n");
  EXPECT_TRUE(set.world.isShown("CTmhero"));
  EXPECT_EQ(set.world.text("CTmhero", "Plik"), name);
}

TEST_P(EachPlayer, HisButtonDoesTheSameAsHisBox) {
  Beginning set(GetParam());
  EXPECT_TRUE(set.world.click("Main", numbered("GraczM", GetParam())));
  EXPECT_EQ(bytes(set.world, "makehro.cfg"), "hero" + std::to_string(GetParam() + 1) + ".boh\r\n12\r\n");
  EXPECT_TRUE(set.world.isShown("CTmhero"));
  EXPECT_EQ(plus(set.world, GetParam()), "+");
}

TEST_P(EachPlayer, TheSetUpIsHiddenAndKeptMeanwhile) {
  Beginning set(GetParam());
  set.world.click("Main", numbered("gracz", GetParam()));
  EXPECT_TRUE(set.world.isOpen("Main"));
  EXPECT_FALSE(set.world.isShown("Main"));
}

TEST_P(EachPlayer, ThePlusGoesUpBeforeHisHeroIsFinished) {
  Beginning set(GetParam());
  set.world.click("Main", numbered("gracz", GetParam()));
  EXPECT_EQ(plus(set.world, GetParam()), "+");
  EXPECT_FALSE(set.world.exists("hero" + std::to_string(GetParam() + 1) + ".boh"));
}

TEST_P(EachPlayer, SavingBringsTheSetUpBackWithItsPlusesAndTexts) {
  Beginning set(GetParam());
  set.world.type("Main", "ile_punktow", "20");
  set.world.type("Main", numbered("gracz", GetParam()), "Zenek.boh");
  createHero(set.world, GetParam());
  EXPECT_TRUE(set.world.isShown("Main"));
  EXPECT_FALSE(set.world.isOpen("CTmhero"));
  EXPECT_EQ(set.world.text("Main", "ile_punktow"), "20");
  EXPECT_EQ(set.world.text("Main", numbered("gracz", GetParam())), "Zenek.boh");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(plus(set.world, i), i <= GetParam() ? "+" : "");
  EXPECT_TRUE(set.world.exists("Zenek.boh"));
}

class LaterPlayer : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Players, LaterPlayer, testing::Range(1, 4));

TEST_P(LaterPlayer, AClickOnHisBoxDoesNothingWhileTheOneBeforeTakesNoPart) {
  Beginning set(GetParam() - 1);
  const auto before = set.world.files.contents;
  EXPECT_TRUE(set.world.click("Main", numbered("gracz", GetParam())));
  EXPECT_EQ(set.world.files.contents, before);
  EXPECT_EQ(plus(set.world, GetParam()), "");
  EXPECT_TRUE(set.world.isShown("Main"));
  EXPECT_FALSE(set.world.isOpen("CTmhero"));
}

TEST_P(LaterPlayer, HisButtonDoesNothingWhileTheOneBeforeTakesNoPart) {
  Beginning set(GetParam() - 1);
  const auto before = set.world.files.contents;
  EXPECT_TRUE(set.world.click("Main", numbered("GraczM", GetParam())));
  EXPECT_EQ(set.world.files.contents, before);
  EXPECT_EQ(plus(set.world, GetParam()), "");
  EXPECT_FALSE(set.world.isOpen("CTmhero"));
}

TEST(SetUp, AClickOnTheThirdBoxDoesNothingWhileTheSecondPlayerHasNoPlus) {
  Beginning set(1);
  const auto before = set.world.files.contents;
  set.world.click("Main", "gracz(2)");
  EXPECT_EQ(plus(set.world, 2), "");
  EXPECT_EQ(set.world.files.contents, before);
  EXPECT_TRUE(set.world.isShown("Main"));
}

TEST(SetUp, AClickOnTheFirstBoxIsNeverRefused) {
  for (int players = 0; players <= 4; ++players) {
    Beginning set(players);
    set.world.click("Main", "gracz(0)");
    EXPECT_TRUE(set.world.isShown("CTmhero"));
    EXPECT_EQ(bytes(set.world, "makehro.cfg"), "hero1.boh\r\n12\r\n");
  }
}

TEST(SetUp, OnlyAnExactPlusOpensTheNextSlot) {
  for (const char* flag : {"", " +", "+ ", "++", "-"}) {
    Beginning set;
    set.world.get<Label>("Main", "Czygra(0)").Caption = flag;
    set.world.click("Main", "gracz(1)");
    EXPECT_FALSE(set.world.exists("makehro.cfg")) << flag;
  }
}

TEST(SetUp, AFilledSlotMayBeCreatedAgain) {
  Beginning set(2);
  set.world.click("Main", "gracz(0)");
  set.world.type("CTmhero", "Imie", "Nowy");
  set.world.click("CTmhero", "Save");
  EXPECT_EQ(set.world.line("hero1.boh", 1), "Nowy");
  EXPECT_EQ(plus(set.world, 0), "+");
  EXPECT_EQ(plus(set.world, 1), "+");
}

// Both screens stand side by side only if something shows the set-up again.
TEST(SetUp, AClickOnABoxKeepsACreationScreenThatIsStillLoaded) {
  Beginning set;
  set.world.click("Main", "gracz(0)");
  set.world.type("CTmhero", "Imie", "Stary");
  set.world.runtime.Show("Main");
  set.world.click("Main", "gracz(0)");
  EXPECT_EQ(set.world.text("CTmhero", "Imie"), "Stary");
}

TEST(SetUp, TheButtonUnloadsACreationScreenThatIsStillLoaded) {
  Beginning set;
  set.world.click("Main", "gracz(0)");
  set.world.type("CTmhero", "Imie", "Stary");
  set.world.runtime.Show("Main");
  set.world.click("Main", "GraczM(0)");
  EXPECT_EQ(set.world.text("CTmhero", "Imie"), "Kosiarz");
}

TEST(SetUp, TheButtonUnloadsCreationEvenWhenTheSlotIsRefused) {
  Beginning set;
  set.world.click("Main", "gracz(0)");
  set.world.runtime.Show("Main");
  set.world.click("Main", "GraczM(2)");
  EXPECT_FALSE(set.world.isOpen("CTmhero"));
  EXPECT_EQ(plus(set.world, 2), "");
}

struct Points {
  const char* typed;
  const char* line;
  const char* budget;
};

class StartingPoints : public testing::TestWithParam<Points> {};

INSTANTIATE_TEST_SUITE_P(Texts, StartingPoints,
                         testing::Values(Points{"30", "30", "30"}, Points{"", "", "0"}, Points{"dużo", "dużo", "0"},
                                         Points{"-3", "-3", "-3"}, Points{" 8 ", " 8 ", "8"},
                                         Points{"12.5", "12.5", "12"}, Points{"32767", "32767", "32767"},
                                         Points{"12abc", "12abc", "0"}));

TEST_P(StartingPoints, AreWrittenAsTypedAndReadAsANumber) {
  Beginning set;
  set.world.type("Main", "ile_punktow", GetParam().typed);
  set.world.click("Main", "gracz(0)");
  EXPECT_EQ(set.world.line("makehro.cfg", 2), GetParam().line);
  EXPECT_EQ(set.world.caption("CTmhero", "Ile_jeszcze"), GetParam().budget);
}

TEST(SetUp, MorePointsThanAnIntegerHoldsEndTheProgram) {
  Beginning set;
  set.world.type("Main", "ile_punktow", "32768");
  EXPECT_EQ(errorOf([&] { set.world.click("Main", "gracz(0)"); }), 6);
  EXPECT_EQ(bytes(set.world, "makehro.cfg"), "hero1.boh\r\n32768\r\n");
}

TEST(SetUp, ThePointsAreReadAnewAtEachClick) {
  Beginning set;
  createHero(set.world, 0);
  set.world.type("Main", "ile_punktow", "99");
  set.world.click("Main", "gracz(1)");
  EXPECT_EQ(bytes(set.world, "makehro.cfg"), "hero2.boh\r\n99\r\n");
}

TEST(SetUp, AnEmptyFileNameReachesCreationAndFailsThereWhenTheHeroIsWritten) {
  Beginning set;
  set.world.type("Main", "gracz(0)", "");
  set.world.click("Main", "gracz(0)");
  EXPECT_EQ(bytes(set.world, "makehro.cfg"), "\r\n12\r\n");
  EXPECT_EQ(errorOf([&] { set.world.click("CTmhero", "Save"); }), 75);
}

TEST(SetUp, TwoBoxesMayNameOneFile) {
  Beginning set;
  set.world.type("Main", "gracz(1)", "hero1.boh");
  createHero(set.world, 0);
  createHero(set.world, 1);
  set.world.roll(1, 4, {1});
  set.world.click("Main", "Start");
  EXPECT_EQ(bytes(set.world, "gra.cfg"), " 2 \r\nhero1.boh\r\nhero1.boh\r\n");
}

TEST(SetUp, CreationClosedByItsCloseBoxLeavesOnlyTheTitleToClose) {
  Beginning set;
  set.world.click("Main", "gracz(0)");
  const auto before = set.world.files.contents;
  closeWindow(set.world.runtime, "CTmhero");
  EXPECT_FALSE(set.world.isOpen("CTmhero"));
  EXPECT_FALSE(set.world.isShown("Main"));
  EXPECT_EQ(plus(set.world, 0), "+");
  EXPECT_TRUE(set.world.isShown("Brolgan"));
  EXPECT_EQ(set.world.files.contents, before);
  closeWindow(set.world.runtime, "Brolgan");
  EXPECT_TRUE(set.world.runtime.ended());
}

TEST(SetUp, ClosingItsWindowLeavesTheTitleAndNothingElse) {
  Beginning set(1);
  const auto before = set.world.files.contents;
  closeWindow(set.world.runtime, "Main");
  EXPECT_EQ(set.world.runtime.loaded(), std::vector<std::string>{"Brolgan"});
  EXPECT_FALSE(set.world.runtime.ended());
  EXPECT_EQ(set.world.files.contents, before);
}

TEST(Start, DoesNothingAndWritesNoFileWithoutAPlus) {
  Beginning set;
  const auto before = set.world.files.contents;
  EXPECT_TRUE(set.world.click("Main", "Start"));
  EXPECT_EQ(set.world.files.contents, before);
  EXPECT_TRUE(set.world.isShown("Main"));
  EXPECT_FALSE(set.world.isOpen("CTsklep"));
}

class StartWith : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Players, StartWith, testing::Range(1, 5));

TEST_P(StartWith, WritesTheCountAndTheNamesInOrderAndOpensTheShop) {
  Beginning set(GetParam());
  set.world.roll(1, 4, {2});
  set.world.click("Main", "Start");
  std::string expected = " " + std::to_string(GetParam()) + " \r\n";
  for (int i = 1; i <= GetParam(); ++i) expected += "hero" + std::to_string(i) + ".boh\r\n";
  EXPECT_EQ(bytes(set.world, "gra.cfg"), expected);
  EXPECT_TRUE(set.world.isShown("CTsklep"));
  EXPECT_FALSE(set.world.isOpen("Main"));
  EXPECT_EQ(set.world.unusedRolls(), 0U);
}

class FirstMode : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Faces, FirstMode, testing::Range(1, 5));

TEST_P(FirstMode, IsOneRollOfAFourSidedDie) {
  Beginning set(1);
  set.world.roll(1, 4, {GetParam()});
  set.world.click("Main", "Start");
  EXPECT_EQ(bytes(set.world, "sklep.cfg"), "hero1.boh\r\n " + std::to_string(GetParam()) + " \r\n");
}

TEST(Start, WritesTheTextsOfThatMoment) {
  Beginning set(2);
  set.world.type("Main", "gracz(1)", "inny.boh");
  set.world.roll(1, 4, {1});
  set.world.click("Main", "Start");
  EXPECT_EQ(bytes(set.world, "gra.cfg"), " 2 \r\nhero1.boh\r\ninny.boh\r\n");
}

TEST(Start, CountsThePlusesAndTakesTheFirstNamesOfThatNumber) {
  Beginning set(1);
  set.world.get<Label>("Main", "Czygra(2)").Caption = "+";
  set.world.get<Label>("Main", "Czygra(3)").Caption = " +";
  set.world.roll(1, 4, {1});
  set.world.click("Main", "Start");
  EXPECT_EQ(bytes(set.world, "gra.cfg"), " 2 \r\nhero1.boh\r\nhero2.boh\r\n");
}

TEST(Start, FirstBoxEditedAwayStillNamesHero1InTheShopAndFailsWithoutSuchAFile) {
  Beginning set;
  set.world.type("Main", "gracz(0)", "Zofia.boh");
  createHero(set.world, 0);
  set.world.roll(1, 4, {3});
  const std::string text = errorTextOf([&] { set.world.click("Main", "Start"); });
  EXPECT_NE(text.find("53"), std::string::npos) << text;
  EXPECT_NE(text.find("hero1.boh"), std::string::npos) << text;
  EXPECT_EQ(bytes(set.world, "gra.cfg"), " 1 \r\nZofia.boh\r\n");
  EXPECT_EQ(bytes(set.world, "sklep.cfg"), "hero1.boh\r\n 3 \r\n");
}

TEST(Start, FirstBoxEditedAwayOpensTheOldHero1WhenThatFileIsThere) {
  Beginning set;
  Bohater old = plainHero();
  old.Imie = "Dawny";
  set.world.writeHero("hero1.boh", old);
  set.world.type("Main", "gracz(0)", "Zofia.boh");
  createHero(set.world, 0);
  set.world.roll(1, 4, {1});
  set.world.click("Main", "Start");
  EXPECT_EQ(set.world.text("CTsklep", "Imie"), "Dawny");
}

TEST(Start, DrawsFromTheGeneratorThatItsOwnLoadHasSeeded) {
  World world(43200.25);
  SeededRandom same;
  same.seed(43200.25);
  const int expected = static_cast<int>(round(same.next() * 3.0F + 1.0F));
  start(world);
  createHero(world, 0);
  world.click("Main", "Start");
  EXPECT_EQ(world.line("sklep.cfg", 2), " " + std::to_string(expected) + " ");
}

}  // namespace
}  // namespace brolgan::test
