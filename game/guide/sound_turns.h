// The variants of a sound: files beside it of the same name with -2, -3 and so on behind it, which
// sound in turn, so that no two blows in a row are the same. For every face alike.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>

namespace brolgan {

class SoundTurns {
 public:
  // isSound tells whether there is a file of that path.
  explicit SoundTurns(std::function<bool(const std::string&)> isSound) : isSound_(std::move(isSound)) {}

  // The file to play when a sound is asked for, folders parted by slashes: itself the first time, then
  // each of its variants, then itself again. Without variants, or when the file itself is missing,
  // always the file itself.
  std::string next(const std::string& path);

 private:
  std::function<bool(const std::string&)> isSound_;
  // How often each sound was asked for.
  std::map<std::string, std::size_t> asked_;
};

}  // namespace brolgan
