#include "desktop/application.h"

namespace brolgan::desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    if (!onThrown) throw;
    const auto tell = [this, error = std::current_exception()] {
      if (onThrown) onThrown(error);
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    return true;
  }
}

}  // namespace brolgan::desktop
