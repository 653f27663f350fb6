// The list of monsters, monsters.cfg: a count and ten lines for each. The game only reads it.
#pragma once

#include <cstddef>
#include <string>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "rules/dice.h"

namespace brolgan {

// How many monster numbers a hero's kills are counted by.
inline constexpr int kMonsterNumbers = 45;

struct Potwor {
  Integer Ilosc;
  std::string Nazwa;
  std::string Obrazek;
  Integer Szybkosc;
  Kostka Atak;
  Integer Wytrzymalosc;
  Integer Pancerz;

  friend bool operator==(const Potwor&, const Potwor&) = default;
};

// The ten lines of one monster, or the same ten items of fight.cfg.
Potwor readPotwor(ItemReader& in);

// The whole list, from the count on. Raises a subscript error when it holds more than the array has
// places.
template <std::size_t Size>
void Potwory_Load(ItemReader in, Array<Potwor, Size>& monsters) {
  const Integer count = in.integer("liczba potworów");
  for (int i = 0; i < count.value(); ++i) {
    if (i >= static_cast<int>(Size)) in.fail(ErrorCode::subscript, {"Potwory", i});
    monsters(i) = readPotwor(in);
  }
}

}  // namespace brolgan
