#include "web/outside.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "flow/text/runtime_error.h"
#include "web/page.h"

namespace brolgan::web {

namespace {

constexpr PictureSize kPictures[] = {
#include "picture_sizes.inc"
};

constexpr std::string_view kSounds[] = {
#include "sounds.inc"
};

bool isSound(std::string_view name) {
  return std::find(std::begin(kSounds), std::end(kSounds), name) != std::end(kSounds);
}

}  // namespace

double PageClock::timer() { return fixed_ ? *fixed_ : page_seconds(); }

const PictureSize* findPicture(const std::string& name) {
  const auto* const found =
      std::find_if(std::begin(kPictures), std::end(kPictures), [&](const auto& one) { return name == one.name; });
  return found == std::end(kPictures) ? nullptr : found;
}

// The game's own pictures were looked at when the page was built; any other is looked for now.
void PagePictures::load(const std::string& name) {
  if (findPicture(name) != nullptr) return;
  const int code = page_has_picture(name.c_str());
  if (code != 0) throw RuntimeError(static_cast<ErrorCode>(code), {name, 0, {}});
}

PageSounds::PageSounds() : turns_(isSound) {}

// The sounds of the game lie beside the page compressed; any other as it is named.
void PageSounds::play(const std::string& player, const std::string& fileName) {
  std::string file = fileName;
  std::replace(file.begin(), file.end(), '\\', '/');
  file = turns_.next(file);
  if (isSound(file)) file.replace(file.rfind('.'), std::string::npos, ".mp3");
  page_play(player.c_str(), file.c_str());
}

void PageSounds::stop(const std::string& player) { page_stop(player.c_str()); }

}  // namespace brolgan::web
