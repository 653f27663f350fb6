#include "desktop/play_folder.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace brolgan::desktop {

namespace {

namespace fs = std::filesystem;

// Where an installed program finds its data, from its own folder, and what that folder is called.
const fs::path kDataFromProgram = BROLGAN_DATA_FROM_PROGRAM;
const fs::path kProgramFolder = BROLGAN_PROGRAM_FOLDER;

constexpr mode_t kPlayerAlone = 0700;

std::string wordingOf(int reason) {
  switch (reason) {
    case EACCES:
    case EPERM:
      return "brak uprawnień";
    case EROFS:
      return "nośnik tylko do odczytu";
    case ENOSPC:
    case EDQUOT:
      return "brak miejsca na dysku";
    case EEXIST:
    case ENOTDIR:
      return "pod tą nazwą leży coś, co nie jest folderem";
    case ENAMETOOLONG:
      return "zbyt długa nazwa";
    default:
      return "błąd systemu " + std::to_string(reason) + " (" + std::strerror(reason) + ")";
  }
}

std::string valueOf(const char* variable) {
  const char* const value = std::getenv(variable);
  return value == nullptr ? "" : value;
}

fs::path homeFolder() {
  fs::path told = valueOf("HOME");
  if (told.is_absolute()) return told;
  const passwd* const known = getpwuid(getuid());
  return known == nullptr ? "/" : known->pw_dir;
}

bool isFolder(const fs::path& path) {
  std::error_code unknown;
  return fs::is_directory(path, unknown);
}

// Another game may make the same folder at the same moment.
void make(const fs::path& folder) {
  fs::path made;
  for (const fs::path& part : folder) {
    made /= part;
    if (isFolder(made) || ::mkdir(made.c_str(), kPlayerAlone) == 0) continue;
    const int reason = errno;
    if (!isFolder(made)) throw PlayFolderError(made, reason);
  }
}

}  // namespace

PlayFolderError::PlayFolderError(const fs::path& folder, int reason)
    : text_(std::string("Gra nie może pisać w folderze gracza.\nFolder: ") + folder.string() +
            "\nPowód: " + wordingOf(reason)) {}

fs::path installedData(const fs::path& program) {
  const fs::path folder = program.parent_path();
  const fs::path data = (folder / kDataFromProgram).lexically_normal();
  return folder.filename() == kProgramFolder && isFolder(data) ? data : fs::path();
}

fs::path playerFolder(const std::string& dataHome, const fs::path& home) {
  const fs::path base = dataHome;
  return (base.is_absolute() ? base : home / ".local/share") / "brolgan";
}

void enterPlayFolder(const fs::path& folder) {
  make(folder);
  if (::access(folder.c_str(), R_OK | W_OK | X_OK) != 0 || ::chdir(folder.c_str()) != 0) {
    throw PlayFolderError(folder, errno);
  }
}

Lookup goToPlay() {
  std::error_code unknown;
  const fs::path data = installedData(fs::read_symlink("/proc/self/exe", unknown));
  if (data.empty()) return Lookup();
  enterPlayFolder(playerFolder(valueOf("XDG_DATA_HOME"), homeFolder()));
  return Lookup(data);
}

}  // namespace brolgan::desktop
