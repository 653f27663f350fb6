#include "flow/text/files.h"

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "flow/text/runtime_error.h"

namespace brolgan {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunk = 4096;

fs::path pathOf(std::string name) {
  std::replace(name.begin(), name.end(), '\\', '/');
  return {name};
}

bool folderExists(const fs::path& path) {
  std::error_code ignored;
  return !path.has_parent_path() || fs::is_directory(path.parent_path(), ignored);
}

[[noreturn]] void fail(ErrorCode code, const std::string& name) { throw RuntimeError(code, {name, 0, {}}); }

// Raises the error of a name under which something else than a file lies, or nothing can lie.
// Answers whether there is a file.
bool requireFile(const fs::path& path, const std::string& name) {
  if (name.empty()) fail(ErrorCode::pathAccess, name);
  if (!folderExists(path)) fail(ErrorCode::pathNotFound, name);
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (error == std::errc::permission_denied) fail(ErrorCode::pathAccess, name);
  if (fs::exists(status) && !fs::is_regular_file(status)) fail(ErrorCode::pathAccess, name);
  return fs::exists(status);
}

// An open file of the system; closed with its owner.
class Descriptor {
 public:
  // Never waits, whatever lies under the path.
  Descriptor(const fs::path& path, int flags) : number_(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, 0666)) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() { close(); }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }
  // Answers whether all that was written has arrived.
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

// Calls again what a signal interrupted.
template <class Call>
ssize_t uninterrupted(const Call& call) {
  ssize_t result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

class DiskSource : public Source {
 public:
  DiskSource(Descriptor file, std::string name) : file_(std::move(file)), name_(std::move(name)) {}

  // A line that is longer than what is at hand is fetched in ever larger pieces.
  bool appendTo(std::string& bytes) override {
    const std::size_t before = bytes.size();
    bytes.resize(before + std::max(before, kChunk));
    const ssize_t count =
        uninterrupted([&] { return ::read(file_.number(), bytes.data() + before, bytes.size() - before); });
    if (count < 0) fail(ErrorCode::deviceIo, name_);
    bytes.resize(before + static_cast<std::size_t>(count));
    return count > 0;
  }

 private:
  Descriptor file_;
  std::string name_;
};

bool writeAll(const Descriptor& file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = uninterrupted([&] { return ::write(file.number(), bytes.data(), bytes.size()); });
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace

std::string Files::read(const std::string& name) {
  OpenFile file = open(name);
  while (file.rest && file.rest->appendTo(file.bytes)) {
  }
  return std::move(file.bytes);
}

OpenFile DiskFiles::open(const std::string& name) {
  const fs::path path = lookup_(name);
  if (!requireFile(path, name)) fail(ErrorCode::fileNotFound, name);
  Descriptor file(path, O_RDONLY);
  if (!file.isOpen()) fail(ErrorCode::pathAccess, name);
  return {{}, std::make_unique<DiskSource>(std::move(file), name)};
}

void DiskFiles::create(const std::string& name) {
  const fs::path path = pathOf(name);
  requireFile(path, name);
  if (!Descriptor(path, O_WRONLY | O_CREAT | O_TRUNC).isOpen()) fail(ErrorCode::pathAccess, name);
}

void DiskFiles::append(const std::string& name, std::string_view bytes) {
  Descriptor file(pathOf(name), O_WRONLY | O_CREAT | O_APPEND);
  if (!file.isOpen() || !writeAll(file, bytes) || !file.close()) fail(ErrorCode::deviceIo, name);
}

OpenFile MemoryFiles::open(const std::string& name) {
  const auto found = contents.find(name);
  if (found == contents.end()) fail(name.empty() ? ErrorCode::pathAccess : ErrorCode::fileNotFound, name);
  return {found->second, nullptr};
}

void MemoryFiles::create(const std::string& name) {
  if (name.empty()) fail(ErrorCode::pathAccess, name);
  contents[name].clear();
}

void MemoryFiles::append(const std::string& name, std::string_view bytes) { contents[name] += bytes; }

}  // namespace brolgan
