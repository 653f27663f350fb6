// What all targets need. A target reads its bytes as a file of the game; any outcome but a value
// or a run-time error of the game is a find.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "flow/text/runtime_error.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace brolgan::fuzz {

inline std::string bytesOf(const std::uint8_t* data, std::size_t size) { return {data, data + size}; }

// Ends the run as a find when what must always hold does not.
inline void require(bool holds) {
  if (!holds) std::abort();
}

// Runs it and answers the code of the run-time error that it raised, 0 without one. Every other
// exception gets away and is a find.
template <class Doing>
int codeOf(Doing doing) {
  try {
    doing();
  } catch (const RuntimeError& error) {
    return static_cast<int>(error.code());
  }
  return 0;
}

}  // namespace brolgan::fuzz
