// Every widget that takes the focus can be told by a screen reader and seen by its look.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QRadioButton>
#include <QTest>
#include <algorithm>
#include <map>
#include <set>

#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

const std::vector<std::string> kForms = {"Main", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"};

// All screens with all that can be reached there at some time.
void openAll(Stage& stage) {
  setCreation(stage.world, 12);
  setPreparation(stage.world, richHero());
  stage.world.writeFightFile(plainFight());
  stage.open({"Brolgan", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"});
  stage.choose("Fight", "Czar", "BullShots");
  stage.world.roll(1, 6, {1, 1, 1});
  stage.click("Fight", "Rzuc");
  stage.choose("Fight", "Bron", "Nóż");
}

// All but the box of the file name, which is never seen.
std::vector<QWidget*> focusable(const Stage& stage, const std::string& form) {
  std::vector<QWidget*> widgets;
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (std::holds_alternative<MediaPlayer*>(entry.control) || entry.name == "Plik") continue;
    QWidget& widget = stage.at(form, entry.fullName());
    if ((widget.focusPolicy() & Qt::TabFocus) != 0) widgets.push_back(&widget);
  }
  return widgets;
}

std::string spokenName(QWidget& widget) {
  QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&widget);
  return spoken == nullptr ? "" : spoken->text(QAccessible::Name).trimmed().toStdString();
}

TEST(Focus, EveryWidgetThatTakesItHasANameToSpeak) {
  Stage stage;
  openAll(stage);
  for (const std::string& form : kForms) {
    EXPECT_FALSE(focusable(stage, form).empty()) << form;
    for (QWidget* const widget : focusable(stage, form)) {
      const std::string name = spokenName(*widget);
      EXPECT_GE(name.size(), 3U) << form << "." << widget->objectName().toStdString() << " is called \"" << name
                                 << "\"";
    }
  }
}

TEST(Focus, NoTwoWidgetsOfAScreenAreSpokenAlike) {
  Stage stage;
  openAll(stage);
  for (const std::string& form : kForms) {
    std::map<std::string, std::string> known;
    for (QWidget* const widget : focusable(stage, form)) {
      const std::string control = widget->objectName().toStdString();
      const auto [at, isNew] = known.emplace(spokenName(*widget), control);
      EXPECT_TRUE(isNew) << form << ": " << control << " and " << at->second << " are both \"" << at->first << "\"";
    }
  }
}

TEST(Focus, StepButtonsAreSpokenWithTheirStatistic) {
  Stage stage;
  openAll(stage);
  EXPECT_EQ(spokenName(stage.at("CTmhero", "PLUS(0)")), "Wytrzymałość, plus");
  EXPECT_EQ(spokenName(stage.at("CTmhero", "MINUS(6)")), "Wcielenia, minus");
  EXPECT_EQ(spokenName(stage.at("CTmhero", "PLUS(7)")), "Granat, plus");
  EXPECT_EQ(spokenName(stage.at("CTsklep", "PLUS(5)")), "Modyfikator Obrażeń, plus");
  EXPECT_EQ(spokenName(stage.at("Main", "gracz(1)")), "Plik bohatera gracza 2");
}

// The widget that has the focus now, by a key, looks as it does not without it.
void expectSeenInFocus(Stage& stage, const std::string& form) {
  QWidget& widget = *stage.window(form).focusWidget();
  ASSERT_TRUE(widget.hasFocus());
  const QImage focused = widget.grab().toImage();
  widget.clearFocus();
  QApplication::processEvents();
  EXPECT_NE(widget.grab().toImage(), focused) << form << "." << widget.objectName().toStdString() << " looks the same";
  widget.setFocus(Qt::TabFocusReason);
}

// Goes through a screen with the Tab key until it comes round; through the options with the arrow.
int walkAndLook(Stage& stage, const std::string& form) {
  std::set<std::string> seen;
  QWidget& window = stage.window(form);
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  stage.press(form, Qt::Key_Tab);
  while (seen.insert(stage.focus(form)).second) {
    expectSeenInFocus(stage, form);
    const bool option = qobject_cast<QRadioButton*>(window.focusWidget()) != nullptr;
    stage.press(form, option && !seen.contains("Klasa(9)") ? Qt::Key_Down : Qt::Key_Tab);
  }
  return static_cast<int>(seen.size());
}

TEST(Focus, EveryWidgetThatHasItLooksDifferent) {
  Stage stage;
  openAll(stage);
  for (const std::string& form : kForms) {
    const auto widgets = focusable(stage, form);
    const auto reachable = std::count_if(widgets.begin(), widgets.end(),
                                         [](QWidget* one) { return one->isVisible() && one->isEnabled(); });
    EXPECT_EQ(walkAndLook(stage, form), reachable) << form;
  }
}

}  // namespace
}  // namespace brolgan::test
