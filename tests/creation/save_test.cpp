// Saving a new hero: all lines of his file, and where it is cut when a number is too large.
#include <gtest/gtest.h>

#include "tests/creation/creation.h"

namespace brolgan::test {
namespace {

using CreationSave = Creation;

TEST_F(CreationSave, WritesTheUntouchedHeroToTheByte) {
  openCreation("12");
  press("Save");

  EXPECT_EQ(world.files.contents.at("hero1.boh"), bytesOf(dataLines("creation/untouched.txt")));
}

TEST_F(CreationSave, WritesAHeroOfManyPurchasesToTheByte) {
  openCreation("40");
  world.type(form, "Imie", "Zażółć, gęślą jaźń");
  choose(9);
  const std::vector<std::pair<int, int>> clicks = {{0, 3}, {1, 2}, {2, 4}, {3, 1}, {4, 2},
                                                   {5, 2}, {6, 2}, {7, 2}, {8, 1}};
  for (const auto& [plus, times] : clicks) press(numbered("PLUS", plus), times);
  pick("LBronww", 6);
  press("Kupww");
  pick("LBronww", 0);
  press("Sprzedajww");
  pick("Lbronss", 1);
  press("Kupss");
  for (const std::string good : {"Czarn(0)", "Czarn(7)", "Czarn(9)", "Spec(2)", "Spec(0)", "Spec(0)"}) press(good);
  press("Save");

  EXPECT_EQ(world.files.contents.at("hero1.boh"), bytesOf(dataLines("creation/handyman.txt")));
}

struct Grant {
  const char* klasa;
  const char* meleePercent;
  const char* rangedPercent;
  const char* plus;
};

const std::vector<Grant> kGrants = {{"Wojownik", " 45 ", " 0 ", " 0 "},
                                    {"Strzelec", " 0 ", " 55 ", " 0 "},
                                    {"Czarownik", " 0 ", " 0 ", " 0 "},
                                    {"Wiedźmin", " 0 ", " 0 ", " 0 "},
                                    {"Awanturnik", " 0 ", " 0 ", " 0 "},
                                    {"Satrapa", " 0 ", " 0 ", " 0 "},
                                    {"Berserker", " 0 ", " 0 ", " 0 "},
                                    {"Ryzykant", " 0 ", " 0 ", " 0 "},
                                    {"Zabobonny mnich zakonny", " 0 ", " 0 ", " 0 "},
                                    {"Złota rączka", " 0 ", " 0 ", " 5 "}};

class CreationSaveOfClass : public CreationSave, public ::testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Classes, CreationSaveOfClass, ::testing::Range(0, 10));

TEST_P(CreationSaveOfClass, WritesAllLinesWithItsBonusOnAllWeaponsOfAKind) {
  const Grant& grant = kGrants[static_cast<std::size_t>(GetParam())];
  openCreation("12");
  choose(GetParam());
  Lines expected = newHero(grant.klasa, grant.meleePercent, grant.rangedPercent, grant.plus);
  if (GetParam() == 5) expected = withLine(expected, 2, " 16 ");
  press("Save");

  ASSERT_EQ(expected.size(), 161U);
  EXPECT_EQ(world.files.contents.at("hero1.boh"), bytesOf(expected));
}

TEST_F(CreationSave, GivesTheUntouchedHeroTheBonusOfAWarriorAndTheTwoStartingWeapons) {
  openCreation("12");
  press("Save");
  const Bohater hero = world.hero("hero1.boh");

  EXPECT_EQ(hero.Klasa, "Wojownik");
  EXPECT_EQ(hero.Ile_jeszcze, 12);
  EXPECT_EQ(hero.AktWytrzymalosc, 12);
  EXPECT_EQ(hero.AktMoc, 2);
  EXPECT_EQ(hero.MO, (Kostka{1, 4, 1, 0}));
  EXPECT_EQ(hero.Wcielenia, 1);
  for (const Integer step : hero.Poziomy) EXPECT_EQ(step, 1);
  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(hero.BronwwProc(i), 45) << i;
    EXPECT_EQ(hero.MaBronww(i), i == 0) << i;
    EXPECT_EQ(hero.MaBronss(i), i == 0) << i;
  }
}

TEST_F(CreationSave, GivesAHandymanFiveOnAllTwentyWeaponsAndNoPercents) {
  openCreation("12");
  choose(9);
  press("Save");
  const Bohater hero = world.hero("hero1.boh");

  for (int i = 0; i < 10; ++i) {
    EXPECT_EQ(hero.BronwwPlus(i), 5) << i;
    EXPECT_EQ(hero.BronssPlus(i), 5) << i;
    EXPECT_EQ(hero.BronwwProc(i), 0) << i;
    EXPECT_EQ(hero.BronssProc(i), 0) << i;
  }
}

TEST_F(CreationSave, LeavesNoTraceOfTheFourPointsOfSatrapaButTheUnspentBudget) {
  openCreation("12");
  choose(5);
  press("PLUS(0)");

  Lines expected = newHero("Satrapa", " 0 ", " 0 ", " 0 ");
  expected = withLine(withLine(expected, 2, " 15 "), 4, " 15 ");
  EXPECT_EQ(saved(), withLine(withLine(expected, 6, " 2 "), 7, " 15 "));
}

TEST_F(CreationSave, WritesTheDiceOfTheModifiersStepInOneLine) {
  const Lines dice = {" 1  4  1  0 ", " 1  6  1  0 ", " 1  6  1  2 ", " 1  6  2  0 ", " 1  6  2  3 "};
  for (int step = 1; step <= 5; ++step) {
    world.runtime.Unload(form);
    openCreation("12");
    press("PLUS(5)", step - 1);
    const Lines lines = saved();
    EXPECT_EQ(lines.at(15), " " + std::to_string(step) + " ");
    EXPECT_EQ(lines.at(16), dice[static_cast<std::size_t>(step - 1)]);
  }
}

TEST_F(CreationSave, WritesEveryStepWithItsValueAndFillsEnduranceAndPower) {
  openCreation("53");
  for (int i = 0; i < 7; ++i) press(numbered("PLUS", i), 11);
  const Lines lines = saved();

  EXPECT_EQ(Lines(lines.begin() + 1, lines.begin() + 19),
            Lines({" 0 ", "Wojownik", " 50 ", " 20 ", " 12 ", " 50 ", " 11 ", " 10 ", " 8 ", " 20 ", " 8 ", " 34 ",
                   " 5 ", " 10 ", " 5 ", " 1  6  2  3 ", " 6 ", " 12 "}));
}

TEST_F(CreationSave, RefusesADebtInSilenceAndStays) {
  openCreation("0");
  owePoints();
  ASSERT_EQ(points(), "-4");
  press("Save");

  EXPECT_FALSE(world.exists("hero1.boh"));
  EXPECT_TRUE(world.isShown(form));
  EXPECT_FALSE(world.isOpen("Main"));
}

TEST_F(CreationSave, KeepsTheEarlierFileWhenItRefusesADebt) {
  world.write("hero1.boh", {"earlier"});
  openCreation("-1");
  press("Save");

  EXPECT_EQ(world.lines("hero1.boh"), Lines({"earlier"}));
}

TEST_F(CreationSave, AcceptsABudgetOfNone) {
  openCreation("0");

  EXPECT_EQ(saved().at(1), " 0 ");
}

TEST_F(CreationSave, WritesASoldStartingWeaponAsNotOwned) {
  openCreation("12");
  press("Sprzedajww");
  const Lines lines = saved();

  EXPECT_EQ(lines.at(1), " 13 ");
  for (std::size_t melee = 19; melee < 49; melee += 3) EXPECT_EQ(lines.at(melee), "False") << melee;
  EXPECT_EQ(lines.at(49), "True");
}

TEST_F(CreationSave, WritesAnEmptyNameAsAnEmptyLine) {
  openCreation("12");
  world.type(form, "Imie", "");

  EXPECT_EQ(saved(), withLine(newHero("Wojownik", " 45 ", " 0 ", " 0 "), 1, ""));
}

TEST_F(CreationSave, AcceptsANameWithACommaThatShiftsTheFileForTheShop) {
  openCreation("12");
  world.type(form, "Imie", "Jan, Maria");
  EXPECT_EQ(saved().at(0), "Jan, Maria");
  const Bohater read = world.hero("hero1.boh");
  world.write(kShopFile, {"hero1.boh", " 1 "});

  EXPECT_EQ(read.Imie, "Jan");
  EXPECT_EQ(read.Ile_jeszcze, 0);
  EXPECT_EQ(read.Klasa, "12 ");
  EXPECT_EQ(read.Poziomy(0), 2);
  EXPECT_EQ(errorOf([this] { world.runtime.Show("CTsklep"); }), 340);
}

TEST_F(CreationSave, WritesANameToTheLetterQuotesAndBlanksIncluded) {
  openCreation("12");
  world.type(form, "Imie", " \"Jan\" ");

  EXPECT_EQ(saved().at(0), " \"Jan\" ");
}

TEST_F(CreationSave, WritesAQuestionMarkForALetterThatTheFilesDoNotHave) {
  openCreation("12");
  world.type(form, "Imie", "Ж");

  EXPECT_EQ(saved().at(0), "?");
}

TEST_F(CreationSave, WritesFiveGearFlagsAndSixteenZerosWithTheFifthFlagReadAsNoFish) {
  openCreation("12");
  press("Spec(0)");
  press("Spec(2)");
  const Lines lines = saved();

  EXPECT_EQ(Lines(lines.begin() + 91, lines.begin() + 113),
            joined({{"True", "False", "True", "False", "False"}, repeated(16, {" 0 "}), {" 1 "}}));
  EXPECT_EQ(world.hero("hero1.boh").Przedmioty(0), 0);
  EXPECT_EQ(world.hero("hero1.boh").Tura, 1);
}

TEST_F(CreationSave, WritesTheSupplies) {
  openCreation("12");
  press("PLUS(7)", 3);
  press("PLUS(8)", 2);
  const Lines lines = saved();

  EXPECT_EQ(lines.at(89), " 3 ");
  EXPECT_EQ(lines.at(90), " 20 ");
}

TEST_F(CreationSave, ReplacesAnEarlierAndLongerFile) {
  world.write("hero1.boh", repeated(300, {"earlier"}));
  openCreation("12");

  EXPECT_EQ(saved(), newHero("Wojownik", " 45 ", " 0 ", " 0 "));
}

TEST_F(CreationSave, WritesUnderTheNameThatItsOwnFileGave) {
  world.write(kMakeHeroFile, {"żółw.boh", "12"});
  world.runtime.Show(form);
  press("Save");

  EXPECT_EQ(world.lines("żółw.boh"), newHero("Wojownik", " 45 ", " 0 ", " 0 "));
  EXPECT_FALSE(world.exists("hero1.boh"));
}

TEST_F(CreationSave, ChangesNoOtherFile) {
  openCreation("12");
  const auto before = world.files.contents;
  press("Save");
  world.files.contents.erase("hero1.boh");

  EXPECT_EQ(world.files.contents, before);
}

TEST_F(CreationSave, LeadsBackToTheSetUpThatWasHidden) {
  world.runtime.Show("Main");
  world.type("Main", "ile_punktow", "7");
  world.click("Main", "gracz(0)");
  press("Save");

  EXPECT_FALSE(world.isOpen(form));
  EXPECT_TRUE(world.isShown("Main"));
  EXPECT_EQ(world.text("Main", "ile_punktow"), "7");
  EXPECT_EQ(world.caption("Main", "Czygra(0)"), "+");
}

TEST_F(CreationSave, LoadsTheSetUpWhenItIsGone) {
  openCreation("12");
  press("Save");

  EXPECT_FALSE(world.isOpen(form));
  EXPECT_TRUE(world.isShown("Main"));
}

TEST_F(CreationSave, AcceptsTheLastBudgetThatAnIntegerHolds) {
  openCreation("32767");

  EXPECT_EQ(saved().at(1), " 32767 ");
}

TEST_F(CreationSave, LeavesTheFirstLineAloneWhenTheEndlessPointsOverflow) {
  openCreation("32767");
  pick("Lbronss", 3);
  press("Sprzedajss");
  ASSERT_EQ(points(), "32774");

  EXPECT_EQ(errorOf([this] { world.click(form, "Save"); }), 6);
  EXPECT_EQ(world.files.contents.at("hero1.boh"), "Kosiarz\r\n");
}

TEST_F(CreationSave, IsCutBehindTheGrenadesWhenTheAmmunitionOverflows) {
  openCreation("32767");
  press("PLUS(7)");
  press("PLUS(8)", 3277);
  ASSERT_EQ(caption("wyp(1)"), "32770");

  EXPECT_EQ(errorOf([this] { world.click(form, "Save"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh").size(), 90U);
  EXPECT_EQ(world.line("hero1.boh", 90), " 1 ");
}

TEST_F(CreationSave, IsCutBehindTheSpellsWhenTheGrenadesOverflow) {
  openCreation("32767");
  pick("Lbronss", 3);
  press("Sprzedajss");
  press("PLUS(7)", 32768);

  EXPECT_EQ(errorOf([this] { world.click(form, "Save"); }), 6);
  EXPECT_EQ(world.lines("hero1.boh"), firstOf(withLine(newHero("Wojownik", " 45 ", " 0 ", " 0 "), 2, " 6 "), 89));
}

TEST_F(CreationSave, EndsOnAnEmptyFileName) {
  world.write(kMakeHeroFile, {"", "12"});
  world.runtime.Show(form);

  EXPECT_EQ(errorOf([this] { world.click(form, "Save"); }), 75);
}

}  // namespace
}  // namespace brolgan::test
