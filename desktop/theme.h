// How the game looks: one palette, one style, two typefaces. No layout names a colour or a font of its
// own.
#pragma once

#include <QColor>
#include <QFont>
#include <array>

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
inline const QColor kDealt("#2f6663");
inline const QColor kTaken("#8f2a20");
inline const QColor kPrimary("#f0b840");
inline const QColor kPrimaryHover("#f9cf6a");
inline const QColor kPlate("#fffaf0");
inline const QColor kStone("#8f8262");
// A lighter row among the rows of a panel.
inline const QColor kStripe("#fffaf0");
inline const QColor kEdge("#b5793a");
inline const QColor kFieldEdge("#6b3a1f");
inline const QColor kDisabledText("#6b6557");
inline const QColor kDisabledFace("#eceae0");
inline const QColor kDisabledEdge("#a39b88");
inline const QColor kFocus("#2f6f6b");
inline const QColor kFocusFace("#dcebe4");
inline const QColor kSelection("#35807c");

// The faces of the buttons of the twelve zones, the tints of their monsters on bone.
inline const std::array<QColor, 12> kZones = {
    QColor("#eacea0"), QColor("#e4c2a1"), QColor("#d1cba2"), QColor("#c5cdb4"), QColor("#e6b394"), QColor("#c5c8bd"),
    QColor("#ddcba8"), QColor("#d4bcb5"), QColor("#b9c6b3"), QColor("#c3bdb9"), QColor("#d3b0ad"), QColor("#dcaa91")};

// Gives the application its palette, fonts and style.
void apply(QApplication& application);

// The colour of the rules as it stands on the screen.
QColor colourOf(Colour colour);

// The kinds of type. Their sizes, in units, are those of the letters' bodies.
enum class Type { text, small, choice, heading, title, figure, bigFigure, blow };
QFont typeface(Type type);
qreal sizeOf(Type type);
// The face of the figures within words set in that font: the serif's own figures are uneven.
QFont figuresWithin(const QFont& font);

// Makes a frame the panel of a group of widgets, a label a round plate with a light figure, a button
// a small one.
void makePanel(QFrame& frame);
void makeBadge(QLabel& label);
// Gives a round plate a light ring, by which it stands out from a picture.
void makeRinged(QWidget& badge);
void makeNarrow(QWidget& button);
// Makes a frame a panel with a band of that colour along its upper edge, for light words; the title of a
// group box stands in it.
void makeBanded(QWidget& frame, const QColor& band);
// Gives a button a face of that colour at rest.
void makeTinted(QWidget& button, const QColor& tint);
// Makes a widget one that calls for a click, as the button that leads on from its screen does, or no more.
void makePrimary(QWidget& widget, bool isPrimary);

}  // namespace brolgan::desktop::theme
