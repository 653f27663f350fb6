// The program: the services of this machine, the runtime with all screens, and the face.
#include <QApplication>
#include <QIcon>
#include <QImageReader>
#include <QTimer>
#include <cstdlib>

#include "desktop/face.h"
#include "desktop/layouts/layouts.h"
#include "desktop/picture_store.h"
#include "desktop/screens.h"
#include "desktop/sound/machine_sounds.h"
#include "desktop/system_clock.h"
#include "desktop/theme.h"
#include "flow/services/files.h"
#include "flow/services/random.h"

namespace {

// The icon can wait until the first window stands; decoding it would hold that up.
void setIconSoon(QApplication& application) {
  QTimer::singleShot(250, &application, [] {
    QImageReader reader("ikona.png");
    reader.setScaledSize({64, 64});
    QApplication::setWindowIcon(QIcon(QPixmap::fromImage(reader.read())));
  });
}

}  // namespace

int main(int argc, char* argv[]) {
  using namespace brolgan;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // A blinking cursor would wake an idle program twice a second.
  desktop::PictureStore pictures;
  desktop::prepareTitle(pictures, application.devicePixelRatio());
  desktop::theme::apply(application);

  DiskFiles files;
  SeededRandom random;
  desktop::SystemClock clock;
  desktop::MachineSounds sounds;
  Runtime runtime({files, random, clock, pictures, sounds});
  desktop::offerScreens(runtime);

  desktop::Face face(runtime, pictures);
  QMetaObject::invokeMethod(
      &application, [&face] { face.start(); }, Qt::QueuedConnection);
  setIconSoon(application);
  const int result = QApplication::exec();
  // A sound server that hangs must not keep the program from ending.
  if (!sounds.close()) std::_Exit(result);
  return result;
}
