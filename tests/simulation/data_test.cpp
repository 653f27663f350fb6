// What the data files promise to players besides their balance.
#include <gtest/gtest.h>

#include <algorithm>

#include "rules/weapons.h"
#include "simulation/knowledge/knowledge.h"
#include "simulation/report/study.h"

namespace brolgan::simulation {
namespace {

const Knowledge& known() {
  static const Knowledge knowledge(loadData(BROLGAN_ASSETS));
  return knowledge;
}

TEST(Data, HoldsTheTwentyWeaponsInTheirOrder) {
  ASSERT_EQ(known().weapons.size(), kWeaponNames.size());
  for (std::size_t i = 0; i < kWeaponNames.size(); ++i) EXPECT_EQ(known().weapons[i].name, kWeaponNames[i]);
}

TEST(Data, HasNoWeaponThatAnotherMakesUseless) {
  for (const Dominated& weapon : dominatedWeapons(known())) ADD_FAILURE() << weapon.weapon << " by " << weapon.by;
}

TEST(Data, ShowsATrueAverageOfEveryMonsterBeforeTheFight) {
  for (const Monster& monster : known().monsters) {
    EXPECT_EQ((monster.attack.low + monster.attack.high) % 2, 0) << monster.name;
    EXPECT_GE(monster.attack.plus, 0) << monster.name;
  }
}

TEST(Data, HasOneLastMonsterAndHeLivesInTheLastZone) {
  std::vector<int> numbers;
  for (const Monster& monster : known().monsters) {
    if (monster.last) numbers.push_back(monster.number);
  }
  ASSERT_EQ(numbers.size(), 1U);
  EXPECT_GE(numbers.front() + 1, kZones.back().OdPotwora);
  EXPECT_LE(numbers.front() + 1, kZones.back().DoPotwora);
}

TEST(Data, LetsNeighboursDifferInMoreThanOneNumber) {
  for (std::size_t i = 1; i < known().monsters.size(); ++i) {
    const Monster& a = known().monsters[i - 1];
    const Monster& b = known().monsters[i];
    const int differences = (a.count != b.count) + (a.speed != b.speed) + (a.attack.mean != b.attack.mean) +
                            (a.life != b.life) + (a.armour != b.armour);
    EXPECT_GE(differences, 2) << b.name;
  }
}

}  // namespace
}  // namespace brolgan::simulation
