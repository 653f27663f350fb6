// The ends of a fight: what is announced, what the hero gains or loses, what is written, who is next.
#include "fight/fight.h"
#include "game/game.h"
#include "shop/shop.h"
#include "tests/fight/fixture.h"

namespace brolgan::test {
namespace {

using Fallen = FightTest;
using Victory = FightTest;
using Defeat = FightTest;
using NextPlayer = FightTest;
using LastSelections = FightTest;
using EndErrors = FightTest;
using Rows = std::vector<std::string>;

TEST_F(Fallen, AMonsterAtExactlyZeroHasFallen) {
  ready("Nóż");
  group(2, 10);
  open();
  blow();

  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(caption("LIle"), "1");
  EXPECT_EQ(openActions(), "Uzyj");
}

TEST_F(Fallen, AMonsterWithOneLeftStands) {
  ready("Nóż");
  group(1, 11);
  open();
  blow();

  EXPECT_EQ(caption("OpisZad"), "");
  EXPECT_EQ(caption("Mstat(0)"), "1");
}

TEST_F(Fallen, TwoBroughtToZeroAtOnceByAGrenadeEndWithCzystoAndNotZabity) {
  readyItem("Granat", 2);
  group(2, 9);
  open();
  world.roll(1, 30, {9});
  use();

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_EQ(caption("LIle"), "0");
  EXPECT_EQ(openActions(), "");
}

TEST_F(Fallen, TheReportIsWrittenWithoutBeingShown) {
  group(1, 0);
  open();
  EXPECT_TRUE(press("Atak"));

  EXPECT_EQ(caption("OpisZad"), "Czysto!");
  EXPECT_FALSE(shown("FZad"));
}

TEST_F(Fallen, OfKrolZagladyIsAnnouncedWithTwoBlanksBeforeTheTurn) {
  hero.Tura = 37;
  ready("Miecz");
  fight.potwor.Nazwa = "Król Zagłady";
  open();
  blow();

  EXPECT_EQ(caption("OpisZad"), "Wygrałeś - tura  37");
  EXPECT_EQ(openActions(), "");
  EXPECT_EQ(played(), (Rows{"Miecz.wav", "wygr.wav"}));
  EXPECT_FALSE(world.runtime.ended());
}

TEST_F(Fallen, OnlyTheLastOfAGroupOfKingsIsTheVictory) {
  ready("Miecz");
  fight.potwor.Nazwa = "Król Zagłady";
  fight.potwor.Ilosc = 2;
  open();
  blow();
  EXPECT_EQ(caption("OpisZad"), "Zabity!");
  EXPECT_EQ(played(), (Rows{"Miecz.wav"}));
  fellTarget();

  EXPECT_EQ(played(), (Rows{"Miecz.wav", "Miecz.wav", "wygr.wav"}));
}

TEST_F(Fallen, CloseDmgOfAStandingHeroOnlyHidesTheReport) {
  strikesWith(3);
  open();
  nextRound();
  const auto before = world.files.contents;
  EXPECT_TRUE(press("CloseDMG"));

  EXPECT_FALSE(shown("FDamage"));
  EXPECT_TRUE(world.isShown("Fight"));
  EXPECT_EQ(caption("IleDMG"), "3 ");
  EXPECT_EQ(world.files.contents, before);
}

TEST_F(Victory, WritesTheWholeHeroWithRewardKillAndRegeneration) {
  hero.Ile_jeszcze = 4;
  hero.AktWytrzymalosc = 3;
  hero.AktMoc = 1;
  hero.Wartosci(4) = 5;
  hero.Wartosci(0) = 30;
  hero.Wartosci(2) = 20;
  hero.Stwory(7) = 2;
  hero.Przedmioty(16) = 9;
  hero.Tura = 6;
  fight.NrPotwora = 7;
  fight.potwor.Atak = {1, 6, 2, 1};
  group(1, 20, 3);
  ready("Miecz");
  open();
  blow();
  world.roll(1, 4, {1});
  nextRound();

  Bohater expected = hero;
  expected.Ile_jeszcze = 6;
  expected.AktWytrzymalosc = 8;
  expected.AktMoc = 6;
  expected.Stwory(7) = 3;
  expected.BronwwProc(6) = 2;
  EXPECT_EQ(saved(), expected);
  EXPECT_EQ(world.lines("hero1.boh").size(), 161U);
}

TEST_F(Victory, RegenerationIsCutToTheMaxima) {
  hero.AktWytrzymalosc = 11;
  hero.AktMoc = 1;
  hero.Wartosci(4) = 10;
  open();
  win();

  EXPECT_EQ(saved().AktWytrzymalosc, 12);
  EXPECT_EQ(saved().AktMoc, 2);
}

TEST_F(Victory, OfTheMonkFillsEnduranceAndMagicAndRegenerationAddsNothing) {
  hero.Klasa = "Zabobonny mnich zakonny";
  hero.AktWytrzymalosc = 1;
  hero.AktMoc = 0;
  hero.Wartosci(0) = 50;
  hero.Wartosci(2) = 20;
  hero.Wartosci(4) = 10;
  open();
  win();

  EXPECT_EQ(saved().AktWytrzymalosc, 50);
  EXPECT_EQ(saved().AktMoc, 20);
}

TEST_F(Victory, CountsTheFightAndNotTheMonsters) {
  fight.NrPotwora = 44;
  group(5, 0);
  open();
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_EQ(saved().Stwory(44), 1);
}

struct Reward {
  const char* name;
  const char* klasa;
  int group;
  Kostka attack;
  int armour;
  int before;
  int after;

  friend std::ostream& operator<<(std::ostream& out, const Reward& row) { return out << row.name; }
};

class Rewards : public FightTest, public ::testing::WithParamInterface<Reward> {};

TEST_P(Rewards, AreAddedAndTheSumIsRounded) {
  hero.Klasa = GetParam().klasa;
  hero.Ile_jeszcze = GetParam().before;
  fight.potwor.Atak = GetParam().attack;
  group(GetParam().group, 0, GetParam().armour);
  open();
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_EQ(saved().Ile_jeszcze, GetParam().after);
}

const Kostka kTwoDice = {1, 6, 2, 1};
const Kostka kNone = {1, 4, 0, 0};

INSTANTIATE_TEST_SUITE_P(
    Fights, Rewards,
    ::testing::Values(Reward{"WorkedExampleOfAnyClass", "Wojownik", 3, kTwoDice, 3, 4, 7},
                      Reward{"WorkedExampleOfAwanturnik", "Awanturnik", 3, kTwoDice, 3, 4, 8},
                      Reward{"WorkedExampleOfRyzykant", "Ryzykant", 3, kTwoDice, 3, 4, 12},
                      Reward{"GroupOfOne", "Wojownik", 1, kTwoDice, 3, 0, 2},
                      Reward{"GroupOfOneWithALargeAverage", "Wojownik", 1, {1, 9, 18, 0}, 10, 0, 11},
                      Reward{"AdditionDoesNotCount", "Wojownik", 1, {1, 4, 0, 1000}, 0, 0, 1},
                      Reward{"TieOnTheSumGoesDownToEven", "Wojownik", 1, {1, 5, 5, 0}, 0, 2, 4},
                      Reward{"TieOnTheSumGoesUpToEven", "Wojownik", 1, {1, 9, 5, 0}, 0, 2, 6},
                      Reward{"TieOnAnOddStartGoesToTheOtherSide", "Wojownik", 1, {1, 5, 5, 0}, 0, 1, 4},
                      Reward{"NegativePointsAreRoundedToo", "Wojownik", 1, {1, 5, 5, 0}, 0, -3, 0},
                      Reward{"AwanturnikGainsNothingOnOnePoint", "Awanturnik", 1, kNone, 0, 0, 1},
                      Reward{"AwanturniksTieIsRoundedToEven", "Awanturnik", 1, {1, 9, 18, 0}, 0, 0, 14},
                      Reward{"RyzykantIsNotRoundedBeforeTheSum", "Ryzykant", 1, {1, 5, 1, 0}, 0, 0, 4},
                      Reward{"TwentySixMonsters", "Wojownik", 26, kTwoDice, 3, 0, 10}),
    [](const auto& row) { return row.param.name; });

TEST_F(Victory, RewardsThePresentArmourOfTheFirstMonster) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  deals("Łuk", 100);
  group(1, 20, 30);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_EQ(saved().Ile_jeszcze, 4);
}

TEST_F(Victory, KeepsTheArmourOfTheFirstMonsterWhenOnlyTheOthersLostTheirs) {
  hero.MaSpec(2) = true;
  ready("Łuk");
  deals("Łuk", 100);
  group(2, 20, 30);
  open();
  world.roll(1, 140, {1});
  world.roll(1, 3, {3});
  EXPECT_TRUE(press("Atak"));
  win();

  EXPECT_EQ(saved().Ile_jeszcze, 5);
}

TEST_F(Victory, TheShopOpensFreshAndTheFightIsGone) {
  open();
  win(4);

  EXPECT_EQ(world.runtime.loaded(), (Rows{"CTsklep"}));
  EXPECT_TRUE(world.isShown("CTsklep"));
  EXPECT_TRUE(world.isVisible("CTsklep", "fbron"));
  EXPECT_FALSE(world.isVisible("CTsklep", "fstat"));
  EXPECT_EQ(world.sounds.events.back(), "SFX stop");
}

TEST_F(Victory, AShopThatIsStillOpenIsLoadedAnew) {
  players({"hero1.boh", "hero2.boh"});
  Bohater second = plainHero();
  second.Imie = "Druga";
  world.writeHero("hero2.boh", second);
  writeCatalogue();
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  world.runtime.Load("CTsklep");
  open();
  win();

  EXPECT_EQ(world.text("CTsklep", "Imie"), "Druga");
}

TEST_F(Victory, OverKrolZagladyEndsTheProgramAndWritesNothing) {
  fight.potwor.Nazwa = "Król Zagłady";
  ready("Miecz");
  players({"hero1.boh", "hero2.boh"});
  world.write("sklep.cfg", {"hero1.boh", " 3 "});
  open();
  blow();
  const auto before = world.files.contents;
  nextRound();

  EXPECT_TRUE(world.runtime.ended());
  EXPECT_FALSE(world.isOpen("CTsklep"));
  EXPECT_EQ(world.files.contents, before);
}

TEST_F(Victory, OverAKingOfAnyOtherNameGoesOn) {
  fight.potwor.Nazwa = "Król zagłady";
  open();
  win();

  EXPECT_FALSE(world.runtime.ended());
  EXPECT_EQ(played(), (Rows{"Miecz.wav"}));
}

TEST_F(Victory, OfAHeroWithoutLivesPutsHimOutAllTheSame) {
  hero.Wcielenia = 0;
  players({"hero1.boh", "hero2.boh"});
  open();
  fellTarget();
  const std::string before = world.files.contents["hero1.boh"];
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 1 ", "hero2.boh"}));
  EXPECT_EQ(world.files.contents["hero1.boh"], before);
}

TEST_F(Victory, OverKrolZagladyOfAHeroWithoutLivesPutsHimOutAndTheGameGoesOn) {
  hero.Wcielenia = 0;
  fight.potwor.Nazwa = "Król Zagłady";
  ready("Miecz");
  players({"hero1.boh", "hero2.boh"});
  open();
  blow();
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_FALSE(world.runtime.ended());
  EXPECT_TRUE(world.isShown("CTsklep"));
  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 1 ", "hero2.boh"}));
}

TEST_F(NextPlayer, OfThreeIsTheSecondAndTheFirstGoesToTheEnd) {
  players({"hero1.boh", "b.boh", "c.boh"});
  open();
  win(3);

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 3 ", "b.boh", "c.boh", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"b.boh", " 3 "}));
}

TEST_F(NextPlayer, OfFourKeepsTheOrder) {
  players({"hero1.boh", "b.boh", "c.boh", "d.boh"});
  open();
  win(2);

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 4 ", "b.boh", "c.boh", "d.boh", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"b.boh", " 2 "}));
}

TEST_F(NextPlayer, OfOneIsHimselfWithANewMode) {
  world.write("sklep.cfg", {"hero1.boh", " 1 "});
  open();
  win(4);

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 1 ", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"hero1.boh", " 4 "}));
  EXPECT_EQ(world.text("CTsklep", "Imie"), "Kosiarz");
}

TEST_F(NextPlayer, IsNamedByTheOrderAndNotByTheHeroOfTheFight) {
  players({"a.boh", "b.boh"});
  open();
  win();

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 2 ", "b.boh", "a.boh"}));
}

TEST_F(Defeat, WithLivesLeftCostsOneAndHealsAndWritesTwice) {
  hero.Wcielenia = 3;
  hero.AktMoc = 0;
  hero.Ile_jeszcze = 5;
  players({"hero1.boh", "hero2.boh"});
  strikesWith(40);
  open();
  world.roll(1, 4, {2});
  fall();

  Bohater expected = hero;
  expected.Wcielenia = 2;
  expected.AktMoc = 2;
  EXPECT_EQ(saved(), expected);
  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 2 ", "hero2.boh", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"hero2.boh", " 2 "}));
  EXPECT_TRUE(world.isShown("CTsklep"));
  EXPECT_FALSE(world.isOpen("Fight"));
}

TEST_F(Defeat, SavesTheFallenHeroAsHeStandsBeforeTheOrderIsRead) {
  hero.Wcielenia = 3;
  strikesWith(40);
  open();
  world.files.contents.erase("gra.cfg");
  nextRound();

  EXPECT_EQ(errorOf([this] { press("CloseDMG"); }), 53);

  EXPECT_EQ(saved().AktWytrzymalosc, -28);
  EXPECT_EQ(saved().Wcielenia, 3);
}

TEST_F(Defeat, WithLivesLeftAndNoOtherPlayerOpensHisOwnShop) {
  hero.Wcielenia = 2;
  strikesWith(40);
  open();
  world.roll(1, 4, {1});
  fall();

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 1 ", "hero1.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"hero1.boh", " 1 "}));
  EXPECT_EQ(saved().Wcielenia, 1);
}

TEST_F(Defeat, OnTheLastLifeTakesTheHeroOutOfTheOrder) {
  players({"hero1.boh", "b.boh", "c.boh"});
  strikesWith(40);
  open();
  world.roll(1, 4, {4});
  fall();

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 2 ", "b.boh", "c.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"b.boh", " 4 "}));
  EXPECT_TRUE(world.isShown("CTsklep"));
  EXPECT_FALSE(world.isOpen("Fight"));
}

TEST_F(Defeat, OfTheFirstOfTwoForGoodLeavesTheSecondAlone) {
  players({"hero1.boh", "b.boh"});
  strikesWith(40);
  open();
  world.roll(1, 4, {2});
  fall();

  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 1 ", "b.boh"}));
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"b.boh", " 2 "}));
}

TEST_F(Defeat, OnTheLastLifeLeavesTheFileAsHeFellWithOneLifeInIt) {
  players({"hero1.boh", "b.boh"});
  strikesWith(40);
  open();
  world.roll(1, 4, {2});
  fall();

  Bohater expected = hero;
  expected.AktWytrzymalosc = -28;
  EXPECT_EQ(saved(), expected);
  EXPECT_EQ(saved().Wcielenia, 1);
}

TEST_F(Defeat, OfTheLastPlayerOnHisLastLifeEndsTheProgram) {
  world.write("sklep.cfg", {"hero1.boh", " 3 "});
  strikesWith(40);
  open();
  const std::string order = world.files.contents["gra.cfg"];
  fall();

  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.files.contents["gra.cfg"], order);
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"hero1.boh", " 3 "}));
  Bohater expected = hero;
  expected.AktWytrzymalosc = -28;
  EXPECT_EQ(saved(), expected);
  EXPECT_FALSE(world.isOpen("CTsklep"));
}

TEST_F(Defeat, OnTheLastLifeWithNobodyInTheOrderEndsTheProgramToo) {
  world.write("gra.cfg", {" 0 "});
  strikesWith(40);
  open();
  fall();

  EXPECT_TRUE(world.runtime.ended());
  EXPECT_EQ(world.lines("gra.cfg"), (Rows{" 0 "}));
}

TEST_F(Defeat, AgainstKrolZagladyIsADefeatLikeAnyOther) {
  hero.Wcielenia = 2;
  fight.potwor.Nazwa = "Król Zagłady";
  strikesWith(40);
  open();
  world.roll(1, 4, {2});
  fall();

  EXPECT_FALSE(world.runtime.ended());
  EXPECT_EQ(saved().Wcielenia, 1);
}

TEST_F(Defeat, KeepsGrowthSuppliesAndLostEnduranceButNoRewardAndNoKill) {
  hero.Wcielenia = 2;
  hero.Wartosci(4) = 5;
  hero.Klasa = "Zabobonny mnich zakonny";
  ready("UltiGun");
  readyItem("Ammo", 4);
  strikesWith(40);
  group(1, 1000);
  open();
  use();
  world.roll(1, 140, {140});
  world.roll(1, 6, {1});
  world.roll(1, 10, {1});
  EXPECT_TRUE(press("Atak"));
  world.roll(1, 4, {2});
  fall();

  EXPECT_EQ(saved().BronssProc(9), 2);
  EXPECT_EQ(saved().Wyp(1), 3);
  EXPECT_EQ(saved().Wartosci(0), 11);
  EXPECT_EQ(saved().AktWytrzymalosc, 11);
  EXPECT_EQ(saved().Ile_jeszcze, 0);
  EXPECT_EQ(saved().Stwory(0), 0);
}

// Remembers which files were written, in order.
class WatchedFiles : public MemoryFiles {
 public:
  void create(const std::string& name) override {
    written.push_back(name);
    MemoryFiles::create(name);
  }

  Rows written;
};

struct End {
  const char* name;
  const char* monster;
  bool survives;
  int lives;
  Rows players;
  Rows written;
  bool goesOn;

  friend std::ostream& operator<<(std::ostream& out, const End& row) { return out << row.name; }
};

class FiveEnds : public FightTest, public ::testing::WithParamInterface<End> {
 protected:
  void press(Runtime& runtime, const std::string& button) {
    Form& form = *runtime.find("Fight");
    EXPECT_TRUE(click(runtime, form, form.controls().find(button)));
  }
};

TEST_P(FiveEnds, WriteTheseFilesInThisOrder) {
  const End& end = GetParam();
  hero.Wcielenia = end.lives;
  fight.potwor.Nazwa = end.monster;
  group(1, end.survives ? 0 : 20);
  strikesWith(end.survives ? 0 : 40);
  players(end.players);
  writeFiles();
  WatchedFiles files;
  files.contents = world.files.contents;
  Runtime runtime({files, world.clock, world.pictures, world.sounds});
  offerScreens(runtime, world.scripted);
  runtime.Show("Fight");
  if (end.goesOn) world.roll(1, 4, {1});

  press(runtime, "NastTura");
  if (!end.survives) press(runtime, "CloseDMG");

  EXPECT_EQ(files.written, end.written);
  EXPECT_EQ(runtime.ended(), !end.goesOn);
  EXPECT_EQ(runtime.find("CTsklep") != nullptr, end.goesOn);
}

const Rows kAlone = {"hero1.boh"};
const Rows kTwo = {"hero1.boh", "hero2.boh"};

INSTANTIATE_TEST_SUITE_P(
    Ways, FiveEnds,
    ::testing::Values(
        End{"GroupBeaten", "Szczur", true, 1, kTwo, {"hero1.boh", "gra.cfg", "sklep.cfg"}, true},
        End{"LastMonsterBeaten", "Król Zagłady", true, 1, kTwo, {}, false},
        End{"FallenWithLivesLeft", "Szczur", false, 2, kTwo, {"hero1.boh", "hero1.boh", "gra.cfg", "sklep.cfg"}, true},
        End{"FallenOnTheLastLifeWithOthersLeft", "Szczur", false, 1, kTwo, {"hero1.boh", "gra.cfg", "sklep.cfg"}, true},
        End{"FallenOnTheLastLifeAlone", "Szczur", false, 1, kAlone, {"hero1.boh"}, false}),
    [](const auto& row) { return row.param.name; });

TEST_F(LastSelections, OfSpellItemAndWeaponAreWrittenInThisOrder) {
  readySpell("Leczenie");
  readyItem("Granat", 2);
  open();
  win();

  EXPECT_EQ(world.line("hero1.boh", 114), "Leczenie");
  EXPECT_EQ(world.line("hero1.boh", 115), "Granat");
  EXPECT_EQ(world.line("hero1.boh", 116), "Miecz");
}

TEST_F(LastSelections, ThatAreEmptyAreWrittenEmptyWhateverTheLastFightHad) {
  hero.OstatniCzar = "BOOM!";
  hero.OstatniPrzedmiot = "Granat";
  hero.OstatniaBron = "Tasak";
  group(1, 0);
  open();
  world.roll(1, 4, {1});
  nextRound();

  EXPECT_EQ(world.line("hero1.boh", 114), "");
  EXPECT_EQ(world.line("hero1.boh", 115), "");
  EXPECT_EQ(world.line("hero1.boh", 116), "");
}

TEST_F(LastSelections, OfAFallenHeroAreWrittenToo) {
  players({"hero1.boh", "b.boh"});
  ready("Tasak");
  strikesWith(40);
  open();
  world.roll(1, 4, {1});
  fall();

  EXPECT_EQ(world.line("hero1.boh", 116), "Tasak");
}

TEST_F(LastSelections, AreRestoredInTheNextFight) {
  open();
  win();
  world.writeFightFile(fight);
  world.runtime.Show("Fight");

  EXPECT_EQ(text("Bron"), "Miecz");
}

TEST_F(LastSelections, TheFightsOwnEffectsDieWithIt) {
  hero.AktMoc = 20;
  hero.Wartosci(2) = 20;
  learn("Klasa III A");
  readySpell("Kaczy Fart");
  open();
  cast();
  nextRound();
  chooseSpell("Klasa III A");
  world.roll(1, 6, {6, 6});
  world.roll(1, 10, {5});
  cast();
  win();
  strikesWith(2);
  world.writeFightFile(fight);
  world.runtime.Show("Fight");
  EXPECT_EQ(caption("Pstat(1)"), "0");
  nextRound();

  EXPECT_EQ(caption("IleDMG"), "2 ");
}

TEST_F(EndErrors, AMissingOrderIsError53AndLeavesTheHeroAsHeCame) {
  open();
  fellTarget();
  world.files.contents.erase("gra.cfg");
  const std::string before = world.files.contents["hero1.boh"];

  EXPECT_EQ(errorTextOf([this] { press("NastTura"); }), "Błąd wykonania 53: Nie znaleziono pliku\nPlik: gra.cfg");
  EXPECT_EQ(world.files.contents["hero1.boh"], before);
}

TEST_F(EndErrors, AFifthPlayerIsOutsideTheArray) {
  open();
  fellTarget();
  world.write("gra.cfg", {" 5 ", "hero1.boh", "b", "c", "d", "e"});

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 9);
}

TEST_F(EndErrors, AnOrderThatEndsEarlyIsError62) {
  open();
  fellTarget();
  world.write("gra.cfg", {" 2 ", "hero1.boh"});

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 62);
}

TEST_F(EndErrors, PointsBeyondAnIntegerOverflowAndNothingIsWritten) {
  hero.Ile_jeszcze = 32767;
  open();
  fellTarget();
  const auto before = world.files.contents;

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 6);
  EXPECT_EQ(world.files.contents, before);
}

TEST_F(EndErrors, PointsUpToTheLastIntegerAreFine) {
  hero.Ile_jeszcze = 32766;
  open();
  win();

  EXPECT_EQ(saved().Ile_jeszcze, 32767);
}

TEST_F(EndErrors, RegenerationBeyondAnIntegerOverflows) {
  hero.AktMoc = 32767;
  open();
  fellTarget();

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 6);
}

TEST_F(EndErrors, KillsBeyondAnIntegerOverflow) {
  hero.Stwory(0) = 32767;
  open();
  fellTarget();

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 6);
}

TEST_F(EndErrors, AMonsterNumberBeyondTheListOfKillsIsOutsideTheArray) {
  for (const int number : {45, -1}) {
    fight.NrPotwora = number;
    open();
    fellTarget();
    EXPECT_EQ(errorOf([this] { press("NastTura"); }), 9) << number;
    world.runtime.Unload("Fight");
  }
}

TEST_F(EndErrors, AMissingHeroOfTheNextPlayerIsError53AfterAllIsWritten) {
  players({"hero1.boh", "b.boh"});
  world.files.contents.erase("b.boh");
  open();
  fellTarget();
  world.roll(1, 4, {1});

  EXPECT_EQ(errorOf([this] { press("NastTura"); }), 53);
  EXPECT_EQ(world.lines("sklep.cfg"), (Rows{"b.boh", " 1 "}));
  EXPECT_EQ(saved().Stwory(0), 1);
}

}  // namespace
}  // namespace brolgan::test
