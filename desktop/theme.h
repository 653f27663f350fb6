// How the game looks: one palette, one style sheet, two typefaces. No layout names a colour or a
// font of its own.
#pragma once

#include <QColor>
#include <QFont>

#include "flow/services/controls.h"

class QApplication;
class QWidget;

namespace brolgan::desktop::theme {

inline const QColor kInk("#1c1714");
inline const QColor kPaper("#efe2c4");
inline const QColor kPanel("#f8f1de");
inline const QColor kButton("#f3e6c8");
inline const QColor kButtonHover("#fff6dc");
inline const QColor kPlate("#fffaf0");
inline const QColor kEdge("#b5793a");
inline const QColor kDisabledText("#7d7768");
inline const QColor kFocus("#2f6f6b");

// Gives the application its palette, fonts and style sheet.
void apply(QApplication& application);

// The colour of the rules as it stands on the screen.
QColor colourOf(Colour colour);

// Makes a label a heading, a figure, or a figure that is read from afar.
void makeTitle(QWidget& label);
void makeHeading(QWidget& label);
void makeFigure(QWidget& label);
void makeBigFigure(QWidget& label);
void makeSmall(QWidget& label);

}  // namespace brolgan::desktop::theme
