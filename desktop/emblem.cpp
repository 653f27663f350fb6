#include "desktop/emblem.h"

#include <QPainter>
#include <utility>

#include "desktop/picture_store.h"

namespace brolgan::desktop {

EmblemRow::EmblemRow(PictureStore& pictures, QString name, int count)
    : pictures_(pictures), name_(std::move(name)), count_(count) {}

void EmblemRow::prepare(QSize emblem) { pictures_.prepare(name_, size(emblem), Qt::IgnoreAspectRatio); }

const QPixmap& EmblemRow::pixmap(QSize emblem) {
  if (shownFor_ != emblem) {
    shown_ = pictures_.pixmap(name_, size(emblem), Qt::IgnoreAspectRatio);
    shownFor_ = emblem;
  }
  return shown_;
}

Emblem::Emblem(std::shared_ptr<EmblemRow> row, int index, QWidget* parent)
    : QWidget(parent), row_(std::move(row)), index_(index) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Emblem::paintEvent(QPaintEvent*) {
  const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
  const QPixmap& row = row_->pixmap(pixels);
  QPainter(this).drawPixmap(rect(), row, QRect(QPoint(index_ * pixels.width(), 0), pixels));
}

}  // namespace brolgan::desktop
