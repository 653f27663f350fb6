// The reports of the fight: where they stand, and that nothing lies on them.
#include <gtest/gtest.h>

#include <QApplication>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

void openFight(Stage& stage) {
  setFight(stage.world, richHero());
  stage.open({"Fight"});
}

QRect placeOf(const Stage& stage, const std::string& control) {
  const QWidget& widget = stage.at("Fight", control);
  return {widget.mapTo(&stage.window("Fight"), QPoint(0, 0)), widget.size()};
}

TEST(Reports, StandOneOverTheOtherAtTheRightEdge) {
  Stage stage;
  openFight(stage);
  const QRect dealt = placeOf(stage, "FZad");
  const QRect taken = placeOf(stage, "FDamage");
  EXPECT_LT(dealt.bottom(), taken.top());
  EXPECT_EQ(dealt.left(), taken.left());
  for (const char* other : {"Potwór", "Pstat(0)", "Mstat(0)", "Heroshow"}) {
    EXPECT_LT(placeOf(stage, other).right(), dealt.left()) << other;
  }
}

TEST(Reports, HaveTheWarningBesideThem) {
  Stage stage;
  openFight(stage);
  const QRect warning = placeOf(stage, "Uwaga");
  const QRect dealt = placeOf(stage, "FZad");
  EXPECT_EQ(warning.left(), dealt.left());
  EXPECT_LE(warning.bottom(), dealt.top());
  EXPECT_LT(dealt.top() - warning.bottom(), 20);
}

TEST(Reports, AreNotCoveredByThePictureThatStandsInForThem) {
  Stage stage;
  openFight(stage);
  for (const char* frame : {"FZad", "FDamage"}) stage.at("Fight", frame).show();
  QApplication::processEvents();
  for (const char* control :
       {"IleZad", "OpisZad", "CloseZad", "Picture2", "IleDMG", "OpisDMG", "CloseDMG", "Picture1"}) {
    const QPoint middle = placeOf(stage, control).center();
    EXPECT_EQ(stage.window("Fight").childAt(middle), &stage.at("Fight", control)) << control;
  }
}

TEST(Reports, KeepTheirPlaceWhileTheyAreHidden) {
  Stage stage;
  openFight(stage);
  const QRect monster = placeOf(stage, "Potwór");
  for (const char* frame : {"FZad", "FDamage"}) {
    EXPECT_FALSE(stage.isVisible("Fight", frame)) << frame;
    stage.at("Fight", frame).show();
  }
  QApplication::processEvents();
  EXPECT_EQ(placeOf(stage, "Potwór"), monster);
}

}  // namespace
}  // namespace brolgan::test
