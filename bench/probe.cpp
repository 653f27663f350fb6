#include "probe.h"

#include <QtGui/qguiapplication_platform.h>

#include <QEventLoop>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include "process_figures.h"

// Last: it names macros after common words.
#include <X11/Xlib.h>

namespace brolgan::bench {

namespace {

constexpr double kLongestWaitMs = 5000;
constexpr double kRestMs = 25;

// Waits until the screen shows what has been drawn.
void finishDrawing() {
  if (auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) XSync(x11->display(), 0);
}

bool isShown(const QString& name) {
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == name && window->isVisible()) return true;
  }
  return false;
}

}  // namespace

void postClick(QWidget& widget) {
  const QPointF place = widget.rect().center();
  const QPointF global = widget.mapToGlobal(place);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    QCoreApplication::postEvent(&widget, new QMouseEvent(type, place, global, Qt::LeftButton, held, Qt::NoModifier));
  }
}

std::optional<double> Probe::clickToPainted(QWidget& widget, const QString& window) {
  return untilPainted(window, [&widget] { postClick(widget); });
}

std::optional<double> Probe::untilPainted(const QString& window, const std::function<void()>& doing) {
  awaited_ = window;
  painted_ = {};
  paintedAtMs_.reset();
  complete_ = false;
  QTimer alarm;
  alarm.start(static_cast<int>(kRestMs));
  const double startMs = nowMs();
  lastEventMs_ = startMs;
  doing();
  while (!paintedAtMs_ && nowMs() < startMs + kLongestWaitMs) {
    processEvents(QEventLoop::WaitForMoreEvents);
    if (!isShown(window) && nowMs() > lastEventMs_ + kRestMs) break;
  }
  awaited_.clear();
  if (!paintedAtMs_) return std::nullopt;
  return *paintedAtMs_ - startMs;
}

void Probe::click(QWidget& widget) {
  postClick(widget);
  rest();
}

void Probe::rest() {
  QEventLoop loop;
  QTimer::singleShot(static_cast<int>(kRestMs), &loop, &QEventLoop::quit);
  loop.exec();
}

bool Probe::notify(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::Paint && !awaited_.isEmpty()) seePaint(*receiver, *event);
  if (depth_ > 0) return QApplication::notify(receiver, event);
  const QString what = QString("event %1 of %2").arg(event->type()).arg(receiver->objectName());
  const bool isTimer = event->type() == QEvent::Timer;
  ++depth_;
  const double startMs = nowMs();
  const bool accepted = QApplication::notify(receiver, event);
  const double endMs = nowMs();
  --depth_;
  seeHold(endMs - startMs, what);
  seeEnd(endMs, isTimer);
  return accepted;
}

void Probe::seeHold(double ms, const QString& what) {
  if (ms <= longestHoldMs_) return;
  longestHoldMs_ = ms;
  longestHold_ = what;
}

void Probe::seePaint(QObject& receiver, QEvent& event) {
  const auto* const window = qobject_cast<QWidget*>(&receiver);
  if (window == nullptr || !window->isWindow() || window->objectName() != awaited_) return;
  if (window->windowHandle() == nullptr || !window->windowHandle()->isExposed()) return;
  // Where opaque children lie, the window itself need not paint.
  painted_ |= static_cast<QPaintEvent&>(event).region().boundingRect();
  complete_ = painted_.contains(window->rect());
}

// Timers alone do not tell that a program is at work: one of them is the probe's own.
void Probe::seeEnd(double endMs, bool isTimer) {
  if (!isTimer || complete_) lastEventMs_ = endMs;
  if (!complete_ || paintedAtMs_) return;
  finishDrawing();
  paintedAtMs_ = nowMs();
}

}  // namespace brolgan::bench
