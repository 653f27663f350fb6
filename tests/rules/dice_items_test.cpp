// A dice expression in a text file.
#include "rules/dice_items.h"

#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

template <class Write>
std::string written(Write write) {
  MemoryFiles files;
  ItemWriter out(files, "plik.txt");
  write(out);
  out.close();
  return files.read("plik.txt");
}

TEST(DiceItems, StandSideBySideOnOneLine) {
  EXPECT_EQ(written([](ItemWriter& out) { writeOnOneLine(out, {1, 6, 2, 3}); }), " 1  6  2  3 \r\n");
}

TEST(DiceItems, StandBelowEachOtherOnFourLines) {
  EXPECT_EQ(written([](ItemWriter& out) { writeOnFourLines(out, {1, 6, 2, -3}); }), " 1 \r\n 6 \r\n 2 \r\n-3 \r\n");
}

TEST(DiceItems, AreReadFromOneLineOrFourAlike) {
  for (const char* const bytes : {" 1  6  2  3 \r\n", "1\r\n6\r\n2\r\n3\r\n", "1,6\r\n2 3"}) {
    ItemReader in("plik.txt", bytes);
    EXPECT_EQ(readDice(in), (Kostka{1, 6, 2, 3})) << bytes;
  }
}

TEST(DiceItems, NameTheNumberThatFails) {
  ItemReader in("plik.txt", " 1  6  32768  3 \r\n");
  EXPECT_EQ(errorTextOf([&] { readDice(in); }),
            "Błąd wykonania 6: Przepełnienie\nPlik: plik.txt\nWiersz: 1\nPole: kile");
}

}  // namespace
}  // namespace brolgan::test
