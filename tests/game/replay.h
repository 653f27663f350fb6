// Replays written lists of acts without a window, and compares the files of the game with stored
// ones byte for byte.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/world.h"

namespace brolgan::test {

// One act of a player: click, select, type or close, on a control of a form.
struct Act {
  std::string verb;
  std::string form;
  std::string control;
  std::string text;
};

// Acts, one a line: "click Main Start", "select Fight Bron = Nóż", "type CTmhero Imie = Zofia",
// "close CTmhero". Empty lines and lines that start with # are left out.
std::vector<Act> readActs(std::string_view lines);

// Does it as a player would; answers whether the control could be reached.
bool perform(World& world, const Act& act);

std::string describe(const Act& act);

// The weapons and monsters that stored files were made with, whatever the game's own lists become.
void useStoredLists(World& world);

// A file under tests/data.
std::string storedBytes(const std::string& path);

using Contents = std::map<std::string, std::string, std::less<>>;

// Stored states of all files: a folder under tests/data with one folder a step, which holds the
// files that the step has changed.
//
// To make the stored files anew, after a change that is meant to change them, run the test with
// the environment variable BROLGAN_WRITE_EXPECTED=1 and look at what git says has changed.
class StoredStates {
 public:
  // Begins with files that are there before the first step.
  StoredStates(std::string folder, Contents begin);

  // The files after all steps up to this one, in the order of the steps.
  [[nodiscard]] Contents after(const std::string& step) const;
  // Compares all files with the state after this step, or stores them when asked to.
  void compare(const std::string& step, const Contents& files);

  [[nodiscard]] static bool isWriting();
  // Removes what is stored, before all of it is made anew.
  void clear() const;

 private:
  [[nodiscard]] std::string path(const std::string& step) const;
  void store(const std::string& step, const Contents& files) const;
  void apply(const std::string& step, Contents& files) const;
  [[nodiscard]] std::vector<std::string> steps() const;

  std::string folder_;
  Contents begin_;
  Contents state_;
};

// The screen that stands on the title window, empty when there is none.
std::string screenOf(const World& world);

}  // namespace brolgan::test
