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
#include "desktop/play_folder.h"
#include "desktop/sound/machine_sounds.h"
#include "desktop/system_clock.h"
#include "desktop/text.h"
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
void setIconSoon(QApplication& application, const brolgan::Lookup& lookup) {
  QTimer::singleShot(250, &application, [&application, lookup] {
    QIcon icon;
    for (const char* file : kIcons) icon.addFile(brolgan::desktop::toQt(lookup(file)));
    if (application.devicePixelRatio() > 1) {
      for (const char* file : kLargeIcons) icon.addFile(brolgan::desktop::toQt(lookup(file)));
    }
    QApplication::setWindowIcon(icon);
    brolgan::desktop::PictureStore::giveMemoryBack();
  });
}

// A failure on the way shows in the colours of the game.
brolgan::Lookup placeOf(brolgan::desktop::Application& application) {
  try {
    return brolgan::desktop::goToPlay();
  } catch (...) {
    brolgan::desktop::theme::apply(application);
    throw;
  }
}

// The game from its first window to its end; answers the exit code of the program.
int play(brolgan::desktop::Application& application) {
  using namespace brolgan;
  const Lookup lookup = placeOf(application);
  desktop::PictureStore pictures(lookup);
  desktop::prepareTitle(pictures, application.devicePixelRatio());
  desktop::theme::apply(application);

  DiskFiles files(lookup);
  SeededRandom random;
  desktop::SystemClock clock;
  desktop::MachineSounds sounds(lookup);
  Runtime runtime({files, clock, pictures, sounds});
  offerScreens(runtime, random);

  desktop::Face face(runtime, pictures);
  application.onThrown = [&face](const std::exception_ptr& error) { face.fail(error); };
  QMetaObject::invokeMethod(
      &application, [&face] { face.start(); }, Qt::QueuedConnection);
  setIconSoon(application, lookup);
  const int result = QApplication::exec();
  application.onThrown = nullptr;
  // A sound server that hangs must not keep the program from ending.
  if (!sounds.close()) std::_Exit(result);
  return result;
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace brolgan;
  desktop::PictureStore::keepMemorySmall();
  desktop::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDesktopFileName("brolgan");  // Under this name a desktop finds the icon of the windows.
  QApplication::setCursorFlashTime(0);          // A blinking cursor would wake an idle program twice a second.
  try {
    return play(application);
  } catch (...) {
    desktop::showErrorBox(desktop::errorText(std::current_exception()));
    return 1;
  }
}
