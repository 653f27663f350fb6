#include "web/page_files.h"

#include <algorithm>
#include <utility>

#include "flow/text/runtime_error.h"

namespace brolgan::web {

namespace {

constexpr std::string_view kMusicFolder = "guit";

// "./a\b" and "a/b" are one file.
std::string pathOf(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  while (name.starts_with("./")) name.erase(0, 2);
  return name;
}

[[noreturn]] void fail(ErrorCode code, const std::string& name) { throw RuntimeError(code, {name, 0, {}}); }

// Refuses what can be no file: no name, a folder, a name in a folder that is not there.
std::string filePath(const std::string& name) {
  std::string path = pathOf(name);
  const std::size_t slash = path.rfind('/');
  const bool isInFolder = slash != std::string::npos;
  if (path.empty() || path == "." || path == ".." || path == kMusicFolder) fail(ErrorCode::pathAccess, name);
  if (isInFolder && path.substr(0, slash) != kMusicFolder) fail(ErrorCode::pathNotFound, name);
  if (isInFolder && slash + 1 == path.size()) fail(ErrorCode::pathAccess, name);
  return path;
}

}  // namespace

OpenFile PageFiles::open(const std::string& name) {
  const auto found = contents_.find(filePath(name));
  if (found == contents_.end()) fail(ErrorCode::fileNotFound, name);
  return {found->second, nullptr};
}

void PageFiles::create(const std::string& name) { contents_[filePath(name)].clear(); }

void PageFiles::append(const std::string& name, std::string_view bytes) { contents_[filePath(name)] += bytes; }

void PageFiles::put(const std::string& name, std::string bytes) { contents_[pathOf(name)] = std::move(bytes); }

}  // namespace brolgan::web
