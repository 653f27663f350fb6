#include "flow/text/item_reader.h"

#include <algorithm>
#include <utility>

#include "flow/text/code_page.h"
#include "flow/text/number_text.h"

namespace brolgan {

namespace {

bool equalsIgnoringCase(std::string_view text, std::string_view lower) {
  const auto same = [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a - 'A' + 'a' : a) == b; };
  return std::equal(text.begin(), text.end(), lower.begin(), lower.end(), same);
}

bool endsString(char c) { return c == ',' || c == '\r' || c == '\n'; }

bool endsWord(char c) { return c == ' ' || endsString(c); }

// The first place from at on that holds such a character, or the end.
template <class Test>
std::size_t findFrom(std::string_view text, std::size_t at, Test test) {
  while (at < text.size() && !test(text[at])) ++at;
  return at;
}

}  // namespace

std::string Field::text() const {
  return index < 0 ? std::string(name) : std::string(name) + "(" + std::to_string(index) + ")";
}

ItemReader::ItemReader(std::string name, std::string bytes) : name_(std::move(name)), bytes_(std::move(bytes)) {}

ItemReader::ItemReader(std::string name, OpenFile file)
    : name_(std::move(name)), bytes_(std::move(file.bytes)), rest_(std::move(file.rest)) {}

std::string ItemReader::string(const Field& field) {
  begin(field);
  skipBlanks();
  if (!atEnd() && bytes_[at_] == '"') return fromCodePage(quoted());
  const std::size_t start = at_;
  at_ = findFrom(bytes_, at_, endsString);
  std::string text = fromCodePage(std::string_view(bytes_).substr(start, at_ - start));
  skipDelimiter();
  return text;
}

bool ItemReader::flag(const Field& field) { return string(field) == "True"; }

Integer ItemReader::integer(const Field& field) {
  const auto number = parseNumber(word(field));
  return toIntegerOrFail(number.value_or(0), field);
}

bool ItemReader::boolean(const Field& field) {
  std::string_view text = word(field);
  if (const auto number = parseNumber(text)) return *number != 0;
  if (text.size() > 1 && text.front() == '#' && text.back() == '#') text = text.substr(1, text.size() - 2);
  if (equalsIgnoringCase(text, "true")) return true;
  if (equalsIgnoringCase(text, "false")) return false;
  fail(ErrorCode::typeMismatch, field);
}

Integer ItemReader::variant(const Field& field) {
  const std::string_view text = word(field);
  const auto number = parseNumber(text);
  if (!number && !text.empty()) fail(ErrorCode::typeMismatch, field);
  return toIntegerOrFail(number.value_or(0), field);
}

void ItemReader::fail(ErrorCode code, const Field& field) const {
  throw RuntimeError(code, {name_, itemLine_, field.text()});
}

void ItemReader::begin(const Field& field) {
  itemLine_ = line_;
  if (rest_ && at_ >= fetched_) fetchLine();
  if (atEnd()) fail(ErrorCode::pastEnd, field);
}

// Brings the rest of the line to hand with all that ends it: a carriage return that is the last byte
// at hand may have its line feed yet to come.
void ItemReader::fetchLine() {
  std::size_t searched = at_;
  while (rest_) {
    const std::size_t end = std::min(bytes_.find_first_of("\r\n", searched), bytes_.size());
    fetched_ = end + 1;
    if (fetched_ < bytes_.size() || (fetched_ == bytes_.size() && bytes_[end] == '\n')) return;
    searched = end - at_;
    bytes_.erase(0, at_);
    at_ = 0;
    if (!rest_->appendTo(bytes_)) rest_.reset();
  }
}

void ItemReader::skipBlanks() {
  at_ = findFrom(bytes_, at_, [](char c) { return c != ' '; });
}

// What stands between two items: blanks with one comma among them, or the end of the line.
void ItemReader::skipDelimiter() {
  skipBlanks();
  if (skipLineEnd() || atEnd() || bytes_[at_] != ',') return;
  ++at_;
}

bool ItemReader::skipLineEnd() {
  if (!atLineEnd()) return false;
  const bool carriageReturn = bytes_[at_] == '\r';
  ++at_;
  if (carriageReturn && !atEnd() && bytes_[at_] == '\n') ++at_;
  ++line_;
  return true;
}

bool ItemReader::atLineEnd() const { return !atEnd() && (bytes_[at_] == '\r' || bytes_[at_] == '\n'); }

std::string_view ItemReader::word(const Field& field) {
  begin(field);
  skipBlanks();
  const std::size_t start = at_;
  at_ = findFrom(bytes_, at_, endsWord);
  const auto text = std::string_view(bytes_).substr(start, at_ - start);
  skipDelimiter();
  return text;
}

// The text behind an opening quote, up to the closing one or the end of the line.
std::string_view ItemReader::quoted() {
  const std::size_t start = ++at_;
  at_ = std::min(bytes_.find_first_of("\"\r\n", at_), bytes_.size());
  const auto text = std::string_view(bytes_).substr(start, at_ - start);
  if (!atEnd() && bytes_[at_] == '"') ++at_;
  skipDelimiter();
  return text;
}

Integer ItemReader::toIntegerOrFail(double number, const Field& field) const {
  const double whole = round(number);
  if (!(whole >= INT16_MIN && whole <= INT16_MAX)) fail(ErrorCode::overflow, field);
  return static_cast<int>(whole);
}

}  // namespace brolgan
