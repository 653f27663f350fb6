// What holds in every game after every act of a player, whatever he does.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {

class Invariants {
 public:
  explicit Invariants(const World& world) : world_(world), begin_(world.files.contents) {}

  // Looks at the forms and files after an act; the first thing found wrong, or nothing.
  [[nodiscard]] std::string check();

 private:
  using Contents = std::map<std::string, std::string, std::less<>>;

  void checkForms();
  void checkFiles();
  void checkScreens();
  void checkHeroFiles();
  void checkHandover(const std::string& file, int lines);
  void checkOrder();
  void checkUntouchedData();
  void complain(const std::string& what);
  [[nodiscard]] std::string screen() const;

  const World& world_;
  Contents begin_;
  std::string complaint_;
  std::string screen_;
  Contents before_;
};

// How many lines a file has, each ended by carriage return and line feed; -1 when it is not made
// of such lines.
int lineCount(const std::string& bytes);

// Whether a caption holds a whole number as the game writes it.
bool isWhole(const std::string& caption);

}  // namespace brolgan::test
