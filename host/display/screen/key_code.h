// Keys as the kernel numbers them.
#pragma once

#include <cstdint>

namespace gpi {

/// The place on the keyboard, a usage number of the USB standard, of a key by its code in
/// linux/input-event-codes.h; 0 for a code that no key has.
uint8_t placeOfCode(unsigned code);

} // namespace gpi
