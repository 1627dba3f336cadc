// Glyph bitmaps: the pixels of a bitmap that are not clear, in one colour, and the others in
// another or as they are.
#pragma once

#include "raster/kernel/block.h"
#include "raster/kernel/fill.h"
#include "raster/kernel/format.h"
#include "raster/kernel/glyph_strip.h"
#include "raster/kernel/kernels.h"
#include "raster/kernel/row_color.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace quarlo::kernel {

/// Eight pixels side by side, in words of which the second overlaps the first by half.
template <typename Format>
class EightPixels {
    using Word = std::conditional_t<Format::kBytes == 1, HalfBlock, Block>;
    static constexpr size_t kWords = Format::kBytes == 3 ? 2 : 1;
    static constexpr size_t kStep = 8;

  public:
    EightPixels(uint32_t fore, uint32_t back) {
        for (size_t i = 0; i < kWords; ++i) {
            fore_[i] = wordOf(Solid<Format>(fore).block(i * kStep));
            back_[i] = wordOf(Solid<Format>(back).block(i * kStep));
            bit_[i] = loadWord<Word>(kPatternBits<Format>.data() + i * kStep);
        }
    }

    /// Combines the fore colour into the pixels whose bits are set, the leftmost in bit 7; first,
    /// where the glyph is opaque, the back colour into all of them.
    template <typename Mode, bool kOpaque>
    void put(uint8_t* at, uint8_t bits) const {
        Word ground[kWords];
        for (size_t i = 0; i < kWords; ++i) {
            ground[i] = Mode::kReads || !kOpaque ? loadWord<Word>(at + i * kStep) : Word{};
            ground[i] = kOpaque ? Mode::combine(ground[i], back_[i]) : ground[i];
        }
        const Word all = inEachByte(bits);
        for (size_t i = 0; i < kWords; ++i) {
            const auto set = reinterpret_cast<Word>((bit_[i] & all) == bit_[i]);
            storeWord(at + i * kStep,
                      (Mode::combine(ground[i], fore_[i]) & set) | (ground[i] & ~set));
        }
    }

  private:
    /// By way of 32 bits, which processors without an instruction for bytes repeat at once.
    static Word inEachByte(uint8_t bits) {
        using Half = uint32_t __attribute__((vector_size(sizeof(HalfBlock))));
        using Whole = uint32_t __attribute__((vector_size(sizeof(Block))));
        using Quads = std::conditional_t<sizeof(Word) == sizeof(Block), Whole, Half>;
        return reinterpret_cast<Word>(Quads{} + bits * 0x01010101U);
    }

    static Word wordOf(Block block) {
        uint8_t bytes[kBlock];
        storeBlock(bytes, block);
        return loadWord<Word>(bytes);
    }

    Word fore_[kWords];
    Word back_[kWords];
    Word bit_[kWords]; ///< for each byte, the bit that decides on it
};

/// A strip of fewer than eight columns. Nothing beside its pixels may be touched.
template <typename Format, typename Mode>
void putSingly(uint8_t* at, ptrdiff_t stride, const GlyphStrip& strip, uint32_t pixel) {
    for (int32_t y = 0; y < strip.rows(); ++y, at += stride) {
        uint8_t* to = at;
        for (uint32_t bits = strip.row(y); bits != 0; bits = bits << 1 & 0xFF) {
            if ((bits & 0x80) != 0) {
                putPixel<Format, Mode>(to, pixel);
            }
            to += Format::kBytes;
        }
    }
}

template <typename Format, typename Mode, bool kOpaque>
uint8_t* drawGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                   int32_t height, uint32_t fore, uint32_t back) {
    const EightPixels<Format> pixels(fore, back);
    ptrdiff_t end = 0;
    for (int32_t top = 0; top < height; top += GlyphStrip::kMostRows) {
        for (int32_t left = 0; left < width; left += 8) {
            const int32_t columns = std::min(width - left, 8);
            const GlyphStrip strip(glyph, left, columns, top, height);
            const ptrdiff_t corner = top * stride + left * ptrdiff_t{Format::kBytes};
            if (columns == 8) {
                uint8_t* to = at + corner;
                for (int32_t y = 0; y < strip.rows(); ++y, to += stride) {
                    if (kOpaque || strip.row(y) != 0) { // a third of them is clear
                        pixels.template put<Mode, kOpaque>(to, strip.row(y));
                    }
                }
            } else {
                if constexpr (kOpaque) {
                    fill<Format, Mode>(at + corner, stride, columns, strip.rows(), back);
                }
                putSingly<Format, Mode>(at + corner, stride, strip, fore);
            }
            const int32_t row = strip.lastRow();
            if (row >= 0) {
                const int32_t behind = strip.lastColumn(row) + 1;
                end = std::max(end, corner + row * stride + behind * ptrdiff_t{Format::kBytes});
            }
        }
    }
    return end == 0 ? nullptr : at + end;
}

} // namespace quarlo::kernel
