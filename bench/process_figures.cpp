#include "process_figures.h"

#include <chrono>
#include <filesystem>
#include <fstream>

namespace brolgan::bench {

namespace {

// The number behind a name such as "VmRSS:" in a status file, 0 when it is not there.
std::int64_t statusOf(const std::string& folder, const std::string& name) {
  std::ifstream in(folder + "/status");
  for (std::string word; in >> word;) {
    if (word != name) continue;
    std::int64_t number = 0;
    in >> number;
    return number;
  }
  return 0;
}

std::int64_t processorNsOf(const std::string& folder) {
  std::ifstream in(folder + "/schedstat");
  std::int64_t nanoseconds = 0;
  in >> nanoseconds;
  return nanoseconds;
}

}  // namespace

Memory memoryOf(pid_t process) {
  const std::string folder = "/proc/" + std::to_string(process);
  return {statusOf(folder, "VmRSS:"), statusOf(folder, "VmHWM:")};
}

Work workOf(pid_t process) {
  Work sum;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
    const std::string folder = thread.path().string();
    sum.processorNs += processorNsOf(folder);
    sum.voluntarySwitches += statusOf(folder, "voluntary_ctxt_switches:");
    sum.forcedSwitches += statusOf(folder, "nonvoluntary_ctxt_switches:");
  }
  return sum;
}

double nowMs() {
  using namespace std::chrono;
  return duration<double, std::milli>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace brolgan::bench
