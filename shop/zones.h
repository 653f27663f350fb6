// The twelve zones that a hero can go to from the shop, with their bounds in the monster list.
#pragma once

#include <array>

namespace brolgan {

struct Strefa {
  const char* caption;
  int OdPotwora;  // monster numbers, counted from 1
  int DoPotwora;
};

extern const std::array<Strefa, 12> kZones;

}  // namespace brolgan
