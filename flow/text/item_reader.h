// Reads the items of one text file, one after the other: numbers, flags and strings, delimited by
// blanks, one comma or the end of a line. Every error names the file, the line and the field. No
// more of the file is asked for than the line of the item.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "flow/text/integer.h"
#include "flow/text/open_file.h"
#include "flow/text/runtime_error.h"

namespace brolgan {

// What an item is called in an error message: a field, with an index when it is one of many.
struct Field {
  Field(const char* fieldName, int fieldIndex = -1) : name(fieldName), index(fieldIndex) {}  // NOLINT
  [[nodiscard]] std::string text() const;

  const char* name;
  int index;
};

class ItemReader {
 public:
  // Over the file called name, still in its code page: all of its bytes, or as it was opened.
  ItemReader(std::string name, std::string bytes);
  ItemReader(std::string name, OpenFile file);

  // Each read raises pastEnd when nothing at all is left of the file, and deviceIo when what is left
  // cannot be read.

  // A text up to a comma or the end of its line, or in double quotes.
  std::string string(const Field& field);
  // Set if and only if the text is exactly "True".
  bool flag(const Field& field);
  // A number, rounded with ties to even; a word or an empty line is 0. Raises overflow
  // beyond an Integer.
  Integer integer(const Field& field);
  // A truth value: True or False in any case, the same between # signs, or a number. Raises
  // typeMismatch on anything else.
  bool boolean(const Field& field);
  // A number that an untyped variable takes as it stands; raises typeMismatch on a word, overflow
  // beyond an Integer.
  Integer variant(const Field& field);

  // The line of the item read last, counted from 1.
  [[nodiscard]] int line() const { return itemLine_; }
  // Raises an error that names the item read last.
  [[noreturn]] void fail(ErrorCode code, const Field& field) const;

 private:
  void begin(const Field& field);
  void fetchLine();
  void skipBlanks();
  void skipDelimiter();
  bool skipLineEnd();
  [[nodiscard]] bool atLineEnd() const;
  [[nodiscard]] bool atEnd() const { return at_ == bytes_.size(); }
  std::string_view word(const Field& field);
  std::string_view quoted();
  Integer toIntegerOrFail(double number, const Field& field) const;

  std::string name_;
  std::string bytes_;
  std::unique_ptr<Source> rest_;
  std::size_t at_ = 0;
  std::size_t fetched_ = 0;  // behind the line that is at hand as a whole
  int line_ = 1;
  int itemLine_ = 1;
};

}  // namespace brolgan
