#include "simulation/forecasts/reckoner.h"

#include <algorithm>

#include "rules/battle.h"

namespace brolgan::simulation {

namespace {

// Each situation has one place; a newer one takes it over.
constexpr std::size_t kPlaces = 1U << 14U;
constexpr std::int16_t kNoMonster = -1;

double magicAfter(const HeroNotes& hero, const Situation& situation, const Toll& toll) {
  double magic = hero.magic - static_cast<double>(toll.magicUsed);
  const bool unused = situation.power == 0 && hero.is(kWizard);
  if (unused) magic += wizardRegain(hero.value(kRegeneration)).value() * (static_cast<double>(toll.rounds) - 1);
  return std::min<double>(magic, std::max(hero.fullMagic(), hero.magic));
}

void add(Outlook& sum, const HeroNotes& hero, const Situation& situation, const Toll& toll, double chance) {
  if (!toll.hopeless)
    sum.win +=
        chance * below((hero.endurance - 0.5 - static_cast<double>(toll.harm)) / static_cast<double>(toll.spread));
  sum.harm += chance * static_cast<double>(toll.harm);
  sum.magicLeft += chance * magicAfter(hero, situation, toll);
  sum.grenadesUsed += chance * static_cast<double>(toll.grenadesUsed);
  sum.ammoUsed += chance * static_cast<double>(toll.ammoUsed);
  sum.rounds += chance * static_cast<double>(toll.rounds);
}

}  // namespace

Reckoner::Reckoner(const Knowledge& known) : known_(known), memory_(kPlaces) {
  for (Remembered& place : memory_) place.situation.monster = kNoMonster;
}

const Toll& Reckoner::tollOf(const Situation& situation) {
  Remembered& place = memory_[hashOf(situation) & (kPlaces - 1)];
  if (place.situation != situation) place = {situation, reckon(known_, situation)};
  return place.toll;
}

Outlook Reckoner::operator()(const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative) {
  const Situation situation = situationOf(known_, hero, monster, plan, initiative);
  Outlook sum;
  if (situation.grenades == 0 && (situation.flags & kShielded) == 0) {
    add(sum, hero, situation, tollOf(situation), 1);
    return sum;
  }
  const Branches branches = branchesOf(known_, situation);
  for (const Branch& branch : branches.all()) {
    add(sum, hero, branch.situation, tollOf(branch.situation), branch.chance);
  }
  return sum;
}

}  // namespace brolgan::simulation
