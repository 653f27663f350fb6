// Climbs over single numbers of the data files, where dials that turn many at once are too coarse: some
// numbers are moved by a little, and the change stays when three rounds of games are clearly nearer to the aims.
// What stands and what is proposed are judged by the same games; now and then those are changed for others.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "simulation/stage/stage.h"

namespace brolgan::simulation {

// The data files with a few numbers moved: of the monsters from the sixth on, the king's court and the king,
// and of the weapons for sale their addition and their price. Equal states make equal moves.
DataFiles nudged(const DataFiles& data, std::uint64_t& state);

class Climber {
 public:
  // How far the data files are from the aims, by the games of that seed.
  using Judge = std::function<double(const DataFiles&, std::uint64_t seed)>;

  Climber(DataFiles start, std::uint64_t seed, Judge judge);

  // Proposes one change; answers whether it was taken.
  bool step();
  [[nodiscard]] const DataFiles& data() const { return data_; }
  // The mean score of what stands, by the games of the day.
  [[nodiscard]] double score() const;

 private:
  void renewGames();

  Judge judge_;
  DataFiles data_;
  std::uint64_t random_;
  std::uint64_t games_;  // the first seed of the games of the day
  int steps_ = 0;
  std::vector<double> scores_;  // of what stands, by seed
};

}  // namespace brolgan::simulation
