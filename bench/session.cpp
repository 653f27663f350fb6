#include "session.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "desktop/text.h"

namespace brolgan::bench {

void Session::open() {
  if (!probe_.untilPainted("Main", [this] { face_.start(); })) throw std::runtime_error("the set-up does not open");
  probe_.rest();
}

void Session::playAndPull() {
  pulls_ = true;
  play();
  pulls_ = false;
}

void Session::play() {
  typeBudget();
  change("set-up to creation", "Main", "GraczM(0)", "CTmhero");
  pull("creation", "CTmhero");
  makeHero();
  change("creation to set-up", "CTmhero", "Save", "Main");
  change("set-up to shop", "Main", "Start", "CTsklep");
  pull("shop", "CTsklep");
  visitShop();
  change("shop to preparation", "CTsklep", "w1", "Prefight");
  pull("preparation", "Prefight");
  prepare();
  change("preparation to fight", "Prefight", "Zakoncz", "Fight");
  pull("fight", "Fight");
  fight();
  face_.window("CTsklep")->close();
  probe_.rest();
}

void Session::typeBudget() {
  auto& box = dynamic_cast<QLineEdit&>(*widget("Main", "ile_punktow"));
  box.selectAll();
  for (const char digit : std::string("400")) {
    press("Main", "ile_punktow", Qt::Key_0 + digit - '0', QString(QLatin1Char(digit)));
  }
}

void Session::makeHero() {
  for (int statistic = 0; statistic < 7; ++statistic) {
    click("CTmhero", "PLUS(" + std::to_string(statistic) + ")", 4);
  }
  click("CTmhero", "MINUS(1)");
  choose("CTmhero", "LBronww", 2);
  click("CTmhero", "Kupww");
  choose("CTmhero", "Lbronss", 1);
  click("CTmhero", "Kupss");
  click("CTmhero", "Czarn(1)");
}

void Session::visitShop() {
  click("CTsklep", "PLUS(0)");
  choose("CTsklep", "LBronww", 1);
  click("CTsklep", "Kupww");
  click("CTsklep", "Czarn(2)");
  change("opening the sheet", "CTsklep", "Heroshow", "FHero");
  click("FHero", "HeroClose");
}

void Session::prepare() {
  click("Prefight", "Uzyj");
  click("Prefight", "Rzuc");
}

// Blow after blow, until the fight is won or a life is lost and the shop stands there.
void Session::fight() {
  press("Fight", "Bron", Qt::Key_Down);
  for (int round = 0; round < 400; ++round) {
    click("Fight", "Atak");
    click("Fight", "Rzuc");
    click("Fight", "CloseZad");
    if (tryChange("fight to shop", "Fight", "NastTura", "CTsklep")) return;
    if (tryChange("fight to shop", "Fight", "CloseDMG", "CTsklep")) return;
  }
  throw std::runtime_error("the fight does not end");
}

// Makes the window smaller step by step, as a hand at its corner does, and as large as it was.
void Session::pull(const std::string& screen, const std::string& form) {
  if (!pulls_) return;
  constexpr int kFrames = 16;
  constexpr QSize kStep(24, 13);
  QWidget& window = *face_.window(form);
  const QSize before = window.size();
  double slowestMs = 0;
  for (int i = kFrames - 1; i >= -kFrames; --i) {
    const QSize size = before - kStep * (kFrames - std::abs(i));
    const auto ms = probe_.untilPainted(QString::fromStdString(form), [&] { window.resize(size); });
    if (!ms) throw std::runtime_error(form + " is not painted when it is pulled");
    slowestMs = std::max(slowestMs, *ms);
  }
  listener_("frame of the pulled " + screen, slowestMs);
  probe_.rest();
}

void Session::change(const std::string& change, const std::string& form, const char* control, const char* to) {
  if (!tryChange(change, form, control, to)) throw std::runtime_error("no change from " + change);
}

bool Session::tryChange(const std::string& change, const std::string& form, const char* control, const char* to) {
  QWidget* const pressed = widget(form, control);
  if (!pressed->isEnabled() || !pressed->isVisible()) return false;
  const auto ms = probe_.clickToPainted(*pressed, to);
  if (runtime_.ended()) throw std::runtime_error("the game has ended");
  if (!ms) return false;
  listener_(change, *ms);
  probe_.rest();
  return true;
}

void Session::click(const std::string& form, const std::string& control, int times) {
  QWidget* const pressed = widget(form, control);
  for (int i = 0; i < times && pressed->isEnabled() && pressed->isVisible(); ++i) probe_.click(*pressed);
}

void Session::press(const std::string& form, const std::string& control, int key, const QString& text) {
  QCoreApplication::postEvent(widget(form, control), new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
  probe_.rest();
}

void Session::choose(const std::string& form, const char* list, int row) {
  dynamic_cast<QListWidget&>(*widget(form, list)).setCurrentRow(row);
  probe_.rest();
}

QWidget* Session::widget(const std::string& form, const std::string& control) const {
  return &face_.window(form)->at(control);
}

}  // namespace brolgan::bench
