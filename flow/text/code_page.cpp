#include "flow/text/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace brolgan {

namespace {

// Code points of the bytes 0x80 to 0xFF; 0 where the page has no letter.
constexpr std::array<char16_t, 128> kUpperHalf = {
    0x20AC, 0,      0x201A, 0,      0x201E, 0x2026, 0x2020, 0x2021, 0,      0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0,      0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};

constexpr char32_t kNoLetter = 0xFFFD;

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Reads one code point and moves at past it; a malformed byte counts as one unknown letter.
char32_t nextCodePoint(std::string_view utf8, std::size_t& at) {
  const auto lead = static_cast<unsigned char>(utf8[at++]);
  if (lead < 0x80) return lead;
  const int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (extra == 0) return kNoLetter;
  char32_t point = lead & (0x3F >> extra);
  for (int i = 0; i < extra; ++i) {
    if (at == utf8.size() || (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80) return kNoLetter;
    point = (point << 6) | (static_cast<unsigned char>(utf8[at++]) & 0x3F);
  }
  return point;
}

char encode(char32_t point) {
  if (point < 0x80) return static_cast<char>(point);
  const auto* const found = std::find(kUpperHalf.begin(), kUpperHalf.end(), static_cast<char16_t>(point));
  if (point > 0xFFFF || found == kUpperHalf.end()) return '?';
  return static_cast<char>(0x80 + (found - kUpperHalf.begin()));
}

void appendUtf8(std::string& text, char32_t point) {
  if (point < 0x80) {
    text += static_cast<char>(point);
  } else if (point < 0x800) {
    text += static_cast<char>(0xC0 | (point >> 6));
    text += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (point >> 12));
    text += static_cast<char>(0x80 | ((point >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (point & 0x3F));
  }
}

char32_t decode(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code < 0x80) return code;
  const char16_t point = kUpperHalf[code - 0x80U];
  return point == 0 ? kNoLetter : char32_t{point};
}

}  // namespace

std::string toCodePage(std::string_view utf8) {
  if (isAscii(utf8)) return std::string(utf8);
  std::string bytes;
  for (std::size_t at = 0; at < utf8.size();) bytes += encode(nextCodePoint(utf8, at));
  return bytes;
}

std::string fromCodePage(std::string_view bytes) {
  if (isAscii(bytes)) return std::string(bytes);
  std::string text;
  for (const char byte : bytes) appendUtf8(text, decode(byte));
  return text;
}

}  // namespace brolgan
