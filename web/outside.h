// What the browser is to the game besides files: clock, pictures and sounds.
#pragma once

#include <optional>
#include <string>

#include "flow/stage/outside.h"
#include "game/guide/sound_turns.h"

namespace brolgan::web {

class PageClock : public Clock {
 public:
  double timer() override;
  // Stands still at so many seconds since midnight from now on.
  void fix(double seconds) { fixed_ = seconds; }
  [[nodiscard]] bool isFixed() const { return fixed_.has_value(); }

 private:
  std::optional<double> fixed_;
};

// A picture of the game, as large as it lies beside the page.
struct PictureSize {
  const char* name;
  int width;
  int height;
};

// Null for a picture that the game does not bring.
const PictureSize* findPicture(const std::string& name);

class PagePictures : public Pictures {
 public:
  void load(const std::string& name) override;
};

class PageSounds : public Sounds {
 public:
  PageSounds();
  void play(const std::string& player, const std::string& fileName) override;
  void stop(const std::string& player) override;

 private:
  SoundTurns turns_;
};

}  // namespace brolgan::web
