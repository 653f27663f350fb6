// The layouts: every control has its place, figures are of one height, long words keep to their room.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QGlyphRun>
#include <QHelpEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRawFont>
#include <QTest>
#include <QToolTip>
#include <algorithm>
#include <map>

#include "desktop/text_label.h"
#include "desktop/theme.h"
#include "tests/desktop/expected.h"
#include "tests/desktop/fits.h"
#include "tests/desktop/late_hero.h"

namespace brolgan::test {
namespace {

const std::vector<std::string> kForms = {"Brolgan", "Main", "CTmhero", "CTsklep", "Prefight", "Fight", "FHero"};

void openAll(Stage& stage, const Bohater& hero = richHero()) {
  setCreation(stage.world, 12);
  setPreparation(stage.world, hero);
  stage.world.writeFightFile(plainFight());
  stage.open(kForms);
}

// How often each widget stands in a layout of a page.
void count(const QLayout& layout, std::map<const QWidget*, int>& places) {
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem& item = *layout.itemAt(i);
    if (item.layout() != nullptr) count(*item.layout(), places);
    if (item.widget() == nullptr) continue;
    ++places[item.widget()];
    if (item.widget()->layout() != nullptr) count(*item.widget()->layout(), places);
  }
}

TEST(Layout, TheZonesStandInOneColumnFromTheFirstToTheLast) {
  Stage stage;
  setShop(stage.world, richHero());
  stage.open({"CTsklep"});
  const QPoint first = stage.get<QPushButton>("CTsklep", "w1").pos();
  int above = first.y();
  for (int zone = 2; zone <= 12; ++zone) {
    const QPoint place = stage.get<QPushButton>("CTsklep", "w" + std::to_string(zone)).pos();
    EXPECT_EQ(place.x(), first.x()) << zone;
    EXPECT_GT(place.y(), above) << zone;
    above = place.y();
  }
}

TEST(Layout, TwoBlowsDoNotReadAsOneNumber) {
  Stage stage;
  setFight(stage.world, plainHero(), plainFight());
  stage.open({"Fight"});
  for (const char* blows : {"IleZad", "IleDMG"}) {
    auto& label = stage.get<desktop::TextLabel>("Fight", blows);
    const auto widthOf = [&label](const char* told) {
      label.setText(told);
      return label.sizeHint().width();
    };
    EXPECT_GT(widthOf("5 2") - widthOf("52"), 0.4 * QFontInfo(label.font()).pixelSize()) << blows;
  }
}

TEST(Layout, PlacesEveryControlOnce) {
  Stage stage;
  openAll(stage);
  for (const std::string& form : kForms) {
    const desktop::FormWindow& window = stage.window(form);
    std::map<const QWidget*, int> places;
    count(*window.page().layout(), places);
    const auto& unseen = window.layoutOf().unseen;
    for (const ControlEntry& entry : stage.runtime.find(form)->controls().entries()) {
      if (std::holds_alternative<MediaPlayer*>(entry.control)) continue;
      const std::string name = entry.fullName();
      const bool isUnseen = std::count(unseen.begin(), unseen.end(), name) > 0;
      EXPECT_EQ(places[&stage.at(form, name)], isUnseen ? 0 : 1) << form << "." << name;
      if (isUnseen) {
        EXPECT_FALSE(stage.isVisible(form, name)) << form << "." << name;
      }
    }
  }
}

TEST(Layout, AsksForNoControlThatIsNotThere) {
  Stage stage;
  openAll(stage);
  const desktop::FormWindow& window = stage.window("Fight");
  EXPECT_EQ(&window.at<QLabel>("Odl"), &stage.at("Fight", "Odl"));
  EXPECT_THROW(std::ignore = window.at("Odleglosc"), std::logic_error);
  EXPECT_THROW(std::ignore = window.at<QLineEdit>("Odl"), std::logic_error);
}

TEST(Layout, HeadsTheDetailsOfAWeaponWithTheirOwnWords) {
  Stage stage;
  openAll(stage);
  for (const char* form : {"CTmhero", "CTsklep"}) {
    for (const char* desk : {"BW", "BS"}) {
      const std::map<std::string, std::string> words = {
          {"nazwa", "Nazwa"}, {"dmg", "Obrażenia"}, {"cena", "Cena"}, {"opis", "Opis"}};
      for (const auto& [detail, word] : words) {
        const QWidget& value = stage.at(form, desk + detail);
        int heads = 0;
        for (int i = 0; i < 8; ++i) {
          const QWidget& heading = stage.at(form, member("Label6", i));
          if (heading.y() != value.y() || heading.x() > value.x() || value.x() - heading.x() > 120) continue;
          EXPECT_EQ(stage.text(form, member("Label6", i)), word) << form << " " << desk << detail;
          ++heads;
        }
        EXPECT_EQ(heads, 1) << form << " " << desk << detail;
      }
    }
  }
}

// The heights of the digits of a label as they are drawn.
std::vector<qreal> heightsOfDigits(const desktop::TextLabel& label) {
  std::vector<qreal> heights;
  const auto set = label.set();
  const QString text = set.words->text();
  for (int i = 0; i < text.size(); ++i) {
    if (!text[i].isDigit()) continue;
    for (const QGlyphRun& run : set.words->glyphRuns(i, 1)) {
      for (const quint32 glyph : run.glyphIndexes()) {
        const QRectF box = run.rawFont().boundingRect(glyph);
        heights.push_back(box.height());
        EXPECT_LT(box.bottom(), 1) << "below the line: " << text[i].digitValue();
      }
    }
  }
  return heights;
}

TEST(Layout, SetsAllFiguresAtOneHeightAmongSerifLetters) {
  desktop::TextLabel label;
  label.setFont(desktop::theme::typeface(desktop::theme::Type::heading));
  label.setText("Wygrałeś - tura 0123456789");
  for (const bool keeps : {false, true}) {
    if (keeps) label.keepToRoom();
    label.resize(600, 40);
    const auto heights = heightsOfDigits(label);
    ASSERT_EQ(heights.size(), 10U);
    const auto [least, most] = std::minmax_element(heights.begin(), heights.end());
    EXPECT_LT(*most - *least, 0.12 * *most) << keeps;
  }
}

TEST(Layout, HasNoSerifFigureOnAnyScreen) {
  Stage stage;
  Bohater hero = richHero();
  hero.Imie = "Kosiarz 117";
  openAll(stage, hero);
  int serif = 0;
  for (const std::string& form : kForms) {
    for (QWidget* const widget : seen(stage, form)) {
      if (widget->font().families().value(0) != "Vollkorn") continue;
      const auto* const label = dynamic_cast<const desktop::TextLabel*>(widget);
      const QString text = widget->property("text").toString();
      const bool hasDigits = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
      if (!hasDigits) continue;
      ++serif;
      ASSERT_NE(label, nullptr) << text.toStdString();
      const auto set = label->set();
      for (int i = 0; i < set.words->text().size(); ++i) {
        if (!set.words->text()[i].isDigit()) continue;
        for (const QGlyphRun& run : set.words->glyphRuns(i, 1)) {
          EXPECT_NE(run.rawFont().familyName(), "Vollkorn") << text.toStdString();
        }
      }
    }
  }
  EXPECT_GT(serif, 0);
}

std::string& captionOf(Stage& stage, const std::string& form, const std::string& name) {
  return std::get<Label*>(stage.runtime.find(form)->controls().find(name).control)->Caption;
}

void showReports(Stage& stage) {
  for (const char* frame : {"FZad", "FDamage"}) {
    std::get<Frame*>(stage.runtime.find("Fight")->controls().find(frame).control)->Visible = true;
  }
}

TEST(Layout, ShowsTwentySixBlowsWhole) {
  Stage stage;
  openAll(stage);
  showReports(stage);
  for (const char* name : {"IleZad", "IleDMG"}) {
    for (int i = 0; i < 26; ++i) captionOf(stage, "Fight", name) += " 138 ";
  }
  captionOf(stage, "Fight", "OpisZad") = "Wygrałeś - tura  288";
  const QSize before = stage.window("Fight").page().minimumSizeHint();
  stage.window("Fight").mirrorAll();
  expectFits(stage, "Fight");
  EXPECT_EQ(stage.window("Fight").page().minimumSizeHint(), before);
}

TEST(Layout, ShowsANameOfSixtyLettersWhole) {
  for (const std::string& name :
       {std::string(60, 'W'), std::string("Wielki Zbigniew z Bogdańca i Okolic, Pan na Dwu Zamkach XVII")}) {
    Stage stage;
    Bohater hero = richHero();
    hero.Imie = name;
    openAll(stage, hero);
    captionOf(stage, "Prefight", "Moname") = name;
    stage.window("Prefight").mirrorAll();
    for (const char* form : {"FHero", "Prefight", "CTsklep"}) expectFits(stage, form);
    EXPECT_EQ(stage.get<QLineEdit>("CTsklep", "Imie").cursorPosition(), 0);
  }
}

TEST(Layout, ShowsFortyNotesAndScrollsThem) {
  Stage stage;
  openAll(stage);
  auto* const notes = std::get<TextBox*>(stage.runtime.find("Prefight")->controls().find("historia").control);
  for (int i = 0; i < 40; ++i) notes->Text += "Zapisek o dość długiej nazwie, który mówi, co się stało\r\n";
  const QSize before = stage.window("Prefight").size();
  stage.window("Prefight").mirrorAll();
  expectFits(stage, "Prefight");
  EXPECT_EQ(stage.window("Prefight").size(), before);
}

TEST(Layout, ShowsTheLargestAndTheSmallestBudget) {
  for (const char* budget : {"131077", "-32768"}) {
    Stage stage;
    openAll(stage);
    for (const char* form : {"CTmhero", "CTsklep"}) {
      captionOf(stage, form, "Ile_jeszcze") = budget;
      stage.window(form).mirrorAll();
      expectFits(stage, form);
      EXPECT_EQ(stage.text(form, "Ile_jeszcze"), budget);
    }
  }
}

TEST(Layout, MakesTheBlowsTheLargestWordsOfTheirPanel) {
  Stage stage;
  openAll(stage);
  for (const auto& [blows, others] : std::map<std::string, std::vector<std::string>>{
           {"IleZad", {"Label4", "OpisZad"}}, {"IleDMG", {"Label3", "OpisDMG"}}}) {
    for (const std::string& other : others) {
      EXPECT_GT(stage.at("Fight", blows).font().pointSizeF(), 4 * stage.at("Fight", other).font().pointSizeF());
    }
  }
}

TEST(Layout, GivesAReportOneLeftEdgeAndBothReportsOneLook) {
  Stage stage;
  openAll(stage);
  showReports(stage);
  stage.window("Fight").mirrorAll();
  QApplication::processEvents();
  const auto left = [&](const char* name) {
    return stage.at("Fight", name).mapTo(&stage.window("Fight"), QPoint()).x();
  };
  for (const char* name : {"IleZad", "OpisZad", "Label3", "IleDMG", "OpisDMG"})
    EXPECT_EQ(left(name), left("Label4")) << name;
  EXPECT_EQ(left("CloseZad"), left("CloseDMG"));
  EXPECT_EQ(stage.at("Fight", "Picture1").size(), stage.at("Fight", "Picture2").size());
}

TEST(Layout, TakesAClickAnywhereOnTheRowOfAnOption) {
  Stage stage;
  openAll(stage);
  const auto& option = stage.get<QRadioButton>("CTmhero", "Klasa(5)");
  const QPoint end = option.mapTo(&stage.window("CTmhero"), QPoint(option.width() - 4, option.height() / 2));
  ASSERT_GT(option.width(), 220);
  QTest::mouseClick(stage.window("CTmhero").windowHandle(), Qt::LeftButton, {}, end);
  Stage::settle();
  EXPECT_TRUE(option.isChecked());
}

TEST(Layout, BreaksTheLinesOfToolTips) {
  Stage stage;
  openAll(stage);
  QWidget& widget = stage.at("CTmhero", "Label5(2)");
  ASSERT_GT(widget.toolTip().size(), 80);
  QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&widget, &event);
  EXPECT_EQ(QToolTip::text().simplified(), widget.toolTip().simplified());
  EXPECT_GT(QToolTip::text().count('\n'), 0);
  const QFontMetrics metrics(QToolTip::font());
  for (const QString& line : QToolTip::text().split('\n')) EXPECT_LE(metrics.horizontalAdvance(line), 420);
  QToolTip::hideText();
}

TEST(Layout, GrowsWithItsWindow) {
  Stage stage;
  openAll(stage);
  desktop::FormWindow& window = stage.window("Fight");
  window.resize(1340, 716);
  QApplication::processEvents();
  const QSize picture = stage.at("Fight", "Potwór").size();
  const qreal type = stage.at("Fight", "Label1").font().pointSizeF();
  window.resize(2010, 1074);
  QApplication::processEvents();
  EXPECT_EQ(stage.at("Fight", "Potwór").size(), picture * 1.5);
  EXPECT_NEAR(stage.at("Fight", "Label1").font().pointSizeF(), type * 1.5, 0.2);
}

TEST(Layout, ScrollsInAWindowThatIsTooSmall) {
  Stage stage;
  openAll(stage);
  desktop::FormWindow& window = stage.window("Fight");
  window.resize(500, 300);
  QApplication::processEvents();
  EXPECT_TRUE(scrolls(window));
  EXPECT_EQ(window.unit().value(), desktop::Unit::kLeast);
  EXPECT_GE(window.page().width(), window.page().minimumSizeHint().width());
  EXPECT_GE(window.page().height(), window.page().minimumSizeHint().height());
}

}  // namespace
}  // namespace brolgan::test
