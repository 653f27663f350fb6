// What the data files promise to players besides their balance.
#include <gtest/gtest.h>

#include "rules/weapons.h"
#include "simulation/knowledge/knowledge.h"
#include "simulation/report/study.h"

namespace brolgan::simulation {
namespace {

const Knowledge& known() {
  static const Knowledge knowledge(loadData(BROLGAN_ASSETS));
  return knowledge;
}

TEST(Data, holds_the_twenty_weapons_in_their_order) {
  ASSERT_EQ(known().weapons.size(), kWeaponNames.size());
  for (std::size_t i = 0; i < kWeaponNames.size(); ++i) EXPECT_EQ(known().weapons[i].name, kWeaponNames[i]);
}

TEST(Data, has_no_weapon_that_another_makes_useless) {
  for (const Dominated& weapon : dominatedWeapons(known())) ADD_FAILURE() << weapon.weapon << " by " << weapon.by;
}

TEST(Data, shows_a_true_average_of_every_monster_before_the_fight) {
  for (const Monster& monster : known().monsters) {
    EXPECT_EQ((monster.attack.low + monster.attack.high) % 2, 0) << monster.name;
    EXPECT_GE(monster.attack.plus, 0) << monster.name;
  }
}

TEST(Data, ends_the_list_with_the_last_monster) {
  EXPECT_TRUE(known().monsters.back().last);
  EXPECT_EQ(known().monsters.back().number, kMonsters - 1);
}

TEST(Data, lets_neighbours_differ_in_more_than_one_number) {
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
