#include "rules/random.h"

#include <bit>
#include <cstdint>

namespace brolgan {

void SeededRandom::seed(double secondsSinceMidnight) {
  engine_.seed(std::bit_cast<std::uint64_t>(secondsSinceMidnight));
}

float SeededRandom::next() {
  constexpr int kDroppedBits = 64 - 24;
  return static_cast<float>(engine_() >> kDroppedBits) * 0x1p-24F;
}

}  // namespace brolgan
