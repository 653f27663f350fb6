#include "rules/dice.h"

#include "flow/text/number_text.h"

namespace brolgan {

// MEANT(half-faces): rounding gives the two extreme faces half the width of the others.
Integer Rzut(RandomSource& random, Integer kmin, Integer kmax) {
  const auto span = static_cast<float>(kmax.value() - kmin.value());
  const float x = random.next() * span + static_cast<float>(kmin.value());
  return toInteger(x);
}

Integer Rzuty(RandomSource& random, Integer kmin, Integer kmax, Integer kile) {
  Integer sum = 0;
  for (int i = 1; i <= kile.value(); ++i) sum += Rzut(random, kmin, kmax);
  return sum;
}

Integer Rzuty(RandomSource& random, const Kostka& kostka) {
  return Rzuty(random, kostka.kmin, kostka.kmax, kostka.kile);
}

// MEANT(dice-text): the two forms differ in their blanks, and a negative dodatek is not shown.
std::string OpisKosci(const Kostka& kostka) {
  if (kostka.kile <= 0) return {};
  if (kostka.dodatek > 0) {
    return decimal(kostka.kile) + "k" + decimal(kostka.kmax) + "+ " + decimal(kostka.dodatek);
  }
  return str(kostka.kile) + "k" + str(kostka.kmax);
}

}  // namespace brolgan
