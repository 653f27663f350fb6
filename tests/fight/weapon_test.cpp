// Choosing a weapon: the twenty names, and what a choice changes and does not.
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using WeaponChoice = FightTest;

class TwentyWeapons : public FightTest, public ::testing::WithParamInterface<int> {
 protected:
  std::string name = kWeaponNames.at(static_cast<std::size_t>(GetParam()));
  bool melee = GetParam() < 10;
  int place = GetParam() % 10;
};

TEST_P(TwentyWeapons, TheNameChoosesTheRecordTheBonusesAndTheSoundOfItsPlace) {
  own(name);
  hero.MO = {1, 4, 1, 0};
  weapon(name).kostka = {1, 20 + GetParam(), 1, 0};
  (melee ? hero.BronwwProc : hero.BronssProc)(place) = 40 + GetParam();
  (melee ? hero.BronwwPlus : hero.BronssPlus)(place) = 70 + GetParam();
  open();

  choose(name);

  const auto number = [](int value) { return " " + std::to_string(value); };
  EXPECT_EQ(caption("Pstat(3)"), std::string(melee ? " 1k 4+" : "") + " 1k" + number(20 + GetParam()) + "+" +
                                     number(70 + GetParam()) + "+" + number(40 + GetParam()) + "%");
}

TEST_P(TwentyWeapons, EachSoundsWithItsOwnFile) {
  own(name);
  open();
  choose(name);
  world.roll(1, melee ? 120 : 140, {1});
  if (name == "UltiGun") world.roll(1, 10, {2});

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(played(), (std::vector<std::string>{name + ".wav"}));
}

INSTANTIATE_TEST_SUITE_P(Numbers, TwentyWeapons, ::testing::Range(0, 20));

TEST_F(WeaponChoice, LukIsRangedAndNozIsMeleeAtTheSamePlace) {
  hero.BronwwProc(0) = 11;
  hero.BronssProc(0) = 22;
  open();
  choose("Łuk");
  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ 22%");
  choose("Nóż");

  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 11%");
}

TEST_F(WeaponChoice, DzialoHasThePlaceOfRozgaczButNotItsStaffRule) {
  readySpell("Kaczy Fart");
  hero.AktMoc = 4;
  own("Rózgacz");
  ready("Działo");
  open();
  cast();
  EXPECT_TRUE(press("Atak"));
  EXPECT_TRUE(enabled("Atak"));
  choose("Rózgacz");
  blow();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(WeaponChoice, RozgaczHasThePlaceOfDzialoButNeverReloads) {
  ready("Rózgacz");
  open();
  for (const std::string left : {"10", "0"}) {
    blow();
    EXPECT_EQ(caption("IleZad"), " 10 ");
    if (left == "10") nextRound();
  }
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
}

TEST_F(WeaponChoice, PickingTheSameWeaponTwiceChangesNothing) {
  own("Laska");
  weapon("Laska").kostka = {1, 8, 1, 2};
  open();
  choose("Laska");
  const std::string before = caption("Pstat(3)");
  choose("Laska");
  EXPECT_EQ(caption("Pstat(3)"), before);
  world.roll(1, 8, {5});
  blow();

  EXPECT_EQ(caption("IleZad"), " 7 ");
}

TEST_F(WeaponChoice, PickingTheSameRangedWeaponTwiceKeepsItRanged) {
  ready("UltiGun");
  hero.BronssProc(9) = 33;
  open();
  choose("UltiGun");

  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ 33%");
}

TEST_F(WeaponChoice, ChangingWeaponsKeepsTheReloadingOfDzialo) {
  ready("Działo");
  group(1, 100);
  open();
  shot();
  nextRound();
  choose("Łuk");
  shot();
  nextRound();
  choose("Działo");

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(played().back(), "specammo.wav");
  EXPECT_EQ(caption("Mstat(0)"), "80");
}

TEST_F(WeaponChoice, ANegativeAdditionIsNotShownButCounts) {
  ready("Tasak");
  weapon("Tasak").kostka = {1, 8, 1, -2};
  open();
  EXPECT_EQ(caption("Pstat(3)"), "+ 1k 8+ 0+ 0%");
  world.roll(1, 8, {7});
  blow();

  EXPECT_EQ(caption("IleZad"), " 5 ");
}

TEST_F(WeaponChoice, CostsNoActionAndRefreshesNothingElse) {
  own("Laska");
  open();
  const auto loads = world.pictures.loaded.size();
  choose("Laska");
  choose("Łuk");

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(world.pictures.loaded.size(), loads);
  EXPECT_TRUE(played().empty());
}

TEST_F(WeaponChoice, ANameThatTheGameDoesNotKnowKeepsThePlaceOfTheOneBeforeAndStrikesAsMelee) {
  weapon("Tasak").nazwa = "Topór";
  own("Tasak");
  own("Karabin");
  hero.BronwwProc(3) = 77;
  open();
  choose("Karabin");
  choose("Topór");

  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 77%");
}

TEST_F(WeaponChoice, APlaceBeyondAShortCatalogueIsABlankRecordWithoutDice) {
  katalog.IleWw = 1;
  weapon("Nóż").nazwa = "Oczożłop";
  hero.BronwwProc(9) = 5;
  open();
  choose("Oczożłop");
  EXPECT_EQ(caption("Pstat(3)"), "++ 0+ 5%");
  blow();

  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(played(), (std::vector<std::string>{""}));
}

TEST_F(WeaponChoice, NoSelectionLeavesTheDamageTextAndBecomesMeleeUntilTheNextRound) {
  ready("Łuk");
  hero.BronssProc(0) = 9;
  open();
  world.get<ComboBox>("Fight", "Bron").ListIndex(-1);
  EXPECT_EQ(caption("Pstat(3)"), "+ 0+ 9%");
  blow();
  EXPECT_EQ(played(), (std::vector<std::string>{"Nóż.wav"}));
  nextRound();

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(played().size(), 1U);
  EXPECT_TRUE(enabled("Atak"));
}

}  // namespace
}  // namespace brolgan::test
