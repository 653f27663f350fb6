// Opening the creation screen: what it reads, and how a new hero starts.
#include <gtest/gtest.h>

#include "tests/creation/creation.h"
#include "tests/departments/looks.h"

namespace brolgan::test {
namespace {

class CreationLoad : public Creation {
 protected:
  // The error of opening the screen with these lines in makehro.cfg.
  int errorWith(const Lines& lines) {
    world.write(kMakeHeroFile, lines);
    return errorOf([this] { world.runtime.Show(form); });
  }
  std::string budgetFrom(const std::string& text) {
    world.runtime.Unload(form);
    openCreation(text);
    return points();
  }
};

TEST_F(CreationLoad, ShowsTheBudgetOfTheFileAndNotSixteen) {
  openCreation("12");

  EXPECT_EQ(points(), "12");
}

TEST_F(CreationLoad, TakesTheNameOfTheHeroFileIntoTheHiddenBox) {
  world.write(kMakeHeroFile, {"Zażółć gęślą.boh", "3"});
  world.runtime.Show(form);

  EXPECT_EQ(world.text(form, "Plik"), "Zażółć gęślą.boh");
  EXPECT_FALSE(world.isVisible(form, "Plik"));
  EXPECT_FALSE(world.type(form, "Plik", "other.boh"));
}

TEST_F(CreationLoad, TakesAWordAnEmptyLineAndAHalfNumberAsNoPoints) {
  for (const std::string text : {"slowo", "", "12abc", "12 punktów", "--3", ".", "5,5"}) {
    const std::string expected = text == "12 punktów" ? "12" : text == "5,5" ? "5" : "0";
    EXPECT_EQ(budgetFrom(text), expected) << text;
  }
}

TEST_F(CreationLoad, RoundsAFractionWithTiesToEven) {
  EXPECT_EQ(budgetFrom("12.5"), "12");
  EXPECT_EQ(budgetFrom("13.5"), "14");
  EXPECT_EQ(budgetFrom("1.2e1"), "12");
}

TEST_F(CreationLoad, TakesANegativeNumberAsANegativeBudget) { EXPECT_EQ(budgetFrom("-7"), "-7"); }

TEST_F(CreationLoad, TakesTheLastNumbersThatAnIntegerHolds) {
  EXPECT_EQ(budgetFrom("32767"), "32767");
  EXPECT_EQ(budgetFrom("-32768"), "-32768");
}

TEST_F(CreationLoad, EndsOnABudgetBeyondAnInteger) {
  for (const std::string text : {"32768", "-32769", "32767.5", "1e9"}) {
    EXPECT_EQ(errorWith({"hero1.boh", text}), 6) << text;
    world.runtime.Unload(form);
  }
}

TEST_F(CreationLoad, TakesTheRestOfAFileNameWithACommaForTheBudget) {
  world.write(kMakeHeroFile, {"jan,maria.boh", "12"});
  world.runtime.Show(form);

  EXPECT_EQ(world.text(form, "Plik"), "jan");
  EXPECT_EQ(points(), "0");
}

TEST_F(CreationLoad, EndsWithoutItsOwnFileBeforeItLooksForTheWeapons) {
  world.files.contents.clear();

  EXPECT_EQ(errorTextOf([this] { world.runtime.Show(form); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: makehro.cfg");
}

TEST_F(CreationLoad, EndsWhenItsFileStopsAfterEitherLine) {
  EXPECT_EQ(errorWith({}), 62);
  world.runtime.Unload(form);
  EXPECT_EQ(errorWith({"hero1.boh"}), 62);
}

TEST_F(CreationLoad, NamesFileLineAndFieldOfTheError) {
  world.write(kMakeHeroFile, {"hero1.boh", "40000"});

  EXPECT_EQ(errorTextOf([this] { world.runtime.Show(form); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: makehro.cfg\nWiersz: 2\nPole: Ile_jeszcze");
}

TEST_F(CreationLoad, StartsEveryLadderAtItsFirstStep) {
  openCreation("12");

  EXPECT_EQ(colouredControls(world.form(form), Colour::red),
            Lines({"stat1(0)", "stat2(0)", "stat3(0)", "stat4(0)", "stat5(0)", "stat6(0)", "stat7(0)"}));
}

TEST_F(CreationLoad, StartsWithTheFirstWeaponOfEachKindOwnedAndNoOther) {
  openCreation("12");
  Lines red;
  for (int row = 0; row < 10; ++row) {
    pick("LBronww", row);
    if (isRed("BWnazwa")) red.push_back(caption("BWnazwa"));
    pick("Lbronss", row);
    if (isRed("BSnazwa")) red.push_back(caption("BSnazwa"));
  }

  EXPECT_EQ(red, Lines({"Nóż", "Łuk"}));
}

TEST_F(CreationLoad, StartsWithoutSuppliesAndLeavesTheDetailsAsDesigned) {
  openCreation("12");

  EXPECT_EQ(caption("wyp(0)"), "0");
  EXPECT_EQ(caption("wyp(1)"), "0");
  EXPECT_EQ(caption("BWnazwa"), "bron1");
  EXPECT_EQ(caption("BWdmg"), "0");
  EXPECT_EQ(caption("BWopis"), "opis można rzucać czary");
}

TEST_F(CreationLoad, WritesNothing) {
  openCreation("12");

  EXPECT_FALSE(world.exists("hero1.boh"));
}

TEST_F(CreationLoad, OpensFromTheSetUpWithThePointsTypedThere) {
  world.runtime.Show("Main");
  world.type("Main", "ile_punktow", "25");
  world.type("Main", "gracz(0)", "jan.boh");
  world.click("Main", "gracz(0)");

  EXPECT_EQ(points(), "25");
  EXPECT_EQ(world.text(form, "Plik"), "jan.boh");
  EXPECT_TRUE(world.isShown(form));
  EXPECT_FALSE(world.isShown("Main"));
}

TEST_F(CreationLoad, IsGoneWithNothingWrittenWhenItsWindowIsClosed) {
  openCreation("12");
  press("PLUS(0)");
  closeWindow(world.runtime, form);

  EXPECT_FALSE(world.isOpen(form));
  EXPECT_FALSE(world.isShown("Main"));
  EXPECT_FALSE(world.exists("hero1.boh"));
}

}  // namespace
}  // namespace brolgan::test
