#include "flow/text/files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "flow/text/runtime_error.h"

namespace brolgan {

namespace {

namespace fs = std::filesystem;

fs::path pathOf(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  return {name};
}

bool folderExists(const fs::path& path) {
  std::error_code ignored;
  return !path.has_parent_path() || fs::is_directory(path.parent_path(), ignored);
}

[[noreturn]] void fail(ErrorCode code, const std::string& name) { throw RuntimeError(code, {name, 0, {}}); }

void requireReadable(const fs::path& path, const std::string& name) {
  std::error_code ignored;
  if (name.empty() || fs::is_directory(path, ignored)) fail(ErrorCode::pathAccess, name);
  if (!folderExists(path)) fail(ErrorCode::pathNotFound, name);
  if (!fs::exists(path, ignored)) fail(ErrorCode::fileNotFound, name);
}

}  // namespace

std::string DiskFiles::read(const std::string& name) {
  const fs::path path = pathOf(name);
  requireReadable(path, name);
  std::ifstream file(path, std::ios::binary);
  if (!file) fail(ErrorCode::pathAccess, name);
  return {std::istreambuf_iterator<char>(file), {}};
}

void DiskFiles::create(const std::string& name) {
  const fs::path path = pathOf(name);
  if (name.empty()) fail(ErrorCode::pathAccess, name);
  if (!folderExists(path)) fail(ErrorCode::pathNotFound, name);
  if (!std::ofstream(path, std::ios::binary | std::ios::trunc)) fail(ErrorCode::pathAccess, name);
}

void DiskFiles::append(const std::string& name, std::string_view bytes) {
  std::ofstream file(pathOf(name), std::ios::binary | std::ios::app);
  file << bytes << std::flush;
  if (!file) fail(ErrorCode::deviceIo, name);
}

std::string MemoryFiles::read(const std::string& name) {
  const auto found = contents.find(name);
  if (found == contents.end()) fail(name.empty() ? ErrorCode::pathAccess : ErrorCode::fileNotFound, name);
  return found->second;
}

void MemoryFiles::create(const std::string& name) {
  if (name.empty()) fail(ErrorCode::pathAccess, name);
  contents[name].clear();
}

void MemoryFiles::append(const std::string& name, std::string_view bytes) { contents[name] += bytes; }

}  // namespace brolgan
