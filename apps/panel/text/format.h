// Values as text.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace panel {

/// A number with a fixed count of decimals; dashes for one that is not a number.
std::u16string fixed(double value, int decimals);

/// A number as short as it says the same, with six decimals at most; empty for one that is not.
std::u16string shortest(double value);

/// A length in the unit in force: thousandths of a millimetre, or ten thousandths of an inch.
std::u16string lengthText(double millimetres, bool inches);

std::u16string wholeText(double value);

/// A time of day, such as 12:05:09.
std::u16string clockText(uint32_t time);

/// A span of time, such as 1:02:03.
std::u16string spanText(double seconds);

/// Texts one after the other.
std::u16string joined(std::initializer_list<std::u16string_view> parts);

/// ASCII as UTF-16.
std::u16string wide(std::string_view text);

/// Bytes of the configured code page as UTF-16.
std::u16string decoded(std::string_view bytes);

/// The number that a text spells in full.
/// @return whether it spells one
bool parseNumber(const std::u16string& text, double& value);

/// What follows the last slash of a path.
std::u16string fileName(const std::u16string& path);

} // namespace panel
