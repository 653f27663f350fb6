// The hero and the text file of 161 lines in which he lives. No screen keeps a hero across a change
// of screen: it reads the whole file when it opens and writes all of it when it leaves. The parts
// of the file are read and written one by one, since some screens check or compute between them.
#pragma once

#include <array>
#include <string>

#include "flow/text/array.h"
#include "flow/text/item_reader.h"
#include "flow/text/item_writer.h"
#include "rules/consumables.h"
#include "rules/development.h"
#include "rules/dice_items.h"
#include "rules/monsters.h"
#include "rules/weapon_kind.h"

namespace brolgan {

// The ten weapon slots of a hero for one kind, a view of his fields: which he owns, and the percent
// and the flat bonus of each.
template <class Flags, class Numbers>
struct SlotsView {
  Flags& owned;
  Numbers& percent;
  Numbers& plus;
};

using Slots = SlotsView<Array<bool, kWeaponsOfAKind>, Array<Integer, kWeaponsOfAKind>>;
using ConstSlots = SlotsView<const Array<bool, kWeaponsOfAKind>, const Array<Integer, kWeaponsOfAKind>>;

struct Bohater {
  std::string Imie;
  Integer Ile_jeszcze;
  std::string Klasa;
  Integer AktWytrzymalosc;
  Integer AktMoc;
  Array<Integer, kStatistics> Poziomy;
  Array<Integer, kValues> Wartosci;
  Kostka MO;
  Integer Wcielenia;
  Array<bool, kWeaponsOfAKind> MaBronww;
  Array<Integer, kWeaponsOfAKind> BronwwProc;
  Array<Integer, kWeaponsOfAKind> BronwwPlus;
  Array<bool, kWeaponsOfAKind> MaBronss;
  Array<Integer, kWeaponsOfAKind> BronssProc;
  Array<Integer, kWeaponsOfAKind> BronssPlus;
  Array<bool, kSpells> MaCzar;
  Array<Integer, kSupplies> Wyp;
  Array<bool, kGear> MaSpec;
  Array<Integer, kCounters> Przedmioty;
  Integer Tura;
  std::string OstatniCzar;
  std::string OstatniPrzedmiot;
  std::string OstatniaBron;
  Array<Integer, kMonsterNumbers> Stwory;

  // The weapon slots of a kind; of none, the melee ones.
  [[nodiscard]] Slots slots(WeaponKind kind) { return slotsOf<Slots>(*this, kind); }
  [[nodiscard]] ConstSlots slots(WeaponKind kind) const { return slotsOf<ConstSlots>(*this, kind); }

  friend bool operator==(const Bohater&, const Bohater&) = default;

 private:
  template <class View, class Hero>
  static View slotsOf(Hero& hero, WeaponKind kind) {
    if (kind == WeaponKind::ranged) return {hero.MaBronss, hero.BronssProc, hero.BronssPlus};
    return {hero.MaBronww, hero.BronwwProc, hero.BronwwPlus};
  }
};

// The line of the file on which each step of Poziomy stood.
using StepLines = std::array<int, kStatistics>;

// Reading, part by part in file order. Raises the errors of ItemReader.
void readPerson(ItemReader& in, Bohater& hero);                        // Imie to AktMoc, lines 1 to 5
void readStatistics(ItemReader& in, Bohater& hero, StepLines& lines);  // the five pairs of step and value, to line 15
void readModifier(ItemReader& in, Bohater& hero, StepLines& lines);    // the modifier to Wcielenia, to line 19
void readWeapons(ItemReader& in, Bohater& hero);                       // the twenty weapon slots, to line 79
void readGoods(ItemReader& in, Bohater& hero);                         // spells, supplies, gear, items, to line 112
void readHistory(ItemReader& in, Bohater& hero);                       // Tura to Stwory, to line 161

// The whole file; every part above in order.
Bohater Player_Load(ItemReader in);

// Writing, the parts that more than one screen writes alike.
void writeWeapons(ItemWriter& out, const Bohater& hero);  // the twenty weapon slots
void writeItems(ItemWriter& out, const Bohater& hero);    // the seventeen Przedmioty
void writeLastChoices(ItemWriter& out, const Bohater& hero);
void writeKills(ItemWriter& out, const Bohater& hero);
template <class Flags>
void writeFlags(ItemWriter& out, const Flags& flags) {
  for (const bool flag : flags) out.flag(flag);
}

// The whole file as the record stands.
void Player_Save(ItemWriter out, const Bohater& hero);

}  // namespace brolgan
