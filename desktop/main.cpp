// The program: the services of this machine, the runtime with all screens, and the face.
#include <QIcon>
#include <QTimer>
#include <array>
#include <cstdlib>
#include <exception>

#include "desktop/application.h"
#include "desktop/error_box.h"
#include "desktop/face.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/sound/machine_sounds.h"
#include "desktop/system_clock.h"
#include "desktop/theme.h"
#include "flow/text/files.h"
#include "game/game.h"
#include "rules/random.h"

namespace {

constexpr std::array kIcons = {"ikona-16.png", "ikona-24.png", "ikona-32.png",
                               "ikona-48.png", "ikona-64.png", "ikona-128.png"};
constexpr std::array kLargeIcons = {"ikona-256.png", "ikona.png"};

// The icon can wait until the first window stands; decoding it would hold that up. Every window hands all
// sizes to the window manager, so the large ones are for dense screens alone.
void setIconSoon(QApplication& application) {
  QTimer::singleShot(250, &application, [&application] {
    QIcon icon;
    for (const char* file : kIcons) icon.addFile(file);
    if (application.devicePixelRatio() > 1) {
      for (const char* file : kLargeIcons) icon.addFile(file);
    }
    QApplication::setWindowIcon(icon);
  });
}

// The game from its first window to its end; answers the exit code of the program.
int play(brolgan::desktop::Application& application) {
  using namespace brolgan;
  desktop::PictureStore::keepMemorySmall();
  desktop::PictureStore pictures;
  desktop::prepareTitle(pictures, application.devicePixelRatio());
  desktop::theme::apply(application);

  DiskFiles files;
  SeededRandom random;
  desktop::SystemClock clock;
  desktop::MachineSounds sounds;
  Runtime runtime({files, clock, pictures, sounds});
  offerScreens(runtime, random);

  desktop::Face face(runtime, pictures);
  application.onThrown = [&face](const std::exception_ptr& error) { face.fail(error); };
  QMetaObject::invokeMethod(
      &application, [&face] { face.start(); }, Qt::QueuedConnection);
  setIconSoon(application);
  const int result = QApplication::exec();
  application.onThrown = nullptr;
  // A sound server that hangs must not keep the program from ending.
  if (!sounds.close()) std::_Exit(result);
  return result;
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace brolgan;
  desktop::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // A blinking cursor would wake an idle program twice a second.
  try {
    return play(application);
  } catch (...) {
    desktop::showErrorBox(desktop::errorText(std::current_exception()));
    return 1;
  }
}
