// The names that browsers give keys.
#pragma once

#include "input/keyboard.h"

#include <optional>
#include <string_view>

namespace gpi {

/// The key that a browser means. Letters and digits go by what the user's keyboard has on them, all
/// other keys by their place. Nothing for a place without a key.
///
/// @param code of a KeyboardEvent: the place, named after a keyboard of the United States
/// @param character its key: the character that it types, or a name
std::optional<Key> keyOfCode(std::string_view code, std::string_view character);

} // namespace gpi
