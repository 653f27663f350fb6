// The unit of length of a window. Layouts and widgets tell every margin, size and typeface in units;
// the unit follows the size of the window, so that a window scales as a whole, like a picture. At 1.0
// a unit is a pixel.
#pragma once

#include <QMargins>
#include <QSize>
#include <functional>
#include <vector>

class QGridLayout;
class QLayout;
class QWidget;

namespace brolgan::desktop {

class Unit {
 public:
  // The smallest unit, at which the smallest type is 10 pixels high. A window with room for less
  // keeps to it and scrolls.
  static constexpr qreal kLeast = 0.755;
  static constexpr qreal kSmallestText = 10;

  // The largest unit at which an area of so many units lies within so many pixels; never below the
  // least. It grows by small steps, so that a window that is pulled is not laid out at each pixel.
  static qreal fitting(QSize pixels, QSize units);

  // Pixels to a unit in the window in which a widget lies; 1 outside of all windows with a unit.
  static qreal of(const QWidget* widget);
  // So many units in the window of a widget, in whole pixels.
  static int pixels(const QWidget* widget, qreal units);
  // Whether the window of a widget is being pulled, so that its pictures need not be sharp.
  static bool isMoving(const QWidget* widget);

  // The unit of a window that shows so many units.
  Unit(QWidget& window, QSize size, qreal value);
  ~Unit();
  Unit(const Unit&) = delete;
  Unit& operator=(const Unit&) = delete;

  [[nodiscard]] qreal value() const { return value_; }
  [[nodiscard]] QSize size() const { return size_; }
  [[nodiscard]] int pixels(qreal units) const;

  // Fits the unit to a window of so many pixels; all measures follow when it changes.
  void follow(QSize pixels);
  void setMoving(bool isMoving) { isMoving_ = isMoving; }

  // Measures in units, kept from now on. A width or height of 0 is left as it is.
  void margins(QLayout& layout, const QMargins& units);
  void spacing(QLayout& layout, int units);
  void spacing(QGridLayout& grid, int across, int down);
  void column(QGridLayout& grid, int column, int atLeast);
  void row(QGridLayout& grid, int row, int atLeast);
  void atLeast(QWidget& widget, int width, int height);
  void fixed(QWidget& widget, int width, int height);
  // The height of the type of a widget that does not share that of the page.
  void text(QWidget& widget, qreal units);

 private:
  using Measure = std::function<void(const Unit&)>;
  void keep(Measure measure);
  void setText(QWidget& widget, qreal units) const;

  QWidget& window_;
  QSize size_;
  qreal value_;
  bool isMoving_ = false;
  std::vector<Measure> measures_;
};

}  // namespace brolgan::desktop
