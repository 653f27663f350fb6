// Plays a short game by clicking real widgets in real windows and takes a picture of the whole
// display at every screen, and a few while a fight goes on. Run by take.sh in a folder laid out for play.
// Usage: brolgan_screens FOLDER-FOR-PICTURES HERO-FILE [maximised]
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QIcon>
#include <QListWidget>
#include <QScreen>
#include <QTest>
#include <algorithm>

#include "desktop/face.h"
#include "desktop/picture_store.h"
#include "desktop/silence.h"
#include "desktop/theme.h"
#include "game/game.h"
#include "rules/dice.h"

namespace {

using namespace brolgan;

class SetClock : public Clock {
 public:
  double timer() override { return now; }
  double now = 0;
};

// A time of day at which a screen that seeds itself then rolls the face first.
double timeOfRoll(int kmin, int kmax, int face) {
  SeededRandom random;
  for (double time = 1;; time += 1) {
    random.seed(time);
    if (Rzut(random, kmin, kmax) == face) return time;
  }
}

class Session {
 public:
  // isMaximised: the first screen in turn is maximised, and all others after it.
  Session(QString folder, QString grownHero, bool isMaximised)
      : folder_(std::move(folder)), grownHero_(std::move(grownHero)), isMaximised_(isMaximised) {
    offerScreens(runtime_, random_);
  }

  void play(int shopMode) {
    clock_.now = timeOfRoll(1, 4, shopMode);
    face_.start();
    settle();
    takeTitle();
    take("setup");
    click("Main", "GraczM(0)");
    if (isMaximised_) face_.window("CTmhero")->showMaximized();
    developHero();
    take("creation");
    click("CTmhero", "Save");
    QFile::remove("hero1.boh");
    QFile::copy(grownHero_, "hero1.boh");
    click("Main", "Start");
    take(shopMode == 1 ? "shop" : "shop-closed");
    if (shopMode != 1) return;
    choose("CTsklep", "LBronww", 7);
    click("CTsklep", "Heroshow");
    take("sheet");
    click("FHero", "HeroClose");
    clock_.now = timeOfRoll(24, 29, 28);
    click("CTsklep", "w7");
    take("preparation");
    click("Prefight", "Zakoncz");
    take("fight-start");
    fight();
    take("fight");
  }

 private:
  void developHero() {
    for (const char* button : {"PLUS(0)", "PLUS(0)", "PLUS(1)", "PLUS(3)"}) click("CTmhero", button);
    click("CTmhero", "Klasa(3)");
    click("CTmhero", "Czarn(1)");
    click("CTmhero", "Spec(0)");
    choose("CTmhero", "LBronww", 3);
    choose("CTmhero", "Lbronss", 7);
    click("CTmhero", "Kupww");
  }

  void fight() {
    pick("Bron", "Oczożłop");
    for (const char* button : {"Atak", "NastTura", "Atak"}) {
      film();
      click("Fight", button);
    }
    film();
  }

  QWidget& widget(const char* form, const QString& name) {
    return *face_.window(form)->findChild<QWidget*>(QString(name));
  }

  void settle() { QTest::qWait(400); }

  // Clicks near the left end, where the words of a narrow caption are.
  void click(const char* form, const QString& name) {
    QWidget& clicked = widget(form, name);
    QTest::mouseClick(&clicked, Qt::LeftButton, {}, QPoint(std::min(24, clicked.width() / 2), clicked.height() / 2));
    settle();
  }

  void choose(const char* form, const QString& name, int row) {
    static_cast<QListWidget&>(widget(form, name)).setCurrentRow(row);
    settle();
  }

  void pick(const QString& list, const QString& text) {
    auto& box = static_cast<QComboBox&>(widget("Fight", list));
    box.setCurrentText(text);
    Q_EMIT box.activated(box.currentIndex());
    settle();
  }

  // The set-up stands in front of the title; for this picture it steps aside.
  void takeTitle() {
    QWidget& setup = *face_.window("Main");
    setup.hide();
    take("title");
    setup.show();
    setup.activateWindow();
  }

  void take(const QString& name) {
    settle();
    QGuiApplication::primaryScreen()->grabWindow(0).save(folder_ + "/" + name + ".png");
  }

  // The next frame of the moving picture.
  void film() { take(QString("film-%1").arg(frames_++)); }

  QString folder_;
  QString grownHero_;
  bool isMaximised_;
  int frames_ = 0;
  DiskFiles files_;
  SeededRandom random_;
  SetClock clock_;
  desktop::PictureStore pictures_;
  desktop::Silence sounds_;
  Runtime runtime_{{files_, clock_, pictures_, sounds_}};
  desktop::Face face_{runtime_, pictures_};
};

QIcon icon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128}) icon.addFile(QString("ikona-%1.png").arg(size));
  return icon;
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  brolgan::desktop::theme::apply(application);
  QApplication::setWindowIcon(icon());
  const QString folder = application.arguments().at(1);
  const QString hero = application.arguments().at(2);
  const bool isMaximised = application.arguments().value(3) == "maximised";
  Session(folder, hero, isMaximised).play(2);
  Session(folder, hero, isMaximised).play(1);
  return 0;
}
