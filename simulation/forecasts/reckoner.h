// Reckons fights and remembers what it has reckoned: players who weigh all goods of a shop meet the
// same fights over and over.
#pragma once

#include <vector>

#include "simulation/forecasts/course.h"

namespace brolgan::simulation {

class Reckoner {
 public:
  explicit Reckoner(const Knowledge& known);

  // The fight that the hero would have with that initiative.
  Outlook operator()(const HeroNotes& hero, const Monster& monster, const Plan& plan, int initiative);

 private:
  struct alignas(64) Remembered {
    Situation situation;
    Toll toll;
  };

  const Toll& tollOf(const Situation& situation);

  const Knowledge& known_;
  std::vector<Remembered> memory_;
};

}  // namespace brolgan::simulation
