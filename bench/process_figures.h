// What the system knows of a process: its memory, its processor time and how often it was woken.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

namespace brolgan::bench {

struct Memory {
  std::int64_t residentKb = 0;
  std::int64_t peakKb = 0;
};

// Sums over all threads of the process.
struct Work {
  std::int64_t processorNs = 0;
  std::int64_t voluntarySwitches = 0;
  std::int64_t forcedSwitches = 0;
};

Memory memoryOf(pid_t process);
Work workOf(pid_t process);

// Milliseconds since an arbitrary moment.
double nowMs();

}  // namespace brolgan::bench
