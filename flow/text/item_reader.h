// Reads the items of one text file, one after the other: numbers, flags and strings, delimited by
// blanks, one comma or the end of a line. Every error names the file, the line and the field.
#pragma once

#include <string>
#include <string_view>

#include "flow/text/integer.h"
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
  // Over the bytes of the file called name, still in its code page.
  ItemReader(std::string name, std::string bytes);

  // Each read raises 62 when nothing at all is left of the file.

  // A text up to a comma or the end of its line, or in double quotes.
  std::string string(const Field& field);
  // Set if and only if the text is exactly "True".
  bool flag(const Field& field);
  // A number, rounded with ties to even; a word or an empty line is 0. Raises 6 beyond an Integer.
  Integer integer(const Field& field);
  // A truth value: True or False in any case, the same between # signs, or a number. Raises 13
  // on anything else.
  bool boolean(const Field& field);
  // A number that an untyped variable takes as it stands; raises 13 on a word, 6 beyond an Integer.
  Integer variant(const Field& field);

  // Raises an error that names the item read last.
  [[noreturn]] void fail(ErrorCode code, const Field& field) const;

 private:
  void begin(const Field& field);
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
  std::size_t at_ = 0;
  int line_ = 1;
  int itemLine_ = 1;
};

}  // namespace brolgan
