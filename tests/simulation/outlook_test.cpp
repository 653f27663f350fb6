// Reckoning a fight with averages comes close to what the dice do.
#include "simulation/forecasts/outlook.h"

#include <gtest/gtest.h>

#include "simulation/forecasts/rehearsal.h"

namespace brolgan::simulation {
namespace {

HeroNotes grown() {
  HeroNotes hero;
  hero.klasa = kShooter;
  hero.steps = {8, 6, 1, 4, 3, 4, 2};
  hero.endurance = hero.fullEndurance();
  hero.owned[0] = true;
  return hero;
}

TEST(Outlook, agrees_with_many_rehearsals_of_the_same_fight) {
  const Knowledge known(loadData(BROLGAN_ASSETS));
  const HeroNotes hero = grown();
  const Foresight rehearse = rehearsing(known, 5);
  for (const Monster& monster : known.monsters) {
    const Outlook reckoned = foresee(known, hero, monster, {}, hero.value(kSpeed));
    double win = 0;
    constexpr int kTimes = 20;
    for (int i = 0; i < kTimes; ++i) win += rehearse(hero, monster, {}, hero.value(kSpeed)).win / kTimes;
    EXPECT_NEAR(reckoned.win, win, 0.2) << monster.name;
  }
}

TEST(Outlook, below_is_the_normal_distribution) {
  EXPECT_NEAR(below(0), 0.5, 1e-6);
  EXPECT_NEAR(below(1), 0.8413, 0.001);
  EXPECT_NEAR(below(-1.96), 0.025, 0.001);
}

TEST(Outlook, knows_the_spread_of_the_uneven_die) {
  EXPECT_NEAR(knowThrow({1, 3, 1, 0}).variance, 0.5, 1e-9);
  EXPECT_NEAR(knowThrow({1, 6, 2, 3}).mean, 10, 1e-9);
}

}  // namespace
}  // namespace brolgan::simulation
