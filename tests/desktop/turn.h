// One whole turn of a game of two, as a list of deeds that can be done with the mouse, with the
// keyboard, or without any window, always to the same end.
#pragma once

#include <string>
#include <vector>

#include "tests/desktop/stage.h"

namespace brolgan::test {

enum class Doing { click, choose, write };

struct Deed {
  std::string form;
  Doing doing;
  std::string control;
  // The row to choose or the text to write.
  std::string with;
};

// From the title to the second player's shop.
std::vector<Deed> wholeTurn();

// Puts weapons and monsters on the table and all dice of the turn into the cup.
void setTurn(World& world);

void doByMouse(Stage& stage, const Deed& deed);
// Reaches the control with Tab alone and does the deed with Space or Enter, arrows and typing.
void doByKeyboard(Stage& stage, const Deed& deed);
// Does the deed without a window, through the hands of the game.
void doByHand(World& world, const Deed& deed);

}  // namespace brolgan::test
