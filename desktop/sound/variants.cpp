#include "desktop/sound/variants.h"

#include <filesystem>
#include <system_error>

namespace brolgan::desktop {

namespace {

bool isFile(const std::string& path) {
  std::error_code unknown;
  return std::filesystem::is_regular_file(path, unknown);
}

}  // namespace

Variants::Variants() : SoundTurns(isFile) {}

}  // namespace brolgan::desktop
