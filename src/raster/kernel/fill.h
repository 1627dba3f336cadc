// Rectangles, solid and patterned.
#pragma once

#include "raster/kernel/tile.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

template <typename Format, typename Mode>
uint8_t* fill(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height, uint32_t pixel) {
    const Tile tile = solidTile<Format>(pixel);
    auto length = static_cast<size_t>(width) * Format::kBytes;
    if (static_cast<ptrdiff_t>(length) == stride) {
        length *= static_cast<size_t>(height);
        height = 1;
    }
    for (; height > 1; --height) {
        fillRow<Mode>(at, length, tile.bytes);
        at += stride;
    }
    fillRow<Mode>(at, length, tile.bytes);
    return at + length;
}

template <typename Format, typename Mode>
uint8_t* fillPattern(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height, uint32_t fore,
                     uint32_t back, const uint8_t rows[8], int32_t x, int32_t y) {
    Tile tiles[8];
    const int32_t distinct = std::min(height, 8);
    for (int32_t row = 0; row < distinct; ++row) {
        const uint8_t bits = std::rotl(rows[(y + row) & 7], x & 7);
        tiles[row] = patternTile<Format>(bits, fore, back);
    }
    const auto length = static_cast<size_t>(width) * Format::kBytes;
    for (int32_t row = 0; row < height; ++row) {
        fillRow<Mode>(at + row * stride, length, tiles[row & 7].bytes);
    }
    return at + (height - 1) * stride + length;
}

} // namespace quarlo::kernel
