#include "flow/text/lookup.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace brolgan {

namespace {

namespace fs = std::filesystem;

// Only what is certainly not there is looked for elsewhere: a folder that may not be entered is an error
// of its own.
bool isMissing(const fs::path& path) {
  std::error_code error;
  return fs::status(path, error).type() == fs::file_type::not_found;
}

}  // namespace

std::string Lookup::operator()(const std::string& name) const {
  std::string own = name;
  std::ranges::replace(own, '\\', '/');
  if (own.empty() || installed_.empty() || !isMissing(own)) return own;
  const fs::path shared = fs::path(installed_) / own;
  return isMissing(shared) ? own : shared.string();
}

}  // namespace brolgan
