// The program: the services of this machine, the runtime with all screens, and the face.
#include <QApplication>
#include <QIcon>
#include <cstdlib>

#include "desktop/face.h"
#include "desktop/picture_store.h"
#include "desktop/screens.h"
#include "desktop/sound/machine_sounds.h"
#include "desktop/system_clock.h"
#include "desktop/theme.h"
#include "flow/services/files.h"
#include "flow/services/random.h"

int main(int argc, char* argv[]) {
  using namespace brolgan;
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  desktop::theme::apply(application);
  QApplication::setWindowIcon(QIcon("ikona.png"));

  DiskFiles files;
  SeededRandom random;
  desktop::SystemClock clock;
  desktop::PictureStore pictures;
  desktop::MachineSounds sounds;
  Runtime runtime({files, random, clock, pictures, sounds});
  desktop::offerScreens(runtime);

  desktop::Face face(runtime, pictures);
  QMetaObject::invokeMethod(
      &application, [&face] { face.start(); }, Qt::QueuedConnection);
  const int result = QApplication::exec();
  // A sound server that hangs must not keep the program from ending.
  if (!sounds.close()) std::_Exit(result);
  return result;
}
