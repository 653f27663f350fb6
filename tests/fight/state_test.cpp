// What a fight knows: the monsters, the effects and the weapon in hand by themselves.
#include "fight/state.h"

#include <gtest/gtest.h>

#include "tests/support/world.h"

namespace brolgan::test {
namespace {

Group groupOf(int count) {
  FightSetup setup = plainFight();
  setup.potwor.Ilosc = count;
  setup.potwor.Pancerz = 3;
  return gather(setup);
}

TEST(Group, StartsWithAllAlikeAndTheLastAsTarget) {
  Group group = groupOf(3);
  EXPECT_EQ(group.Ostatni, 2);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(group.PotworZycie(i), 20) << i;
    EXPECT_EQ(group.PotworPancerz(i), 3) << i;
  }
  group.targetLife() = 7;
  group.targetArmour() = 1;
  EXPECT_EQ(group.PotworZycie(2), 7);
  EXPECT_EQ(group.PotworPancerz(2), 1);
}

TEST(Group, IsGoneWithItsFirstOrWithoutATarget) {
  Group group = groupOf(2);
  EXPECT_FALSE(group.isGone());
  group.PotworZycie(0) = 0;
  EXPECT_TRUE(group.isGone());
  group.PotworZycie(0) = 1;
  EXPECT_FALSE(group.isGone());
  group.Ostatni = -1;
  EXPECT_TRUE(group.isGone());
  EXPECT_FALSE(group.hasTarget());
}

TEST(Group, HurtsAllThatStandBeforeTheTarget) {
  Group group = groupOf(3);
  group.Ostatni = 1;
  group.hurtOthers(5);
  EXPECT_EQ(group.PotworZycie(0), 15);
  EXPECT_EQ(group.PotworZycie(1), 20);
  EXPECT_EQ(group.PotworZycie(2), 20);
}

TEST(Effects, KlasaIIIALosesItsArmourWithItsLastRound) {
  Effects effects{.Pancerz3A = 4, .Tury3A = 2};
  effects.endRound();
  EXPECT_EQ(effects.Pancerz3A, 4);
  effects.endRound();
  EXPECT_EQ(effects.Pancerz3A, 0);
  effects.endRound();
  EXPECT_EQ(effects.Tury3A, 0);
}

TEST(Effects, KaczyFartTakesABlowForEachCharge) {
  Effects effects{.Fart = 2};
  EXPECT_TRUE(effects.takesBlow());
  EXPECT_TRUE(effects.takesBlow());
  EXPECT_FALSE(effects.takesBlow());
  EXPECT_EQ(effects.Fart, 0);
}

TEST(WeaponInHand, IsOfNoKindUntilOneIsChosen) {
  const WeaponInHand weapon;
  EXPECT_FALSE(weapon.isMelee());
  EXPECT_FALSE(weapon.isRanged());
}

}  // namespace
}  // namespace brolgan::test
