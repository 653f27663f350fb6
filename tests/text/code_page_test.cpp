// The code page of the files.
#include "flow/text/code_page.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace brolgan::test {
namespace {

constexpr const char* kUnknown = "\uFFFD";

// The letters of the bytes 0x80 to 0xFF, sixteen a row.
constexpr std::array<const char*, 128> kLetters = {
    "€",      kUnknown, "‚", kUnknown, "„", "…", "†", "‡", kUnknown, "‰", "Š", "‹", "Ś", "Ť",      "Ž", "Ź",   // 0x80
    kUnknown, "‘",      "’", "“",      "”", "•", "–", "—", kUnknown, "™", "š", "›", "ś", "ť",      "ž", "ź",   // 0x90
    "\u00A0", "ˇ",      "˘", "Ł",      "¤", "Ą", "¦", "§", "¨",      "©", "Ş", "«", "¬", "\u00AD", "®", "Ż",   // 0xA0
    "°",      "±",      "˛", "ł",      "´", "µ", "¶", "·", "¸",      "ą", "ş", "»", "Ľ", "˝",      "ľ", "ż",   // 0xB0
    "Ŕ",      "Á",      "Â", "Ă",      "Ä", "Ĺ", "Ć", "Ç", "Č",      "É", "Ę", "Ë", "Ě", "Í",      "Î", "Ď",   // 0xC0
    "Đ",      "Ń",      "Ň", "Ó",      "Ô", "Ő", "Ö", "×", "Ř",      "Ů", "Ú", "Ű", "Ü", "Ý",      "Ţ", "ß",   // 0xD0
    "ŕ",      "á",      "â", "ă",      "ä", "ĺ", "ć", "ç", "č",      "é", "ę", "ë", "ě", "í",      "î", "ď",   // 0xE0
    "đ",      "ń",      "ň", "ó",      "ô", "ő", "ö", "÷", "ř",      "ů", "ú", "ű", "ü", "ý",      "ţ", "˙"};  // 0xF0

std::string byte(int code) { return {static_cast<char>(code)}; }

TEST(CodePage, EveryByteOfTheUpperHalfIsItsLetter) {
  for (int code = 0x80; code <= 0xFF; ++code) EXPECT_EQ(fromCodePage(byte(code)), kLetters.at(code - 0x80)) << code;
}

TEST(CodePage, EveryLetterOfTheUpperHalfIsItsByte) {
  for (int code = 0x80; code <= 0xFF; ++code) {
    const std::string letter = kLetters.at(code - 0x80);
    EXPECT_EQ(toCodePage(letter), letter == kUnknown ? "?" : byte(code)) << letter;
  }
}

TEST(CodePage, FiveBytesHaveNoLetter) {
  int without = 0;
  for (int code = 0x80; code <= 0xFF; ++code) without += fromCodePage(byte(code)) == kUnknown ? 1 : 0;
  EXPECT_EQ(without, 5);
}

TEST(CodePage, TheLowerHalfStandsAsItIs) {
  for (int code = 0; code < 0x80; ++code) {
    EXPECT_EQ(fromCodePage(byte(code)), byte(code)) << code;
    EXPECT_EQ(toCodePage(byte(code)), byte(code)) << code;
  }
}

TEST(CodePage, PolishLettersHaveTheirBytes) {
  EXPECT_EQ(toCodePage("ĄĆĘŁŃÓŚŹŻ"), "\xA5\xC6\xCA\xA3\xD1\xD3\x8C\x8F\xAF");
  EXPECT_EQ(toCodePage("ąćęłńóśźż"), "\xB9\xE6\xEA\xB3\xF1\xF3\x9C\x9F\xBF");
}

TEST(CodePage, PolishLettersGoThereAndBack) {
  const std::string text = "ĄĆĘŁŃÓŚŹŻ ąćęłńóśźż Zażółć gęślą jaźń";
  EXPECT_EQ(fromCodePage(toCodePage(text)), text);
}

TEST(CodePage, ALetterOutsideThePageBecomesAQuestionMark) {
  EXPECT_EQ(toCodePage("Ж"), "?");
  EXPECT_EQ(toCodePage("aжb→c漢d"), "a?b?c?d");
  EXPECT_EQ(toCodePage("\uFFFD"), "?");
}

TEST(CodePage, ALetterBeyondSixteenBitsIsOneQuestionMark) {
  EXPECT_EQ(toCodePage("a😀b"), "a?b");
  EXPECT_EQ(toCodePage("\U000120AC"), "?");  // Its lower sixteen bits alone would be the euro sign.
}

TEST(CodePage, CharactersOfTheControlRangeAreNotTheBytesOfTheirNumbers) {
  EXPECT_EQ(toCodePage("\xC2\x80\xC2\x81\xC2\x98"), "???");
}

TEST(CodePage, MalformedTextBecomesQuestionMarksAndNothingIsReadBehindItsEnd) {
  EXPECT_EQ(toCodePage("a\x80z"), "a?z");
  EXPECT_EQ(toCodePage("\x85\x84"), "??");
  EXPECT_EQ(toCodePage("\xC5"), "?");
  EXPECT_EQ(toCodePage("\xC5z"), "?z");
  EXPECT_EQ(toCodePage("\xF0\x9F\x98"), "?");
}

TEST(CodePage, AnEmptyTextStaysEmpty) {
  EXPECT_EQ(toCodePage(""), "");
  EXPECT_EQ(fromCodePage(""), "");
}

}  // namespace
}  // namespace brolgan::test
