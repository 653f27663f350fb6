// Every screen fits a display of 1366 x 768, and nothing that it says is cut off or covered, with the
// longest words and figures that the game can put there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <algorithm>

#include "rules/development.h"
#include "rules/monsters.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/scenes.h"

namespace brolgan::test {
namespace {

constexpr QSize kScreen(1366, 768);
constexpr int kWindowFrame = 30;

std::string nameOf(const QWidget& widget) {
  return widget.window()->objectName().toStdString() + "." + widget.objectName().toStdString();
}

std::string spelled(QSize size) { return std::to_string(size.width()) + "x" + std::to_string(size.height()); }

bool fits(QSize size, QSize need) { return size.width() >= need.width() && size.height() >= need.height(); }

// The room that a label's words need: as wide as its longest word when it breaks its lines.
QSize needOf(const QLabel& label) {
  if (!label.wordWrap()) return label.sizeHint();
  int longest = 0;
  for (const QString& word : label.text().split(' ')) {
    longest = std::max(longest, label.fontMetrics().horizontalAdvance(word));
  }
  return {longest, label.heightForWidth(label.width())};
}

QSize roomOf(const QPushButton& button) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button).size();
}

QSize roomOf(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).size();
}

QSize textSize(const QWidget& widget, const QString& text) {
  return {widget.fontMetrics().horizontalAdvance(text), widget.fontMetrics().height()};
}

void expectRoom(const QWidget& widget, QSize room, QSize need, const QString& text) {
  EXPECT_TRUE(fits(room, need)) << nameOf(widget) << " \"" << text.toStdString() << "\" has " << spelled(room)
                                << " and needs " << spelled(need);
}

void expectTextFits(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (!label->text().isEmpty()) expectRoom(widget, label->size(), needOf(*label), label->text());
  } else if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    expectRoom(widget, roomOf(*button), {textSize(widget, button->text()).width(), widget.fontMetrics().ascent()},
               button->text());
  } else if (const auto* option = qobject_cast<const QRadioButton*>(&widget)) {
    expectRoom(widget, option->size(), option->sizeHint(), option->text());
  } else if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    expectRoom(widget, box->size(), {textSize(widget, box->title()).width() + 30, 30}, box->title());
  }
}

void expectRowsFit(const QWidget& widget) {
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) {
      expectRoom(widget, roomOf(*combo), textSize(widget, combo->itemText(i)), combo->itemText(i));
    }
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    for (int i = 0; i < list->count(); ++i) {
      const QRect row = list->visualItemRect(list->item(i));
      expectRoom(widget, {list->viewport()->width() - 4, row.height()}, textSize(widget, list->item(i)->text()),
                 list->item(i)->text());
    }
  }
}

bool isPicture(const QWidget& widget) {
  const auto* const label = qobject_cast<const QLabel*>(&widget);
  return label != nullptr && label->text().isEmpty();
}

bool isHolder(const QWidget& widget) {
  return qobject_cast<const QGroupBox*>(&widget) != nullptr || widget.metaObject() == &QFrame::staticMetaObject;
}

// The widgets of the controls that a person sees.
std::vector<QWidget*> seen(const Stage& stage, const std::string& form) {
  std::vector<QWidget*> widgets;
  for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
    if (std::holds_alternative<MediaPlayer*>(entry.control)) continue;
    QWidget& widget = stage.at(form, entry.fullName());
    if (widget.isVisible()) widgets.push_back(&widget);
  }
  return widgets;
}

QRect placeOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()}; }

void expectNoneCovered(const std::vector<QWidget*>& widgets) {
  for (std::size_t i = 0; i < widgets.size(); ++i) {
    if (isPicture(*widgets[i]) || isHolder(*widgets[i])) continue;
    EXPECT_EQ(widgets[i]->visibleRegion().boundingRect(), widgets[i]->rect()) << nameOf(*widgets[i]) << " is cut";
    for (std::size_t j = i + 1; j < widgets.size(); ++j) {
      if (isPicture(*widgets[j]) || isHolder(*widgets[j])) continue;
      EXPECT_FALSE(placeOf(*widgets[i]).intersects(placeOf(*widgets[j])))
          << nameOf(*widgets[i]) << " lies on " << nameOf(*widgets[j]);
    }
  }
}

void expectScreenFits(const QWidget& window) {
  const QSize room = kScreen - QSize(0, kWindowFrame);
  for (const QSize size : {window.size(), window.minimumSizeHint(), window.layout()->totalMinimumSize()}) {
    EXPECT_TRUE(fits(room, size)) << window.objectName().toStdString() << " takes " << spelled(size);
  }
}

void expectFits(const Stage& stage, const std::string& form) {
  QApplication::processEvents();
  expectScreenFits(stage.window(form));
  const auto widgets = seen(stage, form);
  for (const QWidget* const widget : widgets) {
    expectTextFits(*widget);
    expectRowsFit(*widget);
  }
  expectNoneCovered(widgets);
}

// The data that the game ships.
void useRealData(World& world) {
  world.files.contents["bron.cfg"] = assetBytes("bron.cfg");
  world.files.contents["monsters.cfg"] = assetBytes("monsters.cfg");
}

// A hero late in a long game, with everything and the longest words.
Bohater lateHero() {
  Bohater hero = richHero();
  hero.Imie = "Zbigniew z Bogdańca Wielki";
  hero.Klasa = "Zabobonny mnich zakonny";
  hero.Ile_jeszcze = 1888;
  for (int i = 0; i < kStatistics; ++i) hero.Poziomy(i) = kStatisticTable[static_cast<std::size_t>(i)].top();
  const int values[] = {50, 10, 20, 34, 10};
  for (int i = 0; i < 5; ++i) hero.Wartosci(i) = values[i];
  hero.AktWytrzymalosc = 50;
  hero.AktMoc = 20;
  hero.MO = {1, 6, 2, 3};
  hero.Wcielenia = 12;
  for (int i = 0; i < 10; ++i) {
    hero.MaBronww(i) = hero.MaBronss(i) = true;
    hero.BronwwProc(i) = hero.BronssProc(i) = 175;
    hero.BronwwPlus(i) = hero.BronssPlus(i) = 5;
  }
  hero.MaSpec(0) = hero.MaSpec(2) = true;
  hero.Wyp(0) = 120;
  hero.Wyp(1) = 1880;
  hero.Tura = 288;
  for (int i = 0; i < 45; ++i) hero.Stwory(i) = 88;
  return hero;
}

TEST(Fit, IsMeasuredAtTheResolutionThatIsAskedFor) {
  Stage stage;
  stage.start();
  const int factor = qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariableIntValue("QT_SCALE_FACTOR") : 1;
  EXPECT_EQ(stage.window("Main").devicePixelRatioF(), factor);
  EXPECT_EQ(stage.window("Main").screen()->size(), kScreen);
}

TEST(Fit, Title) {
  Stage stage;
  stage.start();
  expectFits(stage, "Brolgan");
}

TEST(Fit, SetUp) {
  Stage stage;
  setTheTable(stage.world);
  stage.start();
  expectFits(stage, "Main");
  for (int i = 0; i < 4; ++i) {
    stage.click("Main", member("GraczM", i));
    stage.click("CTmhero", "Save");
  }
  stage.write("Main", "ile_punktow", "32767");
  expectFits(stage, "Main");
}

void expectFitsWithEachWeapon(Stage& stage, const std::string& form) {
  for (const char* list : {"LBronww", "Lbronss"}) {
    for (const std::string& row : stage.rows(form, list)) {
      SCOPED_TRACE(row);
      stage.choose(form, list, row);
      expectFits(stage, form);
    }
  }
}

TEST(Fit, Creation) {
  Stage stage;
  setCreation(stage.world, 32767);
  useRealData(stage.world);
  stage.open({"CTmhero"});
  stage.write("CTmhero", "Imie", "Zbigniew z Bogdańca Wielki");
  expectFitsWithEachWeapon(stage, "CTmhero");
}

TEST(Fit, CreationOfAHeroAtTheTop) {
  Stage stage;
  setCreation(stage.world, 2000);
  useRealData(stage.world);
  stage.open({"CTmhero"});
  for (int i = 0; i < kStatistics; ++i) {
    for (int step = 1; step < kStatisticTable[static_cast<std::size_t>(i)].top(); ++step) {
      stage.click("CTmhero", member("PLUS", i));
      ASSERT_TRUE(stage.isRed("CTmhero", "stat" + std::to_string(i + 1) + "(" + std::to_string(step) + ")"));
    }
    expectFits(stage, "CTmhero");
  }
  for (int i = 0; i < 12; ++i) stage.click("CTmhero", "PLUS(8)");
  for (const char* name :
       {"Czarn(0)", "Czarn(1)", "Czarn(2)", "Czarn(3)", "Czarn(6)", "Czarn(7)", "Czarn(9)", "Spec(0)", "Spec(2)"}) {
    stage.click("CTmhero", name);
  }
  expectFits(stage, "CTmhero");
}

TEST(Fit, Shop) {
  for (int mode = 1; mode <= 4; ++mode) {
    SCOPED_TRACE(mode);
    Stage stage;
    setShop(stage.world, lateHero(), mode);
    useRealData(stage.world);
    stage.open({"CTsklep"});
    expectFits(stage, "CTsklep");
    if (mode == 1) expectFitsWithEachWeapon(stage, "CTsklep");
  }
}

TEST(Fit, PreparationAgainstEachMonster) {
  Stage stage;
  Bohater hero = lateHero();
  hero.Przedmioty(1) = 1;
  setShop(stage.world, hero);
  useRealData(stage.world);
  for (int i = 1; i <= 45; ++i) {
    SCOPED_TRACE(i);
    writeZone(stage.world, i, i);
    stage.world.roll(i, i, {i});
    stage.open({"Prefight"});
    stage.world.roll(1, 6, {6, 6});
    stage.choose("Prefight", "Przedmioty", "Tabaka");
    stage.click("Prefight", "Uzyj");
    expectFits(stage, "Prefight");
  }
}

FightSetup setupOf(const std::vector<Potwor>& monsters, int index) {
  FightSetup setup = plainFight();
  setup.potwor = monsters[static_cast<std::size_t>(index)];
  setup.NrPotwora = index;
  setup.BonusPancerza = 12;
  return setup;
}

std::vector<Potwor> realMonsters(World& world) {
  std::vector<Potwor> monsters;
  ItemReader in = world.runtime.OpenForInput("monsters.cfg");
  const int count = in.integer("").value();
  for (int i = 0; i < count; ++i) monsters.push_back(readPotwor(in));
  return monsters;
}

// Puts both reports on the screen as they read at their longest against that group.
void fillReports(Stage& stage, int group, int blow) {
  const ControlTable& table = stage.runtime.find("Fight")->controls();
  const auto caption = [&](const char* name) -> std::string& {
    return std::get<Label*>(table.find(name).control)->Caption;
  };
  for (const char* frame : {"FZad", "FDamage"}) std::get<Frame*>(table.find(frame).control)->Visible = true;
  std::get<Label*>(table.find("Uwaga").control)->Visible = true;
  caption("IleZad").clear();
  caption("IleDMG").clear();
  for (int i = 0; i < group; ++i) {
    caption("IleZad") += " 38 ";
    caption("IleDMG") += std::to_string(blow) + " ";
  }
  caption("OpisZad") = "Zabity - przenoszenie";
  caption("OpisDMG") = "Śmierć!";
  caption("Uwaga") = "Straciłeś 1 od Maxa Wytrzymałości";
  stage.choose("Fight", "Czar", "Leczenie");
  for (const char* name : {"IleZad", "OpisZad", "IleDMG", "OpisDMG", "Uwaga"}) {
    ASSERT_TRUE(stage.isVisible("Fight", name)) << name;
  }
}

TEST(Fit, FightAgainstEachMonster) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  const auto monsters = realMonsters(stage.world);
  ASSERT_EQ(monsters.size(), 45U);
  for (int i = 0; i < 45; ++i) {
    const Potwor& monster = monsters[static_cast<std::size_t>(i)];
    SCOPED_TRACE(monster.Nazwa);
    stage.world.writeFightFile(setupOf(monsters, i));
    stage.open({"Fight"});
    expectFits(stage, "Fight");
    fillReports(stage, monster.Ilosc.value(), (monster.Atak.kmax * monster.Atak.kile + monster.Atak.dodatek).value());
    expectFits(stage, "Fight");
  }
}

TEST(Fit, FightWithEachWeapon) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  stage.world.writeFightFile(setupOf(realMonsters(stage.world), 44));
  stage.open({"Fight"});
  for (const std::string& weapon : stage.rows("Fight", "Bron")) {
    SCOPED_TRACE(weapon);
    stage.choose("Fight", "Bron", weapon);
    expectFits(stage, "Fight");
  }
}

TEST(Fit, FightThatIsWonForGood) {
  Stage stage;
  Bohater hero = lateHero();
  FightSetup setup = plainFight();
  setup.potwor.Nazwa = "Król Zagłady";
  setFight(stage.world, hero, setup);
  stage.open({"Fight"});
  stage.world.roll(1, 30, {30});
  stage.choose("Fight", "Przedmiot", "Granat");
  stage.click("Fight", "Uzyj");
  EXPECT_EQ(stage.text("Fight", "OpisZad"), "Wygrałeś - tura  288");
  expectFits(stage, "Fight");
}

TEST(Fit, Sheet) {
  Stage stage;
  setShop(stage.world, lateHero());
  useRealData(stage.world);
  stage.open({"FHero"});
  expectFits(stage, "FHero");
}

}  // namespace
}  // namespace brolgan::test
