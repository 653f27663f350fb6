#include "desktop/unit.h"

#include <QFont>
#include <QGridLayout>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

#include "desktop/theme.h"

namespace brolgan::desktop {

namespace {

constexpr qreal kStepsOfUnit = 128;
// Type grows by quarters of a pixel, so that a pulled window needs few sizes of each face.
constexpr qreal kStepsOfType = 4;
constexpr qreal kPointsAnInch = 72;

std::map<const QWidget*, const Unit*>& units() {
  static std::map<const QWidget*, const Unit*> all;
  return all;
}

// A list that drops down is a window of its own and belongs to the window that it drops from.
const Unit* find(const QWidget* widget) {
  if (widget == nullptr) return nullptr;
  while (widget->parentWidget() != nullptr) widget = widget->parentWidget();
  const auto found = units().find(widget);
  return found == units().end() ? nullptr : found->second;
}

// Rounded down, unless it is a whole step but for the error of the division.
qreal steps(qreal value, qreal stepsOfOne) { return std::floor(value * stepsOfOne + 1e-6) / stepsOfOne; }

}  // namespace

qreal Unit::fitting(QSize pixels, QSize units) {
  const qreal across = static_cast<qreal>(pixels.width()) / units.width();
  const qreal down = static_cast<qreal>(pixels.height()) / units.height();
  return std::max(kLeast, steps(std::min(across, down), kStepsOfUnit));
}

qreal Unit::of(const QWidget* widget) {
  const Unit* const unit = find(widget);
  return unit == nullptr ? 1 : unit->value_;
}

int Unit::pixels(const QWidget* widget, qreal units) { return qRound(units * of(widget)); }

bool Unit::isMoving(const QWidget* widget) {
  const Unit* const unit = find(widget);
  return unit != nullptr && unit->isMoving_;
}

Unit::Unit(QWidget& window, QSize size, qreal value) : window_(window), size_(size), value_(value) {
  units()[&window_] = this;
  text(window_, theme::sizeOf(theme::Type::text));
}

Unit::~Unit() { units().erase(&window_); }

int Unit::pixels(qreal units) const { return qRound(units * value_); }

void Unit::follow(QSize pixels) {
  const qreal fit = fitting(pixels, size_);
  if (fit == value_) return;
  value_ = fit;
  for (const Measure& measure : measures_) measure(*this);
}

void Unit::keep(Measure measure) {
  measure(*this);
  measures_.push_back(std::move(measure));
}

void Unit::margins(QLayout& layout, const QMargins& units) {
  keep([&layout, units](const Unit& unit) {
    layout.setContentsMargins((units.toMarginsF() * unit.value_).toMargins());
  });
}

void Unit::spacing(QLayout& layout, int units) {
  keep([&layout, units](const Unit& unit) { layout.setSpacing(unit.pixels(units)); });
}

void Unit::spacing(QGridLayout& grid, int across, int down) {
  keep([&grid, across, down](const Unit& unit) {
    grid.setHorizontalSpacing(unit.pixels(across));
    grid.setVerticalSpacing(unit.pixels(down));
  });
}

void Unit::column(QGridLayout& grid, int column, int atLeast) {
  keep([&grid, column, atLeast](const Unit& unit) { grid.setColumnMinimumWidth(column, unit.pixels(atLeast)); });
}

void Unit::row(QGridLayout& grid, int row, int atLeast) {
  keep([&grid, row, atLeast](const Unit& unit) { grid.setRowMinimumHeight(row, unit.pixels(atLeast)); });
}

void Unit::atLeast(QWidget& widget, int width, int height) {
  keep([&widget, width, height](const Unit& unit) {
    if (width > 0) widget.setMinimumWidth(unit.pixels(width));
    if (height > 0) widget.setMinimumHeight(unit.pixels(height));
  });
}

void Unit::fixed(QWidget& widget, int width, int height) {
  keep([&widget, width, height](const Unit& unit) {
    if (width > 0) widget.setFixedWidth(unit.pixels(width));
    if (height > 0) widget.setFixedHeight(unit.pixels(height));
  });
}

void Unit::text(QWidget& widget, qreal units) {
  keep([&widget, units](const Unit& unit) { unit.setText(widget, units); });
}

void Unit::setText(QWidget& widget, qreal units) const {
  QFont font = widget.font();
  const qreal pixels = std::max(kSmallestText, steps(units * value_, kStepsOfType));
  const qreal points = pixels * kPointsAnInch / widget.logicalDpiY();
  if (font.pointSizeF() == points && (font.resolveMask() & QFont::SizeResolved) != 0) return;
  font.setPointSizeF(points);
  widget.setFont(font);
}

}  // namespace brolgan::desktop
