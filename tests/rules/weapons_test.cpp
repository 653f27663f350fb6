// The weapon catalogue and its four readers.
#include "rules/weapons.h"

#include <gtest/gtest.h>

#include <string>

#include "flow/text/number_text.h"
#include "tests/rules/lines.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

constexpr int kRecordLines = 9;

// What a reader made of the catalogue, whatever its capacity.
struct Shelf {
  std::vector<BronRecord> melee;
  std::vector<BronRecord> ranged;
};

// The four screens' ways of reading.
struct Reader {
  const char* screen;
  int capacity;
  CountReading counts;
  FlagReading flags;
};

void PrintTo(const Reader& reader, std::ostream* out) { *out << reader.screen; }

template <std::size_t Capacity>
Shelf readShelf(const Lines& lines, const Reader& reader) {
  Catalogue<Capacity> catalogue;
  Bron_Load(readerOver("bron.cfg", lines), catalogue, reader.counts, reader.flags);
  Shelf shelf;
  for (int i = 0; i < catalogue.IleWw.value(); ++i) shelf.melee.push_back(catalogue.KatalogWw(i));
  for (int i = 0; i < catalogue.IleSs.value(); ++i) shelf.ranged.push_back(catalogue.KatalogSs(i));
  return shelf;
}

const std::vector<Reader> kReaders = {{"CTmhero", 11, CountReading::variant, FlagReading::text},
                                      {"CTsklep", 11, CountReading::integer, FlagReading::text},
                                      {"FHero", 11, CountReading::integer, FlagReading::text},
                                      {"Fight", 101, CountReading::integer, FlagReading::boolean}};

class WeaponReader : public testing::TestWithParam<Reader> {
 protected:
  [[nodiscard]] static bool strictCounts() { return GetParam().counts == CountReading::variant; }
  [[nodiscard]] static bool strictFlags() { return GetParam().flags == FlagReading::boolean; }

  static Shelf load(const Lines& lines) {
    return GetParam().capacity == 11 ? readShelf<11>(lines, GetParam()) : readShelf<101>(lines, GetParam());
  }
  static Failure failure(const Lines& lines) {
    return failureOf([&] { load(lines); });
  }
};

INSTANTIATE_TEST_SUITE_P(Screens, WeaponReader, testing::ValuesIn(kReaders),
                         [](const auto& each) { return each.param.screen; });

BronRecord weapon(int number) {
  BronRecord made;
  made.nazwa = "Broń " + std::to_string(number);
  made.dzwiek = "bron" + std::to_string(number) + ".wav";
  made.kostka = {1, 10 + number, 20 + number, -number};
  made.rezerwa = 30 + number;
  made.cena = 40 + number;
  return made;
}

BronRecord meleeWeapon(int number) {
  BronRecord made = weapon(number);
  made.czary = number % 2 == 1;
  return made;
}

BronRecord rangedWeapon(int number) {
  BronRecord made = weapon(100 + number);
  made.rezerwa = 0;
  made.ogien = number;
  made.wszyscy = number + 1;
  return made;
}

std::string text(Integer number) { return str(number) + " "; }

Lines linesOf(const BronRecord& one, const std::string& seventh, Integer eighth) {
  return {one.nazwa,
          one.dzwiek,
          text(one.kostka.kmin),
          text(one.kostka.kmax),
          text(one.kostka.kile),
          text(one.kostka.dodatek),
          seventh,
          text(eighth),
          text(one.cena)};
}

void add(Lines& lines, const Lines& more) { lines.insert(lines.end(), more.begin(), more.end()); }

// A catalogue of so many weapons of each kind.
Lines catalogueOf(int melee, int ranged) {
  Lines lines = {text(melee)};
  for (int i = 1; i <= melee; ++i) {
    const BronRecord one = meleeWeapon(i);
    add(lines, linesOf(one, one.czary ? "True" : "False", one.rezerwa));
  }
  lines.push_back(text(ranged));
  for (int i = 1; i <= ranged; ++i) {
    const BronRecord one = rangedWeapon(i);
    add(lines, linesOf(one, text(one.ogien), one.wszyscy));
  }
  return lines;
}

void expectSame(const BronRecord& found, const BronRecord& expected) {
  EXPECT_EQ(found.nazwa, expected.nazwa);
  EXPECT_EQ(found.dzwiek, expected.dzwiek);
  EXPECT_EQ(found.kostka, expected.kostka);
  EXPECT_EQ(found.czary, expected.czary);
  EXPECT_EQ(found.ogien, expected.ogien);
  EXPECT_EQ(found.rezerwa, expected.rezerwa);
  EXPECT_EQ(found.wszyscy, expected.wszyscy);
  EXPECT_EQ(found.cena, expected.cena);
}

void expectSame(const Shelf& found, const Shelf& expected) {
  ASSERT_EQ(found.melee.size(), expected.melee.size());
  ASSERT_EQ(found.ranged.size(), expected.ranged.size());
  for (std::size_t i = 0; i < found.melee.size(); ++i) expectSame(found.melee[i], expected.melee[i]);
  for (std::size_t i = 0; i < found.ranged.size(); ++i) expectSame(found.ranged[i], expected.ranged[i]);
}

// Two melee weapons and two ranged ones, and their lines.
Shelf fourWeapons() { return {{meleeWeapon(1), meleeWeapon(2)}, {rangedWeapon(1), rangedWeapon(2)}}; }
Lines fourLines() { return catalogueOf(2, 2); }

constexpr int kSecondMelee = 1 + kRecordLines;
constexpr int kRangedCount = 2 + 2 * kRecordLines;
constexpr int kSecondRanged = kRangedCount + kRecordLines;

TEST_P(WeaponReader, ReadsEveryLineIntoItsField) { expectSame(load(fourLines()), fourWeapons()); }

TEST_P(WeaponReader, IgnoresWhatFollowsTheLastRangedWeapon) {
  Lines lines = fourLines();
  lines.emplace_back("32768");
  expectSame(load(lines), fourWeapons());
}

TEST_P(WeaponReader, CutAfterAnyLineReadsPastItsEndOnTheNext) {
  const Lines lines = fourLines();
  for (std::size_t count = 0; count < lines.size(); ++count) {
    EXPECT_EQ(failure(firstOf(lines, count)), (Failure{62, "bron.cfg", static_cast<int>(count) + 1}));
  }
}

TEST_P(WeaponReader, TheGamesOwnCatalogueCutAfterAnyLineIsReadPastItsEndOnTheNext) {
  World world;
  const Lines lines = world.lines("bron.cfg");
  for (std::size_t count = 0; count < lines.size(); ++count) {
    EXPECT_EQ(failure(firstOf(lines, count)), (Failure{62, "bron.cfg", static_cast<int>(count) + 1}));
  }
}

TEST_P(WeaponReader, FillsItsWholeCapacity) {
  const int capacity = GetParam().capacity;
  EXPECT_EQ(load(catalogueOf(capacity, 0)).melee.size(), static_cast<std::size_t>(capacity));
  EXPECT_EQ(load(catalogueOf(0, capacity)).ranged.size(), static_cast<std::size_t>(capacity));
}

TEST_P(WeaponReader, OneWeaponMoreThanItsCapacityIsASubscriptError) {
  const int tooMany = GetParam().capacity + 1;
  EXPECT_EQ(failure(catalogueOf(tooMany, 0)).code, 9);
  EXPECT_EQ(failure(catalogueOf(0, tooMany)).code, 9);
}

TEST_P(WeaponReader, ACountOfZeroOrLessLeavesItsListEmpty) {
  EXPECT_TRUE(load(catalogueOf(0, 2)).melee.empty());
  EXPECT_TRUE(load(catalogueOf(2, 0)).ranged.empty());
  EXPECT_TRUE(load(withLine(fourLines(), kRangedCount, "-1")).ranged.empty());
}

// Counts.

TEST_P(WeaponReader, ACountBeyondAnIntegerOverflows) {
  EXPECT_EQ(failure(withLine(fourLines(), 1, " 32768 ")), (Failure{6, "bron.cfg", 1}));
  EXPECT_EQ(failure(withLine(fourLines(), kRangedCount, " 32768 ")), (Failure{6, "bron.cfg", kRangedCount}));
}

TEST_P(WeaponReader, AWordAsACountIsATypeMismatchAtCreationAndZeroElsewhere) {
  const Lines lines = withLine(fourLines(), kRangedCount, "słowo");
  if (strictCounts()) {
    EXPECT_EQ(failure(lines), (Failure{13, "bron.cfg", kRangedCount}));
  } else {
    EXPECT_TRUE(load(lines).ranged.empty());
    EXPECT_EQ(load(lines).melee.size(), 2U);
  }
}

TEST_P(WeaponReader, AWordAsTheFirstCountMakesTheFirstNameTheSecondCount) {
  const Lines lines = withLine(fourLines(), 1, "słowo");
  if (strictCounts()) {
    EXPECT_EQ(failure(lines), (Failure{13, "bron.cfg", 1}));
  } else {
    expectSame(load(lines), {});
  }
}

TEST_P(WeaponReader, AnEmptyLineAsACountIsZero) {
  EXPECT_TRUE(load(withLine(fourLines(), kRangedCount, "")).ranged.empty());
}

// The numbers of a record, by their line in it counted from 1.

Integer* numberOnLine(BronRecord& one, int line, bool melee) {
  switch (line) {
    case 3:
      return &one.kostka.kmin;
    case 4:
      return &one.kostka.kmax;
    case 5:
      return &one.kostka.kile;
    case 6:
      return &one.kostka.dodatek;
    case 7:
      return melee ? nullptr : &one.ogien;
    case 8:
      return melee ? &one.rezerwa : &one.wszyscy;
    case 9:
      return &one.cena;
    default:
      return nullptr;
  }
}

// The four weapons with one number of the second melee or the second ranged weapon changed.
Shelf changedShelf(int line, bool melee, int number) {
  Shelf shelf = fourWeapons();
  *numberOnLine(melee ? shelf.melee[1] : shelf.ranged[1], line, melee) = number;
  return shelf;
}

template <class Check>
void onEveryNumericLine(Check check) {
  BronRecord one;
  for (const bool melee : {true, false}) {
    for (int line = 1; line <= kRecordLines; ++line) {
      if (numberOnLine(one, line, melee) != nullptr) check(line, melee, (melee ? kSecondMelee : kSecondRanged) + line);
    }
  }
}

TEST_P(WeaponReader, AWordAnEmptyLineAndANumberReadAsTheyShouldOnEveryNumericLine) {
  onEveryNumericLine([](int line, bool melee, int fileLine) {
    expectSame(load(withLine(fourLines(), fileLine, "słowo")), changedShelf(line, melee, 0));
    expectSame(load(withLine(fourLines(), fileLine, "")), changedShelf(line, melee, 0));
    expectSame(load(withLine(fourLines(), fileLine, " 32767 ")), changedShelf(line, melee, 32767));
  });
}

TEST_P(WeaponReader, ANumberBeyondAnIntegerOverflowsOnEveryNumericLine) {
  onEveryNumericLine([](int, bool, int fileLine) {
    EXPECT_EQ(failure(withLine(fourLines(), fileLine, " 32768 ")), (Failure{6, "bron.cfg", fileLine}));
  });
}

// The flag.

Lines withFlag(const std::string& flag) { return withLine(fourLines(), kSecondMelee + 7, flag); }

TEST_P(WeaponReader, AFlagIsTrueToTheLetterForTheThreeAndInAnyCaseForTheFight) {
  EXPECT_TRUE(load(withFlag("True")).melee[1].czary);
  EXPECT_FALSE(load(withFlag("False")).melee[1].czary);
  for (const char* const flag : {"true", "TRUE", "#TRUE#", " 1 ", "-1", "32768"}) {
    EXPECT_EQ(load(withFlag(flag)).melee[1].czary, strictFlags()) << flag;
  }
}

TEST_P(WeaponReader, AFlagThatIsAWordIsFalseForTheThreeAndATypeMismatchForTheFight) {
  for (const char* const flag : {"słowo", "", "Prawda"}) {
    if (strictFlags()) {
      EXPECT_EQ(failure(withFlag(flag)), (Failure{13, "bron.cfg", kSecondMelee + 7})) << flag;
    } else {
      EXPECT_FALSE(load(withFlag(flag)).melee[1].czary) << flag;
    }
  }
}

// Texts.

TEST_P(WeaponReader, ANameWithACommaIsCutAndWhatFollowsIsTheSound) {
  Lines lines = withLine(fourLines(), 2, "Nóż, ostry.wav");
  lines.erase(lines.begin() + 2);
  Shelf expected = fourWeapons();
  expected.melee[0].nazwa = "Nóż";
  expected.melee[0].dzwiek = "ostry.wav";
  expectSame(load(lines), expected);
}

TEST_P(WeaponReader, ANameInQuotesMayHoldAComma) {
  EXPECT_EQ(load(withLine(fourLines(), 2, "\"Nóż, ostry\"")).melee[0].nazwa, "Nóż, ostry");
  EXPECT_EQ(load(withLine(fourLines(), kRangedCount + 1, "\"Łuk, długi\"")).ranged[0].nazwa, "Łuk, długi");
}

TEST(WeaponError, NamesFileLineAndField) {
  EXPECT_EQ(errorTextOf([] { readShelf<11>(withLine(fourLines(), 4, " 32768 "), kReaders[1]); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: bron.cfg\nWiersz: 4\nPole: kmin");
  EXPECT_EQ(errorTextOf([] { readShelf<11>(catalogueOf(12, 0), kReaders[1]); }),
            "Błąd wykonania 9: Indeks poza zakresem\nPlik: bron.cfg\nWiersz: 100\nPole: KatalogWw(11)");
}

// Each screen has its own reader.

// Opens a screen with everything it needs but the catalogue, which the test has set.
void open(World& world, const std::string& screen) {
  world.writeHero("hero1.boh", plainHero());
  world.write("makehro.cfg", {"hero1.boh", "12"});
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.write("gra.cfg", {" 1 ", "hero1.boh"});
  world.writeFightFile(plainFight());
  world.runtime.Show(screen);
}

int errorOfOpening(const std::string& screen, const Lines& catalogue) {
  World world;
  world.write("bron.cfg", catalogue);
  return errorOf([&] { open(world, screen); });
}

class WeaponScreen : public testing::TestWithParam<Reader> {};

INSTANTIATE_TEST_SUITE_P(Screens, WeaponScreen, testing::ValuesIn(kReaders),
                         [](const auto& each) { return each.param.screen; });

TEST_P(WeaponScreen, OpensWithTheTenWeaponsThatAHeroCanOwn) {
  EXPECT_EQ(errorOfOpening(GetParam().screen, catalogueOf(10, 10)), 0);
}

TEST_P(WeaponScreen, EndsTheProgramAtOneWeaponMoreThanItsCapacity) {
  const auto& [screen, capacity, counts, flags] = GetParam();
  EXPECT_EQ(errorOfOpening(screen, catalogueOf(capacity + 1, 1)), 9);
  EXPECT_EQ(errorOfOpening(screen, catalogueOf(1, capacity + 1)), 9);
}

TEST(WeaponCapacity, AnEleventhWeaponFitsCreationAndShopAndAHundredAndFirstTheFight) {
  EXPECT_EQ(errorOfOpening("CTmhero", catalogueOf(11, 11)), 0);
  EXPECT_EQ(errorOfOpening("CTsklep", catalogueOf(11, 11)), 0);
  EXPECT_EQ(errorOfOpening("Fight", catalogueOf(101, 101)), 0);
}

// The catalogue takes it; the hero's ten flags, which the sheet looks at for every weapon, do not.
TEST(WeaponCapacity, AnEleventhWeaponEndsTheProgramAtTheSheetsOwnList) {
  World world;
  world.write("bron.cfg", catalogueOf(11, 1));
  EXPECT_EQ(errorTextOf([&] { open(world, "FHero"); }), "Błąd wykonania 9: Indeks poza zakresem");
}

TEST(WeaponCapacity, ClickingAnEleventhWeaponEndsTheProgram) {
  for (const char* const screen : {"CTmhero", "CTsklep"}) {
    World world;
    world.write("bron.cfg", catalogueOf(11, 11));
    open(world, screen);
    EXPECT_EQ(errorOf([&] { world.selectRow(screen, "LBronww", 9); }), 0) << screen;
    EXPECT_EQ(errorOf([&] { world.selectRow(screen, "LBronww", 10); }), 9) << screen;
    EXPECT_EQ(errorOf([&] { world.selectRow(screen, "Lbronss", 10); }), 9) << screen;
  }
}

TEST_P(WeaponScreen, TakesAWordyFlagAsItsReaderDoes) {
  EXPECT_EQ(errorOfOpening(GetParam().screen, withFlag("Prawda")), GetParam().flags == FlagReading::boolean ? 13 : 0);
  EXPECT_EQ(errorOfOpening(GetParam().screen, withFlag("true")), 0);
}

TEST_P(WeaponScreen, TakesAWordyCountAsItsReaderDoes) {
  EXPECT_EQ(errorOfOpening(GetParam().screen, withLine(fourLines(), kRangedCount, "słowo")),
            GetParam().counts == CountReading::variant ? 13 : 0);
}

TEST_P(WeaponScreen, EndsTheProgramWithoutTheCatalogue) {
  World world;
  world.files.contents.erase("bron.cfg");
  EXPECT_EQ(errorTextOf([&] { open(world, GetParam().screen); }),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: bron.cfg");
}

// Texts about a weapon.

TEST(WeaponDescription, OfAMeleeWeaponTellsOfSpells) {
  BronRecord melee;
  EXPECT_EQ(describeWeapon(melee), "");
  melee.czary = true;
  EXPECT_EQ(describeWeapon(melee), "Można rzucać czary i atakować tą bronią. ");
}

TEST(WeaponDescription, OfARangedWeaponTellsOfFireThenOfSpread) {
  BronRecord ranged;
  EXPECT_EQ(describeWeapon(ranged), "");
  ranged.ogien = 1;
  EXPECT_EQ(describeWeapon(ranged), "Przenoszenie ognia. ");
  ranged.wszyscy = 2;
  EXPECT_EQ(describeWeapon(ranged), "Przenoszenie ognia. Zadaje wszystkim przeciwnikom. ");
  ranged.ogien = 0;
  EXPECT_EQ(describeWeapon(ranged), "Zadaje wszystkim przeciwnikom. ");
}

TEST(WeaponDescription, OtherValuesOfFireAndSpreadAddNothing) {
  for (const int value : {-1, 0, 3, 32767}) {
    BronRecord ranged;
    ranged.ogien = value;
    ranged.wszyscy = value;
    EXPECT_EQ(describeWeapon(ranged), "") << value;
  }
  BronRecord swapped;
  swapped.ogien = 2;
  swapped.wszyscy = 1;
  EXPECT_EQ(describeWeapon(swapped), "");
}

TEST(WeaponDescription, OnlyCreationWarnsOfUltiGun) {
  World world;
  open(world, "CTmhero");
  world.select("CTmhero", "Lbronss", "UltiGun");
  EXPECT_TRUE(world.caption("CTmhero", "BSopis").ends_with("10 % szans na utratę 1 wytrzymałości na stałe"));
  open(world, "CTsklep");
  world.select("CTsklep", "Lbronss", "UltiGun");
  EXPECT_EQ(world.caption("CTsklep", "BSopis").find("10 %"), std::string::npos);
}

TEST(WeaponDescription, TheFlagTrueInSmallLettersMakesNoTextOnTheTwoBuyingScreens) {
  for (const char* const screen : {"CTmhero", "CTsklep"}) {
    World world;
    world.write("bron.cfg", withFlag("true"));
    open(world, screen);
    world.selectRow(screen, "LBronww", 1);
    EXPECT_EQ(world.caption(screen, "BWnazwa"), "Broń 2") << screen;
    EXPECT_EQ(world.caption(screen, "BWopis"), "") << screen;
    world.selectRow(screen, "LBronww", 0);
    EXPECT_EQ(world.caption(screen, "BWopis"), "Można rzucać czary i atakować tą bronią. ") << screen;
  }
}

// A catalogue of one melee weapon with these dice and one ranged weapon.
Lines withDice(const Kostka& dice) {
  Lines lines = catalogueOf(10, 10);
  const auto put = [&lines](int line, Integer number) { lines = withLine(lines, line, text(number)); };
  lines = withLine(lines, 2, "Nóż");
  put(4, dice.kmin);
  put(5, dice.kmax);
  put(6, dice.kile);
  put(7, dice.dodatek);
  return lines;
}

TEST(WeaponDice, NoDiceShowAnEmptyTextAndRollNothingButTheAddition) {
  World world;
  world.write("bron.cfg", withDice({1, 6, 0, 5}));
  open(world, "CTmhero");
  world.select("CTmhero", "LBronww", "Nóż");
  EXPECT_EQ(world.caption("CTmhero", "BWdmg"), "");
  open(world, "Fight");
  world.select("Fight", "Bron", "Nóż");
  world.roll(1, 4, {2});
  world.roll(1, 120, {60});
  world.click("Fight", "Atak");
  EXPECT_EQ(world.unusedRolls(), 0U);
  EXPECT_EQ(world.caption("Fight", "Mstat(0)"), "13");  // 20 less the strength of 2 and the addition of 5.
}

TEST(WeaponDice, AnAdditionOfZeroIsShownWithoutThePlus) {
  World world;
  world.write("bron.cfg", withDice({1, 6, 2, 0}));
  open(world, "CTmhero");
  world.select("CTmhero", "LBronww", "Nóż");
  EXPECT_EQ(world.caption("CTmhero", "BWdmg"), " 2k 6");
}

TEST(WeaponNames, TwoOfOneNameAreNotToldApartAClickFindsTheFirst) {
  World world;
  Lines lines = withLine(catalogueOf(3, 0), 2 + 2 * kRecordLines, "Broń 2");
  lines = withLine(lines, 1 + kRecordLines * 2, " 3 ");   // The second costs 3,
  lines = withLine(lines, 1 + kRecordLines * 3, " 11 ");  // the third, now of the same name, 11.
  world.write("bron.cfg", lines);
  open(world, "CTmhero");
  world.selectRow("CTmhero", "LBronww", 2);
  EXPECT_EQ(world.caption("CTmhero", "BWcena"), "3");
  world.click("CTmhero", "Kupww");
  EXPECT_EQ(world.caption("CTmhero", "Ile_jeszcze"), "9");
  world.click("CTmhero", "Save");
  EXPECT_TRUE(world.hero("hero1.boh").MaBronww(1));
  EXPECT_FALSE(world.hero("hero1.boh").MaBronww(2));
}

// The game's own catalogue.

TEST(WeaponsOfTheGame, AreTheTwentyInTheirOrder) {
  const std::vector<std::string> melee = {"Nóż",   "Okuty kij", "Laska",           "Magustaffi",      "Rózgacz",
                                          "Tasak", "Miecz",     "Kordelas Chaosu", "Rysik Ślusarski", "Oczożłop"};
  const std::vector<std::string> ranged = {"Łuk",    "Pistolet",   "Strzelba",        "Karabin",       "Działo",
                                           "Marker", "MultiBleed", "Intrusion Rifle", "Reaper Cannon", "UltiGun"};
  World world;
  const Shelf shelf = readShelf<11>(world.lines("bron.cfg"), kReaders[1]);
  ASSERT_EQ(shelf.melee.size(), 10U);
  ASSERT_EQ(shelf.ranged.size(), 10U);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(shelf.melee[i].nazwa, melee[i]);
    EXPECT_EQ(shelf.ranged[i].nazwa, ranged[i]);
    EXPECT_EQ(kWeaponNames[i], melee[i]);
    EXPECT_EQ(kWeaponNames[10 + i], ranged[i]);
  }
}

TEST(WeaponsOfTheGame, TellOfSpellsOnMeleeOneToFourAlone) {
  World world;
  const Shelf shelf = readShelf<101>(world.lines("bron.cfg"), kReaders[3]);
  for (std::size_t i = 0; i < 10; ++i) EXPECT_EQ(shelf.melee[i].czary, i >= 1 && i <= 4) << i;
}

TEST(WeaponsOfTheGame, HaveSoundsAndPrices) {
  World world;
  const Shelf shelf = readShelf<11>(world.lines("bron.cfg"), kReaders[1]);
  for (const auto& list : {shelf.melee, shelf.ranged}) {
    for (const BronRecord& one : list) {
      EXPECT_FALSE(one.dzwiek.empty()) << one.nazwa;
      EXPECT_GE(one.cena, 0) << one.nazwa;
      EXPECT_LE(one.kostka.kmin, one.kostka.kmax) << one.nazwa;
    }
  }
}

}  // namespace
}  // namespace brolgan::test
