// Where the keyboard stands: on the control that a player's hand needs next.
#include "game/guide/next_hand.h"

#include <gtest/gtest.h>

#include "rules/development.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

// A screen played by a hand that goes where it is told.
class Played {
 public:
  Played(World& world, std::string screen) : world_(world), screen_(std::move(screen)) {
    world_.runtime.Show(screen_);
    focus = hand_.begin(screen_, world_.form(screen_));
  }

  // Presses what the hand stands on, as the space bar does.
  void press() { click(focus); }
  void click(const std::string& control) {
    EXPECT_TRUE(world_.click(screen_, control)) << control;
    follow(control);
  }
  void choose(const std::string& list, const std::string& row) {
    EXPECT_TRUE(world_.select(screen_, list, row)) << list;
    focus = list;
    follow(list);
  }

  std::string focus;

 private:
  void follow(const std::string& used) {
    if (world_.isShown(screen_)) focus = hand_.after(screen_, world_.form(screen_), used, focus);
  }

  World& world_;
  std::string screen_;
  NextHand hand_;
};

Bohater fighter(const std::string& weapon) {
  Bohater hero = richHero();
  hero.OstatniaBron = weapon;
  hero.AktWytrzymalosc = hero.Wartosci(kEndurance);
  return hero;
}

// A fighter with neither weapon nor spell.
Bohater emptyHanded() {
  Bohater hero = fighter("");
  for (int i = 0; i < 10; ++i) hero.MaBronww(i) = hero.MaBronss(i) = false;
  for (int i = 0; i < kSpells; ++i) hero.MaCzar(i) = false;
  return hero;
}

// A fight that the hero strikes in with the lowest dice, against one tough monster that never hurts.
void setLongFight(World& world, const Bohater& hero) {
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1000;
  setup.potwor.Atak = {1, 1, 1, -1};
  setFight(world, hero, setup);
}

void rollBlow(World& world) {
  world.roll(1, 4, {1, 1});
  world.roll(1, 120, {1});
}

void rollHarmlessAnswer(World& world) { world.roll(1, 1, {1}); }

TEST(NextHand, ARoundOfBlowsTakesTwoPresses) {
  World world;
  setLongFight(world, fighter("Nóż"));
  Played fight(world, "Fight");
  for (int round = 0; round < 3; ++round) {
    EXPECT_EQ(fight.focus, "Atak") << round;
    rollBlow(world);
    fight.press();
    EXPECT_EQ(fight.focus, "NastTura") << round;
    rollHarmlessAnswer(world);
    fight.press();
  }
}

TEST(NextHand, ARoundWithAReportClosedTakesThreePresses) {
  World world;
  setLongFight(world, fighter("Nóż"));
  Played fight(world, "Fight");
  rollBlow(world);
  fight.press();
  fight.click(escapeControl("Fight", world.form("Fight")));
  EXPECT_EQ(fight.focus, "NastTura");
  rollHarmlessAnswer(world);
  fight.press();
  EXPECT_EQ(fight.focus, "Atak");
}

TEST(NextHand, AHeroWithOneWeaponThatHeHasNotChosenIsLedToIt) {
  World world;
  Bohater hero = emptyHanded();
  hero.MaBronww(3) = true;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  EXPECT_EQ(world.rows("Fight", "Bron").size(), 1U);
  EXPECT_EQ(fight.focus, "Bron");
}

TEST(NextHand, DeathByTheOwnGrenadeLeadsToThePlasterFromWhereverTheHandStands) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniPrzedmiot = "Granat";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "Bron";
  world.roll(1, 30, {1, 30});
  fight.click("Uzyj");
  EXPECT_EQ(world.caption("Fight", "OpisDMG"), "Śmierć!");
  EXPECT_EQ(fight.focus, "CloseDMG");
}

TEST(NextHand, AHeroWhoCastLastCastsAgain) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "Kaczy Fart";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.click("Rzuc");
  fight.focus = "Rzuc";
  EXPECT_FALSE(world.isEnabled("Fight", "Rzuc"));
  rollHarmlessAnswer(world);
  fight.click("NastTura");
  EXPECT_EQ(fight.focus, "Rzuc");
}

TEST(NextHand, AStaffStrikesAfterASpellAndCastsAfterABlow) {
  World world;
  Bohater hero = fighter("Laska");
  hero.MaBronww(2) = true;
  hero.OstatniCzar = "Kaczy Fart";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "Rzuc";
  fight.press();
  EXPECT_EQ(fight.focus, "Atak");
  rollHarmlessAnswer(world);
  fight.click("NastTura");
  fight.focus = "Atak";
  world.roll(1, 4, {1});
  world.roll(1, 6, {1});
  world.roll(1, 120, {1});
  fight.press();
  EXPECT_EQ(fight.focus, "Rzuc");
}

TEST(NextHand, ASpellWithoutAStaffEndsTheRound) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "Kaczy Fart";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "Rzuc";
  fight.press();
  EXPECT_EQ(fight.focus, "NastTura");
}

TEST(NextHand, AHeroWithoutAWeaponChosenChoosesOne) {
  World world;
  setLongFight(world, fighter(""));
  Played fight(world, "Fight");
  EXPECT_EQ(fight.focus, "Bron");
  fight.choose("Bron", "Nóż");
  EXPECT_EQ(fight.focus, "Bron");
}

Bohater staffBearer(const std::string& spell) {
  Bohater hero = fighter("Laska");
  hero.MaBronww(2) = true;
  hero.OstatniCzar = spell;
  return hero;
}

void rollStaff(World& world) {
  world.roll(1, 4, {1});
  world.roll(1, 6, {1});
  world.roll(1, 120, {1});
}

TEST(NextHand, AStaffWithoutMagicLeftTakesTwoPressesToo) {
  World world;
  Bohater hero = staffBearer("BOOM!");
  hero.AktMoc = 3;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  EXPECT_EQ(fight.focus, "Atak");
  rollStaff(world);
  fight.press();
  EXPECT_EQ(fight.focus, "NastTura");
}

TEST(NextHand, ACastThatTheMagicDoesNotReachIsNoCast) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "BOOM!";
  hero.AktMoc = 3;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.click("Rzuc");
  rollHarmlessAnswer(world);
  fight.click("NastTura");
  fight.focus = "NastTura";
  EXPECT_EQ(world.caption("Fight", "Pstat(2)"), "3");
  EXPECT_TRUE(world.isEnabled("Fight", "Rzuc"));
  rollHarmlessAnswer(world);
  fight.press();
  EXPECT_EQ(fight.focus, "Atak");
}

TEST(NextHand, MagicForJustOneMoreCastIsEnough) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "Kaczy Fart";
  hero.AktMoc = 8;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "Rzuc";
  fight.press();
  EXPECT_EQ(world.caption("Fight", "Pstat(2)"), "4");
  rollHarmlessAnswer(world);
  fight.press();
  EXPECT_EQ(fight.focus, "Rzuc");
}

TEST(NextHand, ACasterWhoseMagicIsSpentStrikes) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "Kaczy Fart";
  hero.AktMoc = 4;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "Rzuc";
  fight.press();
  EXPECT_EQ(world.caption("Fight", "Pstat(2)"), "0");
  rollHarmlessAnswer(world);
  fight.press();
  EXPECT_EQ(fight.focus, "Atak");
}

TEST(NextHand, ABerserkerIsLedToHisSpellsNoMoreOnceOneDidNothing) {
  World world;
  Bohater hero = staffBearer("Kaczy Fart");
  hero.Klasa = "Berserker";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  for (int blow = 0; blow < 2; ++blow) {
    EXPECT_EQ(fight.focus, "Atak");
    rollStaff(world);
    fight.press();
  }
  fight.focus = "Rzuc";
  fight.press();
  rollHarmlessAnswer(world);
  fight.click("NastTura");
  fight.focus = "Atak";
  for (int blow = 0; blow < 2; ++blow) {
    rollStaff(world);
    fight.press();
  }
  EXPECT_EQ(fight.focus, "NastTura");
}

TEST(NextHand, AHeroWithNothingToUseOnlyPassesRounds) {
  World world;
  Bohater hero = emptyHanded();
  hero.Przedmioty(2) = 0;
  setLongFight(world, hero);
  Played fight(world, "Fight");
  EXPECT_EQ(fight.focus, "NastTura");
  rollHarmlessAnswer(world);
  fight.press();
  EXPECT_EQ(fight.focus, "NastTura");
}

TEST(NextHand, TheEndOfTheGroupLeadsToTheNextTurn) {
  World world;
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1;
  setFight(world, fighter("Nóż"), setup);
  Played fight(world, "Fight");
  rollBlow(world);
  fight.press();
  EXPECT_EQ(world.caption("Fight", "OpisZad"), "Czysto!");
  EXPECT_EQ(fight.focus, "NastTura");
}

TEST(NextHand, DeathLeadsToThePlaster) {
  World world;
  FightSetup setup = plainFight();
  setup.potwor.Atak = {1, 4, 1, 100};
  setup.potwor.Wytrzymalosc = 1000;
  setFight(world, fighter("Nóż"), setup);
  Played fight(world, "Fight");
  rollBlow(world);
  fight.press();
  world.roll(1, 4, {1});
  fight.press();
  EXPECT_EQ(world.caption("Fight", "OpisDMG"), "Śmierć!");
  EXPECT_EQ(fight.focus, "CloseDMG");
}

TEST(NextHand, NeverLeavesAFieldInWhichAPersonTypes) {
  World world;
  Bohater hero = fighter("Nóż");
  hero.OstatniCzar = "BullShots";
  setLongFight(world, hero);
  Played fight(world, "Fight");
  fight.focus = "mana";
  rollHarmlessAnswer(world);
  fight.click("NastTura");
  EXPECT_EQ(fight.focus, "mana");
}

TEST(NextHand, TheSetUpAsksForTheNextHeroAndThenStarts) {
  World world;
  setTheTable(world);
  for (int heroes = 0; heroes < 4; ++heroes) {
    Played setUp(world, "Main");
    const std::string next = "GraczM(" + std::to_string(heroes) + ")";
    EXPECT_EQ(setUp.focus, next);
    world.click("Main", next);
    world.click("CTmhero", "Save");
  }
  EXPECT_EQ(Played(world, "Main").focus, "Start");
}

TEST(NextHand, TheShopBeginsAtTheFirstOpenDepartmentAndStaysWhereSomethingWasBought) {
  const std::vector<std::string> first = {"PLUS(0)", "PLUS(0)", "Czarn(0)", "LBronww"};
  for (int mode = 1; mode <= 4; ++mode) {
    World world;
    setShop(world, richHero(), mode);
    Played shop(world, "CTsklep");
    EXPECT_EQ(shop.focus, first[static_cast<std::size_t>(mode - 1)]) << mode;
    shop.focus = "PLUS(8)";
    shop.press();
    EXPECT_EQ(shop.focus, "PLUS(8)");
  }
}

TEST(NextHand, ThePreparationBeginsWithWhatThereIsToUse) {
  World world;
  setPreparation(world, richHero());
  EXPECT_EQ(Played(world, "Prefight").focus, "Przedmioty");

  World spells;
  Bohater caster = plainHero();
  caster.MaCzar(kHealing) = true;
  setPreparation(spells, caster);
  EXPECT_EQ(Played(spells, "Prefight").focus, "Czary");

  World nothing;
  setPreparation(nothing, plainHero());
  EXPECT_EQ(Played(nothing, "Prefight").focus, "Zakoncz");
}

TEST(EscapeControl, ClosesTheReportsAndTheSheetAndNothingElse) {
  World world;
  setLongFight(world, fighter("Nóż"));
  world.runtime.Show("Fight");
  EXPECT_EQ(escapeControl("Fight", world.form("Fight")), "");
  rollBlow(world);
  world.click("Fight", "Atak");
  EXPECT_EQ(escapeControl("Fight", world.form("Fight")), "CloseZad");
  world.get<Frame>("Fight", "FDamage").Visible = true;
  world.click("Fight", "CloseZad");
  EXPECT_EQ(escapeControl("Fight", world.form("Fight")), "CloseDMG");
  world.runtime.Show("FHero");
  EXPECT_EQ(escapeControl("FHero", world.form("FHero")), "HeroClose");
  world.runtime.Show("CTsklep");
  EXPECT_EQ(escapeControl("CTsklep", world.form("CTsklep")), "");
}

}  // namespace
}  // namespace brolgan::test
