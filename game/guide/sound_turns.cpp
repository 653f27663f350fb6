#include "game/guide/sound_turns.h"

#include <vector>

namespace brolgan {

namespace {

std::string variantOf(const std::string& path, std::size_t number) {
  const std::size_t slash = path.rfind('/');
  const std::size_t name = slash == std::string::npos ? 0 : slash + 1;
  const std::size_t dot = path.rfind('.');
  const std::size_t end = dot == std::string::npos || dot <= name ? path.size() : dot;
  return path.substr(0, end) + "-" + std::to_string(number) + path.substr(end);
}

}  // namespace

std::string SoundTurns::next(const std::string& path) {
  // The file itself and the variants that follow it without a gap.
  std::vector<std::string> files{path};
  if (isSound_(path)) {
    for (std::string more = variantOf(path, 2); isSound_(more); more = variantOf(path, files.size() + 1)) {
      files.push_back(more);
    }
  }
  return files[asked_[path]++ % files.size()];
}

}  // namespace brolgan
