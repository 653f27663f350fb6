// What ends the program when the fight opens: files that are missing, short, overlong or broken.
#include <functional>

#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

class FightErrors : public FightTest {
 protected:
  int errorAtLoad() {
    return errorOf([this] { world.runtime.Show("Fight"); });
  }
  std::string textAtLoad() {
    return errorTextOf([this] { world.runtime.Show("Fight"); });
  }
  void replaceLine(const std::string& file, int number, const std::string& line) {
    auto lines = world.lines(file);
    lines.at(static_cast<std::size_t>(number - 1)) = line;
    world.write(file, lines);
  }
  void keepLines(const std::string& file, std::size_t count) {
    auto lines = world.lines(file);
    lines.resize(count);
    world.write(file, lines);
  }
};

class MissingFile : public FightErrors, public ::testing::WithParamInterface<const char*> {};

TEST_P(MissingFile, EndsTheProgramWithError53AndItsName) {
  writeFiles();
  world.files.contents.erase(GetParam());

  EXPECT_EQ(textAtLoad(), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: " + std::string(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Files, MissingFile, ::testing::Values("fight.cfg", "hero1.boh", "bron.cfg"),
                         [](const auto& row) {
                           const std::string name = row.param;
                           return name.substr(0, name.find('.'));
                         });

TEST_F(FightErrors, AMissingPictureIsError53) {
  world.pictures.missing.insert("szczur.jpg");
  writeFiles();

  EXPECT_EQ(textAtLoad(), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: szczur.jpg");
}

TEST_F(FightErrors, AMissingPictureIsFoundOutAfterTheSelectionsAreRestored) {
  world.pictures.missing.insert("szczur.jpg");
  ready("Nóż");
  writeFiles();
  EXPECT_EQ(errorAtLoad(), 53);

  EXPECT_EQ(text("Bron"), "Nóż");
}

TEST_F(FightErrors, APictureThatIsNoneIsError481) {
  world.pictures.broken.insert("szczur.jpg");
  writeFiles();

  EXPECT_EQ(textAtLoad(), "Błąd wykonania 481: Nieprawidłowy obrazek\nPlik: szczur.jpg");
}

TEST_F(FightErrors, AFightFileCutAfterAnyLineIsReadPastItsEnd) {
  writeFiles();
  const std::string whole = world.files.contents["fight.cfg"];
  for (std::size_t lines = 0; lines < 15; ++lines) {
    world.files.contents["fight.cfg"] = whole;
    keepLines("fight.cfg", lines);
    EXPECT_EQ(errorAtLoad(), 62) << lines << " lines";
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightErrors, ACatalogueCutAfterAnyLineIsReadPastItsEnd) {
  writeFiles();
  const std::string whole = world.files.contents["bron.cfg"];
  for (std::size_t lines = 0; lines < 182; ++lines) {
    world.files.contents["bron.cfg"] = whole;
    keepLines("bron.cfg", lines);
    EXPECT_EQ(errorAtLoad(), 62) << lines << " lines";
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightErrors, AHeroFileCutAfterAnyLineIsReadPastItsEnd) {
  writeFiles();
  const std::string whole = world.files.contents["hero1.boh"];
  for (std::size_t lines = 0; lines < 161; ++lines) {
    world.files.contents["hero1.boh"] = whole;
    keepLines("hero1.boh", lines);
    EXPECT_EQ(errorAtLoad(), 62) << lines << " lines";
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightErrors, ANumberBeyondAnIntegerOverflowsAndIsNamed) {
  writeFiles();
  replaceLine("fight.cfg", 13, " 32768 ");

  EXPECT_EQ(textAtLoad(), "Błąd wykonania 6: Przepełnienie\nPlik: fight.cfg\nWiersz: 13\nPole: Wytrzymalosc");
}

// The lines of each file that hold a number; line 17 of the hero holds four.
struct NumericLines {
  const char* file;
  std::vector<int> lines;

  friend std::ostream& operator<<(std::ostream& out, const NumericLines& row) { return out << row.file; }
};

NumericLines numericLines(const char* file, int count, const std::function<bool(int)>& isNumber) {
  NumericLines found{file, {}};
  for (int line = 1; line <= count; ++line) {
    if (isNumber(line)) found.lines.push_back(line);
  }
  return found;
}

// A weapon's name, sound and, of a melee one, flag are the words of its nine lines.
bool isCatalogueNumber(int line) {
  if (line == 1 || line == 92) return true;
  const int field = line < 92 ? (line - 2) % 9 : (line - 93) % 9;
  return field >= 2 && !(line < 92 && field == 6);
}

bool isHeroNumber(int line) {
  if (line == 1 || line == 3) return false;
  if (line >= 20 && line <= 79) return (line - 20) % 3 != 0;
  if (line >= 80 && line <= 89) return false;
  return !(line >= 92 && line <= 95) && !(line >= 114 && line <= 116);
}

class BrokenNumbers : public FightErrors, public ::testing::WithParamInterface<NumericLines> {
 protected:
  // What loading comes to with that text on each numeric line in turn.
  std::vector<int> errorsWith(const std::string& text) {
    writeFiles();
    const std::string whole = world.files.contents[GetParam().file];
    std::vector<int> errors;
    for (const int line : GetParam().lines) {
      world.files.contents[GetParam().file] = whole;
      replaceLine(GetParam().file, line, text);
      errors.push_back(errorAtLoad());
      world.runtime.Unload("Fight");
    }
    return errors;
  }
};

TEST_P(BrokenNumbers, BeyondAnIntegerOverflowOnEveryLine) {
  EXPECT_EQ(errorsWith(" 32768 "), std::vector<int>(GetParam().lines.size(), 6));
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenNumbers,
    ::testing::Values(numericLines("fight.cfg", 15, [](int line) { return line != 2 && line != 6 && line != 7; }),
                      numericLines("bron.cfg", 182, isCatalogueNumber), numericLines("hero1.boh", 161, isHeroNumber)),
    [](const auto& row) {
      const std::string name = row.param.file;
      return name.substr(0, name.find('.'));
    });

TEST_F(FightErrors, AWordOrAnEmptyLineOnAnyNumericLineOfTheFightFileIsNoError) {
  writeFiles();
  const std::string whole = world.files.contents["fight.cfg"];
  for (const int line : {1, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15}) {
    for (const std::string text : {"słowo", ""}) {
      world.files.contents["fight.cfg"] = whole;
      replaceLine("fight.cfg", line, text);
      EXPECT_EQ(errorAtLoad(), 0) << line;
      EXPECT_EQ(caption("LIle"), line == 5 ? "0" : "1");
      EXPECT_EQ(caption("Mstat(2)"), line == 5 || line == 8 ? "0" : "5");
      world.runtime.Unload("Fight");
    }
  }
}

TEST_F(FightErrors, ArmourBeyondAnIntegerOverflows) {
  hero.Wartosci(1) = 1;
  fight.BonusPancerza = 32767;
  writeFiles();

  EXPECT_EQ(errorAtLoad(), 6);
}

TEST_F(FightErrors, ACatalogueOfAHundredAndOneWeaponsOfAKindLoads) {
  katalog.IleWw = 101;
  katalog.IleSs = 101;
  open();

  EXPECT_EQ(world.rows("Fight", "Bron"), (std::vector<std::string>{"Nóż", "Miecz", "Łuk"}));
}

TEST_F(FightErrors, AHundredAndSecondWeaponIsOutsideTheArray) {
  writeFiles();
  auto lines = world.lines("bron.cfg");
  for (int i = 10; i < 102; ++i) lines.insert(lines.begin() + 91, {"x", "x", "1", "1", "1", "1", "True", "0", "0"});
  lines.front() = " 102 ";
  world.write("bron.cfg", lines);

  EXPECT_EQ(errorAtLoad(), 9);
}

struct FlagText {
  const char* text;
  int error;

  friend std::ostream& operator<<(std::ostream& out, const FlagText& flag) { return out << '"' << flag.text << '"'; }
};

class MeleeFlag : public FightErrors, public ::testing::WithParamInterface<FlagText> {};

TEST_P(MeleeFlag, IsTakenByTheRuntimesOwnConversion) {
  writeFiles();
  replaceLine("bron.cfg", 8, GetParam().text);

  EXPECT_EQ(errorAtLoad(), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(Texts, MeleeFlag,
                         ::testing::Values(FlagText{"True", 0}, FlagText{"False", 0}, FlagText{"true", 0},
                                           FlagText{"FALSE", 0}, FlagText{"#TRUE#", 0}, FlagText{"#False#", 0},
                                           FlagText{"1", 0}, FlagText{"-1", 0}, FlagText{"0", 0}, FlagText{"2.5", 0},
                                           FlagText{"", 13}, FlagText{"tak", 13}, FlagText{"Prawda", 13},
                                           FlagText{"1a", 13}));

TEST_F(FightErrors, AFlagThatIsNoneIsNamedByFileLineAndField) {
  writeFiles();
  replaceLine("bron.cfg", 8, "tak");

  EXPECT_EQ(textAtLoad(), "Błąd wykonania 13: Niezgodność typów\nPlik: bron.cfg\nWiersz: 8\nPole: czary");
}

TEST_F(FightErrors, TheFightNeverLooksAtTheMeleeFlag) {
  weapon("Nóż").czary = true;
  weapon("Laska").czary = false;
  for (const std::string name : {"Nóż", "Laska"}) {
    ready(name);
    open();
    blow();
    EXPECT_EQ(openActions(), name == "Nóż" ? "Uzyj" : "Rzuc Uzyj");
    world.runtime.Unload("Fight");
  }
}

}  // namespace
}  // namespace brolgan::test
