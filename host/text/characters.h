// Characters of UTF-16 text.
#pragma once

#include <cstddef>
#include <cstdint>

namespace gpi {

constexpr bool isHighSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xD800;
}

constexpr bool isLowSurrogate(char16_t unit) {
    return (unit & 0xFC00) == 0xDC00;
}

/// Units of the character that `left` units begin with, at least one: 2 for a surrogate pair.
constexpr size_t unitsOfCharacter(const char16_t* text, size_t left) {
    return left > 1 && isHighSurrogate(text[0]) && isLowSurrogate(text[1]) ? 2 : 1;
}

/// Its code point.
constexpr uint32_t codePointOf(const char16_t* text, size_t units) {
    return units == 2 ? 0x10000U + ((text[0] & 0x3FFU) << 10) + (text[1] & 0x3FFU) : text[0];
}

} // namespace gpi
