// Sound files made for a test, and samples as numbers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace brolgan::test {

// Left and right in turn.
using Samples = std::vector<std::int16_t>;

struct WaveForm {
  int channels = 2;
  int frequency = 44100;
  int bits = 16;
  int codec = 1;
};

// 5000 frames that rise step by step, no two alike and none silent.
Samples ramp();
// That many frames of one level.
Samples steady(int level, std::size_t frames);

std::string bytes(const Samples& samples);
Samples samples(const std::string& bytes);
// A whole file with these samples.
std::string waveFile(const std::string& sound, WaveForm form = {});
std::string waveFile(const Samples& sound, WaveForm form = {});

// The sound in a file.
std::string soundOf(const std::string& file);
// Without the frames of silence at the beginning and the end.
Samples withoutSilentEnds(const Samples& sound);

}  // namespace brolgan::test
