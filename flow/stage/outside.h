// What the game asks of the world outside besides files and chance: the time of day, pictures and
// sounds. The face supplies them; tests and the simulation supply stand-ins.
#pragma once

#include <string>

namespace brolgan {

class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  // Seconds since midnight, 0 up to 86400, with the fraction.
  virtual double timer() = 0;
};

class Pictures {
 public:
  Pictures() = default;
  Pictures(const Pictures&) = delete;
  Pictures& operator=(const Pictures&) = delete;
  virtual ~Pictures() = default;

  // Makes the picture of that file name ready to be shown. Raises fileNotFound when the file is
  // missing and invalidPicture when it holds no picture, or only the beginning of one.
  virtual void load(const std::string& name) = 0;
};

class Sounds {
 public:
  Sounds() = default;
  Sounds(const Sounds&) = delete;
  Sounds& operator=(const Sounds&) = delete;
  virtual ~Sounds() = default;

  // Starts a file on the player called that and returns at once; a sound that the same player
  // still plays gives way. Never fails: what cannot be heard is left out in silence.
  virtual void play(const std::string& player, const std::string& fileName) = 0;
  // Ends what the player plays; harmless when it plays nothing.
  virtual void stop(const std::string& player) = 0;
};

}  // namespace brolgan
