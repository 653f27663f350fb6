#include "simulation/minds/naive_mind.h"

#include <algorithm>

#include "fight/choices.h"
#include "simulation/minds/bare_mind.h"

namespace brolgan::simulation {

namespace {

constexpr int kTries = 12;
// Zones that he climbs one by one; the gamble is not among them.
constexpr std::array kClimb = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};

std::vector<Offer> everything(const Knowledge& known, bool atCreation) {
  std::vector<Offer> all;
  for (int i = 0; i <= (atCreation ? kLives : kModifier); ++i) all.push_back({Ware::step, i, 0});
  for (int i = 0; i < static_cast<int>(known.weapons.size()); ++i) all.push_back({Ware::weapon, i, 0});
  for (int i = 0; i < kSpells; ++i) {
    if (kSpellTable[i].forSale) all.push_back({Ware::spell, i, 0});
  }
  for (const int i : {kMortar, kSucker}) all.push_back({Ware::gear, i, 0});
  for (int i = 0; i < kSupplies; ++i) all.push_back({Ware::supply, i, 0});
  return all;
}

bool isOwned(const HeroNotes& notes, const Offer& offer) {
  switch (offer.ware) {
    case Ware::weapon:
      return notes.owned[offer.index];
    case Ware::spell:
      return notes.spells[offer.index];
    case Ware::gear:
      return offer.index == kMortar ? notes.mortar : notes.sucker;
    default:
      return false;
  }
}

}  // namespace

void NaiveMind::buyAnything(DepartmentScreen& screen, bool atCreation) {
  const auto all = everything(known_, atCreation);
  for (int i = 0; i < kTries && screen.points() > 0; ++i) {
    const Offer& offer = all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
    if (!isOwned(notes_, offer)) buy(screen, offer);
  }
}

void NaiveMind::create(CreationScreen& screen) {
  beginHero(screen);
  while (screen.points() > 0) buyAnything(screen, true);
}

int NaiveMind::shop(ShopScreen& screen) {
  screen.read(notes_);
  turn_ = screen.turn();
  buyAnything(screen, false);
  const bool weak = notes_.endurance * 2 < notes_.fullEndurance();
  return weak ? 0 : kClimb[static_cast<std::size_t>(zone_)];
}

void NaiveMind::prepare(PreparationScreen& screen) {
  while (screen.endurance() + 3 <= notes_.fullEndurance() && screen.magic() >= 1 && screen.cast(kHealingSpell)) {
  }
}

void NaiveMind::enter(FightScreen& screen) {
  int dearest = -1;
  for (int i = 0; i < kWeapons; ++i) {
    if (notes_.owned[i] && (dearest < 0 || known_.weapons[i].price >= known_.weapons[dearest].price)) dearest = i;
  }
  screen.chooseWeapon(known_.weapons[dearest].name);
}

void NaiveMind::act(FightScreen& screen) {
  if (screen.mayUse() && screen.endurance() * 2 < notes_.fullEndurance() && screen.chooseItem(kGrenadeItem)) {
    screen.use();
  } else {
    attackOut(screen);
  }
}

void NaiveMind::hearOutcome(bool won) {
  easyWins_ = won ? easyWins_ + 1 : 0;
  if (!won) zone_ = std::max(0, zone_ - 1);
  if (easyWins_ < 2) return;
  easyWins_ = 0;
  zone_ = std::min(static_cast<int>(kClimb.size()) - 1, zone_ + 1);
}

}  // namespace brolgan::simulation
