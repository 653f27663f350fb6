#include "simulation/knowledge/knowledge.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "fight/choices.h"
#include "rules/battle.h"
#include "rules/handover.h"
#include "rules/monsters.h"
#include "rules/weapons.h"

namespace brolgan::simulation {

namespace {

// The variance of one die whose extreme faces are half as likely as the others.
double dieVariance(int low, int high) {
  const int span = high - low;
  if (span == 0) return 0;
  const double middle = (low + high) / 2.0;
  double sum = 0;
  for (int face = low; face <= high; ++face) {
    const double weight = (face == low || face == high) ? 0.5 : 1.0;
    sum += weight * (face - middle) * (face - middle);
  }
  return sum / span;
}

Weapon knowWeapon(const BronRecord& record, int index, bool melee) {
  Weapon weapon;
  weapon.name = record.nazwa;
  weapon.damage = knowThrow(record.kostka);
  weapon.price = record.cena.value();
  weapon.melee = melee;
  weapon.staff = melee && index >= kFirstStaff && index <= kLastStaff;
  weapon.cannon = !melee && index == kCannon;
  weapon.fire = !melee && record.carriesFire();
  weapon.spread = !melee && record.hitsAll();
  weapon.ultimate = record.nazwa == kUltiGun;
  return weapon;
}

Monster knowMonster(const Potwor& record, int number) {
  Monster monster{record.Nazwa,           number,
                  record.Ilosc.value(),   record.Szybkosc.value(),
                  knowThrow(record.Atak), record.Wytrzymalosc.value(),
                  record.Pancerz.value(), record.Nazwa == kLastMonster};
  for (std::size_t i = 0; i < monster.points.size(); ++i) {
    monster.points[i] = reward(kClassTable[i].caption, record.Ilosc, record.Atak, record.Pancerz);
  }
  return monster;
}

}  // namespace

Throw knowThrow(const Kostka& kostka) {
  Throw known{kostka.kmin.value(), kostka.kmax.value(), kostka.kile.value(), kostka.dodatek.value()};
  known.mean = (known.low + known.high) / 2.0 * known.dice + known.plus;
  known.variance = dieVariance(known.low, known.high) * known.dice;
  return known;
}

Knowledge::Knowledge(const DataFiles& data) {
  Catalogue<11> catalogue;
  Bron_Load(ItemReader(kWeaponsFile, data.weapons), catalogue, CountReading::integer, FlagReading::text);
  for (int i = 0; i < catalogue.IleWw.value(); ++i) weapons.push_back(knowWeapon(catalogue.KatalogWw(i), i, true));
  for (int i = 0; i < catalogue.IleSs.value(); ++i) weapons.push_back(knowWeapon(catalogue.KatalogSs(i), i, false));
  Array<Potwor, 46> list;
  Potwory_Load(ItemReader(kMonstersFile, data.monsters), list);
  for (int i = 0; i < kMonsters; ++i) monsters.push_back(knowMonster(list(i), i));
}

int Knowledge::weaponNamed(const std::string& name) const {
  for (std::size_t i = 0; i < weapons.size(); ++i) {
    if (weapons[i].name == name) return static_cast<int>(i);
  }
  return -1;
}

const Monster& Knowledge::monsterNamed(const std::string& name) const {
  const auto found = std::find_if(monsters.begin(), monsters.end(), [&](const Monster& m) { return m.name == name; });
  if (found == monsters.end()) throw std::out_of_range("no monster " + name);
  return *found;
}

const Monster& Knowledge::withTheKingLast(int place) const {
  const Monster& monster = monsters.at(static_cast<std::size_t>(place));
  if (monster.last) return monsters.back();
  if (place != kMonsters - 1) return monster;
  const auto king = std::find_if(monsters.begin(), monsters.end(), [](const Monster& m) { return m.last; });
  return king == monsters.end() ? monster : *king;
}

int topStep(int statistic) { return kStatisticTable.at(static_cast<std::size_t>(statistic)).top(); }

const std::array<std::array<int, 12>, kStatistics> kLadderNumbers = [] {
  std::array<std::array<int, 12>, kStatistics> all{};
  for (int i = 0; i < kStatistics; ++i) {
    if (i == kModifier) continue;
    for (int s = 1; s <= topStep(i); ++s) all[i][s - 1] = ladderValue(static_cast<Statistic>(i), s).value();
  }
  return all;
}();

const Throw& modifierThrow(int step) {
  static const auto throws = [] {
    std::array<Throw, 5> all;
    for (int i = 0; i < 5; ++i) all[i] = knowThrow(modifierDice(i + 1));
    return all;
  }();
  return throws.at(static_cast<std::size_t>(step - 1));
}

double drawChance(const Strefa& zone, int monster) {
  const int number = monster + 1;
  if (number < zone.OdPotwora || number > zone.DoPotwora) return 0;
  const double whole = 1.0 / (zone.DoPotwora - zone.OdPotwora);
  return (number == zone.OdPotwora || number == zone.DoPotwora) ? whole / 2 : whole;
}

}  // namespace brolgan::simulation
