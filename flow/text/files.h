// The text files of the game. Names come as the game knows them: UTF-8, relative to the working
// directory, a backslash being a folder separator. What lies under a name is a file or an error at
// once: no pipe, device or folder is ever waited for.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "flow/text/lookup.h"
#include "flow/text/open_file.h"

namespace brolgan {

class Files {
 public:
  Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  virtual ~Files() = default;

  // Opens a file at its first byte. Raises fileNotFound when it is missing, pathNotFound when it is
  // in no folder, pathAccess when it is no file or may not be read.
  virtual OpenFile open(const std::string& name) = 0;
  // Creates a file or empties it. Raises pathNotFound when it is in no folder, pathAccess when what
  // is there is no file or may not be written.
  virtual void create(const std::string& name) = 0;
  // Adds bytes behind a file that was created before. Raises deviceIo when they cannot be stored.
  virtual void append(const std::string& name, std::string_view bytes) = 0;

  // All bytes of a file. Raises what open raises, and deviceIo when they cannot be read.
  std::string read(const std::string& name);
};

// Files below the working directory of the process; what is not there to be read is taken from the
// installed data.
class DiskFiles : public Files {
 public:
  explicit DiskFiles(Lookup lookup = Lookup()) : lookup_(std::move(lookup)) {}

  OpenFile open(const std::string& name) override;
  void create(const std::string& name) override;
  void append(const std::string& name, std::string_view bytes) override;

 private:
  Lookup lookup_;
};

// Files that live in memory only: for tests and for the simulation.
class MemoryFiles : public Files {
 public:
  OpenFile open(const std::string& name) override;
  void create(const std::string& name) override;
  void append(const std::string& name, std::string_view bytes) override;

  // Everything that is there, by name; may be changed freely.
  std::map<std::string, std::string, std::less<>> contents;
};

}  // namespace brolgan
