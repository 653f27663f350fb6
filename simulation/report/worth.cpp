#include "simulation/report/worth.h"

#include <algorithm>

#include "simulation/forecasts/rehearsal.h"

namespace brolgan::simulation {

namespace {

constexpr int kFirstMonster = 19;  // of the later zones, counted from 0
constexpr int kMonsterStep = 2;    // every second one is looked at

std::vector<const HeroNotes*> grownHeroes(const std::vector<GameRecord>& games, int most) {
  std::vector<const HeroNotes*> heroes;
  for (const GameRecord& game : games) {
    for (const SeatRecord& seat : game.seats) {
      if (seat.grownTurn > 0 && static_cast<int>(heroes.size()) < most) heroes.push_back(&seat.grown);
    }
  }
  return heroes;
}

// The chance to win a fight of the later zones with no other weapon than that.
double chanceWith(const Judgement& judgement, const Knowledge& known, const HeroNotes& notes, int weapon) {
  HeroNotes hero = onAnOrdinaryDay(notes);
  const int practice = *std::max_element(hero.percent.begin(), hero.percent.begin() + kMelees);
  std::fill_n(hero.percent.begin(), kMelees, practice);
  hero.owned.fill(false);
  hero.owned[static_cast<std::size_t>(weapon)] = true;
  Mean chance;
  for (int i = kFirstMonster; i < kZones[kPandoria - 1].DoPotwora; i += kMonsterStep) {
    chance.add(judgement.plan(hero, known.monsters[static_cast<std::size_t>(i)], hero.value(kSpeed)).outlook.win);
  }
  return chance.value();
}

}  // namespace

std::vector<WeaponWorth> worthOfDearWeapons(const Knowledge& known, const std::vector<GameRecord>& games,
                                            int mostHeroes) {
  const Foresight reckon = reckoning(known);
  const Judgement judgement(known, reckon, reckon, sensible(3), 1);
  std::vector<WeaponWorth> worths;
  for (int i = 0; i < kWeapons; ++i) {
    if (known.weapons[static_cast<std::size_t>(i)].price >= kDearPrice) worths.push_back({i, {}});
  }
  for (const HeroNotes* hero : grownHeroes(games, mostHeroes)) {
    std::array<double, kWeapons> chances{};
    for (int i = 0; i < kWeapons; ++i) chances[static_cast<std::size_t>(i)] = chanceWith(judgement, known, *hero, i);
    for (WeaponWorth& worth : worths) {
      double cheaper = 0;
      for (std::size_t i = 0; i < kWeapons; ++i) {
        const bool lies = known.weapons[i].price < known.weapons[static_cast<std::size_t>(worth.weapon)].price;
        if (lies) cheaper = std::max(cheaper, chances[i]);
      }
      worth.gain.add(chances[static_cast<std::size_t>(worth.weapon)] - cheaper);
    }
  }
  return worths;
}

}  // namespace brolgan::simulation
