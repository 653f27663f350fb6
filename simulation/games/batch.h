// Many games over all cores. Each game has its own seed and its own place in the result, so that
// the result is the same on any number of cores.
#pragma once

#include <functional>
#include <vector>

#include "simulation/games/game.h"

namespace brolgan::simulation {

// Does job(0) to job(count - 1) on so many threads; progress hears how many are done.
void inParallel(int count, int threads, const std::function<void(int)>& job,
                const std::function<void(int)>& progress = {});

// The seed of the game of that number in a run.
std::uint64_t seedOf(std::uint64_t run, int game);

std::vector<GameRecord> playGames(const DataFiles& data, const Knowledge& known, int count, int threads,
                                  const std::function<GameSetup(int)>& setupOf,
                                  const std::function<void(int)>& progress = {});

// A table of so many seats, each with a class drawn by the seed and the minds in turn.
GameSetup randomTable(std::uint64_t seed, int players, const std::vector<MindKind>& minds);

}  // namespace brolgan::simulation
