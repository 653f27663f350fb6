// What the message box says of an error.
#include "game/guide/error_text.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "flow/text/runtime_error.h"

namespace brolgan::test {
namespace {

template <class Error>
std::string textOf(const Error& error) {
  return errorText(std::make_exception_ptr(error), [](const std::string& file) { return "folder of " + file; });
}

TEST(ErrorText, OfAPathSaysWhereTheFileWasLookedFor) {
  EXPECT_EQ(textOf(RuntimeError(ErrorCode::fileNotFound, {"guit\\hard2.wav", 0, {}})),
            "Błąd wykonania 53: Nie znaleziono pliku\nPlik: guit\\hard2.wav\nFolder: folder of guit\\hard2.wav");
  for (const ErrorCode code :
       {ErrorCode::deviceIo, ErrorCode::pathAccess, ErrorCode::pathNotFound, ErrorCode::invalidPicture}) {
    EXPECT_TRUE(textOf(RuntimeError(code, {"", 0, {}})).ends_with("\nFolder: folder of "));
  }
}

TEST(ErrorText, OfAnotherRunTimeErrorIsItsOwn) {
  EXPECT_EQ(textOf(RuntimeError(ErrorCode::overflow)), "Błąd wykonania 6: Przepełnienie");
  for (const ErrorCode code : {ErrorCode::overflow, ErrorCode::subscript, ErrorCode::typeMismatch, ErrorCode::pastEnd,
                               ErrorCode::noSuchControl}) {
    const RuntimeError error(code, {"gra.cfg", 3, {}});
    EXPECT_EQ(textOf(error), error.what());
  }
}

TEST(ErrorText, OfWhateverElseIsAnInternalError) {
  EXPECT_EQ(textOf(std::runtime_error("no brush")), "Błąd wewnętrzny: no brush");
  EXPECT_EQ(textOf(std::bad_alloc()), "Błąd wewnętrzny: brak pamięci");
  EXPECT_EQ(textOf(7), "Błąd wewnętrzny: nieznany");
}

}  // namespace
}  // namespace brolgan::test
