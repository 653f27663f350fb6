// Small helpers of the layouts. All lengths are in units of the window.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <string>

#include "desktop/form_window.h"
#include "desktop/picture_store.h"
#include "desktop/style.h"
#include "desktop/text_label.h"
#include "desktop/theme.h"
#include "desktop/widgets.h"

namespace brolgan::desktop {

using theme::Type;

// The monster is as large in the fight as before it, so that its picture is decoded once.
inline constexpr int kMonster = 496;

// A layout without margins of its own.
template <class Layout>
Layout* bare(FormWindow& window, int spacing = 6) {
  auto* layout = new Layout;
  layout->setContentsMargins(0, 0, 0, 0);
  window.unit().spacing(*layout, spacing);
  return layout;
}

// A layout for what lies in a panel.
template <class Layout>
Layout* within(FormWindow& window, QWidget& panel, const QMargins& margins, int spacing) {
  auto* layout = new Layout(&panel);
  window.unit().margins(*layout, margins);
  window.unit().spacing(*layout, spacing);
  return layout;
}

inline QGridLayout* gridIn(FormWindow& window, QWidget& panel, int margin = 10, int spacing = 6) {
  return within<QGridLayout>(window, panel, {margin, margin, margin, margin}, spacing);
}

inline QFrame* panel(FormWindow& window) {
  auto* frame = new QFrame(&window.page());
  theme::makePanel(*frame);
  return frame;
}

inline void setType(FormWindow& window, QWidget& widget, Type type) {
  widget.setFont(theme::typeface(type));
  window.unit().text(widget, theme::sizeOf(type));
}

// The label of that name, set in a type.
inline TextLabel& label(FormWindow& window, const std::string& name, Type type) {
  auto& found = window.at<TextLabel>(name);
  setType(window, found, type);
  return found;
}

inline QLabel& alignRight(QLabel& label) {
  label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

inline QLabel& alignCentre(QLabel& label) {
  label.setAlignment(Qt::AlignCenter);
  return label;
}

inline QLabel& alignTop(QLabel& label) {
  label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return label;
}

// A figure at the right end of its row; one that is too long for its room is set smaller.
inline QLabel& figure(FormWindow& window, const std::string& name, Type type) {
  TextLabel& found = label(window, name, type);
  found.keepToRoom();
  return alignRight(found);
}

// Keeps the room of a widget while it is hidden, so that nothing else moves.
inline void keepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

// A lighter row behind the widgets of a grid, for the eye to follow.
inline void addStripe(QGridLayout& grid, int row, int columns) {
  auto* stripe = new QWidget;
  QPalette colours;
  colours.setColor(QPalette::Window, theme::kStripe);
  stripe->setPalette(colours);
  stripe->setAutoFillBackground(true);
  grid.addWidget(stripe, row, 0, 1, columns);
  stripe->lower();
}

// The points that are left to spend, as a badge.
inline QLabel& points(FormWindow& window) {
  TextLabel& found = label(window, "Ile_jeszcze", Type::bigFigure);
  found.keepToRoom();
  theme::makeBadge(found);
  window.unit().fixed(found, 72, 48);
  alignCentre(found);
  return found;
}

inline void makeBold(QWidget& widget) {
  widget.setProperty(kIsBold, true);
  QFont font = widget.font();
  font.setBold(true);
  widget.setFont(font);
}

// A picture that belongs to no control, decoded while the window is made.
inline QWidget* decoration(FormWindow& window, const QString& picture, QSize size) {
  auto* widget = new PictureWidget(window.pictures(), &window.page());
  widget->setName(picture);
  window.unit().fixed(*widget, size.width(), size.height());
  window.pictures().prepare(picture, (QSizeF(widget->minimumSize()) * window.devicePixelRatioF()).toSize());
  return widget;
}

// "PLUS(3)" for a member of a control array.

}  // namespace brolgan::desktop
