// The folder in which the game plays. A program that was installed plays in the player's own folder and
// reads from its installed data what is not there; any other plays in the working directory.
#pragma once

#include <exception>
#include <filesystem>
#include <string>

#include "flow/text/lookup.h"

namespace brolgan::desktop {

// The player's folder cannot be made or written. Tells which and why, in Polish.
class PlayFolderError : public std::exception {
 public:
  // reason: an errno of the system.
  PlayFolderError(const std::filesystem::path& folder, int reason);

  [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

 private:
  std::string text_;
};

// The data that were installed with the program of that path; empty when it was not installed.
std::filesystem::path installedData(const std::filesystem::path& program);

// The player's own folder: below dataHome, the value of XDG_DATA_HOME, when that is an absolute path,
// else below the home folder.
std::filesystem::path playerFolder(const std::string& dataHome, const std::filesystem::path& home);

// Goes to the folder and makes it if need be, for the player alone, as well as those above it. Raises
// PlayFolderError when it cannot be made, entered or written.
void enterPlayFolder(const std::filesystem::path& folder);

// Takes the running program to where it plays, and tells where it finds what it reads. Raises
// PlayFolderError.
Lookup goToPlay();

}  // namespace brolgan::desktop
