// One number for how far the games of some data files are from the aims: 0 when none is missed, and
// 1 more for each aim that is missed by as much as can be felt.
#pragma once

#include <string>
#include <vector>

#include "simulation/report/measures.h"

namespace brolgan::simulation {

struct Term {
  std::string name;
  double found = 0;
  double miss = 0;
};

struct Score {
  std::vector<Term> terms;

  [[nodiscard]] double sum() const;
};

// The games that a score is drawn from: four sensible players, one who plays alone, and four newcomers.
struct Sample {
  std::vector<GameRecord> games;
  std::vector<GameRecord> alone;
  std::vector<GameRecord> newcomers;
};

Sample playSample(const DataFiles& data, int games, int threads, std::uint64_t seed);
Score scoreOf(const DataFiles& data, const Sample& sample);

}  // namespace brolgan::simulation
