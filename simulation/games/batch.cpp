#include "simulation/games/batch.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <thread>

namespace brolgan::simulation {

void inParallel(int count, int threads, const std::function<void(int)>& job, const std::function<void(int)>& progress) {
  std::atomic<int> next = 0;
  std::atomic<int> done = 0;
  std::mutex guard;
  std::exception_ptr failure;
  const auto work = [&] {
    try {
      for (int i = next++; i < count; i = next++) {
        job(i);
        const int now = ++done;
        if (!progress) continue;
        const std::lock_guard lock(guard);
        progress(now);
      }
    } catch (...) {
      const std::lock_guard lock(guard);
      failure = std::current_exception();
      next = count;
    }
  };
  {
    std::vector<std::jthread> crew;
    for (int i = 1; i < threads; ++i) crew.emplace_back(work);
    work();
  }
  if (failure) std::rethrow_exception(failure);
}

std::uint64_t seedOf(std::uint64_t run, int game) {
  std::uint64_t state = run * 0x9E3779B97F4A7C15U + static_cast<std::uint64_t>(game);
  return nextNumber(state);
}

std::vector<GameRecord> playGames(const DataFiles& data, const Knowledge& known, int count, int threads,
                                  const std::function<GameSetup(int)>& setupOf,
                                  const std::function<void(int)>& progress) {
  std::vector<GameRecord> records(static_cast<std::size_t>(count));
  const auto job = [&](int i) { records[static_cast<std::size_t>(i)] = playGame(data, known, setupOf(i)); };
  inParallel(count, threads, job, progress);
  return records;
}

GameSetup randomTable(std::uint64_t seed, int players, const std::vector<MindKind>& minds) {
  GameSetup setup;
  setup.seed = seed;
  std::uint64_t state = seed ^ 0xC1A55E5U;
  const std::size_t turn = nextNumber(state) % minds.size();
  for (int i = 0; i < players; ++i) {
    const int klasa = static_cast<int>(nextNumber(state) % kClasses);
    setup.seats.push_back({klasa, minds[(static_cast<std::size_t>(i) + turn) % minds.size()]});
  }
  return setup;
}

}  // namespace brolgan::simulation
