// The look of the widgets: edges, faces and the room for words, state by state.
#include "desktop/style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTest>
#include <cmath>
#include <vector>

#include "desktop/theme.h"

namespace brolgan::test {
namespace {

namespace theme = desktop::theme;

// A window with one widget of 120 x 40 to look at and another one to take the focus away.
template <class Widget>
class Shown {
 public:
  Shown() {
    widget.setGeometry(10, 10, 120, 40);
    other_.setGeometry(10, 100, 80, 30);
    window_.resize(200, 150);
    window_.show();
    window_.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    other_.setFocus();
    QTest::mouseMove(&other_);
  }

  // The colour of a point of the widget as it stands in the window.
  [[nodiscard]] QColor at(int x, int y) {
    QApplication::processEvents();
    const qreal ratio = window_.devicePixelRatioF();
    return window_.grab().toImage().pixelColor((QPointF(widget.pos() + QPoint(x, y)) * ratio).toPoint());
  }
  // How far the edge reaches in from a side, along the middle: the points of that colour.
  [[nodiscard]] int below(const QColor& edge) { return run(edge, {60, 39}, {0, -1}); }
  [[nodiscard]] int above(const QColor& edge) { return run(edge, {60, 0}, {0, 1}); }
  [[nodiscard]] int right(const QColor& edge) { return run(edge, {119, 20}, {-1, 0}); }
  [[nodiscard]] int left(const QColor& edge) { return run(edge, {0, 20}, {1, 0}); }

 private:
  QWidget window_;

 public:
  Widget widget{&window_};

 private:
  int run(const QColor& edge, QPoint from, QPoint step) {
    int length = 0;
    for (; at(from.x(), from.y()) == edge; from += step) ++length;
    return length;
  }

  QPushButton other_{&window_};
};

TEST(Style, NoStyleSheetIsLeft) { EXPECT_EQ(qApp->styleSheet(), ""); }

TEST(Style, AButtonStandsOutToTheRightAndBelow) {
  Shown<QPushButton> shown;
  EXPECT_EQ(shown.above(theme::kInk), 2);
  EXPECT_EQ(shown.left(theme::kInk), 2);
  EXPECT_EQ(shown.right(theme::kInk), 3);
  EXPECT_EQ(shown.below(theme::kInk), 4);
  EXPECT_EQ(shown.at(20, 20), theme::kButton);
}

TEST(Style, TheCornersOfAButtonAreRound) {
  Shown<QPushButton> shown;
  for (const QPoint corner : {QPoint(0, 0), QPoint(119, 0), QPoint(0, 39), QPoint(119, 39)}) {
    EXPECT_NE(shown.at(corner.x(), corner.y()), theme::kInk) << corner.x() << "," << corner.y();
  }
}

TEST(Style, APressedButtonSinks) {
  Shown<QPushButton> shown;
  shown.widget.setDown(true);
  EXPECT_EQ(shown.below(theme::kInk), 2);
  EXPECT_EQ(shown.right(theme::kInk), 2);
  EXPECT_EQ(shown.at(20, 20), theme::kPressedFace);
}

TEST(Style, TheWordsOfAPressedButtonSinkWithIt) {
  const Shown<QPushButton> shown;
  QStyleOptionButton option;
  option.initFrom(&shown.widget);
  const auto words = [&] {
    return shown.widget.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &shown.widget);
  };
  EXPECT_EQ(words(), QRect(12, 5, 95, 28));
  option.state |= QStyle::State_Sunken;
  EXPECT_EQ(words(), QRect(13, 7, 95, 28));
}

TEST(Style, ADisabledButtonIsPaleAndFlat) {
  Shown<QPushButton> shown;
  shown.widget.setEnabled(false);
  EXPECT_EQ(shown.below(theme::kDisabledEdge), 2);
  EXPECT_EQ(shown.at(20, 20), theme::kDisabledFace);
}

TEST(Style, AButtonInFocusHasItsColours) {
  Shown<QPushButton> shown;
  shown.widget.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(shown.below(theme::kFocus), 4);
  EXPECT_EQ(shown.at(6, 20), theme::kFocusFace);
}

TEST(Style, AButtonUnderTheMouseIsLighter) {
  Shown<QPushButton> shown;
  QTest::mouseMove(&shown.widget, QPoint(40, 20));
  EXPECT_EQ(shown.at(20, 20), theme::kButtonHover);
  EXPECT_EQ(shown.below(theme::kInk), 4);
}

TEST(Style, ASmallButtonLeavesAllItsRoomToItsSign) {
  Shown<QPushButton> shown;
  theme::makeNarrow(shown.widget);
  EXPECT_EQ(shown.below(theme::kInk), 3);
  EXPECT_EQ(shown.right(theme::kInk), 2);
  QStyleOptionButton option;
  option.initFrom(&shown.widget);
  EXPECT_EQ(shown.widget.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &shown.widget),
            QRect(2, 2, 116, 35));
}

TEST(Style, TheWordsOfButtonsAreBold) {
  const Shown<QPushButton> shown;
  EXPECT_TRUE(shown.widget.font().bold());
}

template <class Field>
class StyleOfFields : public ::testing::Test {};

using Fields = ::testing::Types<QLineEdit, QComboBox, QListWidget, QPlainTextEdit>;
TYPED_TEST_SUITE(StyleOfFields, Fields);

TYPED_TEST(StyleOfFields, HaveAnEvenEdgeAndALightFace) {
  Shown<TypeParam> shown;
  for (const int width : {shown.above(theme::kFieldEdge), shown.left(theme::kFieldEdge), shown.right(theme::kFieldEdge),
                          shown.below(theme::kFieldEdge)}) {
    EXPECT_EQ(width, 2);
  }
  EXPECT_EQ(shown.at(4, 20), theme::kPlate);
  EXPECT_EQ(shown.at(60, 30), theme::kPlate);
}

TYPED_TEST(StyleOfFields, KeepTheirFaceInFocus) {
  Shown<TypeParam> shown;
  shown.widget.setFocus();
  EXPECT_EQ(shown.below(theme::kFocus), 3);
  EXPECT_EQ(shown.at(4, 20), theme::kPlate);
  EXPECT_EQ(shown.at(60, 30), theme::kPlate);
}

TYPED_TEST(StyleOfFields, ArePaleWhenDisabled) {
  Shown<TypeParam> shown;
  shown.widget.setEnabled(false);
  EXPECT_EQ(shown.below(theme::kDisabledEdge), 2);
  EXPECT_EQ(shown.at(60, 30), theme::kDisabledFace);
}

TEST(Style, WhatScrollsKeepsClearOfTheEdgeOfItsField) {
  const Shown<QListWidget> list;
  EXPECT_EQ(list.widget.contentsRect(), QRect(6, 3, 108, 34));
  const Shown<QPlainTextEdit> notes;
  EXPECT_EQ(notes.widget.viewport()->geometry(), QRect(6, 3, 108, 34));
}

TEST(Style, AListToChooseFromHasItsArrowInsideTheEdge) {
  const Shown<QComboBox> shown;
  QStyleOptionComboBox option;
  option.initFrom(&shown.widget);
  const auto part = [&](QStyle::SubControl which) {
    return shown.widget.style()->subControlRect(QStyle::CC_ComboBox, &option, which, &shown.widget);
  };
  EXPECT_EQ(part(QStyle::SC_ComboBoxArrow), QRect(102, 2, 16, 36));
  EXPECT_LE(part(QStyle::SC_ComboBoxEditField).right(), 101);
}

TEST(Style, ARingStandsAroundTheRowOfAListThatHasTheFocus) {
  Shown<QListWidget> shown;
  shown.widget.addItem("");
  shown.widget.setFocus();
  shown.widget.setCurrentRow(0, QItemSelectionModel::NoUpdate);
  const QRect row = shown.widget.visualItemRect(shown.widget.item(0)).translated(shown.widget.viewport()->pos());
  EXPECT_EQ(shown.at(row.center().x(), row.top()), theme::kFocus);
  EXPECT_EQ(shown.at(row.center().x(), row.bottom()), theme::kFocus);
  EXPECT_EQ(shown.at(row.center().x(), row.center().y()), theme::kPlate);
}

// The rows of a widget on which points of a kind are drawn, from a column on.
std::vector<int> rowsOf(QWidget& widget, bool (*isOfKind)(const QColor&), int from) {
  const QImage shown = widget.grab().toImage();
  std::vector<int> rows;
  for (int y = 4; y < shown.height() - 4; ++y) {
    int found = 0;
    for (int x = from; x < shown.width() - 4; ++x) found += isOfKind(shown.pixelColor(x, y)) ? 1 : 0;
    if (found > 0) rows.push_back(y);
  }
  return rows;
}

bool isOfArrow(const QColor& colour) { return colour.red() < 120 && colour.red() - colour.blue() < 30; }
bool isOfLetter(const QColor& colour) { return colour.red() < 220 && colour.red() - colour.blue() > 45; }

TEST(Style, TheLetterOfAListToChooseFromStandsBelowItsArrow) {
  Shown<QComboBox> shown;
  shown.widget.resize(120, 32);
  const auto arrow = rowsOf(shown.widget, isOfArrow, 4);
  ASSERT_FALSE(arrow.empty());
  EXPECT_NEAR((arrow.front() + arrow.back()) / 2.0, 16, 1.5) << "without a letter";
  EXPECT_TRUE(rowsOf(shown.widget, isOfLetter, 4).empty());
  shown.widget.setProperty(desktop::kAccessKey, "W");
  const auto raised = rowsOf(shown.widget, isOfArrow, 4);
  const auto letter = rowsOf(shown.widget, isOfLetter, 4);
  ASSERT_FALSE(raised.empty());
  ASSERT_FALSE(letter.empty());
  EXPECT_GE(letter.front() - raised.back(), 4);
  EXPECT_EQ(rowsOf(shown.widget, isOfLetter, 102), letter) << "nothing beside the arrow";
}

TEST(Style, TheLetterThatReachesAButtonIsSetInTheFaceOfPlainWords) {
  Shown<QPushButton> shown;
  shown.widget.setFont(theme::typeface(theme::Type::heading));
  const QFont letter = desktop::keyFont(shown.widget);
  EXPECT_EQ(letter.families(), theme::typeface(theme::Type::text).families());
  EXPECT_FALSE(letter.bold());
}

TEST(Style, APanelKeepsItsEdgeFree) {
  Shown<QFrame> shown;
  theme::makePanel(shown.widget);
  EXPECT_EQ(shown.below(theme::kInk), 2);
  EXPECT_EQ(shown.at(60, 20), theme::kPanel);
  EXPECT_EQ(shown.widget.contentsRect(), QRect(2, 2, 116, 36));
}

TEST(Style, AFrameThatIsNoPanelIsNotDrawn) {
  Shown<QFrame> shown;
  EXPECT_EQ(shown.at(60, 20), theme::kPaper);
  EXPECT_EQ(shown.at(60, 39), theme::kPaper);
}

TEST(Style, TheTitleOfAPanelStandsOnAPlateAcrossItsEdge) {
  Shown<QGroupBox> shown;
  shown.widget.setTitle("i");
  EXPECT_EQ(shown.at(60, 5), theme::kPaper);
  EXPECT_EQ(shown.at(60, 16), theme::kInk);
  EXPECT_EQ(shown.at(60, 18), theme::kPanel);
  EXPECT_EQ(shown.at(18, 0), theme::kInk);
  EXPECT_EQ(shown.at(16, 17), theme::kPanel);
  EXPECT_EQ(shown.widget.contentsRect(), QRect(2, 18, 116, 20));
}

TEST(Style, APanelWithoutATitleHasNoPlate) {
  Shown<QGroupBox> shown;
  EXPECT_EQ(shown.at(18, 0), theme::kPaper);
  EXPECT_EQ(shown.at(18, 16), theme::kInk);
}

TEST(Style, ABandHeadsAPanelAndHoldsItsTitle) {
  Shown<QGroupBox> shown;
  shown.widget.setTitle("i");
  theme::makeBanded(shown.widget, theme::kTaken);
  EXPECT_EQ(shown.above(theme::kInk), 2);
  EXPECT_EQ(shown.at(60, 3), theme::kTaken);
  EXPECT_EQ(shown.at(60, 33), theme::kTaken);
  EXPECT_EQ(shown.at(60, 35), theme::kInk);
  EXPECT_EQ(shown.at(60, 37), theme::kPanel);
  EXPECT_EQ(shown.widget.contentsRect(), QRect(2, 2, 116, 36));
}

TEST(Style, AFrameWithoutATitleHasTheSameBand) {
  Shown<QFrame> shown;
  theme::makePanel(shown.widget);
  theme::makeBanded(shown.widget, theme::kDealt);
  EXPECT_EQ(shown.at(60, 3), theme::kDealt);
  EXPECT_EQ(shown.at(60, 33), theme::kDealt);
  EXPECT_EQ(shown.at(60, 37), theme::kPanel);
}

TEST(Style, TheButtonThatLeadsOnKeepsItsFaceInFocus) {
  Shown<QPushButton> shown;
  theme::makePrimary(shown.widget, true);
  EXPECT_EQ(shown.at(20, 20), theme::kPrimary);
  shown.widget.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(shown.at(20, 20), theme::kPrimary);
  EXPECT_EQ(shown.below(theme::kFocus), 4);
  shown.widget.setEnabled(false);
  EXPECT_EQ(shown.at(20, 20), theme::kDisabledFace);
}

TEST(Style, ATintedButtonHasItsTintAtRestAlone) {
  Shown<QPushButton> shown;
  theme::makeTinted(shown.widget, theme::kZones[3]);
  EXPECT_EQ(shown.at(20, 20), theme::kZones[3]);
  shown.widget.setDown(true);
  EXPECT_EQ(shown.at(20, 20), theme::kPressedFace);
  shown.widget.setDown(false);
  shown.widget.setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(shown.at(20, 20), theme::kFocusFace);
}

TEST(Style, ABadgeIsRoundWithALightFigure) {
  Shown<QLabel> shown;
  theme::makeBadge(shown.widget);
  shown.widget.resize(52, 52);
  EXPECT_EQ(shown.at(26, 10), theme::kInk);
  EXPECT_EQ(shown.at(1, 26), theme::kInk);
  theme::makeRinged(shown.widget);
  EXPECT_EQ(shown.at(1, 26), theme::kButton);
  EXPECT_EQ(shown.at(1, 1), theme::kPaper);
  EXPECT_GT(shown.widget.palette().color(shown.widget.foregroundRole()).lightness(), 200);
}

TEST(Style, ATipHasAnEdgeOfInk) {
  QStyleOptionFrame option;
  option.rect = QRect(0, 0, 40, 20);
  QImage image(40, 20, QImage::Format_RGB32);
  QPainter painter(&image);
  qApp->style()->drawPrimitive(QStyle::PE_PanelTipLabel, &option, &painter, nullptr);
  EXPECT_EQ(image.pixelColor(1, 10), theme::kInk);
  EXPECT_EQ(image.pixelColor(2, 10), theme::kButtonHover);
  EXPECT_EQ(image.pixelColor(39, 19), theme::kInk);
}

// How much two colours differ in lightness, 1 to 21, as the guidelines for readable pages reckon it.
double contrast(const QColor& one, const QColor& other) {
  const auto light = [](const QColor& colour) {
    const auto part = [](double value) {
      return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF()) + 0.05;
  };
  const double ratio = light(one) / light(other);
  return ratio < 1 ? 1 / ratio : ratio;
}

TEST(Contrast, TheFocusStandsOutFromWhatSurroundsIt) {
  EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
  for (const QColor& around : {theme::kPaper, theme::kPanel, theme::kButton, theme::kPlate, theme::kFocusFace}) {
    EXPECT_GE(contrast(theme::kFocus, around), 3) << around.name().toStdString();
  }
}

TEST(Contrast, WordsCanBeReadOnTintsAndBands) {
  const double words = 4.5;
  for (const QColor& zone : theme::kZones) {
    EXPECT_GE(contrast(zone, theme::kInk), words) << zone.name().toStdString();
    EXPECT_GE(contrast(zone, theme::kFieldEdge), words) << "the letter on " << zone.name().toStdString();
  }
  for (const QColor& band : {theme::kDealt, theme::kTaken}) EXPECT_GE(contrast(band, theme::kButtonHover), words);
  for (const QColor& face : {theme::kPrimary, theme::kPrimaryHover}) EXPECT_GE(contrast(face, theme::kInk), words);
  for (const QColor& ground : {theme::kPanel, theme::kStripe}) EXPECT_GE(contrast(ground, theme::kDisabledText), words);
}

TEST(Contrast, TheFocusStandsOutFromTheButtonThatLeadsOn) { EXPECT_GE(contrast(theme::kPrimary, theme::kFocus), 3); }

TEST(Contrast, TheEdgeOfAFieldStandsOutFromWhatSurroundsIt) {
  for (const QColor& around : {theme::kPaper, theme::kPanel, theme::kPlate}) {
    EXPECT_GE(contrast(theme::kFieldEdge, around), 3) << around.name().toStdString();
  }
}

TEST(Contrast, WordsCanBeReadAlsoWhereNothingCanBeUsed) {
  for (const QColor& face : {theme::kPaper, theme::kPanel, theme::kButton, theme::kButtonHover, theme::kPressedFace,
                             theme::kPlate, theme::kFocusFace}) {
    EXPECT_GE(contrast(theme::kInk, face), 4.5) << face.name().toStdString();
  }
  EXPECT_GE(contrast(theme::kDisabledText, theme::kDisabledFace), 4.5);
  EXPECT_GE(contrast(theme::kDisabledText, theme::kPanel), 4.5);
}

}  // namespace
}  // namespace brolgan::test
