#include "desktop/theme.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPalette>

#include "desktop/style.h"

namespace brolgan::desktop::theme {

namespace {

constexpr const char* kSerif = "Vollkorn";

// Small letters look alike with and without their finer spacing, and are set in half of the time without.
QFont textFont() {
  QFont font;
  font.setFamilies({"Lato", "DejaVu Sans"});
  font.setStyleStrategy(QFont::PreferNoShaping);
  return font;
}

// Headings are large enough to show their finer spacing.
QFont serifFont() {
  QFont font;
  font.setFamilies({kSerif, "DejaVu Serif"});
  font.setStyleStrategy(QFont::PreferDefault);
  font.setBold(true);
  return font;
}

// Figures stand in the text face, whose digits are all of one height and width.
QFont figureFont() {
  QFont font = textFont();
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
  colours.setColor(QPalette::PlaceholderText, kDisabledText);
  colours.setColor(QPalette::Highlight, kSelection);
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::ToolTipBase, kButtonHover);
  colours.setColor(QPalette::ToolTipText, kInk);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, kDisabledText);
  }
  return colours;
}

}  // namespace

void apply(QApplication& application) {
  application.setStyle(new Style);
  application.setPalette(palette());
  QFont font = textFont();
  font.setPixelSize(static_cast<int>(sizeOf(Type::text)));
  // Letters keep their proportions at every size.
  font.setHintingPreference(QFont::PreferVerticalHinting);
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

QFont typeface(Type type) {
  switch (type) {
    case Type::heading:
    case Type::title:
      return serifFont();
    case Type::figure:
    case Type::bigFigure:
    case Type::blow:
      return figureFont();
    case Type::text:
    case Type::small:
    case Type::choice:
      break;
  }
  return textFont();
}

qreal sizeOf(Type type) {
  switch (type) {
    case Type::text:
      return 14;
    case Type::small:
      return 13.25;
    case Type::choice:
      return 15.5;
    case Type::heading:
    case Type::figure:
      return 18.5;
    case Type::bigFigure:
      return 26.5;
    case Type::title:
      return 29;
    case Type::blow:
      return 80;
  }
  return 14;
}

QFont figuresWithin(const QFont& font) {
  if (font.families().value(0) != kSerif) return font;
  QFont figures = font;
  figures.setFamilies(textFont().families());
  figures.setWeight(QFont::Black);
  return figures;
}

void makePanel(QFrame& frame) {
  frame.setProperty(kIsPanel, true);
  frame.setFrameShape(QFrame::StyledPanel);
}

void makeBadge(QLabel& label) {
  label.setProperty(kIsBadge, true);
  label.setFrameShape(QFrame::StyledPanel);
  label.setForegroundRole(QPalette::BrightText);
}

void makeRinged(QWidget& badge) { badge.setProperty(kIsRinged, true); }

void makeNarrow(QWidget& button) { button.setProperty(kIsNarrow, true); }

// A group box works its room out anew when it is told of another style.
void makeBanded(QWidget& frame, const QColor& band) {
  frame.setProperty(kBand, band);
  QEvent change(QEvent::StyleChange);
  QCoreApplication::sendEvent(&frame, &change);
}

void makeTinted(QWidget& button, const QColor& tint) { button.setProperty(kTint, tint); }

void makePrimary(QWidget& widget, bool isPrimary) {
  if (widget.property(kIsPrimary).toBool() == isPrimary) return;
  widget.setProperty(kIsPrimary, isPrimary);
  widget.update();
}

}  // namespace brolgan::desktop::theme
