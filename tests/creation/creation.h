// The creation screen under test.
#pragma once

#include <string>
#include <utility>

#include "tests/departments/screens.h"

namespace brolgan::test {

class Creation : public ::testing::Test, public Screen {
 protected:
  Creation() : Screen("CTmhero") {}

  // The control that chooses a class, by its index.
  void choose(int klasa) { press(numbered("Klasa", klasa)); }
  // Spends the four points of "Satrapa" and takes them away again.
  void owePoints() {
    choose(5);
    press("PLUS(7)", 4);
    choose(0);
  }
  [[nodiscard]] Lines saved() {
    press("Save");
    return world.lines("hero1.boh");
  }
};

// The file of a new hero of that class with nothing changed on the screen, 12 points and these
// bonuses in front of all weapons of a kind.
inline Lines newHero(const std::string& klasa, const std::string& meleePercent, const std::string& rangedPercent,
                     const std::string& plus) {
  return joined({{"Kosiarz", " 12 ", klasa, " 12 ", " 2 "},
                 {" 1 ", " 12 ", " 1 ", " 0 ", " 1 ", " 2 ", " 1 ", " 6 ", " 1 ", " 1 "},
                 {" 1 ", " 1  4  1  0 ", " 1 ", " 1 "},
                 {"True", meleePercent, plus},
                 repeated(9, {"False", meleePercent, plus}),
                 {"True", rangedPercent, plus},
                 repeated(9, {"False", rangedPercent, plus}),
                 repeated(10, {"False"}),
                 {" 0 ", " 0 "},
                 repeated(5, {"False"}),
                 repeated(16, {" 0 "}),
                 {" 1 ", "", "", ""},
                 repeated(45, {" 0 "})});
}

}  // namespace brolgan::test
