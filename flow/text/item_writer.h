// Writes the items of one text file, one a line, in the game's code page with carriage return and
// line feed. The file is emptied at once; when an error unwinds a writer, the file keeps the lines
// that were written until then.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "flow/text/files.h"
#include "flow/text/integer.h"
#include "flow/text/item_reader.h"

namespace brolgan {

class ItemWriter {
 public:
  // Creates or empties the file; raises pathAccess or pathNotFound when that is not possible.
  ItemWriter(Files& files, std::string name);
  ItemWriter(const ItemWriter&) = delete;
  ItemWriter& operator=(const ItemWriter&) = delete;
  ~ItemWriter();

  void string(std::string_view text);
  void flag(bool set);
  void integer(Integer number);
  // A number of a caption or a sum as an Integer, rounded with ties to even. Raises
  // overflow, with the file, the line and the field, when it is beyond the range of one.
  void rounded(double number, const Field& field);
  // Several numbers side by side on one line.
  void integers(std::initializer_list<Integer> numbers);
  // Stores all lines; raises deviceIo when they cannot be stored. Nothing may be written after it.
  void close();

 private:
  void endLine();

  Files& files_;
  std::string name_;
  std::string lines_;
  int written_ = 0;
};

}  // namespace brolgan
