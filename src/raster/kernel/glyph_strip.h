// A part of a glyph's bitmap, at most eight pixels wide, as bits.
#pragma once

#include "raster/kernel/kernels.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

class GlyphStrip {
  public:
    /// Taller glyphs are taken in parts.
    static constexpr int32_t kMostRows = 64;

    /// The strip of a glyph's visible part with its upper left corner at (left, top) and 1 to 8
    /// columns, down to the glyph's height. No byte is read that holds none of its pixels.
    GlyphStrip(const GlyphBits& glyph, int32_t left, int32_t columns, int32_t top, int32_t height)
        : rows_(std::min(height - top, kMostRows)) {
        const uint8_t* const bits = glyph.bits + top * glyph.stride;
        const int32_t first = glyph.firstPixel + left;
        if (glyph.bitsPerPixel == 1 && (first & 7) == 0 && columns == 8) {
            bits_ = bits + (first >> 3); // as the bitmap has them
            step_ = glyph.stride;
        } else {
            gather(gathered_, {bits, glyph.stride, glyph.bitsPerPixel, first}, columns, rows_);
            bits_ = gathered_;
            step_ = 1;
        }
    }
    GlyphStrip(const GlyphStrip&) = delete;
    GlyphStrip& operator=(const GlyphStrip&) = delete;

    int32_t rows() const { return rows_; }

    /// A row's pixels, the leftmost in bit 7; bits behind the last column are clear.
    uint8_t row(int32_t y) const { return bits_[y * step_]; }

    /// The last row with a set pixel; -1 when there is none.
    int32_t lastRow() const {
        int32_t y = rows_ - 1;
        while (y >= 0 && row(y) == 0) {
            --y;
        }
        return y;
    }

    /// The last set pixel of a row that has one.
    int32_t lastColumn(int32_t y) const { return 7 - std::countr_zero(row(y)); }

  private:
    static void gather(uint8_t* out, const GlyphBits& glyph, int32_t columns, int32_t rows);

    const uint8_t* bits_;
    ptrdiff_t step_;
    int32_t rows_;
    uint8_t gathered_[kMostRows];
};

} // namespace quarlo::kernel
