// Opening the fight: the files, the order of the steps, the lists of choices and the selections of
// the last fight.
#include "fight/fight.h"
#include "game/game.h"
#include "rules/dice.h"
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using FightLoad = FightTest;
using FightLists = FightTest;
using FightSelections = FightTest;
using Rows = std::vector<std::string>;

TEST(FightSeed, TheTimerSeedsTheGeneratorAtEveryLoad) {
  World world(50000.125);
  world.writeHero("hero1.boh", plainHero());
  FightSetup fight = plainFight();
  fight.PotworPierwszy = 1;
  fight.potwor.Atak = {1, 30, 3, 0};
  world.writeFightFile(fight);
  SeededRandom same;
  same.seed(50000.125);
  const std::string expected = std::to_string(Rzuty(same, fight.potwor.Atak).value()) + " ";

  for (int opening = 0; opening < 2; ++opening) {
    world.runtime.Reopen("Fight");
    EXPECT_EQ(world.caption("Fight", "IleDMG"), expected);
  }
}

TEST(FightSeed, ComesBeforeAnyFileIsRead) {
  World world(50000.125);
  world.clock.now = 777.75;
  EXPECT_EQ(errorOf([&] { world.runtime.Show("Fight"); }), 53);
  SeededRandom same;
  same.seed(777.75);

  EXPECT_EQ(world.seeded.next(), same.next());
}

TEST_F(FightLoad, ReadsTheFifteenLinesInTheirOrder) {
  hero.Wartosci(1) = 2;
  writeFiles();
  world.writeHero("inny.boh", hero);
  world.files.contents.erase("hero1.boh");
  world.write("fight.cfg", {" 0 ", "inny.boh", " 3 ", " 5 ", " 4 ", "Wilk", "wilk.jpg", " 17 ", " 2 ", " 7 ", " 3 ",
                            " 6 ", " 33 ", " 9 ", " 41 "});
  world.runtime.Show("Fight");

  EXPECT_EQ(caption("Pstat(1)"), "5");
  EXPECT_EQ(caption("LIle"), "4");
  EXPECT_EQ(world.get<PictureBox>("Fight", "Potwór").Picture, "wilk.jpg");
  EXPECT_EQ(caption("Mstat(0)"), "33");
  EXPECT_EQ(caption("Mstat(1)"), "9");
  EXPECT_EQ(caption("Mstat(2)"), "17");
  EXPECT_EQ(caption("Mstat(3)"), "3k7+ 6");
}

TEST_F(FightLoad, TakesTheLowestFaceOfTheMonstersDiceFromTheFile) {
  fight.potwor.Atak = {2, 7, 1, 0};
  open();
  world.roll(2, 7, {2});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "2 ");
}

TEST_F(FightLoad, TheMonstersNumberIsTheIndexOfTheKill) {
  fight.NrPotwora = 41;
  open();
  win();

  EXPECT_EQ(saved().Stwory(41), 1);
}

TEST_F(FightLoad, OneMonsterIsTheTargetAndTheLastOfItsGroup) {
  group(1, 20);
  open();
  EXPECT_EQ(caption("LIle"), "1");
  fellTarget();

  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
}

TEST_F(FightLoad, CopiesEnduranceAndArmourOfTheFirstMonsterToTheOthers) {
  group(3, 33, 4);
  open();
  for (const std::string left : {"3", "2", "1"}) {
    EXPECT_EQ(caption("LIle"), left);
    EXPECT_EQ(caption("Mstat(0)"), "33");
    EXPECT_EQ(caption("Mstat(1)"), "4");
    fellTarget();
  }
}

TEST_F(FightLoad, TwentySixMonstersLoad) {
  group(26, 20);
  open();

  EXPECT_EQ(caption("LIle"), "26");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(FightLoad, TwentySevenMonstersStopTheProgramAtTheArrayBound) {
  group(27, 20);

  EXPECT_EQ(errorOf([this] { open(); }), 9);
}

TEST_F(FightLoad, EnduranceLoweredToNothingBeforeTheFightOpensAllTheSame) {
  group(2, -3);
  open();

  EXPECT_EQ(caption("Mstat(0)"), "-3");
  EXPECT_EQ(caption("LIle"), "2");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
}

TEST_F(FightLoad, OpensTheThreeActionsAndHidesTheReports) {
  open();

  EXPECT_TRUE(world.isShown("Fight"));
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_FALSE(shown("FZad"));
  EXPECT_FALSE(shown("FDamage"));
  EXPECT_FALSE(shown("Uwaga"));
  EXPECT_TRUE(played().empty());
}

TEST_F(FightLoad, TheDistanceReadsBliskaInEveryFight) {
  for (const int first : {0, 1}) {
    fight.PotworPierwszy = first;
    open();
    EXPECT_EQ(caption("Odl"), "BLISKA");
    nextRound();
    EXPECT_EQ(caption("Odl"), "BLISKA");
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightLoad, RoundsOfImmortalityProtectNobody) {
  fight.RundyNiesmiertelnosci = 5;
  fight.PotworPierwszy = 1;
  strikesWith(3);
  open();
  EXPECT_EQ(caption("Pstat(0)"), "9");
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "3 ");
  EXPECT_EQ(caption("Pstat(0)"), "6");
}

TEST_F(FightLoad, NobodyStrikesFirstUnlessLineOneIsExactlyOne) {
  for (const int first : {0, 2, -1}) {
    fight.PotworPierwszy = first;
    strikesWith(3);
    open();
    EXPECT_EQ(caption("Pstat(0)"), "12");
    EXPECT_FALSE(shown("FDamage"));
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightLoad, TheFirstStrikeLeavesTheThreeActionsOpen) {
  fight.PotworPierwszy = 1;
  fight.potwor.Ilosc = 2;
  fight.potwor.Atak = {1, 6, 1, 0};
  world.roll(1, 6, {2, 3});
  open();

  EXPECT_TRUE(shown("FDamage"));
  EXPECT_EQ(caption("IleDMG"), "2 3 ");
  EXPECT_EQ(caption("Pstat(0)"), "7");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_TRUE(press("CloseDMG"));
  EXPECT_FALSE(shown("FDamage"));
  EXPECT_TRUE(world.isShown("Fight"));
}

TEST_F(FightLoad, AFirstStrikeThatKillsOpensTheFightWithSmiercAndNoAction) {
  fight.PotworPierwszy = 1;
  strikesWith(12);
  ready("Nóż");
  open();

  EXPECT_TRUE(shown("FDamage"));
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(caption("Pstat(0)"), "0");
  EXPECT_EQ(text("Bron"), "Nóż");
}

// Draws a middle number and looks around while it is drawn.
class WatchingRandom : public RandomSource {
 public:
  void seed(double) override {}
  float next() override {
    ++draws;
    look();
    return 0.5F;
  }

  Handler look;
  int draws = 0;
};

TEST_F(FightLoad, TheFirstStrikeComesAfterTheListsAndBeforeTheSelectionsAndTheFigures) {
  fight.PotworPierwszy = 1;
  fight.potwor.Atak = {1, 3, 1, 0};
  ready("Nóż");
  writeFiles();
  WatchingRandom random;
  Runtime runtime({world.files, world.clock, world.pictures, world.sounds});
  offerScreens(runtime, random);
  random.look = [this, &runtime] {
    const auto& form = dynamic_cast<Fight&>(*runtime.find("Fight"));
    EXPECT_EQ(form.Bron.ListCount(), 3);
    EXPECT_EQ(form.Bron.Text(), "");
    EXPECT_EQ(form.Pstat[0].Caption, "0");
    EXPECT_EQ(form.Odl.Caption, "DALEKA");
    EXPECT_TRUE(world.pictures.loaded.empty());
  };

  runtime.Show("Fight");

  EXPECT_EQ(random.draws, 1);
  const auto& form = dynamic_cast<Fight&>(*runtime.find("Fight"));
  EXPECT_EQ(form.Bron.Text(), "Nóż");
  EXPECT_EQ(form.Pstat[0].Caption, "10");
}

TEST_F(FightLists, OfferOwnedWeaponsMeleeFirstEachKindInCatalogueOrder) {
  hero.MaBronww = {};
  hero.MaBronss = {};
  for (const std::string name : {"UltiGun", "Łuk", "Oczożłop", "Laska", "Działo"}) own(name);
  open();

  EXPECT_EQ(world.rows("Fight", "Bron"), (Rows{"Laska", "Oczożłop", "Łuk", "Działo", "UltiGun"}));
}

TEST_F(FightLists, OfferAllTwentyWeapons) {
  for (const std::string name : kWeaponNames) own(name);
  open();

  EXPECT_EQ(world.rows("Fight", "Bron"), Rows(kWeaponNames.begin(), kWeaponNames.end()));
}

TEST_F(FightLists, OfferSevenSpellsInThisOrderUnderNamesWithoutABlankBeforeTheMark) {
  for (bool& flag : hero.MaCzar) flag = true;
  hero.Przedmioty(2) = 1;
  open();

  EXPECT_EQ(world.rows("Fight", "Czar"),
            (Rows{"Leczenie", "Damage!", "BullShots", "BOOM!", "Klasa III A", "Kaczy Fart", "Czar Leczniczy"}));
}

struct KnownSpell {
  int place;
  const char* offered;

  friend std::ostream& operator<<(std::ostream& out, const KnownSpell& spell) { return out << spell.place; }
};

class OneSpellKnown : public FightTest, public ::testing::WithParamInterface<KnownSpell> {};

TEST_P(OneSpellKnown, OffersItAloneOrNothing) {
  hero.MaCzar(GetParam().place) = true;
  open();
  const std::string offered = GetParam().offered;

  EXPECT_EQ(world.rows("Fight", "Czar"), offered.empty() ? Rows{} : Rows{offered});
}

INSTANTIATE_TEST_SUITE_P(Places, OneSpellKnown,
                         ::testing::Values(KnownSpell{0, "Leczenie"}, KnownSpell{1, "Damage!"},
                                           KnownSpell{2, "BullShots"}, KnownSpell{3, "BOOM!"}, KnownSpell{4, ""},
                                           KnownSpell{5, ""}, KnownSpell{6, "Klasa III A"}, KnownSpell{7, "Kaczy Fart"},
                                           KnownSpell{8, ""}, KnownSpell{9, ""}));

TEST_F(FightLists, OfferTheStrongHealingFromLevelOne) {
  for (const int level : {-1, 0, 1, 3}) {
    hero.Przedmioty(2) = level;
    open();
    EXPECT_EQ(world.rows("Fight", "Czar"), level >= 1 ? Rows{"Czar Leczniczy"} : Rows{}) << level;
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightLists, OfferGrenadesThenAmmunitionWhileThereAreAny) {
  const std::vector<std::pair<std::array<int, 2>, Rows>> expectations = {
      {{0, 0}, {}}, {{1, 0}, {"Granat"}}, {{0, 1}, {"Ammo"}}, {{2, 30}, {"Granat", "Ammo"}}, {{-1, -1}, {}}};
  for (const auto& [counts, offered] : expectations) {
    pack("Granat", counts[0]);
    pack("Ammo", counts[1]);
    open();
    EXPECT_EQ(world.rows("Fight", "Przedmiot"), offered);
    world.runtime.Unload("Fight");
  }
}

TEST_F(FightLists, TheItemsOfThePreparationHaveNoUseHere) {
  for (int i = 3; i <= 7; ++i) hero.Przedmioty(i) = 5;
  hero.Przedmioty(0) = 5;
  open();

  EXPECT_TRUE(world.rows("Fight", "Przedmiot").empty());
}

TEST_F(FightLists, AHeroWithNeitherWeaponsNorSpellsHasEmptyListsAndHisDiceAlone) {
  hero.MaBronww = {};
  hero.MaBronss = {};
  hero.MO = {1, 6, 2, 3};
  open();
  EXPECT_TRUE(world.rows("Fight", "Bron").empty());
  EXPECT_TRUE(world.rows("Fight", "Czar").empty());
  EXPECT_EQ(caption("Pstat(3)"), "2k6+ 3");

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Mstat(0)"), "20");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_TRUE(played().empty());
}

TEST_F(FightLists, AWeaponBeyondAShortCatalogueIsAnEmptyRow) {
  katalog.IleWw = 2;
  own("Tasak");
  open();

  EXPECT_EQ(world.rows("Fight", "Bron"), (Rows{"Nóż", "", "", "Łuk"}));
}

TEST_F(FightSelections, TheLastWeaponIsSetUpWithItsTextAndNoClick) {
  ready("Tasak");
  hero.MO = {1, 6, 2, 3};
  weapon("Tasak").kostka = {1, 8, 1, 2};
  open();

  EXPECT_EQ(text("Bron"), "Tasak");
  EXPECT_EQ(caption("Pstat(3)"), "2k6+ 3+1k8+ 2+ 0+ 0%");
}

TEST_F(FightSelections, TheLastWeaponStrikesWithoutAnyChoice) {
  ready("Tasak");
  open();
  blow();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(FightSelections, TheLastSpellShowsItsCost) {
  readySpell("BOOM!");
  open();

  EXPECT_EQ(text("Czar"), "BOOM!");
  EXPECT_EQ(text("mana"), "4");
  EXPECT_FALSE(enabled("mana"));
}

TEST_F(FightSelections, BullShotsFromTheLastFightOpensTheBoxForItsPower) {
  readySpell("BullShots");
  open();

  EXPECT_EQ(text("mana"), "2");
  EXPECT_TRUE(enabled("mana"));
}

TEST_F(FightSelections, TheLastItemIsSelected) {
  pack("Granat", 1);
  readyItem("Ammo", 1);
  open();

  EXPECT_EQ(text("Przedmiot"), "Ammo");
}

TEST_F(FightSelections, NamesThatAreNotOfferedAnyMoreSelectNothingAndTheHeroCannotAttack) {
  hero.OstatniaBron = "Tasak";
  hero.OstatniCzar = "Damage !";
  learn("Damage!");
  readyItem("Granat", 0);
  open();
  EXPECT_EQ(text("Bron"), "");
  EXPECT_EQ(text("Czar"), "");
  EXPECT_EQ(text("Przedmiot"), "");
  EXPECT_EQ(text("mana"), "0");

  EXPECT_TRUE(press("Atak"));
  EXPECT_EQ(caption("Mstat(0)"), "20");

  choose("Nóż");
  blow();
  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(FightSelections, WithTwoWeaponsOfOneNameTheLastOneStaysSelected) {
  weapon("Tasak").nazwa = "Nóż";
  own("Tasak");
  hero.OstatniaBron = "Nóż";
  open();

  EXPECT_EQ(world.rows("Fight", "Bron"), (Rows{"Nóż", "Nóż", "Miecz", "Łuk"}));
  EXPECT_EQ(world.get<ComboBox>("Fight", "Bron").ListIndex(), 1);
}

}  // namespace
}  // namespace brolgan::test
