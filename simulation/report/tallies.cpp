#include "simulation/report/tallies.h"

#include <algorithm>

namespace brolgan::simulation {

namespace {

constexpr int kGrownTurn = 12;

void add(Tally& tally, const TurnRecord& turn) {
  ++tally.fights;
  tally.deaths += turn.won ? 0 : 1;
  tally.points += turn.won ? turn.earned : 0;
}

void add(Tallies& all, const TurnRecord& turn) {
  ++all.allTurns;
  add(all.monsters[static_cast<std::size_t>(turn.monster)], turn);
  add(all.zones[static_cast<std::size_t>(turn.zone)], turn);
  if (turn.zone == kPandoria) {
    ++all.gambles;
    all.gamblesWon += turn.won ? 1 : 0;
  }
  if (turn.zone == kThroneZone && turn.turn < kGrownTurn) ++all.earlyThrones;
  if (turn.turn > kShownTurns) return;
  const auto column = static_cast<std::size_t>(turn.turn - 1);
  add(all.turns[column], turn);
  ++all.zoneByTurn[static_cast<std::size_t>(turn.zone)][column];
}

void add(Tallies& all, const SeatRecord& seat) {
  ++all.careers;
  for (std::size_t i = 0; i < kOfferPlaces; ++i) {
    if (seat.boughtAt[i] < 0) continue;
    ++all.bought[i];
    all.turnBought[i] += seat.boughtAt[i];
  }
}

}  // namespace

Tallies tally(const std::vector<GameRecord>& games) {
  Tallies all;
  for (const GameRecord& game : games) {
    for (const SeatRecord& seat : game.seats) add(all, seat);
    for (const TurnRecord& turn : game.turns) add(all, turn);
  }
  for (std::size_t i = 0; i < kOfferPlaces; ++i) {
    if (all.bought[i] > 0) all.turnBought[i] /= all.bought[i];
  }
  return all;
}

std::array<double, kPandoria> favours(const Tallies& tallies) {
  std::array<double, kPandoria> favours{};
  for (int zone = 0; zone < kPandoria; ++zone) {
    for (int t = 0; t < kShownTurns; ++t) {
      const int fights = tallies.turns[t].fights;
      if (fights < tallies.careers / 10) continue;
      favours[zone] = std::max(favours[zone], 100.0 * tallies.zoneByTurn[zone][t] / std::max(1, fights));
    }
  }
  return favours;
}

}  // namespace brolgan::simulation
