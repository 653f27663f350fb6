// Text files as lists of lines, for tests that change or cut one line at a time.
#pragma once

#include <string>
#include <vector>

#include "flow/text/code_page.h"
#include "flow/text/item_reader.h"

namespace brolgan::test {

using Lines = std::vector<std::string>;

// The bytes of a file of these lines, each ended as the game does.
inline std::string bytesOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += toCodePage(line) + "\r\n";
  return bytes;
}

// A reader over a file of these lines.
inline ItemReader readerOver(const std::string& name, const Lines& lines) { return {name, bytesOf(lines)}; }

// The first lines of a file.
inline Lines firstOf(const Lines& lines, std::size_t count) { return {lines.begin(), lines.begin() + count}; }

// The file with the line of that number, counted from 1, put in place of the old one.
inline Lines withLine(Lines lines, int number, const std::string& text) {
  lines.at(static_cast<std::size_t>(number - 1)) = text;
  return lines;
}

// What an error says, reduced to code, file and line.
struct Failure {
  int code = 0;
  std::string file;
  int line = 0;

  friend bool operator==(const Failure&, const Failure&) = default;
};

template <class Doing>
Failure failureOf(Doing doing) {
  try {
    doing();
  } catch (const RuntimeError& error) {
    return {static_cast<int>(error.code()), error.place().file, error.place().line};
  }
  return {};
}

inline void PrintTo(const Failure& failure, std::ostream* out) {
  *out << "error " << failure.code << " in " << failure.file << " line " << failure.line;
}

}  // namespace brolgan::test
