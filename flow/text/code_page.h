// The single-byte code page of the game's files, Windows-1250; inside the program all text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace brolgan {

// UTF-8 as Windows-1250; a letter that the code page does not have becomes "?".
std::string toCodePage(std::string_view utf8);

// Windows-1250 as UTF-8; the five bytes without a letter become U+FFFD.
std::string fromCodePage(std::string_view bytes);

}  // namespace brolgan
