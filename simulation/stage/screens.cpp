#include "simulation/stage/screens.h"

#include <stdexcept>
#include <utility>

#include "creation/creation.h"
#include "fight/fight.h"
#include "flow/setup.h"
#include "flow/text/number_text.h"
#include "game/names/names.h"
#include "preparation/preparation.h"
#include "shop/shop.h"

namespace brolgan::simulation {

namespace {

std::size_t placeOf(const ControlTable& table, const std::string& fullName) {
  const auto& entries = table.entries();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].fullName() == fullName) return i;
  }
  throw std::out_of_range("no control " + fullName);
}

template <std::size_t Size>
std::array<std::size_t, Size> members(const ControlTable& table, const char* name) {
  std::array<std::size_t, Size> places{};
  for (std::size_t i = 0; i < Size; ++i) places[i] = placeOf(table, member(name, static_cast<int>(i)));
  return places;
}

}  // namespace

Screen::Screen(Runtime& runtime, const char* formName)
    : runtime_(runtime), name_(formName), form_(runtime.find(formName)) {
  if (form_ == nullptr) throw std::logic_error(std::string("not open: ") + formName);
}

int Screen::number(std::size_t place) const { return static_cast<int>(wholeNumber(label(place).Caption)); }

bool Screen::pick(std::size_t place, const std::string& text) {
  const ComboBox& list = combo(place);
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) == text) return pick(place, row);
  }
  return false;
}

SetUpScreen::SetUpScreen(Runtime& runtime) : Screen(runtime, Main::kName) {}

void SetUpScreen::setPoints(int points) { write(placeOf(table(), "ile_punktow"), std::to_string(points)); }

void SetUpScreen::create(int player) { press(placeOf(table(), member("gracz", player))); }

void SetUpScreen::start() { press(placeOf(table(), "Start")); }

struct DepartmentScreen::Places {
  std::size_t points;
  std::size_t name;
  std::size_t statistics;
  std::size_t weapons;
  std::size_t spells;
  std::array<std::array<std::size_t, 12>, kStatistics> ladders;
  std::array<std::size_t, 9> plus;
  std::size_t melee;
  std::size_t ranged;
  std::size_t buyMelee;
  std::size_t buyRanged;
  std::array<std::size_t, kSpells> spell;
  std::array<std::size_t, kGear> gear;
  std::array<std::size_t, kSupplies> supply;
  // Of the creation screen alone.
  std::array<std::size_t, kClasses> klasa;
  std::size_t sellMelee;
  std::size_t sellRanged;
  std::size_t save;
  // Of the shop alone.
  std::size_t turn;
  std::array<std::size_t, 3> present;
  std::array<std::size_t, kZoneCount> zones;
};

DepartmentScreen::Places DepartmentScreen::departments(const ControlTable& table) {
  Places places{};
  places.points = placeOf(table, "Ile_jeszcze");
  places.name = placeOf(table, "Imie");
  places.statistics = placeOf(table, "fstat");
  places.weapons = placeOf(table, "fbron");
  places.spells = placeOf(table, "fczar");
  for (int i = 0; i < kStatistics; ++i) {
    const std::string name = "stat" + std::to_string(i + 1);
    for (int step = 0; step < topStep(i); ++step) places.ladders[i][step] = placeOf(table, member(name.c_str(), step));
  }
  for (int i = 0; i < 9; ++i) {
    if (i != kLives) places.plus[i] = placeOf(table, member("PLUS", i));
  }
  places.melee = placeOf(table, "LBronww");
  places.ranged = placeOf(table, "Lbronss");
  places.buyMelee = placeOf(table, "Kupww");
  places.buyRanged = placeOf(table, "Kupss");
  places.spell = members<kSpells>(table, "Czarn");
  places.gear = members<kGear>(table, "Spec");
  places.supply = members<kSupplies>(table, "wyp");
  return places;
}

int DepartmentScreen::points() const { return number(places_.points); }

bool DepartmentScreen::statisticsOpen() const { return reachable(places_.statistics); }

bool DepartmentScreen::weaponsOpen() const { return reachable(places_.weapons); }

bool DepartmentScreen::spellsOpen() const { return reachable(places_.spells); }

void DepartmentScreen::plus(int statistic) { press(places_.plus[static_cast<std::size_t>(statistic)]); }

void DepartmentScreen::buyWeapon(int weapon) {
  const bool melee = weapon < kMelees;
  pick(melee ? places_.melee : places_.ranged, melee ? weapon : weapon - kMelees);
  press(melee ? places_.buyMelee : places_.buyRanged);
}

void DepartmentScreen::buySpell(int spell) { press(places_.spell[static_cast<std::size_t>(spell)]); }

void DepartmentScreen::buyGear(int gear) { press(places_.gear[static_cast<std::size_t>(gear)]); }

void DepartmentScreen::buySupply(int supply) { press(places_.plus[static_cast<std::size_t>(kStatistics + supply)]); }

const DepartmentScreen::Places& CreationScreen::places(Runtime& runtime) {
  static const Places found = [&runtime] {
    const ControlTable& table = runtime.find(CTmhero::kName)->controls();
    Places all = departments(table);
    all.plus[kLives] = placeOf(table, member("PLUS", kLives));
    all.klasa = members<kClasses>(table, "Klasa");
    all.sellMelee = placeOf(table, "Sprzedajww");
    all.sellRanged = placeOf(table, "Sprzedajss");
    all.save = placeOf(table, "Save");
    return all;
  }();
  return found;
}

CreationScreen::CreationScreen(Runtime& runtime) : DepartmentScreen(runtime, CTmhero::kName, places(runtime)) {}

void CreationScreen::setName(const std::string& name) { write(places_.name, name); }

void CreationScreen::chooseClass(int klasa) { press(places_.klasa[static_cast<std::size_t>(klasa)]); }

void CreationScreen::sellWeapon(int weapon) {
  const bool melee = weapon < kMelees;
  pick(melee ? places_.melee : places_.ranged, melee ? weapon : weapon - kMelees);
  press(melee ? places_.sellMelee : places_.sellRanged);
}

void CreationScreen::save() { press(places_.save); }

const DepartmentScreen::Places& ShopScreen::places(Runtime& runtime) {
  static const Places found = [&runtime] {
    const ControlTable& table = runtime.find(CTsklep::kName)->controls();
    Places all = departments(table);
    all.turn = placeOf(table, "Tura");
    all.present = members<3>(table, "akt");
    for (int i = 0; i < kZoneCount; ++i) all.zones[i] = placeOf(table, "w" + std::to_string(i + 1));
    return all;
  }();
  return found;
}

ShopScreen::ShopScreen(Runtime& runtime) : DepartmentScreen(runtime, CTsklep::kName, places(runtime)) {}

const std::string& ShopScreen::heroName() const { return std::get<TextBox*>(at(places_.name).control)->Text; }

int ShopScreen::turn() const { return number(places_.turn); }

void ShopScreen::read(HeroNotes& notes) const {
  notes.points = points();
  notes.endurance = number(places_.present[0]);
  notes.magic = number(places_.present[1]);
  notes.lives = number(places_.present[2]);
  for (int i = 0; i < kStatistics; ++i) {
    for (int step = 0; step < topStep(i); ++step) {
      if (label(places_.ladders[i][step]).ForeColor == Colour::red) notes.steps[i] = step + 1;
    }
  }
  for (int i = 0; i < kSpells; ++i) notes.spells[i] = label(places_.spell[i]).ForeColor == Colour::red;
  notes.mortar = label(places_.gear[kMortar]).ForeColor == Colour::red;
  notes.sucker = label(places_.gear[kSucker]).ForeColor == Colour::red;
  notes.grenades = number(places_.supply[kGrenade]);
  notes.ammo = number(places_.supply[kAmmo]);
}

void ShopScreen::goTo(int zone) { press(places_.zones[static_cast<std::size_t>(zone)]); }

namespace {

struct PreparationPlaces {
  std::size_t monster, initiative, endurance, magic, spells, cast, finish;
};

const PreparationPlaces& preparationPlaces(const ControlTable& table) {
  static const PreparationPlaces found = {placeOf(table, "Moname"), placeOf(table, "Inic"),  placeOf(table, "cur(0)"),
                                          placeOf(table, "cur(1)"), placeOf(table, "Czary"), placeOf(table, "Rzuc"),
                                          placeOf(table, "Zakoncz")};
  return found;
}

struct FightPlaces {
  std::size_t weapon, attack, spell, magic, cast, item, use, next, figures, report, wound, woundText, closeWound,
      warning, endurance, ownArmour, power, damage, life, armour;
};

const FightPlaces& fightPlaces(const ControlTable& table) {
  const auto at = [&table](const char* name) { return placeOf(table, name); };
  static const FightPlaces found = {at("Bron"),      at("Atak"),     at("Czar"),     at("mana"),     at("Rzuc"),
                                    at("Przedmiot"), at("Uzyj"),     at("NastTura"), at("IleZad"),   at("OpisZad"),
                                    at("FDamage"),   at("OpisDMG"),  at("CloseDMG"), at("Uwaga"),    at("Pstat(0)"),
                                    at("Pstat(1)"),  at("Pstat(2)"), at("Pstat(3)"), at("Mstat(0)"), at("Mstat(1)")};
  return found;
}

}  // namespace

PreparationScreen::PreparationScreen(Runtime& runtime) : Screen(runtime, Prefight::kName) {}

const std::string& PreparationScreen::monsterName() const { return label(preparationPlaces(table()).monster).Caption; }

int PreparationScreen::initiative() const { return number(preparationPlaces(table()).initiative); }

int PreparationScreen::endurance() const { return number(preparationPlaces(table()).endurance); }

int PreparationScreen::magic() const { return number(preparationPlaces(table()).magic); }

bool PreparationScreen::cast(const char* spell) {
  const PreparationPlaces& places = preparationPlaces(table());
  return pick(places.spells, spell) && press(places.cast);
}

void PreparationScreen::finish() { press(preparationPlaces(table()).finish); }

FightScreen::FightScreen(Runtime& runtime) : Screen(runtime, Fight::kName) {}

int FightScreen::endurance() const { return number(fightPlaces(table()).endurance); }

int FightScreen::armour() const { return number(fightPlaces(table()).ownArmour); }

int FightScreen::magic() const { return number(fightPlaces(table()).power); }

int FightScreen::targetLife() const { return number(fightPlaces(table()).life); }

int FightScreen::targetArmour() const { return number(fightPlaces(table()).armour); }

bool FightScreen::fallen() const {
  const FightPlaces& places = fightPlaces(table());
  return reachable(places.closeWound) && label(places.woundText).Caption == verdicts::kDeath;
}

bool FightScreen::cleared() const {
  const std::string& text = label(fightPlaces(table()).report).Caption;
  return text == verdicts::kGroupGone || won();
}

bool FightScreen::won() const { return label(fightPlaces(table()).report).Caption.starts_with(verdicts::kGameWon); }

bool FightScreen::warned() const { return reachable(fightPlaces(table()).warning); }

bool FightScreen::mayAttack() const { return reachable(fightPlaces(table()).attack); }

bool FightScreen::mayCast() const { return reachable(fightPlaces(table()).cast); }

bool FightScreen::mayUse() const { return reachable(fightPlaces(table()).use); }

int FightScreen::shownDamage() const {
  const std::size_t place = fightPlaces(table()).figures;
  if (!reachable(place)) return 0;
  int sum = 0;
  int figure = 0;
  for (const char c : label(place).Caption) {
    if (c >= '0' && c <= '9') {
      figure = figure * 10 + (c - '0');
    } else {
      sum += std::exchange(figure, 0);
    }
  }
  return sum + figure;
}

int FightScreen::shownPercent() const {
  const std::string& text = label(fightPlaces(table()).damage).Caption;
  const auto start = text.rfind('+');
  if (start == std::string::npos) return 0;
  return static_cast<int>(wholeNumber(trim(std::string_view(text).substr(start + 1))));
}

bool FightScreen::chooseWeapon(const std::string& name) { return pick(fightPlaces(table()).weapon, name); }

bool FightScreen::chooseSpell(const char* spell) { return pick(fightPlaces(table()).spell, spell); }

bool FightScreen::chooseItem(const char* item) { return pick(fightPlaces(table()).item, item); }

void FightScreen::typeMagic(int amount) { write(fightPlaces(table()).magic, std::to_string(amount)); }

void FightScreen::attack() { press(fightPlaces(table()).attack); }

void FightScreen::cast() { press(fightPlaces(table()).cast); }

void FightScreen::use() { press(fightPlaces(table()).use); }

void FightScreen::nextRound() { press(fightPlaces(table()).next); }

void FightScreen::closeReport() { press(fightPlaces(table()).closeWound); }

}  // namespace brolgan::simulation
