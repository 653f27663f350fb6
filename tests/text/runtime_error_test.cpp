// What the message box says when an error ends the program.
#include "flow/text/runtime_error.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "flow/text/integer.h"
#include "flow/text/item_reader.h"

namespace brolgan::test {
namespace {

using Wording = std::pair<ErrorCode, const char*>;
class RuntimeErrorText : public testing::TestWithParam<Wording> {};

TEST_P(RuntimeErrorText, NamesNumberAndWording) {
  EXPECT_STREQ(RuntimeError(GetParam().first).what(), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Codes, RuntimeErrorText,
    testing::Values(
        Wording{ErrorCode::overflow, "Błąd wykonania 6: Przepełnienie"},
        Wording{ErrorCode::subscript, "Błąd wykonania 9: Indeks poza zakresem"},
        Wording{ErrorCode::typeMismatch, "Błąd wykonania 13: Niezgodność typów"},
        Wording{ErrorCode::fileNotFound, "Błąd wykonania 53: Nie znaleziono pliku"},
        Wording{ErrorCode::deviceIo, "Błąd wykonania 57: Błąd wejścia/wyjścia urządzenia"},
        Wording{ErrorCode::pastEnd, "Błąd wykonania 62: Odczyt poza końcem pliku"},
        Wording{ErrorCode::pathAccess, "Błąd wykonania 75: Błąd dostępu do ścieżki lub pliku\nPlik: (pusta nazwa)"},
        Wording{ErrorCode::pathNotFound, "Błąd wykonania 76: Nie znaleziono ścieżki"},
        Wording{ErrorCode::noSuchControl, "Błąd wykonania 340: Nie istnieje taki element tablicy formantów"},
        Wording{ErrorCode::invalidPicture, "Błąd wykonania 481: Nieprawidłowy obrazek"}));

TEST(RuntimeError, NamesFileLineAndFieldEachOnALineOfItsOwn) {
  const RuntimeError error(ErrorCode::pastEnd, {"hero1.boh", 7, "Poziomy(0)"});
  EXPECT_STREQ(error.what(),
               "Błąd wykonania 62: Odczyt poza końcem pliku\nPlik: hero1.boh\nWiersz: 7\nPole: Poziomy(0)");
  EXPECT_EQ(error.code(), ErrorCode::pastEnd);
  EXPECT_EQ(error.place().file, "hero1.boh");
  EXPECT_EQ(error.place().line, 7);
  EXPECT_EQ(error.place().field, "Poziomy(0)");
}

TEST(RuntimeError, LeavesOutWhatIsNotKnown) {
  EXPECT_STREQ(RuntimeError(ErrorCode::fileNotFound, {"bron.cfg", 0, {}}).what(),
               "Błąd wykonania 53: Nie znaleziono pliku\nPlik: bron.cfg");
  EXPECT_STREQ(RuntimeError(ErrorCode::subscript, {{}, 0, "Gracz(5)"}).what(),
               "Błąd wykonania 9: Indeks poza zakresem\nPole: Gracz(5)");
}

TEST(RuntimeError, AnUnknownCodeStillHasAText) {
  EXPECT_STREQ(RuntimeError(static_cast<ErrorCode>(5)).what(), "Błąd wykonania 5: Nieznany błąd");
}

TEST(RuntimeError, AnOverflowOutsideAnyFileNamesNoPlace) {
  try {
    raiseOverflow();
  } catch (const RuntimeError& error) {
    EXPECT_STREQ(error.what(), "Błąd wykonania 6: Przepełnienie");
  }
}

TEST(Field, IsNamedWithItsIndexWhenItIsOneOfMany) {
  EXPECT_EQ(Field("Imie").text(), "Imie");
  EXPECT_EQ(Field("Poziomy", 0).text(), "Poziomy(0)");
  EXPECT_EQ(Field("Stwory", 44).text(), "Stwory(44)");
}

}  // namespace
}  // namespace brolgan::test
