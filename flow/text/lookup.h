// Where a file that is to be read lies: in the working directory or, when nothing of its name lies
// there, in the folder of the data that were installed with the program.
#pragma once

#include <string>
#include <utility>

namespace brolgan {

class Lookup {
 public:
  // Without a folder of installed data everything lies in the working directory.
  explicit Lookup(std::string installed = {}) : installed_(std::move(installed)) {}

  // The path under which to read a name of the game, a backslash being a folder separator. What lies
  // in neither place is missed in the working directory.
  [[nodiscard]] std::string operator()(const std::string& name) const;

 private:
  std::string installed_;
};

}  // namespace brolgan
