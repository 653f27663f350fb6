#include "rules/monsters.h"

#include "rules/dice_items.h"

namespace brolgan {

Potwor readPotwor(ItemReader& in) {
  Potwor monster;
  monster.Ilosc = in.integer("Ilosc");
  monster.Nazwa = in.string("Nazwa");
  monster.Obrazek = in.string("Obrazek");
  monster.Szybkosc = in.integer("Szybkosc");
  monster.Atak = readDice(in);
  monster.Wytrzymalosc = in.integer("Wytrzymalosc");
  monster.Pancerz = in.integer("Pancerz");
  return monster;
}

}  // namespace brolgan
