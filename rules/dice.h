// Dice: all chance of the game. The two extreme faces of a die are half as likely as the faces
// between them, and the whole balance rests on that. The order in which dice are drawn is part of
// the rules, so nothing may draw one more or one less than a rule says.
#pragma once

#include <string>

#include "flow/text/integer.h"
#include "rules/random.h"

namespace brolgan {

// A dice expression such as 2k6+3: kile dice with faces kmin to kmax, plus dodatek.
struct Kostka {
  Integer kmin;
  Integer kmax;
  Integer kile;
  Integer dodatek;

  friend bool operator==(const Kostka&, const Kostka&) = default;
};

// One die, kmin to kmax; draws one number even when both are equal.
Integer Rzut(RandomSource& random, Integer kmin, Integer kmax);

// The sum of kile dice; 0 without a draw when kile is not above 0. Raises overflow when a running
// sum leaves the range of an Integer.
Integer Rzuty(RandomSource& random, Integer kmin, Integer kmax, Integer kile);

// The sum of an expression's dice, without its dodatek.
Integer Rzuty(RandomSource& random, const Kostka& kostka);

// The text of an expression: "2k6+ 3", or " 1k 4" when dodatek is not above 0, or nothing when
// there are no dice. kmin is never shown.
std::string OpisKosci(const Kostka& kostka);

}  // namespace brolgan
