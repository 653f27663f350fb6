// Conversions between numbers and their texts: what captions and files hold, whatever the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "flow/text/integer.h"

namespace brolgan {

// To the nearest whole number, ties to the even neighbour.
double round(double number);

// round, then an Integer; raises overflow outside the range of one.
Integer toInteger(double number);

// Decimal text with a leading blank when the number is not negative (" 12", "-3").
std::string str(Integer number);

// Decimal text without a leading blank ("12", "-3"): the form of captions and text boxes.
std::string decimal(std::int64_t number);
std::string decimal(Integer number);

// The text without the blanks at both ends.
std::string_view trim(std::string_view text);

// A number: optional sign, digits with an optional decimal point, optional exponent (E or D).
// No value for anything else, blanks included. A number too large for a double is infinite.
std::optional<double> parseNumber(std::string_view text);

// The whole number that a caption shows. Captions are written by the game, so they always hold one.
std::int64_t wholeNumber(std::string_view caption);

}  // namespace brolgan
