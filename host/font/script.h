// Which script a character belongs to.
#pragma once

#include <cstdint>

namespace gpi {

constexpr bool isBetween(uint32_t value, uint32_t low, uint32_t high) {
    return low <= value && value <= high;
}

/// Ideographs proper, of which Chinese and Japanese have forms of their own.
constexpr bool isHan(uint32_t character) {
    return isBetween(character, 0x2E80, 0x2FDF) || isBetween(character, 0x3400, 0x9FFF) ||
           isBetween(character, 0xF900, 0xFAFF) || isBetween(character, 0x20000, 0x3FFFF);
}

/// All that is written with ideographs: kana, bopomofo, punctuation, enclosed letters, full-width
/// and half-width forms.
constexpr bool isIdeographic(uint32_t character) {
    return isBetween(character, 0x2E80, 0xA4CF) || isHan(character) ||
           isBetween(character, 0xFE30, 0xFE6F) || isBetween(character, 0xFF00, 0xFFEF);
}

} // namespace gpi
