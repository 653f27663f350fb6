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
};

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
  int enduranceBefore = 0;
  int enduranceAfter = 0;
  int earned = 0;
  bool won = false;
};

struct SeatRecord {
  Seat seat;
  bool out = false;
  HeroNotes hero;
  std::array<int, kOfferPlaces> boughtAt{};
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
