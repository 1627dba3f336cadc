// Keys that a person presses at the window.
#pragma once

#include <cstddef>

namespace gallery {

enum class Key { Previous, Next, First, Last, Close };

/// The sheet to turn to from another one by a key; before the first one comes the last.
size_t turned(size_t sheet, size_t count, Key key);

/// Waits for the next key that means something. Close when the window was closed, or when there is
/// none.
Key waitForKey();

} // namespace gallery
