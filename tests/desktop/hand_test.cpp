// The hand on the keyboard: few presses, the keyboard where it is needed, letters and Escape.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTest>

#include "rules/development.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

// A fight against one tough monster that never hurts, with the knife in hand.
void openLongFight(Stage& stage) {
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  FightSetup setup = plainFight();
  setup.potwor.Wytrzymalosc = 1000;
  setup.potwor.Atak = {1, 1, 1, -1};
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
}

void rollBlow(Stage& stage) {
  stage.world.roll(1, 4, {2, 2});
  stage.world.roll(1, 120, {1});
}

TEST(Hand, ARoundOfBlowsTakesTwoPressesOfTheSpaceBar) {
  Stage stage;
  openLongFight(stage);
  for (int round = 1; round <= 3; ++round) {
    EXPECT_EQ(stage.focus("Fight"), "Atak");
    rollBlow(stage);
    stage.press("Fight", Qt::Key_Space);
    EXPECT_EQ(stage.focus("Fight"), "NastTura");
    stage.world.roll(1, 1, {1});
    stage.press("Fight", Qt::Key_Space);
    EXPECT_EQ(stage.world.unusedRolls(), 0U) << "round " << round;
  }
}

TEST(Hand, ARoundWithAReportClosedByEscapeTakesThreePresses) {
  Stage stage;
  openLongFight(stage);
  rollBlow(stage);
  stage.press("Fight", Qt::Key_Space);
  ASSERT_TRUE(stage.isVisible("Fight", "FZad"));
  stage.press("Fight", Qt::Key_Escape);
  EXPECT_FALSE(stage.isVisible("Fight", "FZad"));
  stage.world.roll(1, 1, {1});
  stage.press("Fight", Qt::Key_Space);
  EXPECT_EQ(stage.focus("Fight"), "Atak");
  EXPECT_EQ(stage.world.unusedRolls(), 0U);
}

TEST(Hand, EscapeClosesTheSheetAndNoOtherScreen) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.press("CTsklep", Qt::Key_Escape);
  EXPECT_TRUE(stage.isShown("CTsklep"));
  stage.click("CTsklep", "Heroshow");
  ASSERT_TRUE(stage.isShown("FHero"));
  stage.press("FHero", Qt::Key_Escape);
  EXPECT_FALSE(stage.isShown("FHero"));
  EXPECT_TRUE(stage.isShown("CTsklep"));
}

TEST(Hand, DeathPutsTheKeyboardOnThePlaster) {
  Stage stage;
  Bohater hero = richHero();
  hero.OstatniaBron = "Nóż";
  FightSetup setup = plainFight();
  setup.PotworPierwszy = 1;
  setup.potwor.Atak = {1, 1, 1, 100};
  setFight(stage.world, hero, setup);
  stage.world.roll(1, 1, {1});
  stage.open({"Fight"});
  EXPECT_EQ(stage.text("Fight", "OpisDMG"), "Śmierć!");
  EXPECT_EQ(stage.focus("Fight"), "CloseDMG");
}

TEST(Hand, TheSpaceBarMakesHeroAfterHeroAndNeverEditsAName) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  for (int player = 0; player < 4; ++player) {
    EXPECT_EQ(stage.focus("Main"), member("GraczM", player));
    stage.press("Main", Qt::Key_Space);
    ASSERT_TRUE(stage.isShown("CTmhero"));
    stage.click("CTmhero", "Save");
  }
  EXPECT_EQ(stage.focus("Main"), "Start");
  EXPECT_EQ(stage.text("Main", "gracz(0)"), "hero1.boh");
}

TEST(Hand, StaysWhereSomethingWasBought) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  EXPECT_EQ(stage.focus("CTsklep"), "PLUS(0)");
  stage.press("CTsklep", Qt::Key_Space);
  EXPECT_EQ(stage.focus("CTsklep"), "PLUS(0)");
  EXPECT_EQ(stage.text("CTsklep", "Ile_jeszcze"), "38");
}

TEST(Hand, AltAndALetterPressAButtonAndReachAList) {
  Stage stage;
  openLongFight(stage);
  stage.press("Fight", Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(stage.focus("Fight"), "Czar");
  rollBlow(stage);
  stage.press("Fight", Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(stage.world.unusedRolls(), 0U);
  EXPECT_EQ(stage.text("Fight", "Atak"), "Atakuj !");
  stage.press("Fight", Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(stage.errors, std::vector<std::string>());
}

TEST(Hand, MinusStandsBeforePlusByKeyboardAsOnTheScreen) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  ASSERT_TRUE(stage.tabTo("CTmhero", "MINUS(0)"));
  stage.press("CTmhero", Qt::Key_Tab);
  EXPECT_EQ(stage.focus("CTmhero"), "PLUS(0)");
  EXPECT_LT(stage.at("CTmhero", "MINUS(0)").x(), stage.at("CTmhero", "PLUS(0)").x());
}

TEST(Hand, ControlAndAClickLeaveTheMarkOfAList) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.choose("CTsklep", "LBronww", "Miecz");
  auto& list = stage.get<QListWidget>("CTsklep", "LBronww");
  const QPoint row = list.visualItemRect(list.currentItem()).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, row);
  Stage::settle();
  EXPECT_EQ(stage.text("CTsklep", "LBronww"), "Miecz");
}

TEST(Hand, ADoubleClickOnASpellCountsAsTwoClicks) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  desktop::FormWindow& window = stage.window("CTmhero");
  QWidget& spell = stage.at("CTmhero", "Czarn(0)");
  auto* const label = std::get<Label*>(stage.runtime.find("CTmhero")->controls().find("Czarn(0)").control);
  std::vector<std::string> points;
  label->Click = [&, buy = label->Click] {
    buy();
    points.push_back(std::get<Label*>(stage.runtime.find("CTmhero")->controls().find("Ile_jeszcze").control)->Caption);
  };
  QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {}, spell.mapTo(&window, spell.rect().center()));
  Stage::settle();
  EXPECT_EQ(points, (std::vector<std::string>{"11", "12"}));
}

// How often a widget is painted while it lives.
class Paintings : public QObject {
 public:
  explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

TEST(Hand, BothClicksOfADoubleClickAreSeen) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  QWidget& spell = stage.at("CTmhero", "Czarn(0)");
  Paintings paintings(spell);
  const QPointF place(spell.rect().center());
  for (const auto type : {QEvent::MouseButtonRelease, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, place, spell.mapToGlobal(place), Qt::LeftButton, {}, {});
    QApplication::sendEvent(&spell, &event);
  }
  EXPECT_EQ(paintings.count, 2);
}

TEST(Hand, AKeyHeldDownThroughADeathBuysNothingInTheNextShop) {
  Stage stage;
  FightSetup setup = plainFight();
  setup.PotworPierwszy = 1;
  setup.potwor.Atak = {1, 1, 1, 100};
  Bohater hero = richHero();
  hero.Wcielenia = 3;
  setFight(stage.world, hero, setup);
  stage.world.writeHero("hero2.boh", richHero());
  stage.world.write(kGameFile, {" 2 ", "hero1.boh", "hero2.boh"});
  stage.world.roll(1, 1, {1});
  stage.world.roll(1, 4, {1});
  stage.open({"Fight"});
  ASSERT_EQ(stage.focus("Fight"), "CloseDMG");
  for (int press = 0; press < 4; ++press) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", press > 0);
    QApplication::sendEvent(QApplication::focusWidget(), &down);
    Stage::settle();
  }
  ASSERT_TRUE(stage.isShown("CTsklep"));
  EXPECT_EQ(stage.text("CTsklep", "Ile_jeszcze"), "40");
}

TEST(Hand, ASpellTakesAKeyThatIsHeldDownOnce) {
  Stage stage;
  setCreation(stage.world, 12);
  stage.open({"CTmhero"});
  for (int press = 0; press < 4; ++press) {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", press > 0);
    QApplication::sendEvent(&stage.at("CTmhero", "Czarn(0)"), &down);
  }
  EXPECT_EQ(stage.text("CTmhero", "Ile_jeszcze"), "11");
}

TEST(Hand, NotesOfTheGameLeaveTheCursorBehindThem) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  stage.choose("Prefight", "Przedmioty", "Krzepiący Baton");
  stage.click("Prefight", "Uzyj");
  ASSERT_TRUE(stage.tabTo("Prefight", "historia"));
  stage.typeKeys("Prefight", " i dobrze");
  EXPECT_EQ(stage.text("Prefight", "historia"), "Spożyłem Krzepiący Baton i dobrze");
}

TEST(Hand, AButtonThatWasUsedIsNotLitWhenItsWindowComesBack) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  QWidget& button = stage.at("Main", "GraczM(0)");
  button.setAttribute(Qt::WA_UnderMouse);
  stage.click("Main", "GraczM(0)");
  ASSERT_TRUE(stage.isShown("CTmhero"));
  EXPECT_FALSE(button.underMouse());
}

}  // namespace
}  // namespace brolgan::test
