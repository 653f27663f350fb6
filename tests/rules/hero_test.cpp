// The hero and his file.
#include "rules/hero.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/rules/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

constexpr int kLines = 161;
constexpr int kDiceLine = 17;

// Where each line of the file goes, counted from 1; null when the line is of another kind.

Integer* numberOnLine(Bohater& hero, int line) {
  if (line == 2) return &hero.Ile_jeszcze;
  if (line == 4) return &hero.AktWytrzymalosc;
  if (line == 5) return &hero.AktMoc;
  if (line >= 6 && line <= 15) return line % 2 == 0 ? &hero.Poziomy(line / 2 - 3) : &hero.Wartosci(line / 2 - 3);
  if (line == 16) return &hero.Poziomy(5);
  if (line == 18) return &hero.Poziomy(6);
  if (line == 19) return &hero.Wcielenia;
  if (line >= 20 && line <= 79) {
    const int slot = (line - 20) % 30 / 3;
    const int part = (line - 20) % 3;
    if (part == 1) return line < 50 ? &hero.BronwwProc(slot) : &hero.BronssProc(slot);
    if (part == 2) return line < 50 ? &hero.BronwwPlus(slot) : &hero.BronssPlus(slot);
  }
  if (line == 90 || line == 91) return &hero.Wyp(line - 90);
  if (line >= 96 && line <= 112) return &hero.Przedmioty(line - 96);
  if (line == 113) return &hero.Tura;
  if (line >= 117) return &hero.Stwory(line - 117);
  return nullptr;
}

bool* flagOnLine(Bohater& hero, int line) {
  if (line >= 20 && line <= 49 && (line - 20) % 3 == 0) return &hero.MaBronww((line - 20) / 3);
  if (line >= 50 && line <= 79 && (line - 50) % 3 == 0) return &hero.MaBronss((line - 50) / 3);
  if (line >= 80 && line <= 89) return &hero.MaCzar(line - 80);
  if (line >= 92 && line <= 95) return &hero.MaSpec(line - 92);
  return nullptr;
}

std::string* textOnLine(Bohater& hero, int line) {
  if (line == 1) return &hero.Imie;
  if (line == 3) return &hero.Klasa;
  if (line == 114) return &hero.OstatniCzar;
  if (line == 115) return &hero.OstatniPrzedmiot;
  if (line == 116) return &hero.OstatniaBron;
  return nullptr;
}

std::string numberText(int number) { return (number < 0 ? "" : " ") + std::to_string(number) + " "; }

// A hero whose every number tells its line, with every second flag set.
Bohater numberedHero() {
  Bohater hero;
  for (int line = 1; line <= kLines; ++line) {
    if (Integer* const number = numberOnLine(hero, line)) *number = line % 5 == 0 ? -line : line;
    if (bool* const flag = flagOnLine(hero, line)) *flag = line % 2 == 0;
    if (std::string* const text = textOnLine(hero, line)) *text = "tekst " + std::to_string(line);
  }
  hero.MO = {1, 6, 2, -3};
  return hero;
}

// The lines that belong to that hero, made from the table above alone.
Lines numberedLines() {
  Bohater hero = numberedHero();
  Lines lines;
  for (int line = 1; line <= kLines; ++line) {
    if (const Integer* const number = numberOnLine(hero, line)) lines.push_back(numberText(number->value()));
    if (const bool* const flag = flagOnLine(hero, line)) lines.emplace_back(*flag ? "True" : "False");
    if (const std::string* const text = textOnLine(hero, line)) lines.push_back(*text);
    if (line == kDiceLine) lines.emplace_back(" 1  6  2 -3 ");
  }
  return lines;
}

Bohater load(const Lines& lines) { return Player_Load(readerOver("hero1.boh", lines)); }

Failure failureOfLoading(const Lines& lines) {
  return failureOf([&] { load(lines); });
}

std::string saved(const Bohater& hero) {
  MemoryFiles files;
  Player_Save({files, "hero1.boh"}, hero);
  return files.read("hero1.boh");
}

TEST(Hero, HasTheFieldsOfEitherKindAsTheSlotsOfThatKind) {
  Bohater hero;
  const Slots melee = hero.slots(WeaponKind::melee);
  EXPECT_EQ(&melee.owned, &hero.MaBronww);
  EXPECT_EQ(&melee.percent, &hero.BronwwProc);
  EXPECT_EQ(&melee.plus, &hero.BronwwPlus);
  const ConstSlots ranged = std::as_const(hero).slots(WeaponKind::ranged);
  EXPECT_EQ(&ranged.owned, &hero.MaBronss);
  EXPECT_EQ(&ranged.percent, &hero.BronssProc);
  EXPECT_EQ(&ranged.plus, &hero.BronssPlus);
}

TEST(HeroFile, HasAFieldForEachOfIts161Lines) { EXPECT_EQ(numberedLines().size(), std::size_t{kLines}); }

TEST(HeroFile, EveryLineIsReadIntoItsField) { EXPECT_EQ(load(numberedLines()), numberedHero()); }

TEST(HeroFile, EveryFieldIsWrittenOnItsLine) { EXPECT_EQ(saved(numberedHero()), bytesOf(numberedLines())); }

TEST(HeroFile, WhatFollowsLine161IsIgnored) {
  Lines lines = numberedLines();
  lines.emplace_back("32768");
  EXPECT_EQ(load(lines), numberedHero());
}

TEST(HeroFile, AMissingLastLineEndIsNoLoss) {
  std::string bytes = bytesOf(numberedLines());
  bytes.resize(bytes.size() - 2);
  EXPECT_EQ(Player_Load({"hero1.boh", bytes}), numberedHero());
}

TEST(HeroFile, CutAfterAnyLineIsReadPastItsEndOnTheNext) {
  const Lines lines = numberedLines();
  for (int count = 0; count < kLines; ++count) {
    EXPECT_EQ(failureOfLoading(firstOf(lines, static_cast<std::size_t>(count))), (Failure{62, "hero1.boh", count + 1}));
  }
}

TEST(HeroFile, MissingIsAnError) {
  World world;
  EXPECT_EQ(errorTextOf([&] { static_cast<void>(world.hero("hero1.boh")); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: hero1.boh");
}

// One test for every line.
class HeroLine : public testing::TestWithParam<int> {
 protected:
  [[nodiscard]] int line() const { return GetParam(); }
  [[nodiscard]] Lines changedTo(const std::string& text) const { return withLine(numberedLines(), line(), text); }

  // The numbered hero with another number on this line.
  [[nodiscard]] Bohater heroWith(int number) const {
    Bohater hero = numberedHero();
    *numberOnLine(hero, line()) = number;
    return hero;
  }
};

class NumberLine : public HeroLine {};

TEST_P(NumberLine, HoldsTheNumberOfItsFieldAlone) {
  EXPECT_EQ(load(changedTo(" 32767 ")), heroWith(32767));
  EXPECT_EQ(load(changedTo("-32768 ")), heroWith(-32768));
}

TEST_P(NumberLine, WithAWordIsZero) { EXPECT_EQ(load(changedTo("słowo")), heroWith(0)); }

TEST_P(NumberLine, LeftEmptyIsZero) { EXPECT_EQ(load(changedTo("")), heroWith(0)); }

TEST_P(NumberLine, BeyondAnIntegerOverflows) {
  EXPECT_EQ(failureOfLoading(changedTo(" 32768 ")), (Failure{6, "hero1.boh", line()}));
}

TEST_P(NumberLine, WithTwoWordsPushesEveryLaterItemOneLineDown) {
  Lines pushed = changedTo("dwa");
  pushed.insert(pushed.begin() + line(), "słowa");
  EXPECT_EQ(load(changedTo("dwa słowa")), load(pushed));
}

class FlagLine : public HeroLine {
 protected:
  [[nodiscard]] Bohater heroWithFlag(bool set) const {
    Bohater hero = numberedHero();
    *flagOnLine(hero, line()) = set;
    return hero;
  }
};

TEST_P(FlagLine, IsSetByTrueToTheLetterAlone) {
  EXPECT_EQ(load(changedTo("True")), heroWithFlag(true));
  for (const char* const text : {"False", "true", "TRUE", "True ", "", "1", "#TRUE#", "słowo", " 32768 "}) {
    EXPECT_EQ(load(changedTo(text)), heroWithFlag(false)) << text;
  }
}

class TextLine : public HeroLine {
 protected:
  [[nodiscard]] Bohater heroWithText(const std::string& text) const {
    Bohater hero = numberedHero();
    *textOnLine(hero, line()) = text;
    return hero;
  }
};

TEST_P(TextLine, HoldsItsTextAsItStands) {
  EXPECT_EQ(load(changedTo("Zażółć gęślą jaźń")), heroWithText("Zażółć gęślą jaźń"));
  EXPECT_EQ(load(changedTo("")), heroWithText(""));
  EXPECT_EQ(load(changedTo(" 12 ")), heroWithText("12 "));
  EXPECT_EQ(load(changedTo("\"a, b\"")), heroWithText("a, b"));
}

std::vector<int> linesWhere(bool (*holds)(Bohater&, int)) {
  Bohater hero;
  std::vector<int> lines;
  for (int line = 1; line <= kLines; ++line) {
    if (holds(hero, line)) lines.push_back(line);
  }
  return lines;
}

INSTANTIATE_TEST_SUITE_P(HeroFile, NumberLine, testing::ValuesIn(linesWhere([](Bohater& hero, int line) {
                           return numberOnLine(hero, line) != nullptr;
                         })));
INSTANTIATE_TEST_SUITE_P(HeroFile, FlagLine, testing::ValuesIn(linesWhere([](Bohater& hero, int line) {
                           return flagOnLine(hero, line) != nullptr;
                         })));
INSTANTIATE_TEST_SUITE_P(HeroFile, TextLine, testing::ValuesIn(linesWhere([](Bohater& hero, int line) {
                           return textOnLine(hero, line) != nullptr;
                         })));

// Line 17.

Lines withDice(const std::string& text) { return withLine(numberedLines(), kDiceLine, text); }

TEST(DiceLine, HoldsFourNumbersOnOneLine) {
  EXPECT_EQ(load(withDice(" 1  4  1  0 ")).MO, (Kostka{1, 4, 1, 0}));
  EXPECT_EQ(load(withDice("1,4,1,0")).MO, (Kostka{1, 4, 1, 0}));
}

TEST(DiceLine, AWordAmongTheFourIsZero) {
  Bohater expected = numberedHero();
  expected.MO = {1, 0, 2, 3};
  EXPECT_EQ(load(withDice(" 1  słowo  2  3 ")), expected);
}

TEST(DiceLine, ANumberBeyondAnIntegerOverflowsInEachPlace) {
  for (const char* const text : {" 32768  6  2  3 ", " 1  32768  2  3 ", " 1  6  32768  3 ", " 1  6  2  32768 "}) {
    EXPECT_EQ(failureOfLoading(withDice(text)), (Failure{6, "hero1.boh", kDiceLine})) << text;
  }
}

TEST(DiceLine, ASingleItemTakesTheThreeOthersFromTheNextLinesAndTheFileEndsTooSoon) {
  for (const char* const text : {"", "słowo", " 1 "}) {
    EXPECT_EQ(failureOfLoading(withDice(text)), (Failure{62, "hero1.boh", kLines + 1})) << text;
  }
}

// Errors name their field.

std::string errorWith(int line, const std::string& text) {
  return errorTextOf([&] { load(withLine(numberedLines(), line, text)); });
}

TEST(HeroFile, AnErrorNamesTheFieldOfItsLine) {
  const auto overflow = [](int line) { return errorWith(line, " 32768 "); };
  const std::string start = "Błąd wykonania 6: Przepełnienie\nPlik: hero1.boh\nWiersz: ";
  EXPECT_EQ(overflow(2), start + "2\nPole: Ile_jeszcze");
  EXPECT_EQ(overflow(6), start + "6\nPole: Poziomy(0)");
  EXPECT_EQ(overflow(15), start + "15\nPole: Wartosci(4)");
  EXPECT_EQ(overflow(16), start + "16\nPole: Poziomy(5)");
  EXPECT_EQ(overflow(18), start + "18\nPole: Poziomy(6)");
  EXPECT_EQ(overflow(19), start + "19\nPole: Wcielenia");
  EXPECT_EQ(overflow(21), start + "21\nPole: BronwwProc(0)");
  EXPECT_EQ(overflow(79), start + "79\nPole: BronssPlus(9)");
  EXPECT_EQ(overflow(91), start + "91\nPole: Wyp(1)");
  EXPECT_EQ(overflow(112), start + "112\nPole: Przedmioty(16)");
  EXPECT_EQ(overflow(161), start + "161\nPole: Stwory(44)");
}

// A new hero's file.

// The file as the creation screen makes it of a hero with nothing bought.
Lines createdFile(World& world) {
  world.write("makehro.cfg", {"hero1.boh", "12"});
  world.runtime.Show("CTmhero");
  world.click("CTmhero", "Save");
  return world.lines("hero1.boh");
}

TEST(HeroFile, FreshFromCreationHasFalseOnTheLineOfTheFirstCounterAndReadsAsZeroThere) {
  World world;
  EXPECT_EQ(createdFile(world).at(95), "False");
  EXPECT_EQ(world.hero("hero1.boh").Przedmioty(0), 0);
}

TEST(HeroFile, FreshFromCreationHasItsLinesInPlace) {
  World world;
  const Lines lines = createdFile(world);
  ASSERT_EQ(lines.size(), std::size_t{kLines});
  for (int line = 92; line <= 96; ++line) EXPECT_EQ(lines.at(line - 1), "False") << line;
  for (int line = 97; line <= 112; ++line) EXPECT_EQ(lines.at(line - 1), " 0 ") << line;
  EXPECT_EQ(lines.at(112), " 1 ");
  for (int line = 114; line <= 116; ++line) EXPECT_EQ(lines.at(line - 1), "") << line;
  for (int line = 117; line <= kLines; ++line) EXPECT_EQ(lines.at(line - 1), " 0 ") << line;
}

// The lines from the gear to the end, as every screen but creation writes them.
void expectGearAndCounters(const Lines& lines, const std::string& turn) {
  ASSERT_EQ(lines.size(), std::size_t{kLines});
  for (int line = 92; line <= 95; ++line) EXPECT_EQ(lines.at(line - 1), "False") << line;
  for (int line = 96; line <= 112; ++line) EXPECT_EQ(lines.at(line - 1), " 0 ") << line;
  EXPECT_EQ(lines.at(112), turn);
}

TEST(HeroFile, TheShopWritesTheFirstCounterOfANewHeroAsZeroAndKeepsTheLines) {
  World world;
  createdFile(world);
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.runtime.Show("CTsklep");
  world.roll(1, 5, {1});
  world.click("CTsklep", "w1");
  expectGearAndCounters(world.lines("hero1.boh"), " 2 ");
}

TEST(HeroFile, TheFightWritesTheFirstCounterOfANewHeroAsZeroAndKeepsTheLines) {
  World world;
  createdFile(world);
  world.write("gra.cfg", {" 1 ", "hero1.boh"});
  FightSetup fight = plainFight();
  fight.potwor.Wytrzymalosc = 0;
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  world.roll(1, 4, {1});
  world.click("Fight", "NastTura");
  expectGearAndCounters(world.lines("hero1.boh"), " 1 ");
}

TEST(HeroFile, EmptyLines114To116AreThreeEmptyTextsAndTheKillsFollow) {
  Lines lines = numberedLines();
  for (int line = 114; line <= 116; ++line) lines = withLine(lines, line, "");
  const Bohater hero = load(lines);
  EXPECT_EQ(hero.OstatniCzar, "");
  EXPECT_EQ(hero.OstatniPrzedmiot, "");
  EXPECT_EQ(hero.OstatniaBron, "");
  EXPECT_EQ(hero.Stwory(0), 117);
}

TEST(HeroFile, ANameWithACommaShiftsEveryLaterLineByOneItem) {
  const Bohater hero = load(withLine(withLine(numberedLines(), 1, "Jan, 7"), 3, "Wojownik"));
  EXPECT_EQ(hero.Imie, "Jan");
  EXPECT_EQ(hero.Ile_jeszcze, 7);
  EXPECT_EQ(hero.Klasa, "2 ");
  EXPECT_EQ(hero.AktWytrzymalosc, 0);  // The class, a word.
  EXPECT_EQ(hero.AktMoc, numberedHero().AktWytrzymalosc);
  EXPECT_EQ(hero.Tura, numberedHero().Przedmioty(16));
  EXPECT_EQ(hero.OstatniaBron, "tekst 115");
  EXPECT_EQ(hero.Stwory(0), 0);  // The last weapon's name, a word.
}

TEST(HeroFile, AFlagTrueInSmallLettersIsFalse) {
  EXPECT_FALSE(load(withLine(numberedLines(), 20, "true")).MaBronww(0));
  EXPECT_TRUE(load(withLine(numberedLines(), 20, "True")).MaBronww(0));
}

TEST(HeroFile, PolishClassNamesGoThereAndBack) {
  Bohater hero = numberedHero();
  for (const char* const klasa : {"Wiedźmin", "Złota rączka", "Zabobonny mnich zakonny"}) {
    hero.Klasa = klasa;
    EXPECT_EQ(Player_Load({"hero1.boh", saved(hero)}).Klasa, klasa);
  }
}

TEST(HeroFile, OtherItemsAreCarriedThroughEveryReadAndWrite) {
  Bohater hero = numberedHero();
  for (int i = 8; i <= 16; ++i) hero.Przedmioty(i) = 1000 + i;
  EXPECT_EQ(Player_Load({"hero1.boh", saved(hero)}), hero);
}

}  // namespace
}  // namespace brolgan::test
