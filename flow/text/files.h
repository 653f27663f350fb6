// The text files of the game as whole byte strings. Names come as the game knows them: UTF-8,
// relative to the working directory, a backslash being a folder separator.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace brolgan {

class Files {
 public:
  Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  virtual ~Files() = default;

  // All bytes of a file. Raises 53, 75 or 76 when it is missing, unreadable or in no folder.
  virtual std::string read(const std::string& name) = 0;
  // Creates a file or empties it. Raises 75 or 76 when that is not possible.
  virtual void create(const std::string& name) = 0;
  // Adds bytes behind a file that was created before. Raises 57 when they cannot be stored.
  virtual void append(const std::string& name, std::string_view bytes) = 0;
};

// Files below the working directory of the process.
class DiskFiles : public Files {
 public:
  std::string read(const std::string& name) override;
  void create(const std::string& name) override;
  void append(const std::string& name, std::string_view bytes) override;
};

// Files that live in memory only: for tests and for the simulation.
class MemoryFiles : public Files {
 public:
  std::string read(const std::string& name) override;
  void create(const std::string& name) override;
  void append(const std::string& name, std::string_view bytes) override;

  // Everything that is there, by name; may be changed freely.
  std::map<std::string, std::string, std::less<>> contents;
};

}  // namespace brolgan
