// What the record of a GRF image says about its stream.
#pragma once

#include <quarlo/grf_stream.h>

#include <cstdint>

namespace quarlo {

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
        : bits(image.bits), bytes(GGrfBytesOfUnit(&image)), pixels(GGrfPixelsOfUnit(&image)) {}

    uint32_t index(uint32_t unit, int32_t pixel) const {
        return GGrfIndexInUnit(unit, pixel, bits, bytes);
    }
};

} // namespace quarlo
