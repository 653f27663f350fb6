// An application that times itself: from a click to the paint that it causes, and the longest time
// for which one event keeps all others waiting.
#pragma once

#include <QApplication>
#include <QRect>
#include <functional>
#include <optional>

namespace brolgan::bench {

class Probe : public QApplication {
 public:
  Probe(int& argc, char** argv) : QApplication(argc, argv) {}

  // Clicks the widget and waits until the window called that is painted all over on the screen.
  // Answers the time from the click to then, nothing when the click shows no such window.
  std::optional<double> clickToPainted(QWidget& widget, const QString& window);
  // Waits until the window called that is painted; does doing first. As above.
  std::optional<double> untilPainted(const QString& window, const std::function<void()>& doing);
  // Clicks the widget and lets the program come to rest.
  void click(QWidget& widget);
  // Lets the program work until it has been at rest for a while.
  void rest();

  // The longest event since the last call of forgetHolds.
  [[nodiscard]] double longestHoldMs() const { return longestHoldMs_; }
  // The number of its event type and the name of the object that received it.
  [[nodiscard]] const QString& longestHold() const { return longestHold_; }
  void forgetHolds() { longestHoldMs_ = 0; }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void seePaint(QObject& receiver, QEvent& event);
  void seeHold(double ms, const QString& what);
  void seeEnd(double endMs, bool isTimer);

  QString awaited_;
  QRect painted_;
  std::optional<double> paintedAtMs_;
  bool complete_ = false;
  double longestHoldMs_ = 0;
  QString longestHold_;
  double lastEventMs_ = 0;
  int depth_ = 0;
};

// Presses and lets go the left button in the middle of a widget, as one event behind the other.
void postClick(QWidget& widget);

}  // namespace brolgan::bench
