// Every screen of the game on displays of many sizes and densities: as it opens, maximised, and tiled
// to half. Needs the displays that the build describes in screens.json.
#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>

#include "desktop/places.h"
#include "tests/desktop/fits.h"
#include "tests/desktop/late_hero.h"

namespace brolgan::test {
namespace {

constexpr QSize kSmallestDisplay(1024, 600);
constexpr int kDisplays = 24;

bool fits(QSize room, QSize size) { return room.width() >= size.width() && room.height() >= size.height(); }

QSize leastSize(const desktop::FormWindow& window) {
  return (QSizeF(window.unit().size()) * desktop::Unit::kLeast).toSize();
}

// The window after which a form opens here.
std::string before(const std::string& form) { return form == "Brolgan" ? "Main" : "Brolgan"; }

// One form at a time, and the window after which it opens.
void openAfterAnother(Stage& stage, const std::string& form) {
  setCreation(stage.world, 2000);
  setPreparation(stage.world, lateHero());
  FightSetup setup = plainFight();
  setup.potwor.Ilosc = 26;
  stage.world.writeFightFile(setup);
  useRealData(stage.world);
  stage.world.roll(1, 5, {2});
  stage.open({before(form), form});
}

void moveTo(QWidget& window, QScreen& screen, const QRect& place) {
  window.setScreen(&screen);
  window.setGeometry(place);
  Stage::settle();
  ASSERT_EQ(window.screen(), &screen);
}

// Lets a window open on a screen as if it came after one there.
void openOn(Stage& stage, const std::string& form, QScreen& screen) {
  desktop::FormWindow& other = stage.window(before(form));
  moveTo(other, screen, QRect(screen.availableGeometry().center() - QPoint(150, 100), QSize(300, 200)));
  desktop::Places places;
  places.place(stage.window(form), &other);
  QApplication::processEvents();
  EXPECT_EQ(stage.window(form).screen(), &screen);
  EXPECT_TRUE(screen.availableGeometry().contains(stage.window(form).geometry()));
}

void expectWhole(Stage& stage, const std::string& form, const char* how, bool mayScroll) {
  SCOPED_TRACE(how);
  expectFits(stage, form);
  if (!mayScroll) {
    const QSize need = stage.window(form).page().minimumSizeHint();
    EXPECT_FALSE(scrolls(stage.window(form))) << "for " << need.width() << "x" << need.height();
  }
}

class Screens : public ::testing::TestWithParam<const char*> {};

TEST_P(Screens, ShowTheWholeScreen) {
  Stage stage;
  openAfterAnother(stage, GetParam());
  ASSERT_EQ(QGuiApplication::screens().size(), kDisplays);
  for (QScreen* const screen : QGuiApplication::screens()) {
    SCOPED_TRACE(screen->name().toStdString());
    const bool isSmall = !fits(screen->size(), kSmallestDisplay);
    openOn(stage, GetParam(), *screen);
    expectWhole(stage, GetParam(), "opened", isSmall);
    desktop::FormWindow& window = stage.window(GetParam());
    const QRect all = screen->availableGeometry();
    moveTo(window, *screen, all);
    window.setWindowState(Qt::WindowMaximized);
    expectWhole(stage, GetParam(), "maximised", isSmall);
    window.setWindowState(Qt::WindowNoState);
    moveTo(window, *screen, QRect(all.topLeft(), QSize(all.width() / 2, all.height() - 30)));
    const bool isNarrow = !fits(window.size(), leastSize(window));
    expectWhole(stage, GetParam(), "tiled", isNarrow);
  }
}

INSTANTIATE_TEST_SUITE_P(OfAllSizes, Screens,
                         ::testing::Values("Brolgan", "Main", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"),
                         [](const auto& form) { return std::string(form.param); });

TEST(Screens, OpenWindowsAtOneUnitAPixelOrNineTenthsOfALargeOne) {
  for (QScreen* const screen : QGuiApplication::screens()) {
    SCOPED_TRACE(screen->name().toStdString());
    const qreal unit = desktop::Places::unitOn(*screen);
    const QSizeF largest = QSizeF(desktop::kLargestWindow) * unit;
    const QSizeF free = QSizeF(screen->availableSize());
    if (screen->size() == QSize(1366, 768)) {
      EXPECT_EQ(unit, 1);
    }
    if (free.width() < 1600) continue;
    const qreal share = std::max(largest.width() / free.width(), largest.height() / free.height());
    EXPECT_LE(share, 0.9);
    EXPECT_GE(share, 0.88);
  }
}

TEST(Screens, FollowTheGameToTheOneThatItWasMovedTo) {
  Stage stage;
  setPreparation(stage.world, richHero());
  stage.world.roll(1, 4, {1, 1});
  stage.start();
  QScreen& second = *QGuiApplication::screens().at(17);
  moveTo(stage.window("Main"), second, QRect(second.availableGeometry().topLeft() + QPoint(60, 80), QSize(700, 330)));
  for (const char* form : {"CTmhero", "Main", "CTsklep", "FHero"}) {
    const std::string next = form;
    if (next == "CTmhero") stage.click("Main", "GraczM(0)");
    if (next == "Main") stage.click("CTmhero", "Save");
    if (next == "CTsklep") stage.click("Main", "Start");
    if (next == "FHero") stage.click("CTsklep", "Heroshow");
    ASSERT_TRUE(stage.isShown(next));
    EXPECT_EQ(stage.window(next).screen(), &second) << next;
    EXPECT_TRUE(second.availableGeometry().contains(stage.window(next).geometry())) << next;
  }
}

TEST(Screens, ComeBackIntoSightWhenTheirDisplayGoes) {
  Stage stage;
  stage.start();
  desktop::FormWindow& window = stage.window("Main");
  window.setGeometry(QRect(QPoint(-9000, -9000), window.size()));
  QApplication::processEvents();
  Q_EMIT qGuiApp->screenRemoved(QGuiApplication::screens().last());
  Stage::settle();
  EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
}

TEST(Screens, AWindowLargerThanTheDisplayThatIsLeftComesWhollyIntoSight) {
  Stage stage;
  setFight(stage.world, richHero());
  stage.open({"Fight"});
  desktop::FormWindow& window = stage.window("Fight");
  const QRect left = QGuiApplication::primaryScreen()->availableGeometry();
  window.setGeometry(QRect(left.topLeft() + QPoint(10, 30), left.size() + QSize(60, 200)));
  QApplication::processEvents();
  Q_EMIT qGuiApp->screenRemoved(QGuiApplication::screens().last());
  Stage::settle();
  EXPECT_TRUE(left.contains(window.geometry()));
}

}  // namespace
}  // namespace brolgan::test
