// One expression for every drawing mode, so that a build for size needs one loop for all of them.
#pragma once

#include <cstdint>

namespace quarlo::kernel {

/// A colour and the way to combine it with what is there: (old AND keep) XOR flip.
struct Ink {
    uint32_t keep;
    uint32_t flip;

    void putByte(uint8_t* at) const { *at = static_cast<uint8_t>((*at & keep) ^ flip); }

    /// Combines a pixel of `bytes` bytes into memory, low byte first.
    void put(uint8_t* at, int32_t bytes) const {
        for (Ink rest = *this; bytes > 0; --bytes, rest.keep >>= 8, rest.flip >>= 8) {
            rest.putByte(at++);
        }
    }
};

/// Drawing modes 0 to 3: copy, AND, OR, XOR.
inline Ink inkOf(uint32_t color, int32_t mode) {
    const Ink inks[] = {{0, color}, {color, 0}, {~color, color}, {~0U, color}};
    return inks[mode];
}

} // namespace quarlo::kernel
