// The characters of part programs.
#pragma once

#include <string_view>

namespace gcode {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The capital of an ASCII letter, or 0.
constexpr char capitalLetter(char c) {
    if (c >= 'a' && c <= 'z') {
        return static_cast<char>(c - 'a' + 'A');
    }
    return c >= 'A' && c <= 'Z' ? c : '\0';
}

inline void skipBlanks(std::string_view& text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
}

/// Takes a character off the text, after blanks, if it comes next.
inline bool takeCharacter(std::string_view& text, char c) {
    skipBlanks(text);
    if (text.empty() || text.front() != c) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

} // namespace gcode
