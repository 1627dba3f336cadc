// Rectangles, solid and patterned.
#pragma once

#include "raster/kernel/rows.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// A rectangle one pixel wide: no row of it is worth a block.
template <typename Format, typename Mode>
void fillColumn(uint8_t* at, ptrdiff_t stride, int32_t height, uint32_t pixel) {
    for (; height > 0; --height, at += stride) {
        putPixel<Format, Mode>(at, pixel);
    }
}

template <typename Format, typename Mode>
uint8_t* fill(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height, uint32_t pixel) {
    auto length = static_cast<size_t>(width) * Format::kBytes;
    uint8_t* const end = at + (height - 1) * stride + length;
    if (width == 1) {
        fillColumn<Format, Mode>(at, stride, height, pixel);
        return end;
    }
    if (static_cast<ptrdiff_t>(length) == stride) {
        length *= static_cast<size_t>(height);
        height = 1;
    }
    fillRows<Mode>(at, stride, length, height, Solid<Format>(pixel).row());
    return end;
}

/// Every eighth row is the same, so the rows are drawn in eight turns.
template <typename Format, typename Mode>
uint8_t* fillPattern(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height, uint32_t fore,
                     uint32_t back, const uint8_t rows[8], int32_t x, int32_t y) {
    const Patterned<Format> pattern(fore, back);
    const auto length = static_cast<size_t>(width) * Format::kBytes;
    for (int32_t row = 0; row < std::min(height, 8); ++row) {
        const uint8_t bits = std::rotl(rows[(y + row) & 7], x & 7);
        fillRows<Mode>(at + row * stride, 8 * stride, length, (height - row + 7) / 8,
                       pattern.row(bits, length));
    }
    return at + (height - 1) * stride + length;
}

} // namespace quarlo::kernel
