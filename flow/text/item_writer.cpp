#include "flow/text/item_writer.h"

#include <exception>
#include <utility>

#include "flow/text/code_page.h"
#include "flow/text/number_text.h"
#include "flow/text/runtime_error.h"

namespace brolgan {

ItemWriter::ItemWriter(Files& files, std::string name) : files_(files), name_(std::move(name)) { files_.create(name_); }

ItemWriter::~ItemWriter() {
  if (lines_.empty()) return;
  try {
    files_.append(name_, lines_);
  } catch (const std::exception&) {  // An error is on its way already; a second one would hide it.
    lines_.clear();
  }
}

void ItemWriter::string(std::string_view text) {
  lines_ += toCodePage(text);
  endLine();
}

void ItemWriter::flag(bool set) { string(set ? "True" : "False"); }

void ItemWriter::integer(Integer number) { integers({number}); }

void ItemWriter::rounded(double number, const Field& field) {
  const double whole = round(number);
  if (!(whole >= INT16_MIN && whole <= INT16_MAX)) {
    throw RuntimeError(ErrorCode::overflow, {name_, written_ + 1, field.text()});
  }
  integer(toInteger(whole));
}

void ItemWriter::integers(std::initializer_list<Integer> numbers) {
  for (const Integer number : numbers) {
    lines_ += str(number);
    lines_ += ' ';
  }
  endLine();
}

void ItemWriter::endLine() {
  lines_ += "\r\n";
  ++written_;
}

void ItemWriter::close() {
  const std::string lines = std::exchange(lines_, {});
  files_.append(name_, lines);
}

}  // namespace brolgan
