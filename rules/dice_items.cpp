#include "rules/dice_items.h"

namespace brolgan {

Kostka readDice(ItemReader& in) {
  Kostka dice;
  dice.kmin = in.integer("kmin");
  dice.kmax = in.integer("kmax");
  dice.kile = in.integer("kile");
  dice.dodatek = in.integer("dodatek");
  return dice;
}

void writeOnOneLine(ItemWriter& out, const Kostka& dice) {
  out.integers({dice.kmin, dice.kmax, dice.kile, dice.dodatek});
}

void writeOnFourLines(ItemWriter& out, const Kostka& dice) {
  for (const Integer number : {dice.kmin, dice.kmax, dice.kile, dice.dodatek}) out.integer(number);
}

}  // namespace brolgan
