// The keys of a keyboard: where they are and what they are called.
#pragma once

#include <cstdint>

namespace gpi {

/// A key: its number, as messages have it, and its place, a usage number of the USB standard.
struct Key {
    uint8_t number;
    uint8_t place;
};

/// The number of the key in a place, on a keyboard of the United States; 0 for a place without a
/// key. Without number lock the keypad moves the cursor.
uint8_t numberAt(uint8_t place, bool numberLock);

/// A place where the key of a number is; 0 for a number that no key has.
uint8_t placeOf(uint8_t number);

/// Whether the key in a place is there once more, or is beside another of its name: what
/// GPI_KEY_EXTENDED tells.
bool isExtended(uint8_t place);

} // namespace gpi
