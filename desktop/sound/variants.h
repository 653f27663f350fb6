// The variants of a sound: files beside it of the same name with -2, -3 and so on behind it, which
// sound in turn, so that no two blows in a row are the same.
#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace brolgan::desktop {

class Variants {
 public:
  // The file to play when a sound is asked for: itself the first time, then each of its variants,
  // then itself again. Without variants, or when the file itself is missing, always the file itself.
  std::string next(const std::string& path);

 private:
  // How often each sound was asked for.
  std::map<std::string, std::size_t> asked_;
};

}  // namespace brolgan::desktop
