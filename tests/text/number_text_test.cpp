// Conversions between numbers and texts.
#include "flow/text/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <tuple>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

using Rounding = std::pair<double, double>;
class Round : public testing::TestWithParam<Rounding> {};

TEST_P(Round, GoesToTheNearestWholeNumberAndTiesToTheEvenOne) {
  EXPECT_EQ(brolgan::round(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Ties, Round,
                         testing::Values(Rounding{0.5, 0}, Rounding{1.5, 2}, Rounding{2.5, 2}, Rounding{3.5, 4},
                                         Rounding{4.5, 4}, Rounding{14.5, 14}, Rounding{-0.5, 0}, Rounding{-1.5, -2},
                                         Rounding{-2.5, -2}, Rounding{-3.5, -4}, Rounding{32766.5, 32766}));
INSTANTIATE_TEST_SUITE_P(Others, Round,
                         testing::Values(Rounding{0, 0}, Rounding{7, 7}, Rounding{-7, -7}, Rounding{2.4999, 2},
                                         Rounding{2.5001, 3}, Rounding{-2.4999, -2}, Rounding{-2.5001, -3},
                                         Rounding{0.49999999999999994, 0}, Rounding{1e15 + 0.5, 1e15},
                                         Rounding{1e300, 1e300}));

// The sums of the game in IEEE doubles, operation by operation.
TEST(Round, SumsAreThoseOfDoublesInTheOrderWritten) {
  EXPECT_EQ(brolgan::round(10 * (45 / 100.0 + 1)), 14);
  EXPECT_EQ(brolgan::round(25 * (10 / 100.0 + 1) + 1), 29);
}

TEST(ToInteger, RoundsBeforeItLooksAtTheRange) {
  EXPECT_EQ(toInteger(32767.49), 32767);
  EXPECT_EQ(toInteger(-32768.5), -32768);
  EXPECT_EQ(toInteger(2.5), 2);
  EXPECT_EQ(toInteger(-3.5), -4);
}

TEST(ToInteger, OverflowsBeyondTheRange) {
  for (const double number : {32767.5, 32768.0, -32768.51, -32769.0, 1e300, -1e300}) {
    EXPECT_EQ(errorOf([&] { toInteger(number); }), 6) << number;
  }
}

TEST(ToInteger, OverflowsOnWhatIsNoNumberAtAll) {
  EXPECT_EQ(errorOf([] { toInteger(std::numeric_limits<double>::infinity()); }), 6);
  EXPECT_EQ(errorOf([] { toInteger(-std::numeric_limits<double>::infinity()); }), 6);
  EXPECT_EQ(errorOf([] { toInteger(std::nan("")); }), 6);
}

TEST(Str, LeadsWithABlankUnlessTheNumberIsNegative) {
  EXPECT_EQ(str(12), " 12");
  EXPECT_EQ(str(0), " 0");
  EXPECT_EQ(str(-3), "-3");
  EXPECT_EQ(str(32767), " 32767");
  EXPECT_EQ(str(-32768), "-32768");
}

TEST(Decimal, HasNoLeadingBlank) {
  EXPECT_EQ(decimal(Integer(12)), "12");
  EXPECT_EQ(decimal(Integer(0)), "0");
  EXPECT_EQ(decimal(Integer(-3)), "-3");
  EXPECT_EQ(decimal(std::int64_t{40000}), "40000");
  EXPECT_EQ(decimal(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Trim, CutsBlanksFromBothEndsAndNoneFromInside) {
  EXPECT_EQ(trim("  a b  "), "a b");
  EXPECT_EQ(trim("a"), "a");
  EXPECT_EQ(trim("   "), "");
  EXPECT_EQ(trim(""), "");
}

using Parsing = std::pair<const char*, double>;
class ParseNumber : public testing::TestWithParam<Parsing> {};

TEST_P(ParseNumber, ReadsTheValue) { EXPECT_EQ(parseNumber(GetParam().first), GetParam().second); }

INSTANTIATE_TEST_SUITE_P(Forms, ParseNumber,
                         testing::Values(Parsing{"12", 12}, Parsing{"-3", -3}, Parsing{"+7", 7}, Parsing{"007", 7},
                                         Parsing{"1.5", 1.5}, Parsing{".5", 0.5}, Parsing{"-.5", -0.5},
                                         Parsing{"5.", 5}, Parsing{"0", 0}, Parsing{"65536", 65536}));
INSTANTIATE_TEST_SUITE_P(Exponents, ParseNumber,
                         testing::Values(Parsing{"1E3", 1000}, Parsing{"1e3", 1000}, Parsing{"1D3", 1000},
                                         Parsing{"1d3", 1000}, Parsing{"1.25E+2", 125}, Parsing{"125D-2", 1.25},
                                         Parsing{"5.E1", 50}, Parsing{".5E1", 5}, Parsing{"-2E2", -200},
                                         Parsing{"+2E2", 200}));
INSTANTIATE_TEST_SUITE_P(Extremes, ParseNumber,
                         testing::Values(Parsing{"1E400", HUGE_VAL}, Parsing{"-1E400", -HUGE_VAL}, Parsing{"1E-400", 0},
                                         Parsing{"0E400", 0}, Parsing{"0.0E99999999999999999999", 0},
                                         Parsing{"-0E-99999999999999999999", 0},
                                         Parsing{"1D999999999999999999999", HUGE_VAL},
                                         Parsing{"1E-999999999999999999999", 0}));

TEST(ParseNumber, AVeryLongRowOfDigitsIsInfiniteAndAVeryLongFractionIsNothing) {
  EXPECT_EQ(parseNumber("1" + std::string(400, '0')), HUGE_VAL);
  EXPECT_EQ(parseNumber("-1" + std::string(400, '0')), -HUGE_VAL);
  EXPECT_EQ(parseNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(ParseNumber, LengthAndExponentAreWeighedTogether) {
  EXPECT_EQ(parseNumber("1" + std::string(400, '0') + "E-400"), 1);
  EXPECT_EQ(parseNumber("1" + std::string(800, '0') + "E-100"), HUGE_VAL);
  EXPECT_EQ(parseNumber("0." + std::string(799, '0') + "1E+100"), 0);
  EXPECT_EQ(parseNumber("1" + std::string(2400, '0') + "E-2000"), HUGE_VAL);
}

class ParseWord : public testing::TestWithParam<const char*> {};

TEST_P(ParseWord, IsNoNumber) { EXPECT_FALSE(parseNumber(GetParam()).has_value()); }

INSTANTIATE_TEST_SUITE_P(Words, ParseWord,
                         testing::Values("", " ", ".", "+", "-", "abc", "12abc", "1E", "1E+", "1D-", "E5", ".E5", "--1",
                                         "+-1", "1.2.3", "1E2.5", "1E2E3", "0x10", "&H10", "inf", "nan", "12%", "1,5",
                                         " 12", "12 ", "1 2", "True", "#TRUE#", "\"12\""));

// A locale whose decimal sign is a comma and whose thousands are parted by points.
class CommaLocale : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, TheLocaleChangesNothing) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaLocale));
  EXPECT_EQ(parseNumber("1234.5"), 1234.5);
  EXPECT_FALSE(parseNumber("12,5").has_value());
  EXPECT_EQ(decimal(Integer(12345)), "12345");
  EXPECT_EQ(str(12345), " 12345");
  std::locale::global(before);
}

TEST(WholeNumber, ReadsACaption) {
  EXPECT_EQ(wholeNumber("12"), 12);
  EXPECT_EQ(wholeNumber("-4"), -4);
  EXPECT_EQ(wholeNumber("0"), 0);
  EXPECT_EQ(wholeNumber("70000"), 70000);
}

TEST(WholeNumber, EndsWithItsCaption) { EXPECT_EQ(wholeNumber(std::string_view("1234").substr(0, 2)), 12); }

TEST(WholeNumber, EveryCaptionThatTheGameWritesReadsBack) {
  for (const int number : {-32768, -1, 0, 1, 32767}) EXPECT_EQ(wholeNumber(decimal(Integer(number))), number);
}

}  // namespace
}  // namespace brolgan::test
