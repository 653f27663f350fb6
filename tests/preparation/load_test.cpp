// The preparation screen as it opens: the draw of the monster, the figures, the initiative.
#include <gtest/gtest.h>

#include "game/game.h"
#include "preparation/preparation.h"
#include "tests/flow/control_rows.h"
#include "tests/flow/stage.h"
#include "tests/preparation/preparation.h"

namespace brolgan::test {
namespace {

using Lines = std::vector<std::string>;

TEST(Prefight, HasTheseControls) {
  World world;
  Prefight form(world.runtime, world.scripted);
  Lines rows = {"Label1: label 'Przygotuj się przed walką !'",
                "Heroshow: button ''",
                "Moname: label ''",
                "Potwór: picture ''",
                "Inic: label '0'",
                "tabak: label '0', hidden",
                "Przedmioty: combo box ''",
                "Uzyj: button 'Użyj'",
                "Czary: combo box ''",
                "Koszt: text box '0'",
                "KosztInfo: label ''",
                "Label3: label 'Możliwe do rzucenia czary:'",
                "Rzuc: button 'Rzuć'",
                "historia: text box '', several lines",
                "Zakoncz: button 'Zakończ'",
                "Music1: player ''",
                "Frame1: frame 'Czary'",
                "Frame2: frame 'Przedmioty'",
                "Frame3: frame 'Zapiski'",
                "Statystyki: frame 'Statystyki'"};
  addRows(rows, "Monstat", "label", {"0", "0", "0", "0"});
  addRows(rows, "Label2", "label", {"Szybkość", "Średnie Obrażenia", "Wytrzymałość", "Pancerz"});
  addRows(rows, "stat", "label", {"0", "0", "0", "0", "0"});
  addRows(rows, "label4", "label", {"Wytrzymałość", "Pancerz", "Moc", "Szybkość", "Regeneracja", "Twoja Inicjatywa"});
  addRows(rows, "cur", "label", {"0", "0"});
  EXPECT_EQ(controlRows(form), sorted(rows));
  EXPECT_EQ(form.Caption, "Przygotowanie przed walką!");
  EXPECT_EQ(form.controls().find("historia").frame, &form.Frame3);
}

TEST(Prefight, StartsItsMusicAtLoad) {
  Preparation preparation;
  preparation.open();
  EXPECT_EQ(preparation.world.sounds.events, Lines{"Music1 guit\\hard2.wav"});
}

TEST(Prefight, TheMusicStartsEvenIfTheZoneIsMissing) {
  World world;
  EXPECT_EQ(errorOf([&] { world.runtime.Show("Prefight"); }), 53);
  EXPECT_EQ(world.sounds.played(), Lines{"guit\\hard2.wav"});
}

TEST(Prefight, SeedsTheGeneratorFromTheTimerBeforeTheDraw) {
  Preparation files;
  files.open();
  SeedRecorder random;
  World& world = files.world;
  world.clock.now = 77.5;
  Runtime runtime({world.files, world.clock, world.pictures, world.sounds});
  offerScreens(runtime, random);
  runtime.Show("Prefight");
  EXPECT_EQ(random.seeds, std::vector<double>{77.5});
}

struct Draw {
  int lowest;
  int highest;
  int face;
};

class MonsterDraw : public testing::TestWithParam<Draw> {};

INSTANTIATE_TEST_SUITE_P(Zones, MonsterDraw,
                         testing::Values(Draw{1, 5, 1}, Draw{1, 5, 3}, Draw{1, 5, 5}, Draw{27, 33, 30},
                                         Draw{42, 45, 45}, Draw{1, 45, 1}, Draw{1, 45, 45}, Draw{1, 45, 23}));

TEST_P(MonsterDraw, ShowsTheMonsterOfTheRolledNumberCountedFrom1) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  std::vector<Potwor> list(45, plainMonster());
  for (int i = 0; i < 45; ++i) list[static_cast<std::size_t>(i)].Nazwa = "Potwór " + std::to_string(i + 1);
  writeMonsters(world, "monsters.cfg", list);
  writeZone(world, GetParam().lowest, GetParam().highest);
  world.roll(GetParam().lowest, GetParam().highest, {GetParam().face});
  world.runtime.Show("Prefight");
  EXPECT_EQ(world.caption("Prefight", "Moname"), "Potwór " + std::to_string(GetParam().face));
  EXPECT_EQ(world.unusedRolls(), 0U);
}

// The 44 steps between 45 monsters: the outer ones own half a step of the generator's range.
TEST(Prefight, TheWidestZoneDrawsAnyMonsterTheFirstAndThe45thHalfAsOften) {
  World world;
  world.writeHero("hero1.boh", plainHero());
  std::vector<Potwor> list(45, plainMonster());
  for (int i = 0; i < 45; ++i) list[static_cast<std::size_t>(i)].Szybkosc = i + 1;
  writeMonsters(world, "monsters.cfg", list);
  writeZone(world, 1, 45);
  std::vector<int> drawn(46);
  const int kDraws = 88 * 4;
  for (int i = 0; i < kDraws; ++i) {
    world.scripted.add((static_cast<float>(i) + 0.5F) / static_cast<float>(kDraws));
    world.runtime.Reopen("Prefight");
    drawn.at(static_cast<std::size_t>(std::stoi(world.caption("Prefight", "Monstat(0)"))))++;
  }
  EXPECT_EQ(drawn[1], 4);
  EXPECT_EQ(drawn[45], 4);
  for (std::size_t i = 2; i < 45; ++i) EXPECT_EQ(drawn[i], 8) << i;
}

TEST(Prefight, DrawsTheMonsterBeforeItReadsHeroAndMonsters) {
  World world;
  writeZone(world, 1, 5);
  world.roll(1, 5, {2});
  EXPECT_NE(errorTextOf([&] { world.runtime.Show("Prefight"); }).find("hero1.boh"), std::string::npos);
  EXPECT_EQ(world.unusedRolls(), 0U);
}

TEST(Prefight, TakesTheMonsterFileThatTheZoneNames) {
  Preparation preparation;
  preparation.world.writeHero("hero1.boh", preparation.hero);
  preparation.monster.Nazwa = "Z innej listy";
  writeMonsters(preparation.world, "inne.cfg", {preparation.monster});
  writeZone(preparation.world, 1, 1, "inne.cfg");
  preparation.world.roll(1, 1, {1});
  preparation.world.runtime.Show("Prefight");
  EXPECT_EQ(preparation.caption("Moname"), "Z innej listy");
}

TEST(Prefight, ShowsTheMonster) {
  Preparation preparation;
  preparation.monster = {4, "Zombi z Kolejki", "zombi.jpg", 15, {1, 4, 2, 1}, 22, 3};
  preparation.open();
  EXPECT_EQ(preparation.caption("Moname"), "Zombi z Kolejki");
  EXPECT_EQ(preparation.caption("Monstat(0)"), "15");
  EXPECT_EQ(preparation.caption("Monstat(2)"), "22");
  EXPECT_EQ(preparation.caption("Monstat(3)"), "3");
  EXPECT_EQ(preparation.world.get<PictureBox>("Prefight", "Potwór").Picture, "zombi.jpg");
  EXPECT_EQ(preparation.world.pictures.loaded, Lines{"zombi.jpg"});
}

struct Average {
  Kostka dice;
  const char* shown;
};

class AverageDamage : public testing::TestWithParam<Average> {};

INSTANTIATE_TEST_SUITE_P(Dice, AverageDamage,
                         testing::Values(Average{{1, 6, 2, 3}, "11"},   // 3.5 is 4 on each die
                                         Average{{1, 4, 1, 0}, "2"},    // 2.5 is 2
                                         Average{{1, 4, 3, 0}, "6"},    // not 7.5
                                         Average{{1, 8, 1, 0}, "4"},    // 4.5 is 4
                                         Average{{1, 3, 5, -2}, "8"},   // a negative flat amount counts
                                         Average{{1, 6, 0, 7}, "7"},    // no dice
                                         Average{{-6, 1, 1, 0}, "-2"},  // -2.5 is -2
                                         Average{{2, 2, 4, 0}, "8"}));

TEST_P(AverageDamage, IsTheRoundedMeanOfADieTimesTheDicePlusTheFlatAmount) {
  Preparation preparation;
  preparation.monster.Atak = GetParam().dice;
  preparation.open();
  EXPECT_EQ(preparation.caption("Monstat(1)"), GetParam().shown);
}

TEST(Prefight, AMonsterOf2k6Plus3ShowsAnAverageOf11) {
  Preparation preparation;
  preparation.monster.Atak = {1, 6, 2, 3};
  preparation.open();
  EXPECT_EQ(preparation.caption("Monstat(1)"), "11");
}

TEST(Prefight, TheAverageSaysNothingOfTheSizeOfTheGroup) {
  Preparation preparation;
  preparation.monster.Ilosc = 26;
  preparation.open();
  EXPECT_EQ(preparation.caption("Monstat(1)"), "2");
}

TEST(Prefight, ShowsTheHerosMaximaAndHisCurrentValues) {
  Preparation preparation;
  const int values[] = {30, 4, 17, 24, 7};
  for (int i = 0; i < 5; ++i) preparation.hero.Wartosci(i) = values[i];
  preparation.hero.AktWytrzymalosc = -3;
  preparation.hero.AktMoc = 9;
  preparation.open();
  for (int i = 0; i < 5; ++i)
    EXPECT_EQ(preparation.caption("stat(" + std::to_string(i) + ")"), std::to_string(values[i]));
  EXPECT_EQ(preparation.caption("cur(0)"), "-3");
  EXPECT_EQ(preparation.caption("cur(1)"), "9");
}

TEST(Prefight, TheInitiativeIsTheSpeedAndNoDieIsRolledForIt) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 29;
  preparation.open();
  EXPECT_EQ(preparation.caption("Inic"), "29");
  EXPECT_EQ(preparation.world.unusedRolls(), 0U);
}

TEST(Prefight, TheCounterOfTheHeadStartGivesTenThousandOnceWhateverItSaid) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 20;
  preparation.openWith(1, 3);
  EXPECT_EQ(preparation.caption("Inic"), "10020");
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(1), 0);
}

TEST(Prefight, ANegativeCounterGivesNoHeadStartAndStays) {
  Preparation preparation;
  preparation.openWith(1, -2);
  EXPECT_EQ(preparation.caption("Inic"), "12");
  preparation.monster.Szybkosc = 5;
  preparation.finish();
  EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(1), -2);
}

TEST(Prefight, TheHeadStartBeyondAnIntegerEndsTheProgram) {
  Preparation preparation;
  preparation.hero.Wartosci(3) = 22768;
  EXPECT_EQ(errorOf([&] { preparation.openWith(1, 1); }), 6);
}

TEST(Prefight, AListOf101MonstersIsReadAndOneMoreEndsTheProgram) {
  for (const auto& [count, error] : {std::pair{101, 0}, {102, 9}}) {
    World world;
    world.writeHero("hero1.boh", plainHero());
    writeMonsters(world, "monsters.cfg", std::vector<Potwor>(static_cast<std::size_t>(count), plainMonster()));
    writeZone(world, 1, 1);
    world.roll(1, 1, {1});
    EXPECT_EQ(errorOf([&] { world.runtime.Show("Prefight"); }), error) << count;
  }
}

TEST(Prefight, ANumberBeyondTheListIsAMonsterOfZeroesWithoutAPicture) {
  Preparation preparation;
  preparation.open();
  writeZone(preparation.world, 7, 7);
  preparation.world.roll(7, 7, {7});
  preparation.world.runtime.Reopen("Prefight");
  EXPECT_EQ(preparation.caption("Moname"), "");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(preparation.caption("Monstat(" + std::to_string(i) + ")"), "0");
  EXPECT_EQ(preparation.world.get<PictureBox>("Prefight", "Potwór").Picture, "");
  EXPECT_EQ(preparation.world.pictures.loaded.size(), 1U);
}

TEST(Prefight, AMissingPictureEndsTheProgram) {
  Preparation preparation;
  preparation.world.pictures.missing = {"szczur.jpg"};
  EXPECT_EQ(errorOf([&] { preparation.open(); }), 53);
}

TEST(Prefight, AFileThatIsNoPictureEndsTheProgram) {
  Preparation preparation;
  preparation.world.pictures.broken = {"szczur.jpg"};
  EXPECT_EQ(errorOf([&] { preparation.open(); }), 481);
}

TEST(Prefight, OpeningWritesNothing) {
  Preparation preparation;
  preparation.openWith(1, 3);
  EXPECT_EQ(preparation.world.hero("hero1.boh").Przedmioty(1), 3);
  EXPECT_FALSE(preparation.world.exists("fight.cfg"));
}

TEST(Prefight, TheSheetShowsTheHeroAsTheShopLeftHim) {
  Preparation preparation;
  preparation.hero.Imie = "Zenek";
  preparation.hero.Stwory(0) = 0;
  preparation.openWith(3, 1);
  preparation.world.write("gra.cfg", {" 1 ", "hero1.boh"});
  const auto before = preparation.world.files.contents;
  preparation.use("Rabarbar de'Cur");
  preparation.world.click("Prefight", "Heroshow");
  EXPECT_TRUE(preparation.world.isShown("FHero"));
  EXPECT_TRUE(preparation.world.isShown("Prefight"));
  EXPECT_EQ(preparation.world.caption("FHero", "Imie"), "Zenek");
  EXPECT_EQ(preparation.world.files.contents, before);
}

TEST(Prefight, ClosingTheTitleLosesAllThatWasChangedHere) {
  Preparation preparation;
  start(preparation.world);
  preparation.openWith(3, 1);
  const auto before = preparation.world.files.contents;
  preparation.use("Rabarbar de'Cur");
  closeWindow(preparation.world.runtime, "Brolgan");
  EXPECT_EQ(preparation.world.files.contents, before);
}

}  // namespace
}  // namespace brolgan::test
