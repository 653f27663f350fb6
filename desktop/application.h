// The application of the game. What an event lets out would pass through the toolkit and abort the
// program without a word; it stops here and is told of.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace brolgan::desktop {

class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

  // Tells of what an event let out, in an event of its own; without it everything gets away.
  std::function<void(const std::exception_ptr&)> onThrown;
};

}  // namespace brolgan::desktop
