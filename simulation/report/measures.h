// What the aims ask of the games of a study, each figure with the interval that chance leaves open.
#pragma once

#include <array>
#include <vector>

#include "simulation/report/study.h"

namespace brolgan::simulation {

// Fights in one zone, and with one monster wherever it was met.
struct Danger {
  Share deaths;
  Share oneRound;
  Share costless;
  Mean lost;  // of endurance; all that a fallen hero had
};

struct Measures {
  Share oneRound;
  Share costless;  // no endurance was lost
  Share inTime;    // of the won games: in turns 18 to 30
  Share ended;     // of all games: won
  int median = 0;
  std::array<Danger, kZoneCount> zones{};
  std::array<Danger, kMonsters> monsters{};
  std::array<int, kZoneCount> usualArmour{};  // the median of the heroes who go there; -1 for nobody
  Share gambles;                              // of all turns: in "Pandoria"
  Share gamblesWon;
  Mean gamblePay;  // points of a visit to "Pandoria"
  Mean wisePay;    // points of the other visits at the same turns, each turn weighing as much
  double busiest = 0;
  int busiestZone = 0;
};

Measures measure(const std::vector<GameRecord>& games);

// How reward follows danger among the monsters of a zone: the rank correlation of the points with
// the endurance that a fight takes on average, 1 when nothing can be said. A monster is looked at
// when it was met so often.
double rewardFollowsDanger(const Knowledge& known, const Measures& measures, int zone, int leastMet = 20);

// Spearman's, equal values sharing their rank; 0 when one row does not vary.
double rankCorrelation(const std::vector<double>& a, const std::vector<double>& b);

// Monsters from the third zone on that cannot hurt a hero of the armour usual in one of their zones.
std::vector<int> harmlessMonsters(const Knowledge& known, const Measures& measures);

}  // namespace brolgan::simulation
