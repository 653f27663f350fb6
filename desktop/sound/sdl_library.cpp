#include "desktop/sound/sdl_library.h"

#include <dlfcn.h>

namespace brolgan::desktop {

namespace {

// The name of the library on every Linux, whatever its version 2.x is.
constexpr const char* kLibrary = "libSDL2-2.0.so.0";

template <class Function>
bool fetch(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  return function != nullptr;
}

// Under SDL lies the library of the sound cards, which tells of a machine without one on standard error.
constexpr const char* kCards = "libasound.so.2";
using TellError = void (*)(const char* file, int line, const char* function, int code, const char* words, ...);

void tellNothing(const char*, int, const char*, int, const char*, ...) {}

void keepCardsQuiet() {
  void* const cards = dlopen(kCards, RTLD_NOW | RTLD_LOCAL);
  int (*setTeller)(TellError) = nullptr;
  if (cards != nullptr && fetch(cards, "snd_lib_error_set_handler", setTeller)) setTeller(tellNothing);
}

}  // namespace

bool loadSdl(SdlLibrary& sdl) {
  void* const library = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return false;
  keepCardsQuiet();
  const auto has = [library](const char* name, auto& function) { return fetch(library, name, function); };
  return has("SDL_SetHint", sdl.SetHint) && has("SDL_InitSubSystem", sdl.InitSubSystem) &&
         has("SDL_QuitSubSystem", sdl.QuitSubSystem) && has("SDL_OpenAudioDevice", sdl.OpenAudioDevice) &&
         has("SDL_CloseAudioDevice", sdl.CloseAudioDevice) && has("SDL_PauseAudioDevice", sdl.PauseAudioDevice) &&
         has("SDL_LockAudioDevice", sdl.LockAudioDevice) && has("SDL_UnlockAudioDevice", sdl.UnlockAudioDevice) &&
         has("SDL_RWFromFile", sdl.RWFromFile) && has("SDL_LoadWAV_RW", sdl.LoadWAV_RW) &&
         has("SDL_FreeWAV", sdl.FreeWAV) && has("SDL_BuildAudioCVT", sdl.BuildAudioCVT) &&
         has("SDL_ConvertAudio", sdl.ConvertAudio) && has("SDL_MixAudioFormat", sdl.MixAudioFormat) &&
         has("SDL_TLSCleanup", sdl.TLSCleanup);
}

}  // namespace brolgan::desktop
