// Batches of horizontal runs in one solid colour or one pattern.
#pragma once

#include "raster/kernel/kernels.h"
#include "raster/kernel/tile.h"

#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// A tile of twice the length, so that a row can start at every pixel of an 8-pixel pattern.
struct PatternTile {
    uint8_t bytes[2 * Tile::kPeriod];

    template <typename Format>
    static PatternTile make(uint8_t row, uint32_t fore, uint32_t back) {
        const Tile tile = patternTile<Format>(row, fore, back);
        PatternTile twice;
        std::memcpy(twice.bytes, tile.bytes, Tile::kPeriod);
        std::memcpy(twice.bytes + Tile::kPeriod, tile.bytes, Tile::kPeriod);
        return twice;
    }
};

template <typename Format>
inline uint8_t* spanStart(uint8_t* pixels, ptrdiff_t stride, const Span& span) {
    return pixels + span.y * stride + span.left * ptrdiff_t{Format::kBytes};
}

template <typename Format>
inline size_t spanLength(const Span& span) {
    return static_cast<size_t>(span.right - span.left + 1) * Format::kBytes;
}

template <typename Format, typename Mode>
uint8_t* fillSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                   uint32_t pixel) {
    const Tile tile = solidTile<Format>(pixel);
    uint8_t* end = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        uint8_t* const start = spanStart<Format>(pixels, stride, spans[i]);
        const size_t length = spanLength<Format>(spans[i]);
        fillRow<Mode>(start, length, tile.bytes);
        end = start + length;
    }
    return end;
}

template <typename Format, typename Mode>
uint8_t* fillPatternSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                          uint32_t fore, uint32_t back, const uint8_t rows[8]) {
    PatternTile tiles[8];
    unsigned made = 0;
    uint8_t* end = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        const Span& span = spans[i];
        const int row = span.y & 7;
        if ((made >> row & 1) == 0) {
            tiles[row] = PatternTile::make<Format>(rows[row], fore, back);
            made |= 1U << row;
        }
        uint8_t* const start = spanStart<Format>(pixels, stride, span);
        const size_t length = spanLength<Format>(span);
        fillRow<Mode>(start, length, tiles[row].bytes + (span.left & 7) * Format::kBytes);
        end = start + length;
    }
    return end;
}

} // namespace quarlo::kernel
