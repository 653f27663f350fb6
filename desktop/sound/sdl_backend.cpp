#include "desktop/sound/sdl_backend.h"

#include <algorithm>
#include <utility>

namespace brolgan::desktop {

namespace {

// How many frames the device asks for at once: 23 ms, too short to be felt as a delay.
constexpr Uint16 kFrames = 1024;

}  // namespace

// SDL keeps a little memory for each thread that calls it, and this one ends.
SdlBackend::~SdlBackend() {
  close();
  sdl_.TLSCleanup();
}

bool SdlBackend::open() {
  // SDL would catch Ctrl-C and the end of the session, and nobody would read them from it.
  sdl_.SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  sdl_.SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Brolgan");
  if (sdl_.InitSubSystem(SDL_INIT_AUDIO) != 0) return false;
  SDL_AudioSpec wanted{};
  wanted.freq = kFrequency;
  wanted.format = kFormat;
  wanted.channels = kChannels;
  wanted.samples = kFrames;
  wanted.callback = &SdlBackend::feed;
  wanted.userdata = this;
  device_ = sdl_.OpenAudioDevice(nullptr, 0, &wanted, nullptr, 0);
  if (device_ == 0) {
    sdl_.QuitSubSystem(SDL_INIT_AUDIO);
    return false;
  }
  sdl_.PauseAudioDevice(device_, 0);
  return true;
}

// SDL's search for new devices takes time too, so all of its sound goes with the device.
void SdlBackend::close() {
  if (device_ == 0) return;
  sdl_.CloseAudioDevice(std::exchange(device_, 0));
  sdl_.QuitSubSystem(SDL_INIT_AUDIO);
  voices_.clear();
}

// The old sound goes first, so that two long ones never lie in memory together.
void SdlBackend::play(const std::string& player, const std::string& path) {
  stop(player);
  replace(player, {loadWave(sdl_, path)});
}

void SdlBackend::stop(const std::string& player) { replace(player, {}); }

// The old sound is freed behind the lock, so that the mixing never waits for it.
void SdlBackend::replace(const std::string& player, Voice voice) {
  sdl_.LockAudioDevice(device_);
  std::swap(voices_[player], voice);
  sdl_.UnlockAudioDevice(device_);
}

bool SdlBackend::busy() {
  sdl_.LockAudioDevice(device_);
  const bool heard =
      std::ranges::any_of(voices_, [](const auto& entry) { return entry.second.heard < entry.second.wave.length; });
  sdl_.UnlockAudioDevice(device_);
  return heard;
}

void SdlBackend::feed(void* self, Uint8* stream, int length) {
  std::fill_n(stream, length, Uint8{0});
  static_cast<SdlBackend*>(self)->mix(stream, static_cast<Uint32>(length));
}

void SdlBackend::mix(Uint8* stream, Uint32 length) {
  for (auto& [player, voice] : voices_) {
    const Uint32 part = std::min(length, voice.wave.length - voice.heard);
    if (part == 0) continue;
    sdl_.MixAudioFormat(stream, voice.wave.bytes.get() + voice.heard, kFormat, part, SDL_MIX_MAXVOLUME);
    voice.heard += part;
  }
}

std::unique_ptr<SoundBackend> makeMachineBackend() {
  SdlLibrary sdl{};
  if (!loadSdl(sdl)) return nullptr;
  return std::make_unique<SdlBackend>(sdl);
}

}  // namespace brolgan::desktop
