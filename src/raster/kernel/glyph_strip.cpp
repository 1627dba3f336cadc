#include "raster/kernel/glyph_strip.h"

namespace quarlo::kernel {
namespace {

/// Eight pixels of one bit each from any bit on. The second byte is read only where it is needed.
uint32_t oneBitPixels(const uint8_t* row, int32_t first, int32_t columns) {
    const uint8_t* const at = row + (first >> 3);
    const int32_t shift = first & 7;
    const uint32_t next = shift + columns > 8 ? at[1] : 0;
    return (uint32_t{at[0]} << 8 | next) << shift >> 8;
}

/// Pixels of 2, 4 or 8 bits; those with any bit set.
uint32_t deepPixels(const uint8_t* row, int32_t bitsPerPixel, int32_t first, int32_t columns) {
    const uint32_t mask = (0xFF00U >> bitsPerPixel) & 0xFF;
    uint32_t set = 0;
    for (int32_t i = 0; i < columns; ++i) {
        const int32_t bit = (first + i) * bitsPerPixel;
        set |= (uint32_t{row[bit >> 3]} << (bit & 7) & mask) != 0 ? 0x80U >> i : 0;
    }
    return set;
}

} // namespace

void GlyphStrip::gather(uint8_t* out, const GlyphBits& glyph, int32_t columns, int32_t rows) {
    const uint32_t inStrip = (0xFF00U >> columns) & 0xFF;
    const uint8_t* row = glyph.bits;
    for (int32_t y = 0; y < rows; ++y, row += glyph.stride) {
        const uint32_t set = glyph.bitsPerPixel == 1
                                 ? oneBitPixels(row, glyph.firstPixel, columns)
                                 : deepPixels(row, glyph.bitsPerPixel, glyph.firstPixel, columns);
        out[y] = static_cast<uint8_t>(set & inStrip);
    }
}

} // namespace quarlo::kernel
