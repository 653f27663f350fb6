// Small helpers of the layouts.
#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <initializer_list>
#include <string>

#include "desktop/form_window.h"
#include "desktop/picture_store.h"
#include "desktop/theme.h"
#include "desktop/widgets.h"

namespace brolgan::desktop {

// The monster is as large in the fight as before it, so that its picture is decoded once.
inline constexpr QSize kMonster(496, 496);

// A layout without margins of its own.
template <class Layout>
Layout* bare(int spacing = 6) {
  auto* layout = new Layout;
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(spacing);
  return layout;
}

inline QGridLayout* gridIn(QWidget& panel, int margin = 10, int spacing = 6) {
  auto* grid = new QGridLayout(&panel);
  grid->setContentsMargins(margin, margin, margin, margin);
  grid->setHorizontalSpacing(spacing);
  grid->setVerticalSpacing(spacing);
  return grid;
}

inline QLabel& label(const FormWindow& window, const std::string& name) {
  return static_cast<QLabel&>(window.at(name));
}

// Keeps the room of a widget while it is hidden, so that nothing else moves.
inline void keepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

inline void makeBold(QWidget& widget) {
  widget.setProperty("bold", true);
  QFont font = widget.font();
  font.setBold(true);
  widget.setFont(font);
}

inline void alignRight(QWidget& widget) {
  static_cast<QLabel&>(widget).setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

inline void alignCentre(QWidget& widget) { static_cast<QLabel&>(widget).setAlignment(Qt::AlignCenter); }

inline void wrap(QWidget& widget) { static_cast<QLabel&>(widget).setWordWrap(true); }

// A picture that belongs to no control, decoded while the window is made.
inline QWidget* decoration(FormWindow& window, const QString& picture, QSize size) {
  auto* widget = new PictureWidget(window.pictures(), &window);
  widget->setName(picture);
  widget->setFixedSize(size);
  window.pictures().prepare(picture, (QSizeF(size) * window.devicePixelRatioF()).toSize());
  return widget;
}

// "PLUS(3)" for a member of a control array.
inline std::string member(const char* name, int index) { return std::string(name) + "(" + std::to_string(index) + ")"; }

}  // namespace brolgan::desktop
