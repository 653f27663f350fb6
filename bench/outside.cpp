// Starts a program and prints what can be seen of it from outside, one figure a line: the time from
// its start to each of its first windows painted, its memory then, and its work while idle.
//
//   bench_outside WINDOWS IDLE-SECONDS PROGRAM...
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <thread>

#include "launched.h"
#include "process_figures.h"
#include "screen_watch.h"

namespace {

using namespace brolgan::bench;

constexpr double kLongestStartMs = 20000;
constexpr std::chrono::seconds kSettling(1);

void printStart(ScreenWatch& screen, Launched& program, double startMs, int windows) {
  for (int i = 0; i < windows; ++i) {
    const auto painted = screen.next(program.process(), kLongestStartMs, [&program] { return !program.ended(); });
    if (!painted) throw std::runtime_error("a window is missing");
    const double processorMs = static_cast<double>(workOf(program.process()).processorNs) / 1e6;
    const char* const which = i == 0 ? "first" : "next";
    std::printf("%s_window_ms\t%.3f\n%s_window_cpu_ms\t%.3f\n", which, painted->atMs - startMs, which, processorMs);
    std::fprintf(stderr, "%s\n", painted->title.c_str());
  }
}

void printIdle(pid_t process, int seconds) {
  const Work before = workOf(process);
  std::this_thread::sleep_for(std::chrono::seconds(seconds));
  const Work after = workOf(process);
  std::printf("idle_cpu_ms\t%.3f\n", static_cast<double>(after.processorNs - before.processorNs) / 1e6);
  std::printf("idle_wakeups\t%ld\n", static_cast<long>(after.voluntarySwitches - before.voluntarySwitches));
  std::printf("idle_forced_switches\t%ld\n", static_cast<long>(after.forcedSwitches - before.forcedSwitches));
}

int look(int windows, int idleSeconds, const std::vector<std::string>& command) {
  ScreenWatch screen;
  const double startMs = nowMs();
  Launched program(command);
  printStart(screen, program, startMs, windows);
  std::this_thread::sleep_for(kSettling);
  const Memory memory = memoryOf(program.process());
  std::printf("resident_kb\t%ld\npeak_kb\t%ld\n", static_cast<long>(memory.residentKb),
              static_cast<long>(memory.peakKb));
  if (idleSeconds > 0) printIdle(program.process(), idleSeconds);
  return 0;
}

}  // namespace

int main(int count, char* arguments[]) {
  if (count < 4) {
    std::fputs("bench_outside WINDOWS IDLE-SECONDS PROGRAM...\n", stderr);
    return 2;
  }
  try {
    return look(std::atoi(arguments[1]), std::atoi(arguments[2]), {arguments + 3, arguments + count});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
