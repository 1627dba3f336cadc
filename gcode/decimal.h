// Decimal numbers as text, whatever the locale: what std::from_chars() and std::to_chars() do by
// their fixed format, which not every standard library has.
#pragma once

#include <charconv>

namespace gcode {

/// Reads a number without an exponent off the front of a text.
std::from_chars_result readDecimal(const char* first, const char* last, double& value);

/// Writes a number, rounded to that many decimals.
std::to_chars_result writeDecimal(char* first, char* last, double value, int decimals);

} // namespace gcode
