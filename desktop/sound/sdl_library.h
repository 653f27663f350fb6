// The functions of SDL 2 that the sound needs, fetched from the library while the program runs: it
// is loaded with the first sound, so it slows no start, and a machine without it is a silent one.
#pragma once

#include <SDL.h>

namespace brolgan::desktop {

struct SdlLibrary {
  decltype(&SDL_SetHint) SetHint;
  decltype(&SDL_InitSubSystem) InitSubSystem;
  decltype(&SDL_QuitSubSystem) QuitSubSystem;
  decltype(&SDL_OpenAudioDevice) OpenAudioDevice;
  decltype(&SDL_CloseAudioDevice) CloseAudioDevice;
  decltype(&SDL_PauseAudioDevice) PauseAudioDevice;
  decltype(&SDL_LockAudioDevice) LockAudioDevice;
  decltype(&SDL_UnlockAudioDevice) UnlockAudioDevice;
  decltype(&SDL_RWFromFile) RWFromFile;
  decltype(&SDL_LoadWAV_RW) LoadWAV_RW;
  decltype(&SDL_FreeWAV) FreeWAV;
  decltype(&SDL_BuildAudioCVT) BuildAudioCVT;
  decltype(&SDL_ConvertAudio) ConvertAudio;
  decltype(&SDL_MixAudioFormat) MixAudioFormat;
  decltype(&SDL_TLSCleanup) TLSCleanup;
};

// Loads the library for good; false when it is not installed.
bool loadSdl(SdlLibrary& sdl);

}  // namespace brolgan::desktop
