// How a window opens: it is made in one event and shown in a later one. Until then the screen before
// stays in sight and is deaf.
#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>
#include <utility>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

// A click and nothing after it: what it has put off has not happened yet.
void clickOnly(Stage& stage, const std::string& form, const std::string& control) {
  QTest::mouseClick(&stage.at(form, control), Qt::LeftButton);
}

// The set-up, where the first click on a player's button has just been made.
void openCreation(Stage& stage) {
  setTheTable(stage.world);
  stage.start();
  clickOnly(stage, "Main", "GraczM(0)");
}

// Counts the events of one type that a window receives, and does something at each.
class Watch : public QObject {
 public:
  Watch(QWidget& window, QEvent::Type type, std::function<void()> doing = nullptr)
      : type_(type), doing_(std::move(doing)) {
    window.installEventFilter(this);
  }

  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == type_) {
      ++count;
      if (doing_) doing_();
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QEvent::Type type_;
  std::function<void()> doing_;
};

TEST(Opening, AWindowIsMadeFirstAndShownLater) {
  Stage stage;
  openCreation(stage);
  ASSERT_NE(stage.face.window("CTmhero"), nullptr);
  EXPECT_FALSE(stage.isShown("CTmhero"));
  EXPECT_TRUE(stage.isShown("Main"));
  Stage::settle();
  EXPECT_TRUE(stage.isShown("CTmhero"));
  EXPECT_FALSE(stage.isShown("Main"));
}

TEST(Opening, AWindowThatIsNotShownYetIsDeaf) {
  Stage stage;
  openCreation(stage);
  stage.get<QPushButton>("CTmhero", "Save").click();
  EXPECT_NE(stage.runtime.find("CTmhero"), nullptr);
  EXPECT_FALSE(stage.world.exists("hero1.boh"));
}

TEST(Opening, OneEventMakesOneWindow) {
  Stage stage;
  stage.face.start();
  EXPECT_NE(stage.face.window("Brolgan"), nullptr);
  EXPECT_EQ(stage.face.window("Main"), nullptr);
  Stage::settle();
  EXPECT_TRUE(stage.isShown("Brolgan"));
  EXPECT_TRUE(stage.isShown("Main"));
}

TEST(Opening, AWindowThatIsThereAppearsAtOnce) {
  Stage stage;
  openCreation(stage);
  Stage::settle();
  stage.click("CTmhero", "Save");
  clickOnly(stage, "Main", "GraczM(1)");
  EXPECT_TRUE(stage.isShown("CTmhero"));
  EXPECT_FALSE(stage.isShown("Main"));
}

TEST(Opening, TheScreenBeforeGoesWhenTheNextStands) {
  Stage stage;
  openCreation(stage);
  bool isNextShown = false;
  const Watch watch(stage.window("Main"), QEvent::Hide, [&] { isNextShown = stage.isShown("CTmhero"); });
  Stage::settle();
  EXPECT_EQ(watch.count, 1);
  EXPECT_TRUE(isNextShown);
}

TEST(Opening, TheFocusIsWhereAPersonStarts) {
  Stage stage;
  openCreation(stage);
  Stage::settle();
  EXPECT_EQ(QApplication::activeWindow(), &stage.window("CTmhero"));
  EXPECT_EQ(stage.focus("CTmhero"), "Imie");
}

TEST(Opening, AHiddenScreenThatStillStandsIsDeaf) {
  Stage stage;
  openCreation(stage);
  const auto files = stage.world.files.contents;
  stage.window("Main").close();
  for (const char* name : {"GraczM(1)", "Start"}) clickOnly(stage, "Main", name);
  QTest::keyClicks(&stage.at("Main", "ile_punktow"), "7");
  EXPECT_EQ(stage.world.files.contents, files);
  ASSERT_NE(stage.runtime.find("Main"), nullptr);
  const ControlTable& table = stage.runtime.find("Main")->controls();
  EXPECT_EQ(std::get<TextBox*>(table.find("ile_punktow").control)->Text, "12");
  EXPECT_EQ(std::get<Label*>(table.find("Czygra(1)").control)->Caption, "");
  Stage::settle();
  EXPECT_TRUE(stage.isShown("CTmhero"));
  stage.click("CTmhero", "Save");
  EXPECT_EQ(stage.text("Main", "ile_punktow"), "12");
}

TEST(Opening, AScreenThatIsGoneButStillStandsIsDeaf) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.open({"CTsklep"});
  clickOnly(stage, "CTsklep", "w1");
  ASSERT_EQ(stage.runtime.find("CTsklep"), nullptr);
  ASSERT_TRUE(stage.isShown("CTsklep"));
  const auto files = stage.world.files.contents;
  for (const char* name : {"PLUS(0)", "Czarn(1)", "Heroshow", "w2"}) clickOnly(stage, "CTsklep", name);
  stage.get<QListWidget>("CTsklep", "LBronww").setCurrentRow(3);
  stage.window("CTsklep").close();
  EXPECT_EQ(stage.world.files.contents, files);
  Stage::settle();
  EXPECT_TRUE(stage.isShown("Prefight"));
  EXPECT_FALSE(stage.isShown("CTsklep"));
  EXPECT_FALSE(stage.isShown("FHero"));
  EXPECT_EQ(stage.errors.size(), 0U);
}

TEST(Opening, AFormThatGoesMeanwhileIsNeverShown) {
  for (const bool isUnloaded : {true, false}) {
    Stage stage;
    openCreation(stage);
    const Watch watch(stage.window("CTmhero"), QEvent::Show);
    isUnloaded ? stage.runtime.Unload("CTmhero") : stage.runtime.Hide("CTmhero");
    Stage::settle();
    EXPECT_EQ(watch.count, 0) << isUnloaded;
    EXPECT_FALSE(stage.isShown("Main"));
    EXPECT_TRUE(stage.isShown("Brolgan"));
  }
}

TEST(Opening, TheTitleEndsTheProgramMeanwhile) {
  Stage stage;
  openCreation(stage);
  const Watch watch(stage.window("CTmhero"), QEvent::Show);
  stage.window("Brolgan").close();
  Stage::settle();
  EXPECT_TRUE(stage.runtime.ended());
  EXPECT_EQ(watch.count, 0);
}

// Stands for the box of an error until it has been read.
bool isReadInPeace() {
  bool isRead = false;
  QEventLoop box;
  QTimer::singleShot(50, &box, [&] {
    isRead = true;
    box.quit();
  });
  box.exec();
  return isRead;
}

TEST(Opening, AnErrorMeanwhileStaysUntilItIsReadAndEndsTheProgramWithItsCode) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  bool isRead = false;
  stage.face.onError = [&isRead](const QString&) { isRead = isReadInPeace(); };
  QTimer::singleShot(0, [&stage] {
    clickOnly(stage, "CTsklep", "Heroshow");
    stage.world.files.contents.erase("hero1.boh");
    clickOnly(stage, "CTsklep", "Heroshow");
  });
  EXPECT_EQ(QApplication::exec(), 1);
  EXPECT_TRUE(isRead);
  Stage::settle();
  EXPECT_FALSE(stage.isShown("FHero"));
}

TEST(Opening, TheGameMayEndBeforeAWindowIsShown) {
  auto stage = std::make_unique<Stage>();
  openCreation(*stage);
  EXPECT_NO_THROW({
    stage.reset();
    Stage::settle();
  });
}

TEST(Opening, AWindowLetsGoOfAFormThatIsUnloaded) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 4, {1});
  stage.start();
  stage.click("Main", "GraczM(0)");
  stage.click("CTmhero", "Save");
  EXPECT_NE(stage.window("Main").form(), nullptr);
  stage.click("Main", "Start");
  ASSERT_TRUE(stage.isShown("CTsklep"));
  EXPECT_EQ(stage.window("Main").form(), nullptr);
}

}  // namespace
}  // namespace brolgan::test
