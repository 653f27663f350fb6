#include "simulation/minds/mind.h"

#include <algorithm>
#include <stdexcept>

#include "simulation/forecasts/rehearsal.h"
#include "simulation/minds/bare_mind.h"
#include "simulation/minds/careful_mind.h"
#include "simulation/minds/newcomer_mind.h"

namespace brolgan::simulation {

const std::array<const char*, kMindKinds> kMindNames = {"nowicjusz", "rozsądny", "chciwy", "hazardzista", "goły"};
const std::array<const char*, kMindKinds> kMindWords = {"newcomer", "sensible", "greedy", "gambler", "bare"};

void Mind::beginHero(const DepartmentScreen& screen) {
  std::fill_n(notes_.percent.begin(), kMelees, kClassTable[static_cast<std::size_t>(notes_.klasa)].meleePercent);
  notes_.points = screen.points();
  notes_.owned[0] = true;
  notes_.owned[kMelees] = true;
}

void Mind::want(const Offer& offer) {
  int& first = wantedAt_[static_cast<std::size_t>(offer.place())];
  if (first < 0) first = turn_;
}

bool Mind::buy(DepartmentScreen& screen, const Offer& offer) {
  const int before = screen.points();
  switch (offer.ware) {
    case Ware::step:
      screen.plus(offer.index);
      break;
    case Ware::weapon:
      screen.buyWeapon(offer.index);
      break;
    case Ware::spell:
      screen.buySpell(offer.index);
      break;
    case Ware::gear:
      screen.buyGear(offer.index);
      break;
    case Ware::supply:
      screen.buySupply(offer.index);
      break;
  }
  notes_.points = screen.points();
  if (notes_.points >= before) return false;
  own(notes_, offer);
  int& first = boughtAt_[static_cast<std::size_t>(offer.place())];
  if (first < 0) first = turn_;
  return true;
}

std::unique_ptr<Mind> makeMind(MindKind kind, const Knowledge& known, const Foresight& reckon, int klasa, int rivals,
                               std::uint64_t seed) {
  switch (kind) {
    case MindKind::newcomer:
      return std::make_unique<NewcomerMind>(known, klasa, seed);
    case MindKind::sensible:
      return std::make_unique<CarefulMind>(known, klasa, seed, reckon, reckon, sensible(rivals));
    case MindKind::greedy:
      return std::make_unique<CarefulMind>(known, klasa, seed, rehearsing(known, seed, reckon), reckon,
                                           sensible(rivals));
    case MindKind::gambler:
      return std::make_unique<CarefulMind>(known, klasa, seed, reckon, reckon, kDaredevil);
    case MindKind::bare:
      return std::make_unique<BareMind>(known, klasa, seed);
  }
  throw std::invalid_argument("no such mind");
}

}  // namespace brolgan::simulation
