// Keys by name, and by the characters they type.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace panel {

/// The number of a key (gpi/keys.h): a letter or digit, F1 to F24, or a name such as Enter or Left.
std::optional<int32_t> keyNamed(std::string_view name);

/// A key of a United States keyboard, and whether Shift is held with it.
struct Stroke {
    int32_t key;
    bool shifted;
};

/// The stroke that types a character.
std::optional<Stroke> strokeOf(char character);

/// The character that a stroke types, upper case; 0 for none.
char characterOf(const Stroke& stroke);

} // namespace panel
