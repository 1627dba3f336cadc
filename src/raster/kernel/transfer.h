// Block transfers between rectangles of pixel memory.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// Two rectangles of the same size in pixels. A negative stride walks from the bottom row up; the
/// pointers then stand at the bottom rows.
struct Transfer {
    uint8_t* to;
    ptrdiff_t toStride;
    const uint8_t* from;
    ptrdiff_t fromStride;
    int32_t width;
    int32_t height;
};

/// Combines the source's bytes into the destination by drawing mode 0 to 3; any other mode writes
/// nothing. The two may overlap within a row in either direction; across rows the caller chooses
/// the strides so that no row is written before it is read.
void copyRect(const Transfer& transfer, int32_t bytesPerPixel, int32_t mode);

/// How the pixels of a surface are read or written.
struct PixelLayout {
    int32_t bitsPerPixel; ///< 8, 16 or 24
    uint32_t red;         ///< channel masks
    uint32_t green;
    uint32_t blue;
    const uint32_t* palette; ///< null for direct colour
    uint32_t paletteCount;
};

/// Converts pixels from one layout to another and combines them by drawing mode 0 to 3; any other
/// mode writes nothing. A palette is read on the source's side only; an index past its end reads
/// as 0.
///
/// A channel narrower than eight bits is widened by its lowest bit: that bit is copied into all the
/// bits below it.
void convertRect(const Transfer& transfer, const PixelLayout& from, const PixelLayout& to,
                 int32_t mode);

/// The shift that moves an 8-bit channel's top bit onto the mask's top bit: left when positive,
/// right when negative, 0 for an empty mask.
constexpr int channelShift(uint32_t mask) {
    return mask == 0 ? 0 : static_cast<int>(std::bit_width(mask)) - 8;
}

/// Shifts left by a positive and right by a negative amount; past the word's width gives 0.
constexpr uint32_t shiftBy(uint32_t value, int amount) {
    if (amount <= -32 || amount >= 32) {
        return 0;
    }
    return amount >= 0 ? value << amount : value >> -amount;
}

} // namespace quarlo::kernel
