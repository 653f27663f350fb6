// Boxes with rounded corners, drawn like ink on paper.
#pragma once

#include <QColor>
#include <QMargins>
#include <QRect>

class QPainter;

namespace brolgan::desktop {

// A face inside an edge, whose sides may differ in width. All lengths are in pixels.
struct Box {
  QColor face;
  QColor edge;
  QMargins widths;
  int radius;
};

// Draws the box. Its corners are drawn once and kept, since smooth curves take long.
void draw(QPainter& painter, const QRect& place, const Box& box);

}  // namespace brolgan::desktop
