// Batches of horizontal runs in one solid colour or one pattern.
#pragma once

#include "raster/kernel/kernels.h"
#include "raster/kernel/rows.h"

#include <bit>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

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
    const Solid<Format> solid(pixel);
    uint8_t* end = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        uint8_t* const start = spanStart<Format>(pixels, stride, spans[i]);
        const size_t length = spanLength<Format>(spans[i]);
        fillRows<Mode>(start, stride, length, 1, solid.row());
        end = start + length;
    }
    return end;
}

template <typename Format, typename Mode>
uint8_t* fillPatternSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                          uint32_t fore, uint32_t back, const uint8_t rows[8]) {
    const Patterned<Format> pattern(fore, back);
    uint8_t* end = nullptr;
    for (int32_t i = 0; i < count; ++i) {
        const Span& span = spans[i];
        uint8_t* const start = spanStart<Format>(pixels, stride, span);
        const size_t length = spanLength<Format>(span);
        const uint8_t bits = std::rotl(rows[span.y & 7], span.left & 7);
        fillRows<Mode>(start, stride, length, 1, pattern.row(bits, length));
        end = start + length;
    }
    return end;
}

} // namespace quarlo::kernel
