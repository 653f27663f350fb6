// The title: two pictures side by side, or one above the other in a tall window, on a wall of stone.
#include <QGuiApplication>
#include <QPainter>
#include <QRegion>
#include <QResizeEvent>
#include <algorithm>
#include <array>

#include "desktop/layouts/grid.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/places.h"

namespace brolgan::desktop {

namespace {

constexpr int kGap = 6;

// The wall fills whatever the pictures leave of the page, in courses of stones that overlap by half. Where
// they leave less than a course it is plain.
class Wall : public QWidget {
 public:
  Wall(std::array<const QWidget*, 2> pictures, QWidget* page) : QWidget(page), pictures_(pictures) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), theme::kStone);
    painter.setClipRegion(withRoom());
    painter.setPen(QPen(theme::kInk, Unit::pixels(this, kJoint)));
    const int width = Unit::pixels(this, kWidth);
    const int height = Unit::pixels(this, kHeight);
    for (int row = 0, top = 0; top < this->height(); ++row, top += height) {
      painter.drawLine(0, top, this->width(), top);
      for (int x = row % 2 == 0 ? 0 : width / 2; x < this->width(); x += width)
        painter.drawLine(x, top, x, top + height);
    }
  }

 private:
  // Where a course of stones has room.
  [[nodiscard]] QRegion withRoom() const {
    QRegion left = rect();
    for (const QWidget* const picture : pictures_) {
      QRect drawn(QPoint(), kShape.scaled(picture->size(), Qt::KeepAspectRatio));
      drawn.moveCenter(picture->geometry().center());
      left -= drawn;
    }
    QRegion room;
    const int least = Unit::pixels(this, kHeight);
    for (const QRect& band : left) {
      if (std::min(band.width(), band.height()) >= least) room += band;
    }
    return room;
  }

  std::array<const QWidget*, 2> pictures_;

  // The proportion of the pictures.
  static constexpr QSize kShape{8, 5};
  // In units.
  static constexpr int kWidth = 92;
  static constexpr int kHeight = 34;
  static constexpr int kJoint = 2;
};

// Turns the row of pictures into a column when the page is taller than wide, and keeps the wall behind it
// as large as the page.
class Turner : public QObject {
 public:
  Turner(QBoxLayout& row, QWidget& page, QWidget& wall) : QObject(&page), row_(row), wall_(wall) {
    page.installEventFilter(this);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize) {
      const QSize size = static_cast<QResizeEvent*>(event)->size();
      wall_.resize(size);
      row_.setDirection(size.width() >= size.height() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QBoxLayout& row_;
  QWidget& wall_;
};

}  // namespace

void prepareTitle(PictureStore& pictures, qreal ratio) {
  const qreal unit = Places::unitOn(*QGuiApplication::primaryScreen());
  const QSize window = (QSizeF(screenLayout("Brolgan").size) * unit).toSize();
  const int gap = qRound(kGap * unit);
  const int both = window.width() - 3 * gap;
  const auto prepare = [&](const char* name, int width) {
    pictures.prepare(name, (QSizeF(width, window.height() - 2 * gap) * ratio).toSize());
  };
  prepare("tytul.jpg", (both + 1) / 2);
  prepare("tytul-noc.jpg", both / 2);
}

void layOutTitle(FormWindow& window) {
  auto* const wall = new Wall({&window.at("pics(0)"), &window.at("pics(1)")}, &window.page());
  wall->lower();
  auto* row = new QBoxLayout(QBoxLayout::LeftToRight, &window.page());
  window.unit().margins(*row, {kGap, kGap, kGap, kGap});
  window.unit().spacing(*row, kGap);
  for (int i = 0; i < 2; ++i) {
    auto& picture = window.at<PictureWidget>("pics", i);
    picture.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    row->addWidget(&picture, 1);
  }
  new Turner(*row, window.page(), *wall);
}

}  // namespace brolgan::desktop
