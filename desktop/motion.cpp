#include "desktop/motion.h"

#include <QGraphicsEffect>
#include <QPainter>
#include <QVariantAnimation>
#include <QWidget>
#include <cmath>
#include <numbers>

#include "desktop/unit.h"

namespace brolgan::desktop {

namespace {

constexpr int kReach = 14;  // How far a widget is drawn from its place at most, in units.
constexpr qreal kSwings = 2;

// Draws its widget aside from where it stands, within the room that it has, until the movement is over;
// then it is gone.
class Movement : public QGraphicsEffect {
 public:
  using Path = qreal (*)(qreal time);  // how far aside, -1 to 1, at a time from 0 to 1

  Movement(QWidget& widget, Path path) : reach_(Unit::pixels(&widget, kReach)), path_(path) {
    auto* const clock = new QVariantAnimation(this);
    clock->setStartValue(0.0);
    clock->setEndValue(1.0);
    clock->setDuration(kMovementMs);
    connect(clock, &QVariantAnimation::valueChanged, this, [this](const QVariant& time) {
      time_ = time.toReal();
      update();
    });
    connect(
        clock, &QVariantAnimation::finished, &widget, [&widget] { widget.setGraphicsEffect(nullptr); },
        Qt::QueuedConnection);
    clock->start();
  }

 protected:
  void draw(QPainter* painter) override {
    painter->translate(path_(time_) * reach_, 0);
    drawSource(painter);
  }

 private:
  int reach_;
  Path path_;
  qreal time_ = 0;
};

qreal arriving(qreal time) { return (1 - time) * (1 - time); }

qreal trembling(qreal time) { return (1 - time) * std::sin(time * kSwings * 2 * std::numbers::pi) / 2; }

}  // namespace

void slideIn(QWidget& widget) { widget.setGraphicsEffect(new Movement(widget, arriving)); }

void flinch(QWidget& widget) { widget.setGraphicsEffect(new Movement(widget, trembling)); }

}  // namespace brolgan::desktop
