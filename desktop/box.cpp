#include "desktop/box.h"

#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>

namespace brolgan::desktop {

namespace {

void drawSmoothly(QPainter& painter, const QRect& place, const Box& box) {
  const qreal inner = box.radius - box.widths.left();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(box.edge);
  painter.drawRoundedRect(place, box.radius, box.radius);
  painter.setBrush(box.face);
  painter.drawRoundedRect(place.marginsRemoved(box.widths), inner, inner);
  painter.restore();
}

// How far a corner reaches into the box.
int reach(const Box& box) {
  const QMargins& widths = box.widths;
  return box.radius + std::max({widths.left(), widths.top(), widths.right(), widths.bottom()});
}

QString keyOf(const Box& box, qreal ratio) {
  const QMargins& widths = box.widths;
  return QString::asprintf("box %x %x %d %d %d %d %d %d", box.face.rgba(), box.edge.rgba(), widths.left(), widths.top(),
                           widths.right(), widths.bottom(), box.radius, qRound(ratio));
}

// The least box of that kind, which is all corners.
QPixmap cornersOf(const Box& box, qreal ratio) {
  const QString key = keyOf(box, ratio);
  QPixmap corners;
  if (QPixmapCache::find(key, &corners)) return corners;
  const QSize size(2 * reach(box), 2 * reach(box));
  corners = QPixmap(size * ratio);
  corners.setDevicePixelRatio(ratio);
  corners.fill(Qt::transparent);
  QPainter painter(&corners);
  drawSmoothly(painter, QRect(QPoint(), size), box);
  painter.end();
  QPixmapCache::insert(key, corners);
  return corners;
}

void drawCorners(QPainter& painter, const QRect& place, const QPixmap& corners, int side) {
  const QSize size(side, side);
  const int pixels = corners.width() / 2;
  const QPoint far(place.right() - side + 1, place.bottom() - side + 1);
  for (const bool isRight : {false, true}) {
    for (const bool isLow : {false, true}) {
      const QPoint corner(isRight ? far.x() : place.left(), isLow ? far.y() : place.top());
      const QPoint from(isRight ? pixels : 0, isLow ? pixels : 0);
      painter.drawPixmap(QRect(corner, size), corners, QRect(from, QSize(pixels, pixels)));
    }
  }
}

// What lies between the corners has straight edges.
void drawBetween(QPainter& painter, const QRect& place, const Box& box, int side) {
  const QRect across = place.adjusted(0, side, 0, -side);
  const QRect down = place.adjusted(side, 0, -side, 0);
  const QMargins& widths = box.widths;
  painter.fillRect(across.left(), across.top(), widths.left(), across.height(), box.edge);
  painter.fillRect(across.right() - widths.right() + 1, across.top(), widths.right(), across.height(), box.edge);
  painter.fillRect(down.left(), down.top(), down.width(), widths.top(), box.edge);
  painter.fillRect(down.left(), down.bottom() - widths.bottom() + 1, down.width(), widths.bottom(), box.edge);
  painter.fillRect(across.adjusted(widths.left(), 0, -widths.right(), 0), box.face);
  const int aboveAcross = side - widths.top();
  painter.fillRect(down.left(), down.top() + widths.top(), down.width(), aboveAcross, box.face);
  const int belowAcross = side - widths.bottom();
  painter.fillRect(down.left(), across.bottom() + 1, down.width(), belowAcross, box.face);
}

}  // namespace

// Between pixels, and where corners meet, the box is drawn as a whole.
void draw(QPainter& painter, const QRect& place, const Box& box) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const int side = reach(box);
  const bool isWhole = ratio == std::floor(ratio);
  if (!isWhole || place.width() < 2 * side || place.height() < 2 * side) return drawSmoothly(painter, place, box);
  drawBetween(painter, place, box, side);
  drawCorners(painter, place, cornersOf(box, ratio), side);
}

}  // namespace brolgan::desktop
