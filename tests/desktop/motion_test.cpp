// What lets a blow be felt: drawn for a moment, in nobody's way.
#include <gtest/gtest.h>

#include <QGraphicsEffect>
#include <QTest>
#include <QVariantAnimation>

#include "desktop/widgets.h"
#include "tests/desktop/scenes.h"
#include "tests/desktop/stage.h"

namespace brolgan::test {
namespace {

void openFight(Stage& stage, int endurance) {
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = endurance;
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
  stage.window("Fight").activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&stage.window("Fight")));
  stage.world.roll(1, 4, {2, 2});
  stage.world.roll(1, 120, {1});
}

void letItEnd(QWidget& widget) {
  ASSERT_NE(widget.graphicsEffect(), nullptr);
  auto* const clock = widget.graphicsEffect()->findChild<QVariantAnimation*>();
  EXPECT_LE(clock->duration(), 200);
  clock->setCurrentTime(clock->duration());
  Stage::settle();
}

TEST(Motion, ABlowMovesItsReportAndTheMonsterAndNoWidgetLeavesItsPlace) {
  Stage stage;
  openFight(stage, 1000);
  QWidget& report = stage.at("Fight", "IleZad");
  QWidget& monster = stage.at("Fight", "Potwór");
  const QRect place = monster.geometry();
  stage.click("Fight", "Atak");
  EXPECT_EQ(monster.geometry(), place);
  letItEnd(report);
  letItEnd(monster);
  EXPECT_EQ(report.graphicsEffect(), nullptr);
  EXPECT_EQ(monster.graphicsEffect(), nullptr);
}

TEST(Motion, TheFirstStrikeIsFeltWhenTheFightOpens) {
  Stage stage;
  FightSetup setup = plainFight();
  setup.PotworPierwszy = 1;
  setup.potwor.Atak = {1, 1, 1, 2};
  setFight(stage.world, richHero(), setup);
  stage.world.roll(1, 1, {1});
  stage.open({"Fight"});
  letItEnd(stage.at("Fight", "IleDMG"));
  stage.choose("Fight", "Bron", "Nóż");
  EXPECT_EQ(stage.at("Fight", "IleDMG").graphicsEffect(), nullptr);
}

TEST(Motion, NothingMovesWhenNothingIsNew) {
  Stage stage;
  openFight(stage, 1000);
  stage.choose("Fight", "Czar", "BOOM!");
  EXPECT_EQ(stage.at("Fight", "IleZad").graphicsEffect(), nullptr);
  EXPECT_EQ(stage.at("Fight", "Potwór").graphicsEffect(), nullptr);
}

TEST(Motion, ThePictureIsSetBackWhenTheGroupIsGone) {
  Stage stage;
  openFight(stage, 1);
  const auto& monster = stage.get<desktop::PictureWidget>("Fight", "Potwór");
  EXPECT_FALSE(monster.isDimmed());
  stage.click("Fight", "Atak");
  ASSERT_EQ(stage.text("Fight", "OpisZad"), "Czysto!");
  EXPECT_TRUE(monster.isDimmed());
}

}  // namespace
}  // namespace brolgan::test
