// The end of a round and the monsters' answer.
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Round = FightTest;
using MonstersStrike = FightTest;
using FallenHero = FightTest;
using Czarownik = FightTest;
using GroupGone = FightTest;

TEST_F(Round, OfAHeroWhoDoesNothingLetsTheMonstersStrikeAndOpensEverythingAgain) {
  ready("Łuk");
  strikesWith(2);
  open();
  nextRound();
  EXPECT_EQ(caption("Pstat(0)"), "10");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  shot();

  EXPECT_EQ(caption("Mstat(0)"), "10");
}

TEST_F(Round, OpensTheActionsThatTheLastOneClosed) {
  hero.AktMoc = 20;
  readySpell("Leczenie");
  readyItem("Granat", 3);
  ready("Łuk");
  group(1, 100);
  open();
  shot();
  world.roll(1, 30, {2});
  use();
  EXPECT_EQ(openActions(), "");
  nextRound();
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  world.roll(1, 6, {1});
  cast();
  nextRound();
  choose("Nóż");
  blow();
  nextRound();
  world.roll(1, 6, {1});
  cast();

  EXPECT_EQ(caption("Pstat(2)"), "18");
}

TEST_F(Round, HidesTheReportsAndTheWarningAndKeepsTheirWords) {
  ready("UltiGun");
  fight.PotworPierwszy = 1;
  fight.potwor.Atak = {1, 6, 1, -1};
  group(2, 10);
  world.roll(1, 6, {2, 3});
  open();
  world.roll(1, 140, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));
  for (const std::string report : {"FZad", "FDamage", "Uwaga"}) EXPECT_TRUE(shown(report)) << report;
  world.roll(1, 6, {1});
  nextRound();

  for (const std::string report : {"FZad", "FDamage", "Uwaga"}) EXPECT_FALSE(shown(report)) << report;
  EXPECT_EQ(caption("IleZad"), " 10 ");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("Uwaga"), "Straciłeś 1 od Maxa Wytrzymałości");
}

TEST_F(Round, HidesTheReportOfDamageTakenWhenNoBlowGetsThrough) {
  fight.potwor.Atak = {1, 6, 1, -1};
  open();
  world.roll(1, 6, {3});
  nextRound();
  EXPECT_TRUE(shown("FDamage"));
  EXPECT_EQ(caption("IleDMG"), "2 ");
  world.roll(1, 6, {1});
  nextRound();

  EXPECT_FALSE(shown("FDamage"));
  EXPECT_EQ(caption("IleDMG"), "");
}

TEST_F(Round, KlasaThreeAEndsBeforeTheMonstersStrike) {
  hero.AktMoc = 2;
  readySpell("Klasa III A");
  strikesWith(5);
  open();
  world.roll(1, 6, {1, 1});
  world.roll(1, 10, {4});
  cast();
  nextRound();
  EXPECT_EQ(caption("IleDMG"), "1 ");
  EXPECT_EQ(caption("Pstat(1)"), "4");
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "5 ");
  EXPECT_EQ(caption("Pstat(1)"), "0");
}

TEST_F(Round, OfAnyClassButCzarownikRegainsNothing) {
  hero.AktMoc = 1;
  hero.AktWytrzymalosc = 5;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = 10;
  for (const std::string klasa : {"Wojownik", "Strzelec", "Wiedźmin", "Awanturnik", "Satrapa", "Berserker", "Ryzykant",
                                  "Zabobonny mnich zakonny", "Złota rączka", "czarownik"}) {
    hero.Klasa = klasa;
    open();
    nextRound();
    EXPECT_EQ(caption("Pstat(0)"), "5") << klasa;
    EXPECT_EQ(caption("Pstat(2)"), "1") << klasa;
    world.runtime.Unload("Fight");
  }
}

struct Regain {
  int regeneration;
  int gained;

  friend std::ostream& operator<<(std::ostream& out, const Regain& row) { return out << row.regeneration; }
};

class CzarownikRegain : public FightTest, public ::testing::WithParamInterface<Regain> {};

TEST_P(CzarownikRegain, IsHisRegenerationByThreeAndAHalfRounded) {
  hero.Klasa = "Czarownik";
  hero.AktMoc = 2;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = GetParam().regeneration;
  open();
  nextRound();

  EXPECT_EQ(caption("Pstat(2)"), std::to_string(2 + GetParam().gained));
  EXPECT_EQ(caption("Pstat(0)"), "12");
}

INSTANTIATE_TEST_SUITE_P(Steps, CzarownikRegain,
                         ::testing::Values(Regain{1, 0}, Regain{3, 1}, Regain{5, 1}, Regain{7, 2}, Regain{10, 3}));

TEST_F(Czarownik, AtHisMaximumGainsNothing) {
  hero.Klasa = "Czarownik";
  hero.AktMoc = 20;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = 10;
  open();
  nextRound();

  EXPECT_EQ(caption("Pstat(2)"), "20");
}

TEST_F(Czarownik, IsCutToHisMaximum) {
  hero.Klasa = "Czarownik";
  hero.AktMoc = 19;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = 10;
  open();
  nextRound();

  EXPECT_EQ(caption("Pstat(2)"), "20");
}

TEST_F(Czarownik, RegainsWhenHeHasFallenToo) {
  hero.Klasa = "Czarownik";
  hero.AktMoc = 2;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = 10;
  strikesWith(50);
  open();
  nextRound();
  nextRound();

  EXPECT_EQ(caption("Pstat(2)"), "8");
}

TEST_F(MonstersStrike, EachStandingOneThrowsItsOwnDice) {
  ready("Miecz");
  hero.AktWytrzymalosc = 50;
  hero.Wartosci(0) = 50;
  fight.potwor.Atak = {1, 12, 1, 0};
  fight.potwor.Ilosc = 3;
  open();
  world.roll(1, 12, {7, 3, 12});
  nextRound();
  EXPECT_EQ(caption("IleDMG"), "7 3 12 ");
  EXPECT_EQ(caption("Pstat(0)"), "28");
  EXPECT_TRUE(shown("FDamage"));
  blow();
  world.roll(1, 12, {5, 6});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "5 6 ");
  EXPECT_EQ(caption("Pstat(0)"), "17");
}

TEST_F(MonstersStrike, WithAllTheirDiceAndTheirAddition) {
  hero.AktWytrzymalosc = 50;
  fight.potwor.Atak = {2, 6, 2, 3};
  open();
  world.roll(2, 6, {2, 5});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "10 ");
}

TEST_F(MonstersStrike, AgainstAllThreeArmoursOfTheHero) {
  hero.AktMoc = 2;
  readySpell("Klasa III A");
  hero.Wartosci(1) = 3;
  fight.BonusPancerza = 2;
  strikesWith(10);
  open();
  world.roll(1, 6, {6, 6});
  world.roll(1, 10, {4});
  cast();
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "1 ");
  EXPECT_EQ(caption("Pstat(0)"), "11");
}

TEST_F(MonstersStrike, BlowsThatTheArmourStopsLeaveNoFigure) {
  hero.Wartosci(1) = 3;
  fight.potwor.Atak = {1, 6, 1, 0};
  fight.potwor.Ilosc = 4;
  open();
  world.roll(1, 6, {3, 4, 1, 6});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "1 3 ");
  EXPECT_EQ(caption("Pstat(0)"), "8");
}

TEST_F(MonstersStrike, OneChargeOfKaczyFartTakesTheFirstBlowThatGotThrough) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  hero.Wartosci(1) = 1;
  fight.potwor.Atak = {1, 6, 1, 0};
  fight.potwor.Ilosc = 2;
  open();
  cast();
  world.roll(1, 6, {6, 3});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "2 ");
  EXPECT_EQ(caption("Pstat(0)"), "10");
}

TEST_F(MonstersStrike, BlowsThatTheArmourStopsUseNoCharge) {
  hero.AktMoc = 4;
  readySpell("Kaczy Fart");
  hero.Wartosci(1) = 4;
  fight.potwor.Atak = {1, 6, 1, 0};
  fight.potwor.Ilosc = 2;
  open();
  cast();
  world.roll(1, 6, {4, 1});
  nextRound();
  EXPECT_FALSE(shown("FDamage"));
  world.roll(1, 6, {6, 5});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "1 ");
  EXPECT_EQ(caption("Pstat(0)"), "11");
}

TEST_F(MonstersStrike, OnlyTheLastAttackIsShownAlsoWhenItDealsNothing) {
  fight.potwor.Atak = {1, 6, 1, -1};
  open();
  for (const int face : {5, 3, 1}) {
    world.roll(1, 6, {face});
    nextRound();
    EXPECT_EQ(caption("IleDMG"), face == 1 ? "" : std::to_string(face - 1) + " ");
  }
}

TEST_F(MonstersStrike, GoOnWhenTheHeroHasFallen) {
  fight.potwor.Atak = {1, 30, 1, 0};
  fight.potwor.Ilosc = 3;
  open();
  world.roll(1, 30, {20, 9, 1});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "20 9 1 ");
  EXPECT_EQ(caption("Pstat(0)"), "-18");
}

TEST_F(MonstersStrike, BeyondAnIntegerOverflows) {
  hero.AktWytrzymalosc = -32768;
  strikesWith(1);
  open();

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 6);
}

TEST_F(FallenHero, HasNoActionAndSmiercOnTheReport) {
  strikesWith(12);
  open();
  nextRound();

  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_EQ(openActions(), "");
  EXPECT_TRUE(enabled("NastTura"));
  EXPECT_TRUE(shown("FDamage"));
  EXPECT_TRUE(world.isShown("Fight"));
}

TEST_F(FallenHero, StandsWithOneLeft) {
  strikesWith(11);
  open();
  nextRound();

  EXPECT_EQ(caption("OpisDMG"), "");
  EXPECT_EQ(caption("Pstat(0)"), "1");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
}

TEST_F(FallenHero, PressingForTheNextRoundIsStruckAgainAndStaysFallen) {
  fight.potwor.Atak = {1, 30, 1, -1};
  open();
  world.roll(1, 30, {20});
  nextRound();
  world.roll(1, 30, {4});
  nextRound();
  EXPECT_EQ(caption("IleDMG"), "3 ");
  EXPECT_EQ(caption("Pstat(0)"), "-10");
  EXPECT_EQ(openActions(), "");
  world.roll(1, 30, {1});
  nextRound();

  EXPECT_FALSE(shown("FDamage"));
  EXPECT_FALSE(press("CloseDMG"));
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
}

TEST_F(FallenHero, WordStaysForTheRestOfTheFight) {
  hero.AktWytrzymalosc = 0;
  hero.Klasa = "Strzelec";
  open();
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(caption("OpisDMG"), "");
  nextRound();
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  nextRound();

  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  EXPECT_EQ(openActions(), "");
}

TEST_F(FallenHero, WithoutABlowThatGetsThroughHasNoWayToCloseTheFight) {
  hero.AktWytrzymalosc = 0;
  open();
  nextRound();

  EXPECT_FALSE(shown("FDamage"));
  EXPECT_FALSE(press("CloseDMG"));
}

TEST_F(GroupGone, ClosesTheActionsUntilTheNextRoundClosesTheFight) {
  ready("Miecz");
  strikesWith(3);
  open();
  blow();
  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(openActions(), "");
  EXPECT_TRUE(world.isShown("Fight"));
  world.roll(1, 4, {2});
  nextRound();

  EXPECT_FALSE(world.isOpen("Fight"));
  EXPECT_TRUE(world.isShown("CTsklep"));
  EXPECT_EQ(saved().AktWytrzymalosc, 12);
}

TEST_F(GroupGone, ByPoisonBeforeTheFightIsWonByTheNextRoundWithoutAWord) {
  group(2, 0);
  open();
  EXPECT_EQ(caption("OpisZad"), "");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  world.roll(1, 4, {2});
  nextRound();

  EXPECT_FALSE(world.isOpen("Fight"));
  EXPECT_EQ(saved().Stwory(0), 1);
}

TEST_F(GroupGone, ByPoisonStillStrikesFirst) {
  fight.PotworPierwszy = 1;
  group(2, -5);
  strikesWith(3);
  open();

  EXPECT_EQ(caption("IleDMG"), "3 3 ");
  world.roll(1, 4, {2});
  nextRound();
  EXPECT_EQ(saved().Stwory(0), 1);
}

TEST_F(GroupGone, ByPoisonLetsAHeroFelledByTheFirstStrikeCloseTheFightAsWon) {
  fight.PotworPierwszy = 1;
  group(1, 0);
  strikesWith(20);
  hero.Wcielenia = 3;
  open();
  EXPECT_EQ(caption("OpisDMG"), "Śmierć!");
  world.roll(1, 4, {2});
  nextRound();

  EXPECT_EQ(saved().Wcielenia, 3);
  EXPECT_EQ(saved().Stwory(0), 1);
  EXPECT_EQ(saved().AktWytrzymalosc, -7);
}

TEST_F(GroupGone, IsJudgedByTheFirstMonsterWhichIsTheLastTarget) {
  ready("Miecz");
  group(2, 20);
  open();
  blow();
  nextRound();

  EXPECT_TRUE(world.isOpen("Fight"));
  EXPECT_EQ(caption("LIle"), "1");
}

TEST_F(GroupGone, AnEmptyGroupIsWonAtOnce) {
  group(0, 20);
  open();
  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(caption("Mstat(0)"), "0");
  world.roll(1, 4, {2});
  nextRound();

  EXPECT_FALSE(world.isOpen("Fight"));
}

}  // namespace
}  // namespace brolgan::test
