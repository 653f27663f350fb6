// What ends the program when the shop opens: missing and short files, numbers too large, steps that
// no ladder has. Nothing is written by then.
#include <gtest/gtest.h>

#include <set>

#include "tests/shop/shop.h"

namespace brolgan::test {
namespace {

class ShopErrors : public Shop {
 protected:
  std::string textOn(const Lines& heroLines) {
    world.runtime.Unload(form);
    return errorTextOf([&] { openOn(heroLines); });
  }
};

// The lines of a hero's file with the steps of the ladders, and the top of each.
const std::vector<std::pair<std::size_t, int>> kStepLines = {{6, 12}, {8, 11}, {10, 8}, {12, 8},
                                                             {14, 5}, {16, 5}, {18, 6}};

// The lines with one number each, the steps left out.
std::vector<std::size_t> numberLines() {
  std::vector<std::size_t> all = {2, 4, 5, 7, 9, 11, 13, 15, 19};
  for (std::size_t slot = 20; slot < 80; slot += 3) all.insert(all.end(), {slot + 1, slot + 2});
  for (std::size_t line = 90; line <= 91; ++line) all.push_back(line);
  for (std::size_t line = 96; line <= 113; ++line) all.push_back(line);
  for (std::size_t line = 117; line <= 161; ++line) all.push_back(line);
  return all;
}

TEST_F(ShopErrors, EndWithoutTheFileThatNamesTheHero) {
  EXPECT_EQ(errorTextOf([this] { world.runtime.Show(form); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: sklep.cfg");
}

TEST_F(ShopErrors, EndWithoutTheHeroFile) {
  world.write(kShopFile, {"nikt.boh", " 1 "});

  EXPECT_EQ(errorTextOf([this] { world.runtime.Show(form); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: nikt.boh");
}

TEST_F(ShopErrors, EndWhenTheFileThatNamesTheHeroStopsAfterEitherLine) {
  world.writeHero("hero1.boh", plainHero());
  for (const Lines& lines : {Lines(), Lines{"hero1.boh"}}) {
    world.write(kShopFile, lines);
    EXPECT_EQ(errorOf([this] { world.runtime.Show(form); }), 62);
    world.runtime.Unload(form);
  }
}

TEST_F(ShopErrors, EndOnAModeBeyondAnInteger) {
  world.writeHero("hero1.boh", plainHero());
  world.write(kShopFile, {"hero1.boh", " 32768 "});

  EXPECT_EQ(errorOf([this] { world.runtime.Show(form); }), 6);
}

TEST_F(ShopErrors, EndWhenTheHeroFileStopsAfterAnyLineAndNameTheNextOne) {
  const Lines whole = plainLines();
  for (std::size_t kept = 0; kept < 161; ++kept) {
    const std::string text = textOn(firstOf(whole, kept));
    const std::string place = "Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: hero1.boh\nWiersz: ";
    EXPECT_EQ(text.rfind(place + std::to_string(kept + 1) + "\n", 0), 0U) << kept << ": " << text;
    EXPECT_EQ(world.lines("hero1.boh"), firstOf(whole, kept));
    EXPECT_FALSE(world.exists(kPreparationFile));
  }
}

TEST_F(ShopErrors, AreNoneForTheWholeFileEvenWithoutItsLastLineEnd) {
  EXPECT_EQ(errorOn(plainLines()), 0);
  world.runtime.Unload(form);
  std::string& bytes = world.files.contents.at("hero1.boh");
  bytes.resize(bytes.size() - 2);

  EXPECT_EQ(errorOf([this] { world.runtime.Show(form); }), 0);
}

TEST_F(ShopErrors, AreThreeHundredAndFortyForAStepOutOfItsLadder) {
  for (const auto& [line, top] : kStepLines) {
    for (const int step : {0, -1, top + 1, 32767}) {
      EXPECT_EQ(errorOn(withLine(plainLines(), line, std::to_string(step))), 340) << line << " " << step;
    }
    EXPECT_EQ(errorOn(withLine(plainLines(), line, std::to_string(top))), 0) << line;
    EXPECT_EQ(errorOn(withLine(plainLines(), line, " 1 ")), 0) << line;
  }
}

TEST_F(ShopErrors, NameTheHeroFileTheLineAndTheStep) {
  for (std::size_t step = 0; step < kStepLines.size(); ++step) {
    const auto& [line, top] = kStepLines[step];
    EXPECT_EQ(textOn(withLine(plainLines(), line, std::to_string(top + 1))),
              "Błąd wykonania 340: Nie istnieje taki element tablicy formantów\nPlik: hero1.boh\nWiersz: " +
                  std::to_string(line) + "\nPole: Poziomy(" + std::to_string(step) + ")");
  }
}

// A comma in the name is one item more, so every step is read from the line before its own.
TEST_F(ShopErrors, NameTheLineWhereTheStepWasRead) {
  const std::string text = textOn(withLine(withLine(plainLines(), 1, "Jan,7"), 5, " 13 "));
  EXPECT_NE(text.find("Wiersz: 5\nPole: Poziomy(0)"), std::string::npos) << text;
}

TEST_F(ShopErrors, ComeForAWrongStepOfEnduranceBeforeTheRestIsRead) {
  EXPECT_EQ(errorOn(firstOf(withLine(plainLines(), 6, " 13 "), 15)), 340);
  EXPECT_EQ(errorOn(firstOf(withLine(plainLines(), 6, " 13 "), 14)), 62);
}

TEST_F(ShopErrors, ComeForAnyOtherWrongStepBehindTheLives) {
  EXPECT_EQ(errorOn(firstOf(withLine(plainLines(), 8, " 12 "), 18)), 62);
  EXPECT_EQ(errorOn(firstOf(withLine(plainLines(), 8, " 12 "), 19)), 340);
}

TEST_F(ShopErrors, AreThreeHundredAndFortyForAWordOrAnEmptyLineInPlaceOfAStep) {
  for (const auto& [line, top] : kStepLines) {
    EXPECT_EQ(errorOn(withLine(plainLines(), line, "slowo")), 340) << line;
    EXPECT_EQ(errorOn(withLine(plainLines(), line, "")), 340) << line;
  }
}

TEST_F(ShopErrors, AreOverflowsForANumberBeyondAnIntegerOnAnyLine) {
  std::vector<std::size_t> all = numberLines();
  for (const auto& [line, top] : kStepLines) all.push_back(line);
  for (const std::size_t line : all) {
    EXPECT_EQ(errorOn(withLine(plainLines(), line, " 32768 ")), 6) << line;
    EXPECT_EQ(errorOn(withLine(plainLines(), line, "-32769 ")), 6) << line;
  }
}

TEST_F(ShopErrors, AreOverflowsForEachOfTheFourDiceNumbers) {
  for (const std::string dice : {"32768 4 1 0", "1 32768 1 0", "1 4 32768 0", "1 4 1 32768"}) {
    EXPECT_EQ(errorOn(withLine(plainLines(), 17, dice)), 6) << dice;
  }
}

TEST_F(ShopErrors, AreNoneForAWordAmongTheDiceButAMissingOneShiftsTheFile) {
  EXPECT_EQ(errorOn(withLine(plainLines(), 17, "slowo 4 1 0")), 0);
  EXPECT_EQ(errorOn(withLine(plainLines(), 17, "")), 340);
}

TEST_F(ShopErrors, AreNoneForAWordOrAnEmptyLineInPlaceOfAnyOtherNumberWhichReadsAsZero) {
  const std::set<std::size_t> fromTheLadder = {9, 11, 13, 15};
  for (const std::size_t line : numberLines()) {
    for (const std::string text : {"slowo", ""}) {
      ASSERT_EQ(errorOn(withLine(plainLines(), line, text)), 0) << line;
      leave();
      const std::string expected = line == 113 ? " 1 " : fromTheLadder.contains(line) ? plainLines()[line - 1] : " 0 ";
      EXPECT_EQ(world.line("hero1.boh", static_cast<int>(line)), expected) << line;
      world.runtime.Unload("Prefight");
    }
  }
}

TEST_F(ShopErrors, AreNoneForTheFileOfANewHeroWhoseFifthGearFlagReadsAsZero) {
  openOn(withLine(plainLines(), 96, "False"));
  leave();

  EXPECT_EQ(world.line("hero1.boh", 96), " 0 ");
  EXPECT_EQ(world.lines("hero1.boh").size(), 161U);
}

TEST_F(ShopErrors, AreOverflowsForALossOfEnduranceBeyondAnInteger) {
  EXPECT_EQ(errorOn(withLine(plainLines(), 7, "-32768 ")), 6);
  EXPECT_EQ(errorOn(withLine(plainLines(), 7, "-32755 ")), 0);
}

TEST_F(ShopErrors, ComeFromTheHeroFileBeforeTheCatalogueIsLookedFor) {
  world.files.contents.erase(kWeaponsFile);

  EXPECT_EQ(errorOn(firstOf(plainLines(), 160)), 62);
  EXPECT_EQ(errorOn(plainLines()), 53);
}

TEST_F(ShopErrors, LeaveTheHeroFileAsItWas) {
  Weapons melee = meleeWeapons();
  melee.push_back({"Jedenasta", {1, 4, 1, 0}, 3, "False"});
  world.write(kWeaponsFile, catalogueLines(melee, {}));
  openShop(heroWith(20));
  const std::string before = world.files.contents.at("hero1.boh");
  press("PLUS(0)");

  EXPECT_EQ(errorOf([this] { world.selectRow(form, "LBronww", 10); }), 9);
  EXPECT_EQ(world.files.contents.at("hero1.boh"), before);
  EXPECT_FALSE(world.exists(kPreparationFile));
}

}  // namespace
}  // namespace brolgan::test
