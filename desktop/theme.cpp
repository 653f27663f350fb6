#include "desktop/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>
#include <QWidget>

namespace brolgan::desktop::theme {

namespace {

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
  colours.setColor(QPalette::Base, QColor("#fffaf0"));
  colours.setColor(QPalette::AlternateBase, kPanel);
  colours.setColor(QPalette::Highlight, QColor("#3f8a86"));
  colours.setColor(QPalette::HighlightedText, Qt::white);
  colours.setColor(QPalette::ToolTipBase, QColor("#fff6dc"));
  colours.setColor(QPalette::ToolTipText, kInk);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    colours.setColor(QPalette::Disabled, role, kDisabledText);
  }
  return colours;
}

constexpr const char* kStyleSheet = R"(
QPushButton { background: #f3e6c8; border: 2px solid #1c1714; border-bottom-width: 4px; border-right-width: 3px;
  border-radius: 5px; padding: 3px 10px; font-weight: bold; }
QPushButton:hover { background: #fff6dc; }
QPushButton:focus { background: #dcebe4; border-color: #2f6f6b; }
QPushButton:pressed { background: #d9c79c; border-bottom-width: 2px; border-right-width: 2px; padding: 5px 10px 3px 11px; }
QPushButton:disabled { background: #eceae0; border-color: #a39b88; color: #7d7768; border-bottom-width: 2px;
  border-right-width: 2px; }
QPushButton[narrow="true"] { padding: 0px; border-bottom-width: 3px; border-right-width: 2px; }
QFrame[panel="true"] { background: #f8f1de; border: 2px solid #1c1714; border-radius: 6px; }
QLabel[badge="true"] { background: #1c1714; color: #fff6dc; border: 3px solid #f3e6c8; border-radius: 26px;
  min-width: 46px; min-height: 46px; max-height: 46px; }
QGroupBox { background: #f8f1de; border: 2px solid #1c1714; border-radius: 6px; margin-top: 12px; font-weight: bold; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 6px; background: #f8f1de;
  border: 2px solid #1c1714; border-radius: 4px; }
QLineEdit, QPlainTextEdit, QListWidget, QComboBox { background: #fffaf0; border: 2px solid #6b3a1f; border-radius: 4px;
  padding: 1px 4px; }
QLineEdit:focus, QPlainTextEdit:focus, QListWidget:focus, QComboBox:focus { border-color: #2f6f6b; background: #ffffff; }
QLineEdit:disabled, QComboBox:disabled { background: #eceae0; border-color: #a39b88; }
QToolTip { background: #fff6dc; color: #1c1714; border: 2px solid #1c1714; padding: 4px; }
)";

void setFont(QWidget& label, const QFont& font) { label.setFont(font); }

}  // namespace

void apply(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(palette());
  QApplication::setFont(textFont(10.5));
  application.setStyleSheet(kStyleSheet);
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

}  // namespace brolgan::desktop::theme
