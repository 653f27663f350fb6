// The hero's blows and shots.
#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

TEST(Attack, DamageEqualToTheArmourShowsNothingButTheWeaponGrows) {
  World world;
  Bohater hero = plainHero();
  hero.OstatniaBron = "Nóż";
  world.writeHero("hero1.boh", hero);
  FightSetup fight = plainFight();
  fight.potwor.Pancerz = 4;
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  world.roll(1, 4, {2});
  world.roll(1, 4, {2});
  world.roll(1, 120, {60});

  EXPECT_TRUE(world.click("Fight", "Atak"));

  EXPECT_EQ(world.unusedRolls(), 0U);
  EXPECT_FALSE(world.isVisible("Fight", "FZad"));
  EXPECT_EQ(world.caption("Fight", "IleZad"), "");
  EXPECT_EQ(world.caption("Fight", "Mstat(0)"), "20");
  EXPECT_EQ(world.caption("Fight", "Pstat(3)"), " 1k 4+ 1k 4+ 0+ 2%");
}

}  // namespace
}  // namespace brolgan::test
