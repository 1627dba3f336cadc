// Rows so long that wider stores than those of every processor pay.
#pragma once

#include "raster/kernel/row_color.h"

#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// Whole periods, and whole vectors of every width up to 64 bytes.
struct LongTile {
    static constexpr size_t kBytes = 4 * kPeriod;
    alignas(64) uint8_t bytes[kBytes];

    explicit LongTile(const RowColor& color) {
        for (uint8_t* at = bytes; at < bytes + kBytes; at += kPeriod) {
            storeBlock(at, color.first);
            storeBlock(at + kBlock, color.second);
            storeBlock(at + 2 * kBlock, color.third);
        }
    }
};

/// From this length on a call for each row costs less than it gains.
inline constexpr size_t kLongRow = 512;

/// From this length on a single row is worth a tile, or a part that is copied over the rest: whole
/// periods, few enough to stay in the nearest cache.
inline constexpr size_t kLongPart = 2048;
inline constexpr size_t kCopiedPart = 32 * kPeriod;

/// Copies the first `part` bytes of a row over the rest of it.
void copyAlong(uint8_t* at, size_t length, size_t part);

/// Combines `count` tiles into memory, one behind the other.
using CombineLong = void (*)(uint8_t* at, size_t count, const LongTile& tile);

/// By drawing mode; none for copy, which reads nothing.
extern const CombineLong kCombineLong[4];

} // namespace quarlo::kernel
