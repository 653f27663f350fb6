// A sound file in memory, in the form that the device plays.
#pragma once

#include <memory>
#include <string>

#include "desktop/sound/sdl_library.h"

namespace brolgan::desktop {

// What the device is asked for; SDL converts when it has something else.
inline constexpr int kFrequency = 44100;
inline constexpr Uint8 kChannels = 2;
inline constexpr SDL_AudioFormat kFormat = AUDIO_S16SYS;

struct Wave {
  std::shared_ptr<const Uint8> bytes;
  Uint32 length = 0;
};

// Empty when the file is missing or holds no sound that can be decoded.
Wave loadWave(const SdlLibrary& sdl, const std::string& path);

}  // namespace brolgan::desktop
