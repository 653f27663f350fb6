#include "desktop/places.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <vector>

#include "desktop/form_window.h"
#include "desktop/layouts/layouts.h"
#include "desktop/unit.h"

namespace brolgan::desktop {

namespace {

// About what a window manager adds on each side of a window.
constexpr QMargins kFrame(4, 26, 4, 6);
constexpr qreal kShareOfLargeScreen = 0.9;
// From the edges of a window to one that opens on it.
constexpr int kInset = 24;

QRect roomOn(const QScreen& screen) { return screen.availableGeometry().marginsRemoved(kFrame); }

// The rectangle moved, and cut where it is too large, so that it lies inside the room.
QRect kept(QRect place, const QRect& room) {
  place.setSize(place.size().boundedTo(room.size()));
  place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
  place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
  return place;
}

QRect around(QPoint centre, QSize size) {
  QRect place(QPoint(), size);
  place.moveCenter(centre);
  return place;
}

int area(QSize size) { return size.isEmpty() ? 0 : size.width() * size.height(); }

int covered(const QRect& place, const std::vector<QRect>& clear) {
  int sum = 0;
  for (const QRect& one : clear) sum += area(place.marginsAdded(kFrame).intersected(one).size());
  return sum;
}

// Beside the window, or where on it the least is covered of what is to stay in sight.
QRect beside(const FormWindow& window, QSize size, const QRect& room) {
  const QRect stands = window.geometry();
  const int inset = window.unit().pixels(kInset);
  const QRect free = kept(stands, room).adjusted(inset, inset, -inset, -inset);
  const QPoint rightOf(stands.right() + 1 + kFrame.left() + kFrame.right(), stands.top());
  const QPoint leftOf(stands.left() - size.width() - kFrame.left() - kFrame.right(), stands.top());
  for (const QPoint corner : {rightOf, leftOf}) {
    if (room.contains(QRect(corner, size))) return {corner, size};
  }
  const std::vector<QRect> clear = window.keptClear();
  QRect best;
  for (const QPoint corner : {QPoint(free.right() - size.width() + 1, free.top()), free.topLeft()}) {
    const QRect place = kept({corner, size}, room);
    if (best.isNull() || covered(place, clear) < covered(best, clear)) best = place;
  }
  return best;
}

// Where a window opens that has not stood on this screen yet.
QRect firstPlace(Place place, QSize size, const QRect& room, const FormWindow* before) {
  QRect centred = around(before == nullptr ? room.center() : before->geometry().center(), size);
  if (place == Place::beside && before != nullptr) return beside(*before, size, room);
  if (place == Place::top) centred.moveTop(room.top());
  if (place == Place::bottom && before == nullptr) centred.moveBottom(room.bottom());
  return kept(centred, room);
}

}  // namespace

qreal Places::unitOn(const QScreen& screen) {
  const QSize room = roomOn(screen).size();
  const qreal fit = Unit::fitting(room, kLargestWindow);
  return fit <= 1 ? fit : std::max(1.0, Unit::fitting(room * kShareOfLargeScreen, kLargestWindow));
}

const Places::Stood* Places::stoodOn(const QScreen& screen, const FormWindow& window) const {
  const Stood* stood = nullptr;
  if (window.layoutOf().takesTurns()) {
    stood = turn_ ? &*turn_ : nullptr;
  } else if (const auto found = own_.find(window.name()); found != own_.end()) {
    stood = &found->second;
  }
  return stood != nullptr && screen.geometry().contains(stood->place.center()) ? stood : nullptr;
}

void Places::place(FormWindow& window, const FormWindow* before) {
  if (before != nullptr) remember(*before);
  QScreen& screen = before == nullptr ? *QGuiApplication::primaryScreen() : *before->screen();
  const QRect room = roomOn(screen);
  const Stood* const stood = stoodOn(screen, window);
  const QSize size = (QSizeF(window.unit().size()) * unitOn(screen)).toSize();
  window.setScreen(&screen);
  window.setWindowState(Qt::WindowNoState);
  window.setGeometry(stood != nullptr ? kept(stood->place, room)
                                      : firstPlace(window.layoutOf().place, size, room, before));
  if (stood != nullptr) window.setWindowState(stood->state);
  if (window.layoutOf().place == Place::beside) besides_[window.name()] = window.geometry();
}

void Places::remember(const FormWindow& window) {
  const Qt::WindowStates large = window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen);
  const QRect normal = window.normalGeometry();
  const Stood stood{large == 0 || normal.isEmpty() ? window.geometry() : normal, large};
  if (window.layoutOf().takesTurns()) {
    turn_ = stood;
  } else if (window.layoutOf().place != Place::beside || large != 0 || stood.place != besides_[window.name()]) {
    own_[window.name()] = stood;
  }
}

void Places::rescue(FormWindow& window) {
  const QScreen* screen = QGuiApplication::screenAt(window.geometry().center());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  const QRect room = roomOn(*screen);
  if (room.contains(window.geometry()) || window.isMaximized() || window.isFullScreen()) return;
  const QSize size = window.size().boundedTo((QSizeF(window.unit().size()) * unitOn(*screen)).toSize());
  const bool isInSight = screen->geometry().contains(window.geometry().center());
  window.setGeometry(kept(isInSight ? QRect(window.pos(), size) : around(room.center(), size), room));
}

}  // namespace brolgan::desktop
