#include "flow/text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace brolgan {

double round(double number) {
  const double floor = std::floor(number);
  const double rest = number - floor;
  if (rest < 0.5) return floor;
  if (rest > 0.5) return floor + 1;
  return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

Integer toInteger(double number) {
  const double whole = round(number);
  if (!(whole >= INT16_MIN && whole <= INT16_MAX)) raiseOverflow();
  return static_cast<int>(whole);
}

std::string str(Integer number) { return (number < 0 ? "" : " ") + decimal(number); }

std::string decimal(std::int64_t number) {
  std::array<char, 24> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

std::string decimal(Integer number) { return decimal(std::int64_t{number.value()}); }

std::string_view trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Moves at past a run of digits and tells whether there was any.
bool skipDigits(std::string_view text, std::size_t& at) {
  const auto start = at;
  while (at < text.size() && isDigit(text[at])) ++at;
  return at > start;
}

bool skipMantissa(std::string_view text, std::size_t& at) {
  bool any = skipDigits(text, at);
  if (at < text.size() && text[at] == '.') {
    ++at;
    any = skipDigits(text, at) || any;
  }
  return any;
}

bool skipSign(std::string_view text, std::size_t& at) {
  const bool sign = at < text.size() && (text[at] == '+' || text[at] == '-');
  if (sign) ++at;
  return sign;
}

bool skipExponent(std::string_view text, std::size_t& at) {
  if (at == text.size()) return true;
  if (std::string_view("EeDd").find(text[at]) == std::string_view::npos) return false;
  ++at;
  skipSign(text, at);
  return skipDigits(text, at) && at == text.size();
}

bool hasNumberForm(std::string_view text) {
  std::size_t at = 0;
  skipSign(text, at);
  return skipMantissa(text, at) && skipExponent(text, at);
}

// A whole number with an optional sign, as a double of any size.
double exponentOf(std::string_view text) {
  const bool negative = text.front() == '-';
  if (text.front() == '-' || text.front() == '+') text.remove_prefix(1);
  double value = 0;
  for (const char digit : text) value = value * 10 + (digit - '0');
  return negative ? -value : value;
}

// About how many places the first digit that counts stands before the point, or behind it as a negative.
long leadingPlaces(std::string_view mantissa) {
  const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long>(mantissa.find_first_of("123456789"));
  return point - first;
}

// What a number of this form comes to when no double can hold it: too large or too small.
double beyondDoubles(std::string_view text) {
  const auto mark = std::min(text.find('e'), text.size());
  const double exponent = mark == text.size() ? 0 : exponentOf(text.substr(mark + 1));
  const bool small = static_cast<double>(leadingPlaces(text.substr(0, mark))) + exponent < 0;
  const double size = small ? 0 : std::numeric_limits<double>::infinity();
  return text.front() == '-' ? -size : size;
}

double valueOf(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == 'd' || c == 'D' || c == 'E'; }, 'e');
  const char* first = text.data() + (text.front() == '+' ? 1 : 0);
  double value = 0;
  const auto result = std::from_chars(first, text.data() + text.size(), value);
  return result.ec == std::errc::result_out_of_range ? beyondDoubles(text) : value;
}

// A whole number of a few digits and nothing else, which needs no further look.
std::optional<double> fewDigits(std::string_view text) {
  constexpr std::size_t kFew = 9;
  if (text.empty() || text.size() > kFew) return std::nullopt;
  int value = 0;
  for (const char c : text) {
    if (!isDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
  if (const auto number = fewDigits(text)) return number;
  if (!hasNumberForm(text)) return std::nullopt;
  return valueOf(std::string(text));
}

std::int64_t wholeNumber(std::string_view caption) {
  std::int64_t value = 0;
  std::from_chars(caption.data(), caption.data() + caption.size(), value);
  return value;
}

}  // namespace brolgan
