// How the game looks: one palette, one style, two typefaces. No layout names a colour or a font of its
// own.
#pragma once

#include <QColor>
#include <QFont>

#include "flow/stage/controls.h"

class QApplication;
class QFrame;
class QLabel;
class QWidget;

namespace brolgan::desktop::theme {

inline const QColor kInk("#1c1714");
inline const QColor kPaper("#efe2c4");
inline const QColor kPanel("#f8f1de");
inline const QColor kButton("#f3e6c8");
inline const QColor kButtonHover("#fff6dc");
inline const QColor kPressedFace("#d9c79c");
inline const QColor kPlate("#fffaf0");
inline const QColor kEdge("#b5793a");
inline const QColor kFieldEdge("#6b3a1f");
inline const QColor kDisabledText("#6b6557");
inline const QColor kDisabledFace("#eceae0");
inline const QColor kDisabledEdge("#a39b88");
inline const QColor kFocus("#2f6f6b");
inline const QColor kFocusFace("#dcebe4");
inline const QColor kFocusField("#ffffff");
inline const QColor kSelection("#35807c");

// Gives the application its palette, fonts and style.
void apply(QApplication& application);

// The colour of the rules as it stands on the screen.
QColor colourOf(Colour colour);

// The kinds of type. Their sizes, in units, are those of the letters' bodies.
enum class Type { text, small, heading, title, figure, bigFigure, blow };
QFont typeface(Type type);
qreal sizeOf(Type type);
// The face of the figures within words set in that font: the serif's own figures are uneven.
QFont figuresWithin(const QFont& font);

// Makes a frame the panel of a group of widgets, a label a round plate with a light figure, a button
// a small one.
void makePanel(QFrame& frame);
void makeBadge(QLabel& label);
void makeNarrow(QWidget& button);

}  // namespace brolgan::desktop::theme
