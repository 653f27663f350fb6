// The letters that reach controls together with Alt.
#include "game/guide/keys.h"

#include <gtest/gtest.h>

#include <map>

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

}  // namespace
}  // namespace brolgan::test
