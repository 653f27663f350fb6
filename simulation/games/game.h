// One whole game of one to four players, from the set-up to its end, and what happened in it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "simulation/minds/mind.h"

namespace brolgan::simulation {

struct Seat {
  int klasa = 0;
  MindKind mind = MindKind::sensible;
  int denied = -1;  // the place of what is never sold to him, -1 for nothing
};

// From here on, counted from 0, a zone is one of the later ones; the gamble is not.
inline constexpr int kFirstLateZone = 5;

struct GameSetup {
  std::vector<Seat> seats;
  int points = 12;
  int mostTurns = 60;  // of each player; then the game is left undecided
  int firstZone = -1;  // where all go first, -1 for where they like
  std::uint64_t seed = 0;
};

struct TurnRecord {
  int player = 0;
  int turn = 0;
  int zone = 0;
  int monster = 0;
  int rounds = 0;
  int enduranceBefore = 0;  // when the preparation was done
  int enduranceAfter = 0;
  int earned = 0;
  int armour = 0;
  bool won = false;

  [[nodiscard]] int lost() const { return enduranceBefore - enduranceAfter; }
};

struct SeatRecord {
  Seat seat;
  bool out = false;
  HeroNotes hero;
  HeroNotes grown;  // when he first chose one of the later zones; no turns when he never did
  int grownTurn = 0;
  std::array<int, kOfferPlaces> boughtAt{};
  std::array<int, kOfferPlaces> wantedAt{};
};

struct GameRecord {
  std::uint64_t seed = 0;
  std::vector<SeatRecord> seats;
  std::vector<TurnRecord> turns;
  int winner = -1;
  int winnerTurn = 0;
};

GameRecord playGame(const DataFiles& data, const Knowledge& known, const GameSetup& setup);

}  // namespace brolgan::simulation
