// The game's whole number: signed, 16 bits, never wrapping. Every stored number is one.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <type_traits>

namespace brolgan {

// Raises overflow. Stands apart so that Integer stays cheap to inline.
[[noreturn]] void raiseOverflow();

class Integer {
 public:
  constexpr Integer() = default;

  // Implicit for whole numbers and named places; a floating value must go through toInteger.
  // Raises overflow outside -32768 to 32767.
  template <class Number>
  requires std::same_as<Number, int> || std::is_enum_v<Number>
  constexpr Integer(Number number) : value_(narrow(number)) {}  // NOLINT(google-explicit-constructor)

  [[nodiscard]] constexpr int value() const { return value_; }

  // Each raises overflow when its result leaves the range.
  friend constexpr Integer operator+(Integer a, Integer b) { return {a.value() + b.value()}; }
  friend constexpr Integer operator-(Integer a, Integer b) { return {a.value() - b.value()}; }
  friend constexpr Integer operator*(Integer a, Integer b) { return {a.value() * b.value()}; }
  constexpr Integer& operator+=(Integer other) { return *this = *this + other; }
  constexpr Integer& operator-=(Integer other) { return *this = *this - other; }

  friend constexpr bool operator==(Integer a, Integer b) = default;
  friend constexpr auto operator<=>(Integer a, Integer b) = default;

 private:
  static constexpr std::int16_t narrow(int number) {
    if (number < INT16_MIN || number > INT16_MAX) raiseOverflow();
    return static_cast<std::int16_t>(number);
  }

  std::int16_t value_ = 0;
};

}  // namespace brolgan
