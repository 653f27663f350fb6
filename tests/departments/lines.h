// Files as a test writes them down: lines of text, put together from pieces, and the bytes that
// they must be on disk.
#pragma once

#include <fstream>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace brolgan::test {

using Lines = std::vector<std::string>;

inline Lines joined(std::initializer_list<Lines> pieces) {
  Lines all;
  for (const Lines& piece : pieces) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

inline Lines repeated(int times, const Lines& piece) {
  Lines all;
  for (int i = 0; i < times; ++i) all.insert(all.end(), piece.begin(), piece.end());
  return all;
}

inline Lines firstOf(const Lines& all, std::size_t count) {
  return {all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count)};
}

// With line number, counted from 1, replaced.
inline Lines withLine(Lines all, std::size_t number, const std::string& text) {
  all.at(number - 1) = text;
  return all;
}

// The Polish letters, UTF-8 and the byte that the game's files have for each.
inline const std::map<std::string, char, std::less<>>& polishLetters() {
  static const std::map<std::string, char, std::less<>> letters = {
      {"ą", '\xB9'}, {"ć", '\xE6'}, {"ę", '\xEA'}, {"ł", '\xB3'}, {"ń", '\xF1'}, {"ó", '\xF3'},
      {"ś", '\x9C'}, {"ź", '\x9F'}, {"ż", '\xBF'}, {"Ą", '\xA5'}, {"Ć", '\xC6'}, {"Ę", '\xCA'},
      {"Ł", '\xA3'}, {"Ń", '\xD1'}, {"Ó", '\xD3'}, {"Ś", '\x8C'}, {"Ź", '\x8F'}, {"Ż", '\xAF'}};
  return letters;
}

// The very bytes of a file with these lines: one byte a letter, every line ended by both marks.
inline std::string bytesOf(const Lines& all) {
  std::string bytes;
  for (const std::string& line : all) {
    for (std::size_t at = 0; at < line.size();) {
      const bool plain = static_cast<unsigned char>(line[at]) < 0x80;
      bytes += plain ? line[at] : polishLetters().at(line.substr(at, 2));
      at += plain ? 1 : 2;
    }
    bytes += "\r\n";
  }
  return bytes;
}

// A file of the test data, where every line stands between two bars so that its blanks show.
inline Lines dataLines(const std::string& name) {
  std::ifstream file(std::string(BROLGAN_TEST_DATA) + "/" + name);
  if (!file) throw std::runtime_error("no test data " + name);
  Lines all;
  for (std::string line; std::getline(file, line);) {
    if (line.size() < 2 || line.front() != '|' || line.back() != '|') throw std::runtime_error("bars in " + name);
    all.push_back(line.substr(1, line.size() - 2));
  }
  return all;
}

}  // namespace brolgan::test
