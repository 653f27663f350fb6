#include "desktop/sound/variants.h"

#include <filesystem>
#include <system_error>
#include <vector>

namespace brolgan::desktop {

namespace {

namespace fs = std::filesystem;

bool isFile(const fs::path& path) {
  std::error_code unknown;
  return fs::is_regular_file(path, unknown);
}

fs::path variantOf(const fs::path& path, std::size_t number) {
  fs::path name = path.stem();
  name += "-" + std::to_string(number);
  name += path.extension();
  return path.parent_path() / name;
}

// The file itself and the variants that follow it without a gap.
std::vector<std::string> variantsOf(const std::string& path) {
  std::vector<std::string> files{path};
  if (!isFile(path)) return files;
  for (fs::path next = variantOf(path, 2); isFile(next); next = variantOf(path, files.size() + 1)) {
    files.push_back(next);
  }
  return files;
}

}  // namespace

std::string Variants::next(const std::string& path) {
  const std::vector<std::string> files = variantsOf(path);
  return files[asked_[path]++ % files.size()];
}

}  // namespace brolgan::desktop
