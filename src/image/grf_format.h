// What the record of a GRF image says about its stream.
#pragma once

#include <quarlo/image.h>

#include <cstdint>

namespace quarlo {

inline int32_t bytesOfUnit(const GGrfImage& image) {
    return (image.bits + 7) / 8;
}

inline bool isPacked(const GGrfImage& image) {
    return image.type == G_GRF_PALETTE && image.palette != nullptr;
}

/// Whether an image has pixels, and values of a size that is known.
inline bool isReadable(const GGrfImage& image) {
    const bool sized = image.width > 0 && image.height > 0 && image.bits >= 1 && image.bits <= 32;
    return sized && (!isPacked(image) || (image.bits <= 16 && image.palette->colors != nullptr));
}

/// How a packed unit holds its indices: the first in the highest bits.
struct Packing {
    int32_t bits;
    int32_t bytes;  ///< of a unit
    int32_t pixels; ///< in a unit

    explicit Packing(const GGrfImage& image)
        : bits(image.bits), bytes(bytesOfUnit(image)), pixels(8 * bytes / bits) {}

    uint32_t index(uint32_t unit, int32_t pixel) const {
        return unit >> (8 * bytes - (pixel + 1) * bits) & ((1U << bits) - 1);
    }
};

} // namespace quarlo
