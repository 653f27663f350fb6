// The list of monsters.
#include "rules/monsters.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "flow/text/number_text.h"
#include "rules/handover.h"
#include "sheet/sheet.h"
#include "tests/rules/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

constexpr int kFieldLines = 10;

Potwor monster(int number) {
  Potwor made;
  made.Ilosc = number;
  made.Nazwa = "Potwór " + std::to_string(number);
  made.Obrazek = "obraz" + std::to_string(number) + ".jpg";
  made.Szybkosc = 100 + number;
  made.Atak = {1, 200 + number, 300 + number, -number};
  made.Wytrzymalosc = 400 + number;
  made.Pancerz = 500 + number;
  return made;
}

// The ten lines of one monster.
Lines linesOf(const Potwor& one) {
  const auto text = [](Integer number) { return str(number) + " "; };
  return {text(one.Ilosc),        one.Nazwa,           one.Obrazek,         text(one.Szybkosc),
          text(one.Atak.kmin),    text(one.Atak.kmax), text(one.Atak.kile), text(one.Atak.dodatek),
          text(one.Wytrzymalosc), text(one.Pancerz)};
}

// A list of so many monsters, with the count in front.
Lines listOf(int count) {
  Lines lines = {" " + std::to_string(count) + " "};
  for (int number = 1; number <= count; ++number) {
    for (const std::string& line : linesOf(monster(number))) lines.push_back(line);
  }
  return lines;
}

template <std::size_t Capacity>
Array<Potwor, Capacity> load(const Lines& lines) {
  Array<Potwor, Capacity> monsters;
  Potwory_Load(readerOver("monsters.cfg", lines), monsters);
  return monsters;
}

template <std::size_t Capacity>
Failure failureOfLoading(const Lines& lines) {
  return failureOf([&] { load<Capacity>(lines); });
}

// The two readers: the sheet's with 46 places and the preparation's with 101.
template <class Places>
class MonsterList : public testing::Test {
 protected:
  static constexpr std::size_t kPlaces = Places::value;
};

using Capacities = testing::Types<std::integral_constant<std::size_t, 46>, std::integral_constant<std::size_t, 101>>;
TYPED_TEST_SUITE(MonsterList, Capacities);

TYPED_TEST(MonsterList, EveryLineIsReadIntoItsField) {
  const auto monsters = load<TestFixture::kPlaces>(listOf(3));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(monsters(i), monster(i + 1));
  EXPECT_EQ(monsters(3), Potwor());
}

TYPED_TEST(MonsterList, CutAfterAnyLineIsReadPastItsEndOnTheNext) {
  const Lines lines = listOf(3);
  for (std::size_t count = 0; count < lines.size(); ++count) {
    EXPECT_EQ(failureOfLoading<TestFixture::kPlaces>(firstOf(lines, count)),
              (Failure{62, "monsters.cfg", static_cast<int>(count) + 1}));
  }
}

TYPED_TEST(MonsterList, TheGamesOwnListCutAfterAnyLineIsReadPastItsEndOnTheNext) {
  World world;
  const Lines lines = world.lines("monsters.cfg");
  for (std::size_t count = 0; count < lines.size(); ++count) {
    EXPECT_EQ(failureOfLoading<TestFixture::kPlaces>(firstOf(lines, count)),
              (Failure{62, "monsters.cfg", static_cast<int>(count) + 1}));
  }
}

TYPED_TEST(MonsterList, WithAsManyRecordsAsPlacesIsRead) {
  const int count = static_cast<int>(TestFixture::kPlaces);
  EXPECT_EQ(load<TestFixture::kPlaces>(listOf(count))(count - 1), monster(count));
}

TYPED_TEST(MonsterList, WithOneRecordMoreThanPlacesIsASubscriptError) {
  const int count = static_cast<int>(TestFixture::kPlaces) + 1;
  EXPECT_EQ(failureOfLoading<TestFixture::kPlaces>(listOf(count)).code, 9);
}

TYPED_TEST(MonsterList, AWordOrNothingAsTheCountIsAnEmptyList) {
  for (const char* const text : {"słowo", "", " 0 ", "-1 "}) {
    EXPECT_EQ(load<TestFixture::kPlaces>(withLine(listOf(3), 1, text))(0), Potwor()) << text;
  }
}

TYPED_TEST(MonsterList, ACountBeyondAnIntegerOverflows) {
  EXPECT_EQ(failureOfLoading<TestFixture::kPlaces>(withLine(listOf(3), 1, " 32768 ")), (Failure{6, "monsters.cfg", 1}));
}

TYPED_TEST(MonsterList, ACountGreaterThanTheListIsReadPastItsEnd) {
  EXPECT_EQ(failureOfLoading<TestFixture::kPlaces>(withLine(listOf(3), 1, " 4 ")), (Failure{62, "monsters.cfg", 32}));
}

TYPED_TEST(MonsterList, ACountSmallerThanTheListLeavesTheRest) {
  const auto monsters = load<TestFixture::kPlaces>(withLine(listOf(3), 1, " 2 "));
  EXPECT_EQ(monsters(1), monster(2));
  EXPECT_EQ(monsters(2), Potwor());
}

// The fields that are numbers, by their line in a record counted from 1.
Integer* numberOnLine(Potwor& one, int line) {
  switch (line) {
    case 1:
      return &one.Ilosc;
    case 4:
      return &one.Szybkosc;
    case 5:
      return &one.Atak.kmin;
    case 6:
      return &one.Atak.kmax;
    case 7:
      return &one.Atak.kile;
    case 8:
      return &one.Atak.dodatek;
    case 9:
      return &one.Wytrzymalosc;
    case 10:
      return &one.Pancerz;
    default:
      return nullptr;
  }
}

// The second record of three with one number changed, as both readers must see it.
void expectNumber(int line, const std::string& text, int number) {
  Potwor expected = monster(2);
  *numberOnLine(expected, line) = number;
  const Lines lines = withLine(listOf(3), 1 + kFieldLines + line, text);
  EXPECT_EQ(load<46>(lines)(1), expected) << line << " " << text;
  EXPECT_EQ(load<101>(lines)(1), expected) << line << " " << text;
  EXPECT_EQ(load<101>(lines)(2), monster(3)) << line << " " << text;
}

TEST(MonsterRecord, AWordAnEmptyLineAndANumberReadAsTheyShouldOnEveryNumericLine) {
  Potwor one;
  for (int line = 1; line <= kFieldLines; ++line) {
    if (numberOnLine(one, line) == nullptr) continue;
    expectNumber(line, "słowo", 0);
    expectNumber(line, "", 0);
    expectNumber(line, " 32767 ", 32767);
  }
}

TEST(MonsterRecord, ANumberBeyondAnIntegerOverflowsOnEveryNumericLine) {
  Potwor one;
  for (int line = 1; line <= kFieldLines; ++line) {
    if (numberOnLine(one, line) == nullptr) continue;
    const int fileLine = 1 + kFieldLines + line;
    const Lines lines = withLine(listOf(3), fileLine, " 32768 ");
    EXPECT_EQ(failureOfLoading<46>(lines), (Failure{6, "monsters.cfg", fileLine}));
    EXPECT_EQ(failureOfLoading<101>(lines), (Failure{6, "monsters.cfg", fileLine}));
  }
}

TEST(MonsterRecord, NameAndPictureAreTexts) {
  const Lines lines = withLine(withLine(listOf(1), 3, "\"Król, Zagłady\""), 4, "");
  EXPECT_EQ(load<46>(lines)(0).Nazwa, "Król, Zagłady");
  EXPECT_EQ(load<46>(lines)(0).Obrazek, "");
}

// The screens' readers.

void openSheet(World& world) {
  world.writeHero("hero1.boh", plainHero());
  world.write("gra.cfg", {" 1 ", "hero1.boh"});
  world.runtime.Reopen("FHero");
}

void openPreparation(World& world, const std::string& monstersFile) {
  world.writeHero("hero1.boh", plainHero());
  world.write("pref.cfg", {"hero1.boh", " 1 ", " 1 ", monstersFile});
  world.roll(1, 1, {1});
  world.runtime.Show("Prefight");
}

TEST(MonsterScreens, TheSheetReads46Records) {
  World world;
  world.write("monsters.cfg", listOf(46));
  EXPECT_EQ(errorOf([&] { openSheet(world); }), 0);
}

TEST(MonsterScreens, TheSheetEndsTheProgramAt47Records) {
  World world;
  world.write("monsters.cfg", listOf(47));
  EXPECT_EQ(errorTextOf([&] { openSheet(world); }),
            "Błąd wykonania 9: Indeks poza zakresem\nPlik: monsters.cfg\nWiersz: 461\nPole: Potwory(46)");
}

TEST(MonsterScreens, ThePreparationReads101RecordsAndEndsTheProgramAt102) {
  World world;
  world.write("inne.cfg", listOf(101));
  EXPECT_EQ(errorOf([&] { openPreparation(world, "inne.cfg"); }), 0);
  World other;
  other.write("inne.cfg", listOf(102));
  EXPECT_EQ(errorOf([&] { openPreparation(other, "inne.cfg"); }), 9);
}

TEST(MonsterScreens, ThePreparationTakesTheNameOfTheListFromItsFileAndTheSheetDoesNot) {
  World world;
  world.files.contents.erase("monsters.cfg");
  world.write("inne.cfg", listOf(3));
  openPreparation(world, "inne.cfg");
  EXPECT_EQ(world.caption("Prefight", "Moname"), "Potwór 1");
  EXPECT_EQ(errorTextOf([&] { openSheet(world); }), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: monsters.cfg");
}

TEST(MonsterScreens, MissingAtThePreparationIsAnError) {
  World world;
  world.files.contents.erase("monsters.cfg");
  EXPECT_EQ(errorTextOf([&] { openPreparation(world, "monsters.cfg"); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: monsters.cfg");
}

// The game's own list.

TEST(MonstersOfTheGame, Are45AndTheLastLineIsTheLastRecords) {
  World world;
  EXPECT_EQ(trim(world.line("monsters.cfg", 1)), "45");
  EXPECT_EQ(world.lines("monsters.cfg").size(), 451U);
}

TEST(MonstersOfTheGame, FitIntoTheFightAndHaveNamesAndPictures) {
  World world;
  const auto monsters = load<46>(world.lines("monsters.cfg"));
  for (int i = 0; i < 45; ++i) {
    EXPECT_GE(monsters(i).Ilosc, 1) << i;
    EXPECT_LE(monsters(i).Ilosc, 26) << i;
    EXPECT_FALSE(monsters(i).Nazwa.empty()) << i;
    EXPECT_FALSE(monsters(i).Obrazek.empty()) << i;
    EXPECT_GE(monsters(i).Wytrzymalosc, 1) << i;
    EXPECT_LE(monsters(i).Atak.kmin, monsters(i).Atak.kmax) << i;
  }
}

TEST(MonstersOfTheGame, HoldTheOneWhoseFallWinsTheGameAmongTheLast) {
  World world;
  const auto monsters = load<46>(world.lines("monsters.cfg"));
  int kings = 0;
  for (int i = 41; i < 45; ++i) kings += monsters(i).Nazwa == "Król Zagłady" ? 1 : 0;
  EXPECT_EQ(kings, 1);
}

}  // namespace
}  // namespace brolgan::test
