// The hero's spells in the fight: what each costs, demands and does.
#include <cctype>

#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

struct Spell {
  const char* name;
  int cost;
  const char* sound;
  // The dice that a casting throws, in their order.
  std::vector<std::array<int, 3>> dice;

  friend std::ostream& operator<<(std::ostream& out, const Spell& spell) { return out << spell.name; }
};

const std::vector<Spell> kSpells = {
    {"Leczenie", 1, "czar.wav", {{1, 6, 3}}},
    {"Czar Leczniczy", 2, "czar.wav", {{1, 6, 3}, {1, 6, 4}}},
    {"Damage!", 2, "czaramg.wav", {{1, 6, 1}, {1, 6, 2}, {1, 6, 3}}},
    {"BullShots", 2, "czarbul.wav", {{1, 6, 1}, {1, 6, 2}, {1, 6, 3}}},
    {"BOOM!", 4, "czarboom.wav", {{1, 30, 3}, {1, 30, 4}}},
    {"Klasa III A", 2, "czar3a.wav", {{1, 6, 3}, {1, 6, 4}, {1, 10, 5}}},
    {"Kaczy Fart", 4, "czarkac.wav", {}},
};

class EverySpell : public FightTest, public ::testing::WithParamInterface<Spell> {
 protected:
  EverySpell() { readySpell(GetParam().name); }
  void rollDice() {
    for (const auto& [kmin, kmax, face] : GetParam().dice) world.roll(kmin, kmax, {face});
  }
};

TEST_P(EverySpell, ShowsItsCostWhenItIsChosen) {
  hero.OstatniCzar = "";
  learn("Leczenie");
  open();
  EXPECT_EQ(text("mana"), "0");

  chooseSpell(GetParam().name);

  EXPECT_EQ(text("mana"), std::to_string(GetParam().cost));
}

TEST_P(EverySpell, OpensTheBoxForItsPowerOnlyIfItIsBullShots) {
  open();

  EXPECT_EQ(enabled("mana"), std::string(GetParam().name) == "BullShots");
  EXPECT_EQ(world.type("Fight", "mana", "7"), std::string(GetParam().name) == "BullShots");
}

TEST_P(EverySpell, CastCostsItsPointsAndClosesTheCastingOfTheRound) {
  hero.AktMoc = 10;
  group(1, 200);
  open();
  rollDice();
  cast();

  EXPECT_EQ(caption("Pstat(2)"), std::to_string(10 - GetParam().cost));
  EXPECT_EQ(openActions(), "Atak Uzyj");
  EXPECT_EQ(played().back(), GetParam().sound);
}

TEST_P(EverySpell, IsCastWithJustThePointsItDemands) {
  hero.AktMoc = GetParam().cost;
  group(1, 200);
  open();
  rollDice();
  cast();

  EXPECT_EQ(caption("Pstat(2)"), "0");
}

TEST_P(EverySpell, WithOnePointTooFewDoesNothingAtAll) {
  hero.AktMoc = GetParam().cost - 1;
  hero.AktWytrzymalosc = 5;
  open();
  const auto loads = world.pictures.loaded.size();
  cast();

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(caption("Pstat(0)"), "5");
  EXPECT_EQ(caption("Pstat(2)"), std::to_string(GetParam().cost - 1));
  EXPECT_EQ(world.pictures.loaded.size(), loads);
  EXPECT_TRUE(played().empty());
}

TEST_P(EverySpell, IsNeverCastByABerserkerThoughHisListShowsItsCost) {
  hero.Klasa = "Berserker";
  hero.AktMoc = 10;
  open();
  EXPECT_EQ(text("mana"), std::to_string(GetParam().cost));
  cast();

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(caption("Pstat(2)"), "10");
  EXPECT_TRUE(played().empty());
}

TEST_P(EverySpell, TakesTheShotOfTheRound) {
  hero.AktMoc = 10;
  ready("Łuk");
  group(1, 200);
  open();
  rollDice();
  cast();
  const std::string endurance = caption("Mstat(0)");

  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("Mstat(0)"), endurance);
}

TEST_P(EverySpell, MayBeCastAgainInTheNextRound) {
  hero.AktMoc = 10;
  group(1, 200);
  open();
  rollDice();
  cast();
  nextRound();
  rollDice();
  cast();

  EXPECT_EQ(caption("Pstat(2)"), std::to_string(10 - 2 * GetParam().cost));
}

INSTANTIATE_TEST_SUITE_P(Spells, EverySpell, ::testing::ValuesIn(kSpells), [](const auto& row) {
  std::string name = row.param.name;
  std::erase_if(name, [](char letter) { return std::isalnum(static_cast<unsigned char>(letter)) == 0; });
  return name;
});

class Casting : public FightTest {
 protected:
  Casting() {
    hero.AktMoc = 10;
    hero.AktWytrzymalosc = 5;
  }
};

using Healing = Casting;
using DamageAndBoom = Casting;
using BullShots = Casting;
using Klasa3A = Casting;
using KaczyFart = Casting;

TEST_F(Casting, ChoosingTheChosenSpellAgainPutsItsCostBack) {
  readySpell("BullShots");
  open();
  EXPECT_TRUE(world.type("Fight", "mana", "5"));
  chooseSpell("BullShots");

  EXPECT_EQ(text("mana"), "2");
}

TEST_F(Casting, ChoosingAnotherSpellClosesTheBoxForThePower) {
  learn("Leczenie");
  readySpell("BullShots");
  open();
  EXPECT_TRUE(world.type("Fight", "mana", "5"));
  chooseSpell("Leczenie");

  EXPECT_EQ(text("mana"), "1");
  EXPECT_FALSE(enabled("mana"));
}

TEST_F(Casting, WithNoSpellChosenDoesNothing) {
  learn("Leczenie");
  open();
  cast();

  EXPECT_EQ(caption("Pstat(2)"), "10");
  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
}

TEST_F(Casting, IsRefusedBySpentCastingEvenIfTheButtonWereLive) {
  readySpell("Leczenie");
  open();
  world.roll(1, 6, {1});
  cast();
  runHandlerOf("Rzuc");

  EXPECT_EQ(caption("Pstat(2)"), "9");
}

TEST_F(Casting, ChoosingASpellCostsNothing) {
  learn("Leczenie");
  open();
  chooseSpell("Leczenie");

  EXPECT_EQ(openActions(), "Atak Rzuc Uzyj");
  EXPECT_EQ(caption("Pstat(2)"), "10");
}

TEST_F(Casting, TooDearASpellLeavesAnotherToBeChosen) {
  hero.AktMoc = 3;
  learn("Leczenie");
  readySpell("BOOM!");
  open();
  cast();
  EXPECT_TRUE(enabled("Rzuc"));
  EXPECT_EQ(caption("Pstat(2)"), "3");
  chooseSpell("Leczenie");
  world.roll(1, 6, {2});
  cast();

  EXPECT_EQ(caption("Pstat(2)"), "2");
}

TEST_F(Healing, LeczenieRaisesEnduranceByADieOfSix) {
  readySpell("Leczenie");
  open();
  const auto loads = world.pictures.loaded.size();
  world.roll(1, 6, {6});
  cast();

  EXPECT_EQ(caption("Pstat(0)"), "11");
  EXPECT_EQ(world.pictures.loaded.size(), loads);
}

TEST_F(Healing, LeczenieStopsAtTheMaximum) {
  hero.AktWytrzymalosc = 10;
  readySpell("Leczenie");
  open();
  world.roll(1, 6, {6});
  cast();

  EXPECT_EQ(caption("Pstat(0)"), "12");
}

TEST_F(Healing, LeczenieAtFullEnduranceSpendsThePointForNothing) {
  hero.AktWytrzymalosc = 12;
  readySpell("Leczenie");
  open();
  world.roll(1, 6, {4});
  cast();

  EXPECT_EQ(caption("Pstat(0)"), "12");
  EXPECT_EQ(caption("Pstat(2)"), "9");
}

struct StrongHealing {
  int level;
  int endurance;

  friend std::ostream& operator<<(std::ostream& out, const StrongHealing& row) { return out << "level " << row.level; }
};

class CzarLeczniczy : public Casting, public ::testing::WithParamInterface<StrongHealing> {};

TEST_P(CzarLeczniczy, HealsTwoDiceAndTwoForEachLevelAboveTheFirst) {
  hero.Wartosci(0) = 50;
  hero.Przedmioty(2) = GetParam().level;
  readySpell("Czar Leczniczy");
  open();
  world.roll(1, 6, {3, 5});
  cast();

  EXPECT_EQ(caption("Pstat(0)"), std::to_string(GetParam().endurance));
}

// A fair die would show 1 twice where the uneven one shows 2.
TEST_F(Healing, CzarLeczniczyIsThrownWithUnevenDice) {
  readySpell("Czar Leczniczy");
  open();
  for (int i = 0; i < 2; ++i) world.scripted.add(0.15F);
  cast();

  EXPECT_EQ(caption("Pstat(0)"), "9");
}

INSTANTIATE_TEST_SUITE_P(Levels, CzarLeczniczy,
                         ::testing::Values(StrongHealing{1, 13}, StrongHealing{2, 15}, StrongHealing{3, 17},
                                           StrongHealing{20, 50}));

TEST_F(DamageAndBoom, DamageHitsTheTargetWithThreeDiceLessItsArmour) {
  readySpell("Damage!");
  group(1, 50, 3);
  open();
  world.roll(1, 6, {1, 6, 4});
  cast();

  EXPECT_TRUE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), " 8");
  EXPECT_EQ(caption("Mstat(0)"), "42");
}

TEST_F(DamageAndBoom, BoomHitsTheTargetWithTwoDiceOfThirtyLessItsArmour) {
  readySpell("BOOM!");
  group(1, 50, 3);
  open();
  world.roll(1, 30, {1, 30});
  cast();

  EXPECT_EQ(caption("IleZad"), " 28");
  EXPECT_EQ(caption("Mstat(0)"), "22");
}

TEST_F(DamageAndBoom, AHitReplacesTheFigureAndKeepsTheWord) {
  readySpell("Damage!");
  ready("Laska");
  group(3, 10);
  open();
  blow();
  EXPECT_EQ(caption("IleZad"), " 10 ");
  world.roll(1, 6, {1, 1, 1});
  cast();

  EXPECT_EQ(caption("IleZad"), " 3");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
}

TEST_F(DamageAndBoom, AHitStoppedByTheArmourSpendsThePointsForNothing) {
  readySpell("Damage!");
  group(1, 50, 18);
  open();
  world.roll(1, 6, {6, 6, 6});
  cast();

  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("Mstat(0)"), "50");
  EXPECT_EQ(caption("Pstat(2)"), "8");
  EXPECT_FALSE(enabled("Rzuc"));
}

TEST_F(DamageAndBoom, AHitNeverSpreadsOrCarriesWhateverWeaponIsSelected) {
  readySpell("BOOM!");
  ready("Łuk");
  weapon("Łuk").ogien = 1;
  weapon("Łuk").wszyscy = 2;
  group(2, 20);
  open();
  world.roll(1, 30, {15, 15});
  cast();

  EXPECT_EQ(caption("IleZad"), " 30");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(caption("Mstat(0)"), "20");
}

TEST_F(DamageAndBoom, AHitThatFellsTheLastClosesTheFight) {
  readySpell("BOOM!");
  open();
  world.roll(1, 30, {15, 5});
  cast();

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(caption("LIle"), "0");
}

TEST_F(DamageAndBoom, TheSoundIsStartedLastAfterTheFallen) {
  fight.potwor.Nazwa = "Król Zagłady";
  readySpell("BOOM!");
  open();
  world.roll(1, 30, {15, 5});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"wygr.wav", "czarboom.wav"}));
  EXPECT_EQ(caption("OpisZad"), "Wygrałeś - tura  1");
  EXPECT_EQ(caption("Pstat(2)"), "6");
}

TEST_F(BullShots, WithTwoPointsAreTheBareDiceForAll) {
  readySpell("BullShots");
  group(2, 50, 2);
  open();
  world.roll(1, 6, {1, 5, 6});
  cast();
  EXPECT_TRUE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), " 10 wszystkim!");
  EXPECT_EQ(caption("Mstat(0)"), "40");
  EXPECT_EQ(caption("Pstat(2)"), "8");
  fellTarget();

  EXPECT_EQ(caption("Mstat(0)"), "40");
}

TEST_F(BullShots, WithFivePointsAddSix) {
  readySpell("BullShots");
  group(1, 50);
  open();
  EXPECT_TRUE(world.type("Fight", "mana", "5"));
  world.roll(1, 6, {1, 5, 6});
  cast();

  EXPECT_EQ(caption("IleZad"), " 18 wszystkim!");
  EXPECT_EQ(caption("Pstat(2)"), "5");
}

TEST_F(BullShots, WithAllThePointsAreCast) {
  readySpell("BullShots");
  group(1, 50);
  open();
  EXPECT_TRUE(world.type("Fight", "mana", "10"));
  world.roll(1, 6, {1, 1, 1});
  cast();

  EXPECT_EQ(caption("IleZad"), " 19 wszystkim!");
  EXPECT_EQ(caption("Pstat(2)"), "0");
}

TEST_F(BullShots, WithMorePointsThanTheHeroHasOrFewerThanTwoDoNothing) {
  readySpell("BullShots");
  open();
  for (const std::string points : {"11", "10.001", "1", "1.999", "0", "-3", "1e300", "1E999"}) {
    EXPECT_TRUE(world.type("Fight", "mana", points));
    cast();
    EXPECT_EQ(caption("Pstat(2)"), "10") << points;
    EXPECT_EQ(openActions(), "Atak Rzuc Uzyj") << points;
  }
  EXPECT_TRUE(played().empty());
}

struct TypedPoints {
  const char* text;
  int magic;
  const char* harm;
  int left;

  friend std::ostream& operator<<(std::ostream& out, const TypedPoints& row) { return out << '"' << row.text << '"'; }
};

class BullShotsPower : public FightTest, public ::testing::WithParamInterface<TypedPoints> {};

TEST_P(BullShotsPower, IsANumberWithTiesToEvenForTheDiceAndForThePoints) {
  hero.AktMoc = GetParam().magic;
  readySpell("BullShots");
  group(1, 100);
  open();
  EXPECT_TRUE(world.type("Fight", "mana", GetParam().text));
  world.roll(1, 6, {2, 4, 4});
  cast();

  EXPECT_EQ(caption("IleZad"), std::string(GetParam().harm) + " wszystkim!");
  EXPECT_EQ(caption("Pstat(2)"), std::to_string(GetParam().left));
}

INSTANTIATE_TEST_SUITE_P(Texts, BullShotsPower,
                         ::testing::Values(TypedPoints{"2.5", 6, " 11", 4}, TypedPoints{"2.5", 5, " 11", 2},
                                           TypedPoints{"2.25", 10, " 10", 8}, TypedPoints{"2.75", 10, " 12", 7},
                                           TypedPoints{"  3  ", 10, " 12", 7}, TypedPoints{"+3", 10, " 12", 7},
                                           TypedPoints{"3.", 10, " 12", 7}, TypedPoints{"3e0", 10, " 12", 7},
                                           TypedPoints{".3D1", 10, " 12", 7}));

class NoNumber : public Casting, public ::testing::WithParamInterface<const char*> {};

TEST_P(NoNumber, InTheBoxOfBullShotsIsATypeMismatch) {
  readySpell("BullShots");
  open();
  EXPECT_TRUE(world.type("Fight", "mana", GetParam()));

  EXPECT_EQ(errorTextOf([this] { press("Rzuc"); }), "Błąd wykonania 13: Niezgodność typów\nPole: mana");
}

TEST_P(NoNumber, InTheBoxIsATypeMismatchWithoutAnyMagicToo) {
  hero.AktMoc = 0;
  readySpell("BullShots");
  open();
  EXPECT_TRUE(world.type("Fight", "mana", GetParam()));

  EXPECT_EQ(errorOf([this] { press("Rzuc"); }), 13);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoNumber, ::testing::Values("", "   ", "dwa", "2,5", "2 3", "2x", "e", "."));

TEST_F(BullShots, TheTextIsJudgedAfterTheClassAndTheSpentCasting) {
  readySpell("BullShots");
  group(1, 100);
  open();
  world.roll(1, 6, {1, 1, 1});
  cast();
  EXPECT_TRUE(world.type("Fight", "mana", "dwa"));
  EXPECT_EQ(errorOf([this] { runHandlerOf("Rzuc"); }), 0);

  world.runtime.Unload("Fight");
  hero.Klasa = "Berserker";
  open();
  EXPECT_TRUE(world.type("Fight", "mana", "dwa"));
  EXPECT_EQ(errorOf([this] { press("Rzuc"); }), 0);
}

TEST_F(BullShots, HealTheOthersWhenTheTargetsArmourStopsThem) {
  readySpell("BullShots");
  group(3, 50, 20);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();
  EXPECT_FALSE(shown("FZad"));
  EXPECT_EQ(caption("IleZad"), "");
  EXPECT_EQ(caption("Mstat(0)"), "50");
  EXPECT_EQ(caption("Pstat(2)"), "8");

  for (const std::string left : {"2", "1"}) {
    fellTarget();
    EXPECT_EQ(caption("LIle"), left);
    EXPECT_EQ(caption("Mstat(0)"), "58");
  }
}

TEST_F(BullShots, PlayTheSelectedMeleeWeaponAndThenTheirOwnSound) {
  readySpell("BullShots");
  ready("Tasak");
  group(1, 100);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"Tasak.wav", "czarbul.wav"}));
}

TEST_F(BullShots, PlayTheMeleeWeaponOfTheSamePlaceForARangedOne) {
  readySpell("BullShots");
  ready("Marker");
  group(1, 100);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"Tasak.wav", "czarbul.wav"}));
}

TEST_F(BullShots, PlayTheFirstMeleeWeaponWithNoneSelected) {
  readySpell("BullShots");
  group(1, 100);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"Nóż.wav", "czarbul.wav"}));
}

TEST_F(BullShots, StoppedByTheArmourPlayTheirOwnSoundAlone) {
  readySpell("BullShots");
  group(1, 100, 12);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"czarbul.wav"}));
}

TEST_F(BullShots, ThatEndTheGamePlayWeaponThenVictoryThenTheirOwn) {
  fight.potwor.Nazwa = "Król Zagłady";
  readySpell("BullShots");
  group(2, 10);
  open();
  world.roll(1, 6, {4, 4, 4});
  cast();

  EXPECT_EQ(played(), (std::vector<std::string>{"Nóż.wav", "wygr.wav", "czarbul.wav"}));
  EXPECT_EQ(caption("LIle"), "0");
}

TEST_F(BullShots, KeepTheWordOfTheLastReport) {
  readySpell("BullShots");
  ready("Laska");
  group(3, 10);
  open();
  blow();
  world.roll(1, 6, {1, 1, 1});
  cast();

  EXPECT_EQ(caption("IleZad"), " 3 wszystkim!");
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
}

TEST_F(Klasa3A, ThrowsTheRoundsThenTheBonusAndShowsTheSumAtOnce) {
  hero.Wartosci(1) = 2;
  fight.BonusPancerza = 3;
  readySpell("Klasa III A");
  open();
  EXPECT_EQ(caption("Pstat(1)"), "5");
  world.roll(1, 6, {1, 1});
  world.roll(1, 10, {10});
  cast();

  EXPECT_EQ(caption("Pstat(1)"), "15");
  nextRound();
  EXPECT_EQ(caption("Pstat(1)"), "15");
  nextRound();
  EXPECT_EQ(caption("Pstat(1)"), "5");
}

TEST_F(Klasa3A, ASecondCastingReplacesRoundsAndBonus) {
  readySpell("Klasa III A");
  open();
  world.roll(1, 6, {6, 6});
  world.roll(1, 10, {9});
  cast();
  EXPECT_EQ(caption("Pstat(1)"), "9");
  nextRound();
  world.roll(1, 6, {1, 1});
  world.roll(1, 10, {4});
  cast();
  EXPECT_EQ(caption("Pstat(1)"), "4");
  nextRound();
  EXPECT_EQ(caption("Pstat(1)"), "4");
  nextRound();

  EXPECT_EQ(caption("Pstat(1)"), "0");
}

TEST_F(Klasa3A, ProtectsAgainstTheMonsters) {
  readySpell("Klasa III A");
  strikesWith(5);
  open();
  world.roll(1, 6, {1, 1});
  world.roll(1, 10, {4});
  cast();
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "1 ");
}

TEST_F(KaczyFart, TwiceAcrossTwoRoundsTakesTwoBlowsAndNoThird) {
  readySpell("Kaczy Fart");
  fight.potwor.Ilosc = 3;
  fight.potwor.Atak = {1, 6, 1, -1};
  open();
  cast();
  world.roll(1, 6, {1, 1, 1});
  nextRound();
  cast();
  world.roll(1, 6, {3, 4, 5});
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "4 ");
  EXPECT_EQ(caption("Pstat(0)"), "1");
}

TEST_F(KaczyFart, RedrawsTheFigures) {
  readySpell("Kaczy Fart");
  open();
  const auto loads = world.pictures.loaded.size();
  cast();

  EXPECT_EQ(world.pictures.loaded.size(), loads + 1);
}

}  // namespace
}  // namespace brolgan::test
