// The six items that can be used before the fight.
#include <gtest/gtest.h>

#include "rules/consumables.h"
#include "tests/preparation/preparation.h"

namespace brolgan::test {
namespace {

using Lines = std::vector<std::string>;

TEST(ItemsBeforeTheFight, AreListedInTheirOrderWhenTheHeroHasThem) {
  Preparation preparation;
  for (Integer& counter : preparation.hero.Przedmioty) counter = 1;
  preparation.open();
  EXPECT_EQ(preparation.items(), (Lines{"Zatruta Ryba", "Rabarbar de'Cur", "Tabaka", "Krzepiący Baton",
                                        "Lampa Sea Archiego", "Nieśmiertelność"}));
}

TEST(ItemsBeforeTheFight, AHeroWithoutAnyHasAnEmptyListAndNothingSelected) {
  Preparation preparation;
  preparation.hero.Przedmioty(0) = -1;
  preparation.hero.Przedmioty(3) = -1;
  preparation.open();
  EXPECT_TRUE(preparation.items().empty());
  EXPECT_EQ(preparation.world.text("Prefight", "Przedmioty"), "");
}

struct Item {
  int counter;
  const char* name;
};

class EachItem : public testing::TestWithParam<Item> {
 protected:
  // What each item rolls when it is used.
  static void rollFor(World& world, const std::string& item) {
    if (item == kFish || item == kSnuff) world.roll(1, 6, {3, 4});
    if (item == kImmortality) world.roll(1, 6, {5});
  }
};

INSTANTIATE_TEST_SUITE_P(Items, EachItem,
                         testing::Values(Item{0, kFish}, Item{3, kRhubarb}, Item{4, kSnuff}, Item{5, kBar},
                                         Item{6, kLamp}, Item{7, kImmortality}));

TEST_P(EachItem, IsListedByItsOwnCounter) {
  Preparation preparation;
  preparation.openWith(GetParam().counter, 1);
  EXPECT_EQ(preparation.items(), Lines{GetParam().name});
}

TEST_P(EachItem, UsedOnceLowersItsCounterByOneAndNoOther) {
  Preparation preparation;
  for (Integer& counter : preparation.hero.Przedmioty) counter = 4;
  preparation.hero.Przedmioty(1) = 0;
  preparation.open();
  rollFor(preparation.world, GetParam().name);
  preparation.use(GetParam().name);
  EXPECT_EQ(preparation.world.unusedRolls(), 0U);
  preparation.finish();
  for (int i = 0; i < 17; ++i) {
    const int before = i == 1 ? 0 : 4;
    EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(i).value(), i == GetParam().counter ? 3 : before) << i;
  }
}

TEST_P(EachItem, TheLastOneLeavesTheListAndASecondClickDoesNothing) {
  Preparation preparation;
  preparation.openWith(GetParam().counter, 1);
  rollFor(preparation.world, GetParam().name);
  preparation.use(GetParam().name);
  const std::string notes = preparation.notes();
  EXPECT_TRUE(preparation.items().empty());
  EXPECT_EQ(preparation.world.text("Prefight", "Przedmioty"), "");
  preparation.useAgain();
  EXPECT_EQ(preparation.notes(), notes);
  EXPECT_EQ(preparation.world.unusedRolls(), 0U);
}

TEST_P(EachItem, StaysSelectedInTheListWhileItsCounterIsAboveZero) {
  Preparation preparation;
  preparation.openWith(GetParam().counter, 2);
  rollFor(preparation.world, GetParam().name);
  preparation.use(GetParam().name);
  EXPECT_EQ(preparation.items(), Lines{GetParam().name});
  EXPECT_EQ(preparation.world.text("Prefight", "Przedmioty"), GetParam().name);
  rollFor(preparation.world, GetParam().name);
  preparation.useAgain();
  EXPECT_TRUE(preparation.items().empty());
}

TEST(ItemsBeforeTheFight, WithNothingSelectedTheButtonDoesNothing) {
  Preparation preparation;
  for (Integer& counter : preparation.hero.Przedmioty) counter = 1;
  preparation.open();
  preparation.useAgain();
  EXPECT_EQ(preparation.notes(), "");
  EXPECT_EQ(preparation.items().size(), 6U);
}

TEST(ItemsBeforeTheFight, UsingUpOneOfSeveralClearsTheSelection) {
  Preparation preparation;
  preparation.hero.Przedmioty(3) = 1;
  preparation.hero.Przedmioty(6) = 1;
  preparation.open();
  preparation.use(kRhubarb);
  EXPECT_EQ(preparation.items(), Lines{kLamp});
  EXPECT_EQ(preparation.world.text("Prefight", "Przedmioty"), "");
}

TEST(PoisonedFish, LowersTheMonstersEnduranceByTwoDice) {
  Preparation preparation;
  preparation.openWith(kFishCounter, 1);
  preparation.world.roll(1, 6, {6, 1});
  preparation.use(kFish);
  EXPECT_EQ(preparation.caption("Monstat(2)"), "13");
  EXPECT_EQ(preparation.notes(), "Podłożyłem zatrutą rybę( 7) ");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 13), " 13 ");
}

TEST(PoisonedFish, MayBringTheMonsterBelowZeroAndTheFightOpensAllTheSame) {
  Preparation preparation;
  preparation.monster.Wytrzymalosc = 5;
  preparation.openWith(kFishCounter, 2);
  preparation.world.roll(1, 6, {2, 3, 6, 6});
  preparation.use(kFish);
  EXPECT_EQ(preparation.caption("Monstat(2)"), "0");
  preparation.useAgain();
  EXPECT_EQ(preparation.caption("Monstat(2)"), "-12");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 13), "-12 ");
  EXPECT_TRUE(preparation.world.isShown("Fight"));
  EXPECT_EQ(preparation.world.caption("Fight", "Mstat(0)"), "-12");
}

TEST(PoisonedFish, TheLastOneLeavesTheListAndASecondClickPoisonsNobody) {
  Preparation preparation;
  preparation.openWith(kFishCounter, 1);
  preparation.world.roll(1, 6, {2, 2});
  preparation.use(kFish);
  preparation.useAgain();
  EXPECT_TRUE(preparation.items().empty());
  EXPECT_EQ(preparation.caption("Monstat(2)"), "16");
}

TEST(Rhubarb, SetsTheEnduranceToItsMaximum) {
  Preparation preparation;
  preparation.openWith(kRhubarbCounter, 1);
  preparation.use(kRhubarb);
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
  EXPECT_EQ(preparation.notes(), "Spożyłem Rabarbar de'Cur");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").AktWytrzymalosc, 30);
}

TEST(Rhubarb, AtFullEnduranceIsUsedUpAllTheSame) {
  Preparation preparation;
  preparation.hero.AktWytrzymalosc = 30;
  preparation.openWith(kRhubarbCounter, 1);
  preparation.use(kRhubarb);
  EXPECT_TRUE(preparation.items().empty());
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(3), 0);
}

TEST(Rhubarb, LowersAnEnduranceThatStoodAboveItsMaximum) {
  Preparation preparation;
  preparation.hero.AktWytrzymalosc = 40;
  preparation.openWith(kRhubarbCounter, 1);
  preparation.use(kRhubarb);
  EXPECT_EQ(preparation.caption("cur(0)"), "30");
}

TEST(Snuff, ShowsTheArmourWithTheBonusOfTwoDice) {
  Preparation preparation;
  preparation.hero.Wartosci(1) = 4;
  preparation.openWith(kSnuffCounter, 1);
  EXPECT_FALSE(preparation.world.isVisible("Prefight", "tabak"));
  preparation.world.roll(1, 6, {5, 6});
  preparation.use(kSnuff);
  EXPECT_TRUE(preparation.world.isVisible("Prefight", "tabak"));
  EXPECT_EQ(preparation.caption("tabak"), "15");
  EXPECT_EQ(preparation.caption("stat(1)"), "4");
  EXPECT_EQ(preparation.notes(), "Spożyłem Tabakę( 11) ");
}

TEST(Snuff, TwoInARowAddUpToTheSumOfBothRolls) {
  Preparation preparation;
  preparation.hero.Wartosci(1) = 4;
  preparation.openWith(kSnuffCounter, 2);
  preparation.world.roll(1, 6, {5, 6, 1, 2});
  preparation.use(kSnuff);
  preparation.useAgain();
  EXPECT_EQ(preparation.caption("tabak"), "18");
  EXPECT_EQ(preparation.notes(), "Spożyłem Tabakę( 11) Spożyłem Tabakę( 3) ");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 3), " 14 ");
  EXPECT_EQ(preparation.world.hero("hero1.boh").Wartosci(1), 4);
}

TEST(Bar, RaisesTheInitiativeByTenThousand) {
  Preparation preparation;
  preparation.openWith(kBarCounter, 1);
  preparation.use(kBar);
  EXPECT_EQ(preparation.caption("Inic"), "10012");
  EXPECT_EQ(preparation.notes(), "Spożyłem Krzepiący Baton");
  preparation.monster.Szybkosc = 12;
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Wartosci(3), 12);
}

TEST(Bar, ThreeOnAHighInitiativeEndTheProgramAndTwoDoNot) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 2768;
  preparation.openWith(kBarCounter, 3);
  preparation.use(kBar);
  preparation.useAgain();
  EXPECT_EQ(preparation.caption("Inic"), "22768");
  EXPECT_EQ(errorOf([&] { preparation.useAgain(); }), 6);
}

TEST(Bar, ThreeOnAnInitiativeOf2767StayInRange) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 2767;
  preparation.openWith(kBarCounter, 3);
  preparation.use(kBar);
  preparation.useAgain();
  preparation.useAgain();
  EXPECT_EQ(preparation.caption("Inic"), "32767");
}

TEST(Bar, TwoAndTheHeadStartEndTheProgramToo) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 2768;
  preparation.hero.Przedmioty(1) = 1;
  preparation.openWith(kBarCounter, 2);
  preparation.use(kBar);
  EXPECT_EQ(errorOf([&] { preparation.useAgain(); }), 6);
}

TEST(Lamp, CostsAUseAndDoesNothingElseButRedrawTheInitiative) {
  Preparation preparation;
  preparation.openWith(kLampCounter, 1);
  preparation.world.get<Label>("Prefight", "Inic").Caption = "zamazane";
  preparation.use(kLamp);
  EXPECT_EQ(preparation.caption("Inic"), "12");
  EXPECT_EQ(preparation.notes(), "Wykorzystałem Lampę Sea Archiego");
  preparation.finish();
  Bohater expected = preparation.hero;
  expected.Przedmioty(kLampCounter) = 0;
  EXPECT_EQ(preparation.world.hero("hero1.boh"), expected);
  EXPECT_EQ(preparation.world.line("fight.cfg", 3), " 0 ");
  EXPECT_EQ(preparation.world.line("fight.cfg", 4), " 0 ");
}

TEST(Immortality, AddsUpRoundsThatOnlyTheFightsFileKnows) {
  Preparation preparation;
  preparation.openWith(kImmortalityCounter, 2);
  preparation.world.roll(1, 6, {6, 2});
  preparation.use(kImmortality);
  preparation.useAgain();
  EXPECT_EQ(preparation.notes(), "Stałem się nieśmiertelny (rund: 6)Stałem się nieśmiertelny (rund: 2)");
  preparation.finish();
  EXPECT_EQ(preparation.world.line("fight.cfg", 4), " 8 ");
}

TEST(Notes, GoBehindWhatThePlayerTyped) {
  Preparation preparation;
  preparation.hero.Przedmioty(3) = 1;
  preparation.hero.Przedmioty(6) = 1;
  preparation.open();
  preparation.world.type("Prefight", "historia", "Uwaga na rybę!");
  preparation.use(kRhubarb);
  preparation.use(kLamp);
  EXPECT_EQ(preparation.notes(), "Uwaga na rybę!Spożyłem Rabarbar de'CurWykorzystałem Lampę Sea Archiego");
}

TEST(Notes, RunStraightOnExceptBehindTheTwoThatEndInABlank) {
  Preparation preparation;
  for (Integer& counter : preparation.hero.Przedmioty) counter = 1;
  preparation.hero.Przedmioty(1) = 0;
  preparation.open();
  preparation.world.roll(1, 6, {3, 4, 1, 1, 3});
  for (const char* item : {kFish, kBar, kSnuff, kImmortality, kRhubarb}) preparation.use(item);
  EXPECT_EQ(preparation.notes(),
            "Podłożyłem zatrutą rybę( 7) Spożyłem Krzepiący BatonSpożyłem Tabakę( 2) Stałem się nieśmiertelny (rund: "
            "3)Spożyłem Rabarbar de'Cur");
}

TEST(ItemsBeforeTheFight, SelectingOneChangesNothingByItself) {
  Preparation preparation;
  preparation.openWith(kRhubarbCounter, 1);
  preparation.world.select("Prefight", "Przedmioty", kRhubarb);
  EXPECT_EQ(preparation.caption("cur(0)"), "10");
  EXPECT_EQ(preparation.notes(), "");
}

}  // namespace
}  // namespace brolgan::test
