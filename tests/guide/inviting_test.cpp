// What calls for a click on a screen as it stands.
#include "game/guide/inviting.h"

#include <gtest/gtest.h>

#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

using Names = std::vector<std::string>;

class Inviting : public testing::Test {
 protected:
  Names on(const std::string& screen) {
    Names names;
    Form& form = world.form(screen);
    const std::string step = invitedStep(screen, form);
    for (const ControlEntry& entry : form.controls().entries()) {
      if (isInviting(screen, form, entry, step)) names.push_back(entry.fullName());
    }
    return names;
  }
  World world;
};

TEST_F(Inviting, TheSetUpAsksForAHeroFirstAndThenForTheStart) {
  setTheTable(world);
  world.runtime.Show("Main");
  EXPECT_EQ(on("Main"), Names{"GraczM(0)"});
  world.click("Main", "GraczM(0)");
  EXPECT_EQ(on("Main"), Names{"Start"});
}

TEST_F(Inviting, GoodsThatThePointsPayForCallForAClick) {
  setCreation(world, 3);
  world.runtime.Show("CTmhero");
  EXPECT_EQ(on("CTmhero"), (Names{"Czarn(0)", "Czarn(1)", "Czarn(2)", "Czarn(6)", "Czarn(7)", "Czarn(9)", "Spec(0)",
                                  "Spec(2)", "Save"}));
  world.click("CTmhero", "Czarn(0)");
  world.click("CTmhero", "Czarn(1)");
  EXPECT_EQ(on("CTmhero"), (Names{"Czarn(6)", "Spec(0)", "Spec(2)", "Save"}));
}

TEST_F(Inviting, WhoOwesPointsIsNotAskedToSave) {
  constexpr int kSatrapa = 5;
  setCreation(world, 0);
  world.runtime.Show("CTmhero");
  world.click("CTmhero", member("Klasa", kSatrapa));
  world.click("CTmhero", "PLUS(0)");
  EXPECT_EQ(on("CTmhero").back(), "Save");
  world.click("CTmhero", member("Klasa", 0));
  EXPECT_EQ(on("CTmhero"), Names{});
}

TEST_F(Inviting, ThePreparationAsksForTheFight) {
  setPreparation(world, plainHero());
  world.runtime.Show("Prefight");
  EXPECT_EQ(on("Prefight"), Names{"Zakoncz"});
}

TEST_F(Inviting, WhatIsOwnedCallsForNoClick) {
  Bohater hero = richHero();
  hero.MaCzar(6) = false;
  hero.MaSpec(0) = true;
  setShop(world, hero);
  world.runtime.Show("CTsklep");
  EXPECT_EQ(on("CTsklep"), (Names{"Czarn(6)", "Spec(2)"}));
}

TEST_F(Inviting, TheFightAsksForABlowAndThenForTheNextRound) {
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1000;
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  setFight(world, hero, setup);
  world.runtime.Show("Fight");
  EXPECT_EQ(on("Fight"), Names{"Atak"});
  world.roll(1, 4, {1, 1});
  world.roll(1, 120, {1});
  world.click("Fight", "Atak");
  EXPECT_EQ(on("Fight"), Names{"NastTura"});
}

TEST_F(Inviting, ABareHandAsksForTheNextRound) {
  setFight(world, plainHero(), plainFight());
  world.runtime.Show("Fight");
  world.get<ComboBox>("Fight", "Bron").ListIndex(-1);
  EXPECT_EQ(on("Fight"), Names{"NastTura"});
}

TEST_F(Inviting, DeathAsksForThePlaster) {
  FightSetup setup = plainFight();
  setup.PotworPierwszy = 1;
  setup.potwor.Atak = {1, 1, 1, 100};
  setFight(world, plainHero(), setup);
  world.roll(1, 1, {1});
  world.runtime.Show("Fight");
  EXPECT_EQ(on("Fight"), Names{"CloseDMG"});
}

}  // namespace
}  // namespace brolgan::test
