// Writing items into the text files.
#include "flow/text/item_writer.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "flow/text/code_page.h"
#include "flow/text/item_reader.h"
#include "tests/support/world.h"

namespace brolgan::test {
namespace {

class ItemWriting : public testing::Test {
 protected:
  // What a file holds after one writing.
  template <class Write>
  std::string written(Write write) {
    ItemWriter out(files, "plik.txt");
    write(out);
    out.close();
    return files.contents.at("plik.txt");
  }

  MemoryFiles files;
};

TEST_F(ItemWriting, ANumberHasABlankOrItsSignInFrontAndABlankBehind) {
  EXPECT_EQ(written([](ItemWriter& out) { out.integer(12); }), " 12 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.integer(-3); }), "-3 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.integer(0); }), " 0 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.integer(-32768); }), "-32768 \r\n");
}

TEST_F(ItemWriting, SeveralNumbersStandSideBySideEachInItsForm) {
  EXPECT_EQ(written([](ItemWriter& out) { out.integers({1, 6, 2, 3}); }), " 1  6  2  3 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.integers({1, -6, 2, -3}); }), " 1 -6  2 -3 \r\n");
}

TEST_F(ItemWriting, FlagsAreTrueOrFalse) {
  EXPECT_EQ(written([](ItemWriter& out) { out.flag(true); }), "True\r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.flag(false); }), "False\r\n");
}

TEST_F(ItemWriting, AStringStandsAsItIsWithNothingAdded) {
  EXPECT_EQ(written([](ItemWriter& out) { out.string("Kosiarz"); }), "Kosiarz\r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.string("  a b  "); }), "  a b  \r\n");
}

TEST_F(ItemWriting, AnEmptyStringIsAnEmptyLine) {
  EXPECT_EQ(written([](ItemWriter& out) { out.string(""); }), "\r\n");
}

TEST_F(ItemWriting, QuotesAreNeverAddedNotEvenAroundAComma) {
  EXPECT_EQ(written([](ItemWriter& out) { out.string("Jan, syn Jana"); }), "Jan, syn Jana\r\n");
}

TEST_F(ItemWriting, PolishLettersAreWrittenInTheCodePage) {
  EXPECT_EQ(written([](ItemWriter& out) { out.string("Złota rączka"); }),
            "Z\xB3ota r\xB9"
            "czka\r\n");
}

TEST_F(ItemWriting, ALetterOutsideTheCodePageIsWrittenAsAQuestionMark) {
  EXPECT_EQ(written([](ItemWriter& out) { out.string("Жук 😀"); }), "??? ?\r\n");
}

TEST_F(ItemWriting, AllPolishLettersReadBack) {
  const std::string letters = "ĄĆĘŁŃÓŚŹŻąćęłńóśźż";
  ItemReader in("plik.txt", written([&](ItemWriter& out) { out.string(letters); }));
  EXPECT_EQ(in.string("x"), letters);
}

TEST_F(ItemWriting, EveryIntegerReadsBack) {
  ItemWriter out(files, "plik.txt");
  for (int number = -32768; number <= 32767; ++number) out.integer(number);
  out.close();
  ItemReader in("plik.txt", files.read("plik.txt"));
  for (int number = -32768; number <= 32767; ++number) ASSERT_EQ(in.integer("x"), number);
}

TEST_F(ItemWriting, ASumIsRoundedWithTiesToEven) {
  EXPECT_EQ(written([](ItemWriter& out) { out.rounded(2.5, "x"); }), " 2 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.rounded(-3.5, "x"); }), "-4 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.rounded(32767.4, "x"); }), " 32767 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.rounded(-32768, "x"); }), "-32768 \r\n");
  EXPECT_EQ(written([](ItemWriter& out) { out.rounded(-32768.5, "x"); }), "-32768 \r\n");
}

TEST_F(ItemWriting, ASumBeyondAnIntegerOverflowsAndNamesTheLineThatItWasFor) {
  const auto write = [](ItemWriter& out) {
    out.string("Kosiarz");
    out.integers({1, 2});
    out.rounded(32767.5, {"Wyp", 1});
  };
  EXPECT_EQ(errorTextOf([&] { written(write); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: plik.txt\nWiersz: 3\nPole: Wyp(1)");
  EXPECT_EQ(files.contents.at("plik.txt"), "Kosiarz\r\n 1  2 \r\n");
}

TEST_F(ItemWriting, TheLowestIntegerIsWrittenAndWhatIsBelowOverflows) {
  EXPECT_EQ(errorOf([&] { written([](ItemWriter& out) { out.rounded(-32768, "x"); }); }), 0);
  EXPECT_EQ(errorOf([&] { written([](ItemWriter& out) { out.rounded(-32768.51, "x"); }); }), 6);
  EXPECT_EQ(errorOf([&] { written([](ItemWriter& out) { out.rounded(-32769, "x"); }); }), 6);
}

TEST_F(ItemWriting, LinesFollowEachOtherInOrder) {
  const auto write = [](ItemWriter& out) {
    out.string("Kosiarz");
    out.integer(12);
    out.flag(true);
  };
  EXPECT_EQ(written(write), "Kosiarz\r\n 12 \r\nTrue\r\n");
}

TEST_F(ItemWriting, OpeningAFileForOutputEmptiesItAtOnce) {
  files.contents["plik.txt"] = "stare";
  const ItemWriter out(files, "plik.txt");
  EXPECT_EQ(files.contents.at("plik.txt"), "");
}

TEST_F(ItemWriting, AFileReplacesTheLongerOneBeforeIt) {
  files.contents["plik.txt"] = "1\r\n2\r\n3\r\n";
  EXPECT_EQ(written([](ItemWriter& out) { out.string("a"); }), "a\r\n");
}

TEST_F(ItemWriting, AnErrorInTheMiddleLeavesTheLinesWrittenUntilThen) {
  files.contents["plik.txt"] = "stare";
  const auto write = [this] {
    ItemWriter out(files, "plik.txt");
    out.string("pierwszy");
    out.integer(2);
    raiseOverflow();
  };
  EXPECT_EQ(errorOf(write), 6);
  EXPECT_EQ(files.contents.at("plik.txt"), "pierwszy\r\n 2 \r\n");
}

TEST_F(ItemWriting, AFileWithoutANameCannotBeOpened) {
  EXPECT_EQ(errorTextOf([this] { const ItemWriter out(files, ""); }),
            "Błąd wykonania 75: Błąd dostępu do ścieżki lub pliku\nPlik: (pusta nazwa)");
}

// Files that take a name and then store nothing.
class FullFiles : public MemoryFiles {
 public:
  void append(const std::string& name, std::string_view) override {
    throw RuntimeError(ErrorCode::deviceIo, {name, 0, {}});
  }
};

TEST(ItemWriter, AnErrorOfTheStoreComesWhenTheFileIsClosed) {
  FullFiles files;
  ItemWriter out(files, "plik.txt");
  out.string("a");
  EXPECT_EQ(errorOf([&] { out.close(); }), 57);
}

TEST(ItemWriter, AnErrorOnItsWayIsNotHiddenByOneOfTheStore) {
  FullFiles files;
  const auto write = [&] {
    ItemWriter out(files, "plik.txt");
    out.string("a");
    raiseOverflow();
  };
  EXPECT_EQ(errorOf(write), 6);
}

}  // namespace
}  // namespace brolgan::test
