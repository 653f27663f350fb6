#include "desktop/system_clock.h"

#include <chrono>
#include <ctime>

namespace brolgan::desktop {

double SystemClock::timer() {
  using namespace std::chrono;
  const auto now = system_clock::now();
  const std::time_t seconds = system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const duration<double> fraction = now - system_clock::from_time_t(seconds);
  return local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + fraction.count();
}

}  // namespace brolgan::desktop
