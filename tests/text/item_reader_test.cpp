// Reading items from the text files.
#include "flow/text/item_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "flow/text/code_page.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

ItemReader over(const std::string& text) { return {"plik.txt", toCodePage(text)}; }

// Reads item after item until the file is past its end, which no reader may overlook.
template <class Item>
std::vector<Item> readAll(const std::string& text, Item (*read)(ItemReader&)) {
  std::vector<Item> items;
  ItemReader in = over(text);
  while (items.size() <= text.size()) {
    Item item;
    const int error = errorOf([&] { item = read(in); });
    if (error == 62) return items;
    EXPECT_EQ(error, 0);
    items.push_back(item);
  }
  ADD_FAILURE() << "the file has no end";
  return items;
}

std::vector<int> numbers(const std::string& text) {
  return readAll<int>(text, [](ItemReader& in) { return in.integer("liczba").value(); });
}

std::vector<std::string> strings(const std::string& text) {
  return readAll<std::string>(text, [](ItemReader& in) { return in.string("tekst"); });
}

using Ints = std::vector<int>;
using Texts = std::vector<std::string>;

// Numbers.

using NumberCase = std::pair<const char*, int>;
class NumberItem : public testing::TestWithParam<NumberCase> {};

TEST_P(NumberItem, ReadsAsItsValueAndTakesItsWholeLine) {
  ItemReader in = over(std::string(GetParam().first) + "\r\nkoniec\r\n");
  EXPECT_EQ(in.integer("liczba"), GetParam().second);
  EXPECT_EQ(in.string("tekst"), "koniec");
}

INSTANTIATE_TEST_SUITE_P(AsTheGameWritesThem, NumberItem,
                         testing::Values(NumberCase{" 12 ", 12}, NumberCase{"-3 ", -3}, NumberCase{" 0 ", 0},
                                         NumberCase{" 32767 ", 32767}, NumberCase{"-32768 ", -32768}));
INSTANTIATE_TEST_SUITE_P(AsPeopleWriteThem, NumberItem,
                         testing::Values(NumberCase{"12", 12}, NumberCase{"   12", 12}, NumberCase{"12   ", 12},
                                         NumberCase{"+7", 7}, NumberCase{"007", 7}, NumberCase{"12.", 12},
                                         NumberCase{"-0", 0}));
INSTANTIATE_TEST_SUITE_P(WithExponents, NumberItem,
                         testing::Values(NumberCase{"1E3", 1000}, NumberCase{"1e3", 1000}, NumberCase{"1D3", 1000},
                                         NumberCase{"1d3", 1000}, NumberCase{"1.25E+2", 125}, NumberCase{"5000D-3", 5},
                                         NumberCase{"-2E2", -200}, NumberCase{"1E-400", 0}));
INSTANTIATE_TEST_SUITE_P(FractionsAreRoundedWithTiesToEven, NumberItem,
                         testing::Values(NumberCase{"12.5", 12}, NumberCase{"13.5", 14}, NumberCase{".5", 0},
                                         NumberCase{"1.5", 2}, NumberCase{"2.5", 2}, NumberCase{"2.51", 3},
                                         NumberCase{"2.49", 2}, NumberCase{"-2.5", -2}, NumberCase{"-3.5", -4},
                                         NumberCase{"125E-1", 12}, NumberCase{"32767.4", 32767},
                                         NumberCase{"-32768.5", -32768}));
INSTANTIATE_TEST_SUITE_P(WordsAreZero, NumberItem,
                         testing::Values(NumberCase{"słowo", 0}, NumberCase{"12abc", 0}, NumberCase{"abc12", 0},
                                         NumberCase{"True", 0}, NumberCase{"False", 0}, NumberCase{"1E", 0},
                                         NumberCase{"1E+", 0}, NumberCase{"--1", 0}, NumberCase{"+-1", 0},
                                         NumberCase{"1.2.3", 0}, NumberCase{".", 0}, NumberCase{"-", 0},
                                         NumberCase{"+", 0}, NumberCase{"E5", 0}, NumberCase{"0x10", 0},
                                         NumberCase{"&H10", 0}, NumberCase{"inf", 0}, NumberCase{"nan", 0},
                                         NumberCase{"12%", 0}, NumberCase{"\"12\"", 0}));
INSTANTIATE_TEST_SUITE_P(NothingIsZero, NumberItem, testing::Values(NumberCase{"", 0}, NumberCase{"    ", 0}));

class TooLargeNumber : public testing::TestWithParam<const char*> {};

TEST_P(TooLargeNumber, OverflowsAndNamesFileLineAndField) {
  ItemReader in = over("1\r\n" + std::string(GetParam()) + "\r\n2\r\n");
  in.integer("pierwsza");
  EXPECT_EQ(errorTextOf([&] {
              in.integer({"druga", 3});
            }),
            "Błąd wykonania 6: Przepełnienie\nPlik: plik.txt\nWiersz: 2\nPole: druga(3)");
}

INSTANTIATE_TEST_SUITE_P(BeyondAnInteger, TooLargeNumber,
                         testing::Values("32768", " 32768 ", "-32769", "32767.5", "-32768.51", "1E5", "-1D5", "1E400",
                                         "-1E400", "99999999999999999999"));

TEST(NumberItems, ANumberEndsAtABlankACommaOrTheLineEnd) {
  EXPECT_EQ(numbers("1 2\r\n"), (Ints{1, 2}));
  EXPECT_EQ(numbers("1,2\r\n"), (Ints{1, 2}));
  EXPECT_EQ(numbers("1\r\n2\r\n"), (Ints{1, 2}));
}

TEST(NumberItems, FourNumbersOnOneLineAreFourItems) { EXPECT_EQ(numbers(" 1  6  2  3 \r\n"), (Ints{1, 6, 2, 3})); }

TEST(NumberItems, TheCommaIsNoDecimalSign) { EXPECT_EQ(numbers("12,5\r\n"), (Ints{12, 5})); }

TEST(NumberItems, BlanksAndOneCommaAreOneDelimiter) {
  EXPECT_EQ(numbers("1 , 2\r\n"), (Ints{1, 2}));
  EXPECT_EQ(numbers("1   ,2\r\n"), (Ints{1, 2}));
  EXPECT_EQ(numbers("1,   2\r\n"), (Ints{1, 2}));
}

TEST(NumberItems, BetweenTwoCommasStandsAnEmptyItem) { EXPECT_EQ(numbers("1,,2\r\n"), (Ints{1, 0, 2})); }

TEST(NumberItems, AnEmptyLineIsOneItem) {
  EXPECT_EQ(numbers("\r\n"), (Ints{0}));
  EXPECT_EQ(numbers("\r\n\r\n7\r\n"), (Ints{0, 0, 7}));
}

TEST(NumberItems, WhatFollowsANumberOnItsLineIsTheNextItem) {
  ItemReader in = over("12 punktów\r\n");
  EXPECT_EQ(in.integer("liczba"), 12);
  EXPECT_EQ(in.string("tekst"), "punktów");
}

TEST(NumberItems, ATextOfSeveralWordsIsAsManyItemsWhenReadAsNumbers) {
  EXPECT_EQ(numbers("Złota rączka\r\n"), (Ints{0, 0}));
  EXPECT_EQ(numbers("Zabobonny mnich zakonny\r\n"), (Ints{0, 0, 0}));
  EXPECT_EQ(numbers("Wojownik\r\n"), (Ints{0}));
}

// Ends of lines and of the file.

TEST(LineEnds, CarriageReturnWithLineFeedEitherAloneAndNoneAllEndALine) {
  EXPECT_EQ(numbers("1\r\n2\r3\n4"), (Ints{1, 2, 3, 4}));
  EXPECT_EQ(strings("a\r\nb\rc\nd"), (Texts{"a", "b", "c", "d"}));
}

TEST(LineEnds, TheBlankThatANumberLeavesBehindIsNotAnItem) { EXPECT_EQ(numbers(" 12 "), (Ints{12})); }

TEST(LineEnds, LineFeedBeforeCarriageReturnIsTwoLines) { EXPECT_EQ(strings("a\n\rb"), (Texts{"a", "", "b"})); }

TEST(LineEnds, TwoCarriageReturnsBeforeALineFeedAreTwoLines) { EXPECT_EQ(strings("a\r\r\nb"), (Texts{"a", "", "b"})); }

TEST(LineEnds, EachKindCountsAsOneLineInAnErrorMessage) {
  ItemReader in = over("1\r\n2\r3\n\r\n32768");
  for (int i = 0; i < 4; ++i) in.integer("liczba");
  EXPECT_EQ(errorTextOf([&] { in.integer("liczba"); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: plik.txt\nWiersz: 5\nPole: liczba");
}

TEST(FileEnd, AnEmptyFileHasNoItem) {
  EXPECT_EQ(numbers(""), Ints{});
  EXPECT_EQ(strings(""), Texts{});
}

TEST(FileEnd, EveryKindOfItemIsRefusedBehindTheEnd) {
  EXPECT_EQ(errorOf([] { over("").string("x"); }), 62);
  EXPECT_EQ(errorOf([] { over("").flag("x"); }), 62);
  EXPECT_EQ(errorOf([] { over("").integer("x"); }), 62);
  EXPECT_EQ(errorOf([] { over("").boolean("x"); }), 62);
  EXPECT_EQ(errorOf([] { over("").variant("x"); }), 62);
}

TEST(FileEnd, NamesTheLineBehindTheLastAndTheFieldWanted) {
  ItemReader in = over("a\r\nb\r\n");
  in.string("pierwszy");
  in.string("drugi");
  EXPECT_EQ(errorTextOf([&] {
              in.string({"trzeci", 2});
            }),
            "Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: plik.txt\nWiersz: 3\nPole: trzeci(2)");
}

TEST(FileEnd, AFileIsNotPastItsEndWhileBlanksOrALineEndAreLeft) {
  EXPECT_EQ(numbers("1\r\n "), (Ints{1, 0}));
  EXPECT_EQ(strings("a,\r\n"), (Texts{"a", ""}));
  EXPECT_EQ(strings("a,"), (Texts{"a"}));
}

// Strings.

TEST(StringItem, LosesLeadingBlanksAndKeepsTrailingOnes) {
  EXPECT_EQ(strings("   Kosiarz  \r\n"), (Texts{"Kosiarz  "}));
  EXPECT_EQ(strings("Kosiarz  "), (Texts{"Kosiarz  "}));
}

TEST(StringItem, KeepsTheBlanksInside) { EXPECT_EQ(strings("Złota  rączka\r\n"), (Texts{"Złota  rączka"})); }

TEST(StringItem, EndsAtAComma) {
  EXPECT_EQ(strings("Jan,Kowalski\r\n"), (Texts{"Jan", "Kowalski"}));
  EXPECT_EQ(strings("Jan , Kowalski\r\n"), (Texts{"Jan ", "Kowalski"}));
  EXPECT_EQ(strings("a,,b\r\n"), (Texts{"a", "", "b"}));
  EXPECT_EQ(strings(",a\r\n"), (Texts{"", "a"}));
}

TEST(StringItem, AnEmptyLineIsAnEmptyString) {
  EXPECT_EQ(strings("\r\n\r\na\r\n"), (Texts{"", "", "a"}));
  EXPECT_EQ(strings("   \r\na\r\n"), (Texts{"", "a"}));
}

TEST(StringItem, AQuotedTextLosesItsQuotesAndMayHoldCommas) {
  EXPECT_EQ(strings("\"Jan, syn Jana\"\r\nb\r\n"), (Texts{"Jan, syn Jana", "b"}));
  EXPECT_EQ(strings("  \"a\"  ,  \"b\"  \r\n"), (Texts{"a", "b"}));
  EXPECT_EQ(strings("\"\"\r\na\r\n"), (Texts{"", "a"}));
}

TEST(StringItem, AQuotedTextKeepsItsLeadingBlanks) { EXPECT_EQ(strings("\"  a  \"\r\n"), (Texts{"  a  "})); }

TEST(StringItem, AQuoteOpensAQuotedTextOnlyAsItsFirstCharacter) {
  EXPECT_EQ(strings("a\"b,c\"\r\n"), (Texts{"a\"b", "c\""}));
}

TEST(StringItem, AnUnclosedQuoteEndsWithItsLine) {
  EXPECT_EQ(strings("\"a, b\r\nc\r\n"), (Texts{"a, b", "c"}));
  EXPECT_EQ(strings("\"a"), (Texts{"a"}));
  EXPECT_EQ(strings("\""), (Texts{""}));
}

TEST(StringItem, IsReadFromTheCodePage) {
  ItemReader in("plik.txt",
                "Z\xB3ota r\xB9"
                "czka\r\n");
  EXPECT_EQ(in.string("tekst"), "Złota rączka");
}

TEST(StringItem, ANumberIsTextLikeAnyOther) { EXPECT_EQ(strings(" 12 \r\n"), (Texts{"12 "})); }

// Flags.

TEST(FlagItem, OnlyTrueToTheLetterIsSet) { EXPECT_TRUE(over("True\r\n").flag("x")); }

class UnsetFlag : public testing::TestWithParam<const char*> {};

TEST_P(UnsetFlag, IsFalseAndNoError) {
  ItemReader in = over(std::string(GetParam()) + "\r\nTrue\r\n");
  EXPECT_FALSE(in.flag("x"));
  EXPECT_TRUE(in.flag("x"));
}

INSTANTIATE_TEST_SUITE_P(Texts, UnsetFlag,
                         testing::Values("False", "true", "TRUE", "True ", "Prawda", "1", "-1", "", "#TRUE#", "Tru",
                                         "Truee", " 0 ", "32768"));

// Booleans.

using BooleanCase = std::pair<const char*, bool>;
class BooleanItem : public testing::TestWithParam<BooleanCase> {};

TEST_P(BooleanItem, ReadsAsItsTruthValue) {
  ItemReader in = over(std::string(GetParam().first) + "\r\nkoniec\r\n");
  EXPECT_EQ(in.boolean("x"), GetParam().second);
  EXPECT_EQ(in.string("x"), "koniec");
}

INSTANTIATE_TEST_SUITE_P(InAnyCase, BooleanItem,
                         testing::Values(BooleanCase{"True", true}, BooleanCase{"true", true},
                                         BooleanCase{"TRUE", true}, BooleanCase{"tRuE", true},
                                         BooleanCase{"False", false}, BooleanCase{"false", false},
                                         BooleanCase{"FALSE", false}, BooleanCase{"  True  ", true}));
INSTANTIATE_TEST_SUITE_P(BetweenSigns, BooleanItem,
                         testing::Values(BooleanCase{"#TRUE#", true}, BooleanCase{"#True#", true},
                                         BooleanCase{"#FALSE#", false}, BooleanCase{"#false#", false}));
INSTANTIATE_TEST_SUITE_P(AsNumbers, BooleanItem,
                         testing::Values(BooleanCase{" 1 ", true}, BooleanCase{"-1", true}, BooleanCase{"0", false},
                                         BooleanCase{"0.0", false}, BooleanCase{"0.25", true}, BooleanCase{"2E1", true},
                                         BooleanCase{"0E5", false}, BooleanCase{"32768", true}));

class NoBoolean : public testing::TestWithParam<const char*> {};

TEST_P(NoBoolean, IsATypeMismatch) {
  ItemReader in = over("1\r\n" + std::string(GetParam()) + "\r\n");
  in.integer("x");
  EXPECT_EQ(errorTextOf([&] { in.boolean("czary"); }),
            "Błąd wykonania 13: Niezgodność typów\nPlik: plik.txt\nWiersz: 2\nPole: czary");
}

INSTANTIATE_TEST_SUITE_P(Words, NoBoolean,
                         testing::Values("", "   ", "Prawda", "Tru", "Truee", "#TRUE", "TRUE#", "1TRUE#", "#TRUE1", "#",
                                         "##", "# TRUE#", "12abc", "\"True\"", "#1#", "NULL"));

// Untyped variables.

TEST(VariantItem, ANumberIsTakenAsItIs) {
  EXPECT_EQ(over(" 10 \r\n").variant("x"), 10);
  EXPECT_EQ(over("-1\r\n").variant("x"), -1);
  EXPECT_EQ(over("1E1\r\n").variant("x"), 10);
}

TEST(VariantItem, AFractionIsRoundedWithTiesToEven) {
  EXPECT_EQ(over("2.5\r\n").variant("x"), 2);
  EXPECT_EQ(over("3.5\r\n").variant("x"), 4);
}

TEST(VariantItem, NothingIsZero) {
  ItemReader in = over("\r\n7\r\n");
  EXPECT_EQ(in.variant("x"), 0);
  EXPECT_EQ(in.variant("x"), 7);
}

TEST(VariantItem, AWordIsATypeMismatch) {
  for (const char* const word : {"słowo", "12abc", "dziesięć broni"}) {
    EXPECT_EQ(errorOf([&] { over(word).variant("x"); }), 13) << word;
  }
}

TEST(VariantItem, TheLowestAndTheHighestIntegerAreTaken) {
  EXPECT_EQ(over("-32768\r\n").variant("x"), -32768);
  EXPECT_EQ(over(" 32767 \r\n").variant("x"), 32767);
}

TEST(VariantItem, ANumberTooLargeOverflows) {
  EXPECT_EQ(errorOf([] { over("32768\r\n").variant("x"); }), 6);
  EXPECT_EQ(errorOf([] { over("-32769\r\n").variant("x"); }), 6);
}

TEST(ItemReader, AnErrorOfTheCallerNamesTheItemReadLast) {
  ItemReader in = over("a\r\nb\r\nc\r\n");
  in.string("x");
  in.string("x");
  EXPECT_EQ(errorTextOf([&] {
              in.fail(ErrorCode::subscript, {"Gracz", 5});
            }),
            "Błąd wykonania 9: Indeks poza zakresem\nPlik: plik.txt\nWiersz: 2\nPole: Gracz(5)");
}

// Files whose bytes come piece by piece.

// Hands so many bytes at a time out, and fails behind the last when the disk is dying.
class PieceByPiece : public Source {
 public:
  PieceByPiece(std::string bytes, std::size_t piece, bool dies = false)
      : bytes_(std::move(bytes)), piece_(piece), dies_(dies) {}

  bool appendTo(std::string& bytes) override {
    if (dies_ && at_ >= bytes_.size()) throw RuntimeError(ErrorCode::deviceIo, {"plik.txt", 0, {}});
    bytes += bytes_.substr(std::min(at_, bytes_.size()), piece_);
    at_ += piece_;
    return at_ < bytes_.size() + piece_;
  }

 private:
  std::string bytes_;
  std::size_t piece_;
  bool dies_;
  std::size_t at_ = 0;
};

// What reading items of all kinds in turn comes to, each with its line.
std::string told(ItemReader in, int firstKind) {
  std::string all;
  for (int i = firstKind; i < 200; ++i) {
    std::string item;
    const std::string error = errorTextOf([&] {
      if (i % 5 == 0) item = in.string({"x", i});
      if (i % 5 == 1) item = std::to_string(in.integer({"x", i}).value());
      if (i % 5 == 2) item = in.flag({"x", i}) ? "tak" : "nie";
      if (i % 5 == 3) item = in.boolean({"x", i}) ? "tak" : "nie";
      if (i % 5 == 4) item = std::to_string(in.variant({"x", i}).value());
    });
    all += std::to_string(in.line()) + ": " + item + error + "\n";
    if (error.find(" 62:") != std::string::npos) return all;
  }
  return all + "nieskończony";
}

TEST(PiecewiseFile, HoldsTheSameItemsAsOneThatIsAllAtHand) {
  for (const std::string text :
       {"", "\r", "\n", "\r\n", "\r\r\n", "a", "a\r\n", "1 2,3\r4\n5\r\n\r\n\"a, b\"\r\n,,\r\n  \n", "a,\r\nb\r\n",
        " 12 \r\n-3 \r\nTrue\r\nFalse\r\n 1  6  2  3 \r\nKosiarz,x\r\n", "\"bez końca\r\n7", "1,2,3",
        "\r\n\r\n1\r\r"}) {
    for (int kind = 0; kind < 5; ++kind) {
      const std::string whole = told({"plik.txt", text}, kind);
      EXPECT_EQ(whole.find("nieskończony"), std::string::npos) << text;
      for (std::size_t piece = 1; piece < 8; ++piece) {
        EXPECT_EQ(told({"plik.txt", OpenFile{{}, std::make_unique<PieceByPiece>(text, piece)}}, kind), whole)
            << text << " in pieces of " << piece;
      }
    }
  }
}

TEST(PiecewiseFile, IsReadUpToTheLineWhereTheDiskDies) {
  ItemReader in("plik.txt", OpenFile{{}, std::make_unique<PieceByPiece>("a\r\n 7 \r\nb", 3, true)});
  EXPECT_EQ(in.string("tekst"), "a");
  EXPECT_EQ(in.integer("liczba"), 7);
  EXPECT_EQ(errorTextOf([&] { in.string("tekst"); }),
            "Błąd wykonania 57: Błąd wejścia/wyjścia urządzenia\nPlik: plik.txt");
}

TEST(ItemReader, EveryReadMovesOnWhateverStandsThere) {
  for (const char* const text : {" ", ",", "\"", "\r", "\n", "a", "\"\"", " ,", ", ", "\t", "#"}) {
    EXPECT_LE(numbers(text).size(), 2U) << text;
    EXPECT_LE(strings(text).size(), 2U) << text;
  }
}

}  // namespace
}  // namespace brolgan::test
