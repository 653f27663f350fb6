#include "tests/sound/wave_file.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace brolgan::test {

namespace {

static_assert(std::endian::native == std::endian::little, "the samples are taken as they lie in memory");

std::string number(std::size_t value, std::size_t size) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char>(value >> (8 * i));
  return text;
}

std::string chunk(const std::string& name, const std::string& content) {
  return name + number(content.size(), 4) + content;
}

bool isSilent(std::int16_t sample) { return std::abs(sample) <= 1; }

}  // namespace

Samples ramp() {
  Samples samples;
  for (int i = 1; i <= 5000; ++i) {
    samples.push_back(static_cast<std::int16_t>(i));
    samples.push_back(static_cast<std::int16_t>(-i));
  }
  return samples;
}

Samples steady(int level, std::size_t frames) { return Samples(2 * frames, static_cast<std::int16_t>(level)); }

std::string bytes(const Samples& samples) {
  return {reinterpret_cast<const char*>(samples.data()), samples.size() * sizeof(std::int16_t)};
}

Samples samples(const std::string& bytes) {
  Samples samples(bytes.size() / sizeof(std::int16_t));
  std::memcpy(samples.data(), bytes.data(), samples.size() * sizeof(std::int16_t));
  return samples;
}

std::string waveFile(const std::string& sound, WaveForm form) {
  const int frame = form.channels * form.bits / 8;
  const std::string format = number(form.codec, 2) + number(form.channels, 2) + number(form.frequency, 4) +
                             number(form.frequency * frame, 4) + number(frame, 2) + number(form.bits, 2);
  return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", sound));
}

std::string waveFile(const Samples& sound, WaveForm form) { return waveFile(bytes(sound), form); }

std::string soundOf(const std::string& file) { return file.substr(file.find("data") + 8); }

Samples withoutSilentEnds(const Samples& sound) {
  const auto loud = [](std::int16_t sample) { return !isSilent(sample); };
  const auto first = std::find_if(sound.begin(), sound.end(), loud);
  const auto last = std::find_if(sound.rbegin(), std::make_reverse_iterator(first), loud).base();
  return {first, last};
}

}  // namespace brolgan::test
