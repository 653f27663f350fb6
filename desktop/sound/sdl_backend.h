// Sound through SDL 2: one device, on which the players are mixed.
#pragma once

#include <map>
#include <string>

#include "desktop/sound/backend.h"
#include "desktop/sound/sdl_library.h"
#include "desktop/sound/wave.h"

namespace brolgan::desktop {

class SdlBackend : public SoundBackend {
 public:
  explicit SdlBackend(const SdlLibrary& sdl) : sdl_(sdl) {}
  ~SdlBackend() override;

  bool open() override;
  void play(const std::string& player, const std::string& path) override;
  void stop(const std::string& player) override;
  bool busy() override;
  void close() override;

 private:
  // A sound and how much of it has been heard.
  struct Voice {
    Wave wave;
    Uint32 heard = 0;
  };

  static void feed(void* self, Uint8* stream, int length);
  void mix(Uint8* stream, Uint32 length);
  // Puts a voice into the place of the player's one before, an empty one for silence.
  void replace(const std::string& player, Voice voice);

  SdlLibrary sdl_;
  SDL_AudioDeviceID device_ = 0;
  // Shared with SDL's own thread, which mixes under the lock of the device.
  std::map<std::string, Voice> voices_;
};

}  // namespace brolgan::desktop
