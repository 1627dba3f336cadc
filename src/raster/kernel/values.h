// Runs of pixel values, as they stand in images.
#pragma once

#include "raster/kernel/format.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// Combines `count` pixels of the format's own size, low byte first, into memory.
template <typename Format, typename Mode>
uint8_t* putValues(uint8_t* at, const uint8_t* values, int32_t count) {
    const size_t bytes = static_cast<size_t>(count) * Format::kBytes;
    if constexpr (Mode::kReads) {
        for (size_t i = 0; i < bytes; ++i) {
            at[i] = Mode::combine(at[i], values[i]);
        }
    } else {
        std::memcpy(at, values, bytes);
    }
    return at + bytes;
}

} // namespace quarlo::kernel
