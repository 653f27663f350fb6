#include "tests/fight/fixture.h"

#include <algorithm>
#include <stdexcept>

#include "flow/text/number_text.h"

namespace brolgan::test {

namespace {

// Where a weapon stands in the list of the twenty, melee first.
int placeOf(const std::string& weapon) {
  const auto* const found = std::find(kWeaponNames.begin(), kWeaponNames.end(), weapon);
  if (found == kWeaponNames.end()) throw std::logic_error("no weapon " + weapon);
  return static_cast<int>(found - kWeaponNames.begin());
}

std::string number(Integer value) { return str(value) + " "; }

void addLines(std::vector<std::string>& lines, const BronRecord& weapon, bool melee) {
  lines.push_back(weapon.nazwa);
  lines.push_back(weapon.dzwiek);
  const Kostka& dice = weapon.kostka;
  for (const Integer value : {dice.kmin, dice.kmax, dice.kile, dice.dodatek}) lines.push_back(number(value));
  lines.push_back(melee ? std::string(weapon.czary ? "True" : "False") : number(weapon.ogien));
  lines.push_back(number(melee ? weapon.rezerwa : weapon.wszyscy));
  lines.push_back(number(weapon.cena));
}

}  // namespace

FightTest::FightTest() {
  hero.MO = {1, 4, 0, 0};
  fight.potwor.Atak = {1, 4, 0, 0};
  katalog.IleWw = 10;
  katalog.IleSs = 10;
  for (const std::string name : kWeaponNames) {
    weapon(name).nazwa = name;
    weapon(name).dzwiek = name + ".wav";
    deals(name, 10);
  }
  own("Miecz");
  deals("Miecz", 20000);
  players({"hero1.boh"});
}

void FightTest::TearDown() { EXPECT_EQ(world.unusedRolls(), 0U) << "a die that the script foresees was not thrown"; }

BronRecord& FightTest::weapon(const std::string& name) {
  const int place = placeOf(name);
  return place < 10 ? katalog.KatalogWw(place) : katalog.KatalogSs(place - 10);
}

void FightTest::own(const std::string& weapon) {
  const int place = placeOf(weapon);
  (place < 10 ? hero.MaBronww(place) : hero.MaBronss(place - 10)) = true;
}

void FightTest::ready(const std::string& weapon) {
  own(weapon);
  hero.OstatniaBron = weapon;
}

void FightTest::learn(const std::string& spell) {
  const std::vector<std::pair<std::string, int>> places = {{"Leczenie", 0}, {"Damage!", 1},     {"BullShots", 2},
                                                           {"BOOM!", 3},    {"Klasa III A", 6}, {"Kaczy Fart", 7}};
  if (spell == "Czar Leczniczy") {
    hero.Przedmioty(2) = std::max(hero.Przedmioty(2), Integer(1));
    return;
  }
  for (const auto& [name, place] : places) {
    if (name == spell) hero.MaCzar(place) = true;
  }
}

void FightTest::readySpell(const std::string& spell) {
  learn(spell);
  hero.OstatniCzar = spell;
}

void FightTest::pack(const std::string& item, int count) { hero.Wyp(item == "Granat" ? 0 : 1) = count; }

void FightTest::readyItem(const std::string& item, int count) {
  pack(item, count);
  hero.OstatniPrzedmiot = item;
}

void FightTest::group(int count, int life, int armour) {
  fight.potwor.Ilosc = count;
  fight.potwor.Wytrzymalosc = life;
  fight.potwor.Pancerz = armour;
}

void FightTest::players(const std::vector<std::string>& files) {
  std::vector<std::string> lines = {number(static_cast<int>(files.size()))};
  lines.insert(lines.end(), files.begin(), files.end());
  world.write("gra.cfg", lines);
  for (const std::string& file : files) world.writeHero(file, plainHero());
}

void FightTest::writeCatalogue() {
  std::vector<std::string> lines = {number(katalog.IleWw)};
  for (int i = 0; i < katalog.IleWw.value(); ++i) addLines(lines, katalog.KatalogWw(i), true);
  lines.push_back(number(katalog.IleSs));
  for (int i = 0; i < katalog.IleSs.value(); ++i) addLines(lines, katalog.KatalogSs(i), false);
  world.write("bron.cfg", lines);
}

void FightTest::writeFiles() {
  writeCatalogue();
  world.writeHero("hero1.boh", hero);
  world.writeFightFile(fight);
}

void FightTest::open() {
  writeFiles();
  world.runtime.Show("Fight");
}

void FightTest::blow(int growth) {
  world.roll(1, 120, {growth});
  EXPECT_TRUE(press("Atak"));
}

void FightTest::shot(int growth) {
  world.roll(1, 140, {growth});
  EXPECT_TRUE(press("Atak"));
}

void FightTest::fellTarget() {
  nextRound();
  choose("Miecz");
  blow();
}

void FightTest::win(int mode) {
  fellTarget();
  world.roll(1, 4, {mode});
  nextRound();
}

void FightTest::fall() {
  nextRound();
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_TRUE(press("CloseDMG"));
}

std::string FightTest::openActions() const {
  std::string names;
  for (const std::string control : {"Atak", "Rzuc", "Uzyj"}) {
    if (enabled(control)) names += (names.empty() ? "" : " ") + control;
  }
  return names;
}

}  // namespace brolgan::test
