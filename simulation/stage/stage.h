// A whole game in memory without a window: files, chance, a clock that follows from a seed, no
// pictures and no sounds, and the runtime with all screens. Equal seeds give equal games.
#pragma once

#include <cstdint>
#include <string>

#include "flow/stage/runtime.h"
#include "flow/text/files.h"
#include "rules/random.h"

namespace brolgan::simulation {

// The two data files as they lie on the disk.
struct DataFiles {
  std::string weapons;
  std::string monsters;
};

// Reads bron.cfg and monsters.cfg from a folder; raises std::runtime_error when one is missing.
DataFiles loadData(const std::string& folder);

// The next number of the sequence that state stands for, and the state behind it.
std::uint64_t nextNumber(std::uint64_t& state);

// Every look at it gives another time of the day, all of them fixed by the seed.
class SeededClock : public Clock {
 public:
  explicit SeededClock(std::uint64_t seed) : state_(seed) {}
  double timer() override;
  // Starts over from another seed.
  void restart(std::uint64_t seed) { state_ = seed; }

 private:
  std::uint64_t state_;
};

class NoPictures : public Pictures {
 public:
  void load(const std::string&) override {}
};

class NoSounds : public Sounds {
 public:
  void play(const std::string&, const std::string&) override {}
  void stop(const std::string&) override {}
};

// Which screens a stage knows: all eight, or the fight with an empty shop behind it.
enum class Cast { wholeGame, fightAlone };

class Stage {
 public:
  Stage(const DataFiles& data, std::uint64_t seed, Cast cast = Cast::wholeGame);

  MemoryFiles files;
  SeededRandom random;
  SeededClock clock;
  NoPictures pictures;
  NoSounds sounds;
  Runtime runtime;
};

}  // namespace brolgan::simulation
