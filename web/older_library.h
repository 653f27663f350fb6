// What the standard library of the compiler for browsers does not have yet and the rooms use. Included
// before every source of that build, and of no other.
#pragma once

#include <version>

#ifndef __cpp_lib_bit_cast
namespace std {

template <class To, class From>
constexpr To bit_cast(const From& from) noexcept {
  return __builtin_bit_cast(To, from);
}

}  // namespace std
#endif

#ifndef __cpp_lib_to_chars
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace std {

// For a text that is wholly a decimal number, as the rooms have it: all of it is read.
inline from_chars_result from_chars(const char* first, const char* last, double& value) {
  const double read = strtod(string(first, last).c_str(), nullptr);
  if (isinf(read)) return {last, errc::result_out_of_range};
  value = read;
  return {last, errc()};
}

}  // namespace std
#endif

#ifndef __cpp_lib_ranges
#include <algorithm>
#include <functional>

namespace std::ranges {

template <class Range, class Value, class Projection>
constexpr auto find(Range&& range, const Value& value, Projection projection) {
  return std::find_if(std::begin(range), std::end(range),
                      [&](const auto& element) { return std::invoke(projection, element) == value; });
}

template <class Range, class Value>
constexpr auto find(Range&& range, const Value& value) {
  return std::find(std::begin(range), std::end(range), value);
}

template <class Range, class Value>
constexpr void replace(Range&& range, const Value& old, const Value& value) {
  std::replace(std::begin(range), std::end(range), old, value);
}

}  // namespace std::ranges
#endif
