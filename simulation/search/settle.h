// Settles the monsters one by one, where a dial that turns many of them is too coarse: in each zone
// those who pay more become the more dangerous, and a zone that too many choose, or in which too few fall, becomes
// harder. What it turns is the addition to the attack; below none, the endurance and the speed.
#pragma once

#include <array>
#include <vector>

#include "simulation/report/measures.h"
#include "simulation/search/numbers.h"

namespace brolgan::simulation {

class Settler {
 public:
  explicit Settler(const DataFiles& data);

  // The data files as they stand; the first three monsters and the king's court stay as they were.
  [[nodiscard]] DataFiles data() const;
  // Moves every monster a little by what became of those who met it.
  void hear(const Measures& measures);

 private:
  // How much harm each monster does, on a logarithmic scale; only of those that were met.
  struct Harm {
    bool known = false;
    double value = 0;
  };

  void remember(const Measures& measures);
  void compare(int zone, std::array<double, kMonsters>& pushes) const;
  [[nodiscard]] int pay(int monster) const;
  [[nodiscard]] Numbers settled(int monster) const;

  DataFiles given_;
  std::vector<Numbers> numbers_;
  std::array<double, kMonsters> addition_{};
  std::array<Harm, kMonsters> harm_{};
};

}  // namespace brolgan::simulation
