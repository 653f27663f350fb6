// Plays the game at its own widgets and prints what can be seen from inside, one figure a line.
// Runs in a folder with the game's files, and writes heroes there.
//
//   bench_inside game   two sessions through all screens, and a third that pulls their windows
//   bench_inside bare   the same click between two windows of one label each
#include <unistd.h>

#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <cstdio>
#include <exception>
#include <string>

#include "desktop/picture_store.h"
#include "desktop/silence.h"
#include "desktop/system_clock.h"
#include "desktop/theme.h"
#include "game/game.h"
#include "process_figures.h"
#include "session.h"

namespace {

using namespace brolgan;

void print(const std::string& quantity, double figure) { std::printf("%s\t%.3f\n", quantity.c_str(), figure); }

void printHold(const bench::Probe& probe, const char* quantity) {
  print(quantity, probe.longestHoldMs());
  std::fprintf(stderr, "%s: %s\n", quantity, qPrintable(probe.longestHold()));
}

void playGame(bench::Probe& probe) {
  DiskFiles files;
  SeededRandom random;
  desktop::SystemClock clock;
  desktop::PictureStore pictures;
  desktop::Silence sounds;
  Runtime runtime({files, clock, pictures, sounds});
  offerScreens(runtime, random);
  desktop::Face face(runtime, pictures);

  std::string time = "first";
  bench::Session session(probe, runtime, face, [&time](const std::string& change, double ms) {
    print("change " + time + ": " + change, ms);
  });
  session.open();
  probe.forgetHolds();
  session.play();
  printHold(probe, "longest_hold_first_ms");
  time = "second";
  session.open();
  probe.forgetHolds();
  session.play();
  printHold(probe, "longest_hold_second_ms");
  const bench::Memory memory = bench::memoryOf(getpid());
  print("resident_after_all_kb", static_cast<double>(memory.residentKb));
  print("peak_after_all_kb", static_cast<double>(memory.peakKb));
  time = "third";
  session.open();
  session.playAndPull();
  print("peak_after_pulling_kb", static_cast<double>(bench::memoryOf(getpid()).peakKb));
}

// A window of the size of the largest screen, with one button.
struct BareWindow {
  explicit BareWindow(const char* name) {
    window.setObjectName(name);
    window.resize(1340, 716);
  }
  QWidget window;
  QLabel label{"Brolgan", &window};
};

void changeBareWindows(bench::Probe& probe) {
  BareWindow first("first");
  BareWindow second("second");
  const auto swap = [](QWidget& from, QWidget& to) {
    auto* button = new QPushButton("Go", &from);
    button->move(0, 100);
    QObject::connect(button, &QPushButton::clicked, &to, [&from, &to] {
      to.setGeometry(from.geometry());
      to.show();
      to.raise();
      to.activateWindow();
      from.hide();
    });
    return button;
  };
  QPushButton* const there = swap(first.window, second.window);
  QPushButton* const back = swap(second.window, first.window);
  first.window.show();
  probe.rest();
  for (int i = 0; i < 2; ++i) {
    const auto ms = probe.clickToPainted(*there, "second");
    probe.rest();
    if (i == 1) print("bare change", ms.value());
    probe.clickToPainted(*back, "first");
    probe.rest();
  }
}

}  // namespace

int main(int argc, char* argv[]) {
  const bool isGame = argc == 2 && std::string(argv[1]) == "game";
  if (isGame) desktop::PictureStore::keepMemorySmall();  // As the game itself does.
  bench::Probe probe(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  try {
    if (isGame) {
      desktop::theme::apply(probe);
      playGame(probe);
    } else {
      changeBareWindows(probe);
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench_inside: %s\n", error.what());
    return 1;
  }
  return 0;
}
