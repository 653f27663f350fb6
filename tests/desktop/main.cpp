// The test program of the face: an application that looks as the game does, on a screen in memory,
// beside the game's own pictures.
#include <gtest/gtest.h>

#include <QDir>
#include <cstdio>

#include "desktop/application.h"
#include "desktop/theme.h"

int main(int argc, char* argv[]) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  brolgan::desktop::Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setDoubleClickInterval(0);
  brolgan::desktop::theme::apply(application);
  if (!QDir::setCurrent(BROLGAN_PICTURES)) {
    std::fprintf(stderr, "There are no pictures in %s\n", BROLGAN_PICTURES);
    return 1;
  }
  return RUN_ALL_TESTS();
}
