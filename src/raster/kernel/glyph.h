// Glyph bitmaps: the pixels of a bitmap that are not clear, in one colour.
#pragma once

#include "raster/kernel/format.h"
#include "raster/kernel/kernels.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// Eight pixels of a bitmap row as bits, the leftmost in bit 7. Reads no byte that holds none of
/// the `count` pixels, 1 to 8, from `first` on; the bits behind them are clear.
class GlyphRow {
  public:
    GlyphRow(const uint8_t* bytes, int32_t bitsPerPixel) : bytes_(bytes), bits_(bitsPerPixel) {}

    uint32_t pixels(int32_t first, int32_t count) const {
        uint32_t set = 0;
        if (bits_ == 1) {
            const uint8_t* const at = bytes_ + (first >> 3);
            const int32_t shift = first & 7;
            set = uint32_t{at[0]} << shift;
            if (shift + count > 8) {
                set |= uint32_t{at[1]} >> (8 - shift);
            }
        } else {
            for (int32_t i = 0; i < count; ++i) {
                set |= isSet(first + i) ? 0x80U >> i : 0;
            }
        }
        return set & (0xFF00U >> count) & 0xFF;
    }

  private:
    bool isSet(int32_t pixel) const {
        const int32_t bit = pixel * bits_;
        const uint32_t mask = (0xFF00U >> bits_) & 0xFF;
        return (uint32_t{bytes_[bit >> 3]} << (bit & 7) & mask) != 0;
    }

    const uint8_t* bytes_;
    int32_t bits_;
};

/// The bytes of eight pixels as lanes of one vector for each byte of a pixel.
template <typename Format>
class GlyphLanes {
    using Lanes [[gnu::vector_size(8)]] = uint8_t;

  public:
    explicit GlyphLanes(uint32_t pixel) {
        for (int32_t byte = 0; byte < 8 * Format::kBytes; ++byte) {
            const int32_t ofPixel = byte % Format::kBytes;
            color_[byte / 8][byte % 8] = static_cast<uint8_t>(pixel >> (8 * ofPixel));
            bit_[byte / 8][byte % 8] = static_cast<uint8_t>(0x80U >> (byte / Format::kBytes));
        }
    }

    /// Combines the colour into those of eight pixels whose bits are set.
    template <typename Mode>
    void put(uint8_t* at, uint32_t bits) const {
        const Lanes all = Lanes{} + static_cast<uint8_t>(bits);
        for (size_t i = 0; i < Format::kBytes; ++i, at += 8) {
            Lanes old;
            std::memcpy(&old, at, sizeof old);
            const Lanes mask = (all & bit_[i]) != 0;
            const Lanes combined = (Mode::combine(old, color_[i]) & mask) | (old & ~mask);
            std::memcpy(at, &combined, sizeof combined);
        }
    }

  private:
    Lanes color_[Format::kBytes];
    Lanes bit_[Format::kBytes];
};

/// The address behind the last set pixel of a glyph; null when none is set.
template <typename Format>
uint8_t* endOfGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                    int32_t height) {
    for (int32_t y = height - 1; y >= 0; --y) {
        const GlyphRow row(glyph.bits + y * glyph.stride, glyph.bitsPerPixel);
        for (int32_t x = (width - 1) & ~7; x >= 0; x -= 8) {
            const uint32_t bits = row.pixels(glyph.firstPixel + x, std::min(width - x, 8));
            if (bits != 0) {
                const int32_t last = x + 7 - std::countr_zero(bits);
                return at + y * stride + (last + 1) * ptrdiff_t{Format::kBytes};
            }
        }
    }
    return nullptr;
}

/// Eight pixels at a time, and what is left of a row one by one: nothing beside the visible pixels
/// is touched.
template <typename Format, typename Mode>
uint8_t* drawGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                   int32_t height, uint32_t pixel) {
    const GlyphLanes<Format> lanes(pixel);
    for (int32_t y = 0; y < height; ++y) {
        const GlyphRow row(glyph.bits + y * glyph.stride, glyph.bitsPerPixel);
        uint8_t* to = at + y * stride;
        int32_t x = 0;
        for (; x + 8 <= width; x += 8, to += 8 * Format::kBytes) {
            lanes.template put<Mode>(to, row.pixels(glyph.firstPixel + x, 8));
        }
        if (x == width) {
            continue;
        }
        for (uint32_t bits = row.pixels(glyph.firstPixel + x, width - x) << 24; bits != 0;
             bits <<= 1, to += Format::kBytes) {
            if ((bits & 0x80000000U) != 0) {
                putPixel<Format, Mode>(to, pixel);
            }
        }
    }
    return endOfGlyph<Format>(at, stride, glyph, width, height);
}

} // namespace quarlo::kernel
