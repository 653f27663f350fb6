#include "desktop/sound/wave.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace brolgan::desktop {

namespace {

// A sound of another form than the device's, in a buffer of its own.
Wave convert(const SdlLibrary& sdl, const Wave& wave, SDL_AudioCVT& conversion) {
  const Uint64 room = Uint64{wave.length} * static_cast<Uint64>(conversion.len_mult);
  if (room > std::numeric_limits<int>::max()) return {};
  const auto buffer = std::make_shared<Uint8[]>(room);
  std::copy_n(wave.bytes.get(), wave.length, buffer.get());
  conversion.buf = buffer.get();
  conversion.len = static_cast<int>(wave.length);
  if (sdl.ConvertAudio(&conversion) != 0) return {};
  return {{buffer, buffer.get()}, static_cast<Uint32>(conversion.len_cvt)};
}

}  // namespace

Wave loadWave(const SdlLibrary& sdl, const std::string& path) {
  SDL_AudioSpec spec{};
  Uint8* bytes = nullptr;
  Wave wave;
  if (sdl.LoadWAV_RW(sdl.RWFromFile(path.c_str(), "rb"), 1, &spec, &bytes, &wave.length) == nullptr) return {};
  wave.bytes.reset(bytes, sdl.FreeWAV);
  SDL_AudioCVT conversion;
  const int needed =
      sdl.BuildAudioCVT(&conversion, spec.format, spec.channels, spec.freq, kFormat, kChannels, kFrequency);
  if (needed < 0) return {};
  return needed == 0 ? wave : convert(sdl, wave, conversion);
}

}  // namespace brolgan::desktop
