// Keys as viewers name them.
#pragma once

#include "input/keyboard.h"

#include <cstdint>
#include <optional>

namespace gpi {

/// The key behind a symbol of the X Window System, which viewers send: the one that has it on a
/// keyboard of the United States, shifted or not. Nothing for a symbol that no key has there.
std::optional<Key> keyOfSymbol(uint32_t symbol);

} // namespace gpi
