// The letters that reach controls together with Alt.
#include "game/guide/keys.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

TEST(AccessKey, IsSharedByNoTwoControlsOfAScreenAndNamesNoneThatIsMissing) {
  World world;
  setPreparation(world, richHero());
  setCreation(world, 12);
  world.writeFightFile(plainFight());
  const std::map<std::string, int> wanted = {{"Main", 5},     {"CTmhero", 7}, {"CTsklep", 17},
                                             {"Prefight", 6}, {"Fight", 8},   {"FHero", 3}};
  for (const auto& [screen, count] : wanted) {
    world.runtime.Show(screen);
    std::map<char, std::string> known;
    for (const ControlEntry& entry : world.form(screen).controls().entries()) {
      const char key = accessKey(screen, entry);
      if (key == '\0') continue;
      EXPECT_TRUE(known.emplace(key, entry.fullName()).second) << screen << " " << entry.fullName();
    }
    EXPECT_EQ(static_cast<int>(known.size()), count) << screen;
  }
}

TEST(AccessKey, IsTheLetterOfTheCaptionWhereThatIsFree) {
  World world;
  setFight(world, richHero());
  world.runtime.Show("Fight");
  const auto& table = world.form("Fight").controls();
  EXPECT_EQ(accessKey("Fight", table.find("Atak")), 'A');
  EXPECT_EQ(accessKey("Fight", table.find("NastTura")), 'N');
  EXPECT_EQ(accessKey("Fight", table.find("mana")), '\0');
}

TEST(AccessKey, OfAHeroOrAZoneIsItsNumber) {
  World world;
  setPreparation(world, richHero());
  world.runtime.Show("Main");
  world.runtime.Show("CTsklep");
  const auto letters = [&world](const std::string& screen, const std::vector<std::string>& names) {
    std::string row;
    for (const std::string& name : names) row += accessKey(screen, world.form(screen).controls().find(name));
    return row;
  };
  EXPECT_EQ(letters("Main", {"GraczM(0)", "GraczM(1)", "GraczM(2)", "GraczM(3)"}), "1234");
  EXPECT_EQ(letters("CTsklep", {"w1", "w2", "w3", "w4", "w5", "w6", "w7", "w8", "w9", "w10"}), "1234567890");
}

}  // namespace
}  // namespace brolgan::test
