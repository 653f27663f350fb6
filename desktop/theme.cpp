#include "desktop/theme.h"

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QPalette>

#include "desktop/style.h"

namespace brolgan::desktop::theme {

namespace {

constexpr int kBadgeSize = 52;

QFont textFont(qreal points) {
  QFont font;
  font.setFamilies({"Lato", "DejaVu Sans"});
  font.setPointSizeF(points);
  return font;
}

QFont headingFont(qreal points) {
  QFont font;
  font.setFamilies({"Vollkorn", "DejaVu Serif"});
  font.setPointSizeF(points);
  font.setBold(true);
  return font;
}

// Figures stand in the text face, whose digits are all of one height and width.
QFont figureFont(qreal points) {
  QFont font = textFont(points);
  font.setWeight(QFont::Black);
  return font;
}

QPalette palette() {
  QPalette colours(kButton, kPaper);
  colours.setColor(QPalette::WindowText, kInk);
  colours.setColor(QPalette::Text, kInk);
  colours.setColor(QPalette::ButtonText, kInk);
  colours.setColor(QPalette::BrightText, kButtonHover);
  colours.setColor(QPalette::Base, kPlate);
  colours.setColor(QPalette::AlternateBase, kPanel);
  colours.setColor(QPalette::Highlight, kSelection);
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::ToolTipBase, kButtonHover);
  colours.setColor(QPalette::ToolTipText, kInk);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, kDisabledText);
  }
  return colours;
}

void setFont(QWidget& label, const QFont& font) { label.setFont(font); }

}  // namespace

void apply(QApplication& application) {
  application.setStyle(new Style);
  application.setPalette(palette());
  QFont font = textFont(10.5);
  application.setFont(font);
  font.setBold(true);
  application.setFont(font, "QPushButton");
}

QColor colourOf(Colour colour) {
  switch (colour) {
    case Colour::red:
      return {255, 0, 0};
    case Colour::green:
      return {0, 128, 0};
    case Colour::purple:
      return {128, 0, 128};
    case Colour::black:
      return {0, 0, 0};
    case Colour::buttonText:
      break;
  }
  return kInk;
}

void makeTitle(QWidget& label) { setFont(label, headingFont(22)); }

void makeHeading(QWidget& label) { setFont(label, headingFont(14)); }

void makeFigure(QWidget& label) { setFont(label, figureFont(14)); }

void makeBigFigure(QWidget& label) { setFont(label, figureFont(20)); }

void makeSmall(QWidget& label) { setFont(label, textFont(9.5)); }

void makePanel(QFrame& frame) {
  frame.setProperty(kIsPanel, true);
  frame.setFrameShape(QFrame::StyledPanel);
}

void makeBadge(QLabel& label) {
  label.setProperty(kIsBadge, true);
  label.setFrameShape(QFrame::StyledPanel);
  label.setForegroundRole(QPalette::BrightText);
  label.setMinimumWidth(kBadgeSize);
  label.setFixedHeight(kBadgeSize);
}

void makeNarrow(QWidget& button) { button.setProperty(kIsNarrow, true); }

}  // namespace brolgan::desktop::theme
