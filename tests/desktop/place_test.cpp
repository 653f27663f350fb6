// Where the windows stand, and that a screen which opens again is as fresh as its form.
#include <gtest/gtest.h>

#include <QApplication>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <utility>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

void move(Stage& stage, const std::string& form, QPoint corner) {
  QWidget& window = stage.window(form);
  window.setGeometry(QRect(corner, window.size()));
  QApplication::processEvents();
}

std::pair<int, int> corner(const Stage& stage, const std::string& form) {
  const QPoint point = stage.window(form).geometry().topLeft();
  return {point.x(), point.y()};
}

void expectAt(const Stage& stage, const std::string& form, std::pair<int, int> place) {
  EXPECT_EQ(corner(stage, form), place) << form;
}

TEST(Place, AScreenAppearsWhereTheLastOneStoodAndAsLarge) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 4, {1, 1});
  stage.open({"CTsklep"});
  const QRect pulled(20, 34, 1200, 650);
  stage.window("CTsklep").setGeometry(pulled);
  QApplication::processEvents();
  stage.click("CTsklep", "w1");
  EXPECT_EQ(stage.window("Prefight").geometry(), pulled);
  move(stage, "Prefight", {12, 38});
  stage.world.roll(1, 5, {2});
  stage.click("Prefight", "Zakoncz");
  EXPECT_EQ(stage.window("Fight").geometry(), QRect(QPoint(12, 38), pulled.size()));
}

TEST(Place, AMaximisedScreenIsFollowedByMaximisedOnes) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 4, {1, 1});
  stage.start();
  const QRect setUp = stage.window("Main").geometry();
  stage.click("Main", "GraczM(0)");
  stage.window("CTmhero").setWindowState(Qt::WindowMaximized);
  stage.click("CTmhero", "Save");
  EXPECT_FALSE(stage.window("Main").isMaximized());
  EXPECT_EQ(stage.window("Main").geometry(), setUp);
  stage.click("Main", "Start");
  EXPECT_TRUE(stage.window("CTsklep").isMaximized());
}

TEST(Place, TheSetUpKeepsItsOwnPlace) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  move(stage, "Main", {20, 34});
  stage.click("Main", "GraczM(0)");
  move(stage, "CTmhero", {14, 40});
  stage.click("CTmhero", "Save");
  expectAt(stage, "Main", {20, 34});
  stage.click("Main", "GraczM(1)");
  expectAt(stage, "CTmhero", {14, 40});
}

// A sheet that nobody has moved is put anew each time.
TEST(Place, ASheetSeenInTheShopDoesNotCoverTheReportsOfTheFight) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 4, {1, 1});
  stage.world.roll(1, 5, {2});
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  stage.press("FHero", Qt::Key_Escape);
  ASSERT_FALSE(stage.isShown("FHero"));
  stage.click("CTsklep", "w1");
  stage.click("Prefight", "Zakoncz");
  for (const char* frame : {"FZad", "FDamage"}) {
    std::get<Frame*>(stage.runtime.find("Fight")->controls().find(frame).control)->Visible = true;
  }
  stage.click("Fight", "Heroshow");
  ASSERT_TRUE(stage.isShown("FHero"));
  const QRect sheet = stage.window("FHero").geometry();
  for (const QRect& clear : stage.window("Fight").keptClear()) EXPECT_FALSE(sheet.intersects(clear));
}

TEST(Place, ASheetThatWasMovedComesBackWhereItWasLeft) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  move(stage, "FHero", {31, 45});
  stage.press("FHero", Qt::Key_Escape);
  stage.click("CTsklep", "Heroshow");
  expectAt(stage, "FHero", {31, 45});
}

TEST(Place, AScreenNeverHangsOverTheEdge) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  move(stage, "Main", {560, 380});
  stage.click("Main", "GraczM(0)");
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(screen.contains(stage.window("CTmhero").geometry()));
  EXPECT_GE(corner(stage, "CTmhero").second, 26);
}

TEST(Place, TheSheetLeavesTheReportsAndListsOfTheFightInSight) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  for (const char* frame : {"FZad", "FDamage"}) {
    std::get<Frame*>(stage.runtime.find("Fight")->controls().find(frame).control)->Visible = true;
  }
  stage.click("Fight", "Heroshow");
  const QRect sheet = stage.window("FHero").geometry();
  for (const char* name : {"Uwaga", "FZad", "FDamage", "Bron", "Czar", "Przedmiot"}) {
    const QWidget& widget = stage.at("Fight", name);
    EXPECT_FALSE(sheet.intersects(QRect(widget.mapToGlobal(QPoint()), widget.size()))) << name;
  }
}

TEST(Place, TheSheetKeepsThePlaceThatItWasGiven) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  move(stage, "FHero", {100, 120});
  stage.click("FHero", "HeroClose");
  stage.click("CTsklep", "Heroshow");
  expectAt(stage, "FHero", {100, 120});
}

TEST(Place, TheTitleStaysWhereItIs) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  move(stage, "Brolgan", {5, 50});
  const QRect before = stage.window("Brolgan").geometry();
  stage.click("Main", "GraczM(0)");
  stage.click("CTmhero", "Save");
  EXPECT_EQ(stage.window("Brolgan").geometry(), before);
  EXPECT_TRUE(stage.isShown("Brolgan"));
}

TEST(Place, TheSetUpDoesNotHideAllOfTheTitle) {
  Stage stage;
  stage.start();
  const QRect title = stage.window("Brolgan").geometry();
  const QRect setUp = stage.window("Main").geometry();
  EXPECT_LT(title.top(), setUp.top() - 100);
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(screen.contains(title));
  EXPECT_TRUE(screen.contains(setUp));
}

TEST(Place, TheSheetOpensBesideWithoutMovingAnything) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  move(stage, "CTsklep", {12, 34});
  stage.click("CTsklep", "Heroshow");
  expectAt(stage, "CTsklep", {12, 34});
  EXPECT_TRUE(stage.isShown("CTsklep"));
  EXPECT_NE(stage.window("FHero").geometry(), stage.window("CTsklep").geometry());
  EXPECT_EQ(QApplication::activeWindow(), &stage.window("FHero"));
}

TEST(Place, TheSheetOpenedAgainIsFresh) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  stage.choose("FHero", "Bron", "Tasak (+0%)");
  Bohater other = plainHero();
  other.Imie = "Odmieniec";
  other.Stwory(1) = 2;
  stage.world.writeHero("hero1.boh", other);
  stage.click("CTsklep", "Heroshow");
  EXPECT_EQ(stage.text("FHero", "Imie"), "Odmieniec");
  EXPECT_EQ(stage.rows("FHero", "Stwory"), std::vector<std::string>{"Komary (2)"});
  EXPECT_EQ(stage.text("FHero", "Bron"), "");
}

TEST(Place, TheSheetOpenedAgainComesToTheFront) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  stage.click("CTsklep", "Heroshow");
  stage.press("FHero", Qt::Key_Tab);
  stage.window("CTsklep").activateWindow();
  QApplication::processEvents();
  ASSERT_EQ(QApplication::activeWindow(), &stage.window("CTsklep"));
  stage.click("CTsklep", "Heroshow");
  EXPECT_EQ(QApplication::activeWindow(), &stage.window("FHero"));
  EXPECT_EQ(stage.focus("FHero"), "Bron");
}

TEST(Fresh, TheShopForgetsItsSelectionTextsAndScroll) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  auto& list = stage.get<QListWidget>("CTsklep", "LBronww");
  list.setFixedHeight(70);
  QApplication::processEvents();
  stage.choose("CTsklep", "LBronww", "Oczożłop");
  ASSERT_GT(list.verticalScrollBar()->value(), 0);
  EXPECT_EQ(stage.text("CTsklep", "BWnazwa"), "Oczożłop");
  stage.world.roll(1, 5, {2});
  stage.click("CTsklep", "w1");
  stage.open({"CTsklep"});
  EXPECT_EQ(stage.text("CTsklep", "LBronww"), "");
  EXPECT_EQ(stage.text("CTsklep", "BWnazwa"), "bron1");
  EXPECT_EQ(stage.text("CTsklep", "BWopis"), "opis można rzucać czary");
  EXPECT_EQ(list.verticalScrollBar()->value(), 0);
  EXPECT_EQ(stage.focus("CTsklep"), "PLUS(0)");
}

// The arrows start at the top of a list from which nothing has been chosen yet.
TEST(Fresh, TheArrowsStartAtTheTopOfAListAgain) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  ASSERT_TRUE(stage.tabTo("CTsklep", "LBronww"));
  stage.press("CTsklep", Qt::Key_Down);
  const std::string first = stage.text("CTsklep", "BWnazwa");
  stage.choose("CTsklep", "LBronww", "Oczożłop");
  stage.world.roll(1, 5, {2});
  stage.click("CTsklep", "w1");
  stage.open({"CTsklep"});
  ASSERT_TRUE(stage.tabTo("CTsklep", "LBronww"));
  stage.press("CTsklep", Qt::Key_Down);
  EXPECT_EQ(stage.text("CTsklep", "BWnazwa"), first);
}

TEST(Fresh, CreationForgetsTheHeroBefore) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  stage.click("Main", "GraczM(0)");
  stage.write("CTmhero", "Imie", "Pierwszy");
  for (const char* name : {"Klasa(7)", "PLUS(0)", "Czarn(0)", "PLUS(7)"}) stage.click("CTmhero", name);
  stage.choose("CTmhero", "Lbronss", "Marker");
  stage.click("CTmhero", "Save");
  stage.click("Main", "GraczM(1)");
  EXPECT_EQ(stage.text("CTmhero", "Imie"), "Kosiarz");
  EXPECT_TRUE(stage.get<QRadioButton>("CTmhero", "Klasa(0)").isChecked());
  EXPECT_FALSE(stage.get<QRadioButton>("CTmhero", "Klasa(7)").isChecked());
  EXPECT_TRUE(stage.isRed("CTmhero", "stat1(0)"));
  EXPECT_FALSE(stage.isRed("CTmhero", "stat1(1)"));
  EXPECT_FALSE(stage.isRed("CTmhero", "Czarn(0)"));
  EXPECT_EQ(stage.text("CTmhero", "Lbronss"), "");
  EXPECT_EQ(stage.text("CTmhero", "wyp(0)"), "0");
  EXPECT_EQ(stage.focus("CTmhero"), "Imie");
  stage.press("CTmhero", Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(stage.text("CTmhero", "Imie"), "Kosiarz");
}

TEST(Fresh, PreparationForgetsItsNotesAndChoices) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"Prefight"});
  stage.write("Prefight", "historia", "stare zapiski");
  stage.choose("Prefight", "Czary", "Autostart");
  stage.choose("Prefight", "Przedmioty", "Tabaka");
  stage.world.roll(1, 6, {1, 1});
  stage.click("Prefight", "Uzyj");
  stage.close("Prefight");
  stage.world.roll(1, 5, {3});
  stage.open({"Prefight"});
  EXPECT_EQ(stage.text("Prefight", "historia"), "");
  EXPECT_EQ(stage.text("Prefight", "Czary"), "");
  EXPECT_EQ(stage.text("Prefight", "Przedmioty"), "");
  EXPECT_EQ(stage.text("Prefight", "Koszt"), "0");
  EXPECT_EQ(stage.text("Prefight", "Moname"), "Zombi");
  EXPECT_FALSE(stage.isVisible("Prefight", "tabak"));
  EXPECT_FALSE(stage.get<QPlainTextEdit>("Prefight", "historia").document()->isUndoAvailable());
  EXPECT_EQ(stage.focus("Prefight"), "Przedmioty");
}

TEST(Fresh, FightForgetsItsReportsAndDisabledButtons) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  stage.choose("Fight", "Czar", "BullShots");
  stage.world.roll(1, 6, {1, 1, 1});
  stage.click("Fight", "Rzuc");
  ASSERT_TRUE(stage.isVisible("Fight", "FZad"));
  stage.close("Fight");
  stage.open({"Fight"});
  EXPECT_FALSE(stage.isVisible("Fight", "FZad"));
  EXPECT_EQ(stage.text("Fight", "IleZad"), "");
  EXPECT_EQ(stage.text("Fight", "Czar"), "");
  EXPECT_EQ(stage.text("Fight", "mana"), "0");
  EXPECT_FALSE(stage.isEnabled("Fight", "mana"));
  EXPECT_TRUE(stage.isEnabled("Fight", "Rzuc"));
  EXPECT_EQ(stage.focus("Fight"), "Bron");
}

}  // namespace
}  // namespace brolgan::test
