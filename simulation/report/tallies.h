// What the games of a study come to: counts by turn, zone, monster and purchase.
#pragma once

#include <array>
#include <vector>

#include "simulation/report/study.h"

namespace brolgan::simulation {

inline constexpr int kShownTurns = 36;

struct Tally {
  int fights = 0;
  int deaths = 0;
  double points = 0;
};

struct Tallies {
  std::array<Tally, kMonsters> monsters{};
  std::array<Tally, kZoneCount> zones{};
  std::array<Tally, kShownTurns> turns{};
  std::array<std::array<int, kShownTurns>, kZoneCount> zoneByTurn{};
  std::array<int, kOfferPlaces> bought{};  // careers in which it was bought
  std::array<double, kOfferPlaces> turnBought{};
  int careers = 0;
  int gambles = 0;  // fights in "Pandoria"
  int gamblesWon = 0;
  int earlyThrones = 0;  // fights in "Tron Królów" before the twelfth turn
  int allTurns = 0;

  [[nodiscard]] double boughtShare(int place) const { return careers > 0 ? 100.0 * bought[place] / careers : 0; }
};

Tallies tally(const std::vector<GameRecord>& games);

// How often each of the ten zones that follow one another is chosen in the turn in which most choose it, in percent.
std::array<double, kPandoria> favours(const Tallies& tallies);

}  // namespace brolgan::simulation
