// Tiles: runs of bytes that repeat. Every solid and every patterned fill, whatever its format, ends
// in filling rows of memory from a tile, by one loop a drawing mode.
#pragma once

#include "raster/kernel/format.h"
#include "raster/kernel/mode.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// 16 bytes that the compiler keeps in one register where the processor has such.
using Block = uint8_t __attribute__((vector_size(16)));

inline Block loadBlock(const uint8_t* at) {
    Block block;
    std::memcpy(&block, at, sizeof block);
    return block;
}

inline void storeBlock(uint8_t* at, Block block) {
    std::memcpy(at, &block, sizeof block);
}

/// 48 bytes divide into whole pixels of 1, 2 and 3 bytes, whole pattern rows of 8 such pixels, and
/// whole blocks. The first block stands once more at the end, so that a block can be loaded at
/// every phase of the period.
struct Tile {
    static constexpr int kPeriod = 48;
    alignas(16) uint8_t bytes[kPeriod + 16];

    /// Repeats the first `length` bytes, which must divide the period, over the whole tile.
    void repeat(int length) {
        for (int at = length; at < kPeriod + 16; at += length) {
            std::memcpy(
                bytes + at, bytes,
                static_cast<size_t>(at + length <= kPeriod + 16 ? length : kPeriod + 16 - at));
        }
    }
};

/// The tile of a single colour.
template <typename Format>
inline Tile solidTile(uint32_t pixel) {
    Tile tile;
    const auto low = static_cast<uint8_t>(pixel);
    if constexpr (Format::kBytes == 1) {
        std::memset(tile.bytes, low, sizeof tile.bytes);
    } else if constexpr (Format::kBytes == 2) {
        for (int at = 0; at < Tile::kPeriod + 16; at += 2) {
            storeLittle(tile.bytes + at, static_cast<uint16_t>(pixel));
        }
    } else {
        for (int at = 0; at < 12; at += 3) {
            putPixel<Format, Copy>(tile.bytes + at, pixel);
        }
        tile.repeat(12);
    }
    return tile;
}

/// The tile of one pattern row. Bit 7 of `row` is the leftmost pixel, in the fore colour where set.
template <typename Format>
inline Tile patternTile(uint8_t row, uint32_t fore, uint32_t back) {
    Tile tile;
    for (int pixel = 0; pixel < 8; ++pixel) {
        putPixel<Format, Copy>(tile.bytes + pixel * Format::kBytes,
                               (row << pixel & 0x80) != 0 ? fore : back);
    }
    tile.repeat(8 * Format::kBytes);
    return tile;
}

template <typename Word>
inline void copyWord(uint8_t* at, const uint8_t* from) {
    std::memcpy(at, from, sizeof(Word));
}

/// Fewer than 16 bytes, as two stores that may overlap.
inline void copyShort(uint8_t* at, size_t count, const uint8_t* from) {
    if (count >= 8) {
        copyWord<uint64_t>(at, from);
        copyWord<uint64_t>(at + count - 8, from + count - 8);
    } else if (count >= 4) {
        copyWord<uint32_t>(at, from);
        copyWord<uint32_t>(at + count - 4, from + count - 4);
    } else if (count >= 2) {
        copyWord<uint16_t>(at, from);
        copyWord<uint16_t>(at + count - 2, from + count - 2);
    } else if (count == 1) {
        *at = *from;
    }
}

template <typename Mode, typename Word>
inline void combineWord(uint8_t* at, const uint8_t* from) {
    Word old;
    Word color;
    std::memcpy(&old, at, sizeof old);
    std::memcpy(&color, from, sizeof color);
    old = Mode::combine(old, color);
    std::memcpy(at, &old, sizeof old);
}

/// Fewer than 16 bytes, each combined once.
template <typename Mode>
inline void combineShort(uint8_t* at, size_t count, const uint8_t* from) {
    if ((count & 8) != 0) {
        combineWord<Mode, uint64_t>(at, from);
        at += 8;
        from += 8;
    }
    if ((count & 4) != 0) {
        combineWord<Mode, uint32_t>(at, from);
        at += 4;
        from += 4;
    }
    if ((count & 2) != 0) {
        combineWord<Mode, uint16_t>(at, from);
        at += 2;
        from += 2;
    }
    if ((count & 1) != 0) {
        combineWord<Mode, uint8_t>(at, from);
    }
}

/// The rest of a row behind its last whole period; `count` is below the period.
template <typename Mode>
inline void fillTail(uint8_t* at, size_t count, const uint8_t* from) {
    while (count >= 16) {
        combineWord<Mode, Block>(at, from);
        at += 16;
        from += 16;
        count -= 16;
    }
    if constexpr (Mode::kReads) {
        combineShort<Mode>(at, count, from);
    } else {
        copyShort(at, count, from);
    }
}

/// Combines `count` bytes with the period of a tile that starts at `tile`.
template <typename Mode>
inline void fillRow(uint8_t* at, size_t count, const uint8_t* tile) {
    const Block first = loadBlock(tile);
    const Block second = loadBlock(tile + 16);
    const Block third = loadBlock(tile + 32);
    while (count >= Tile::kPeriod) {
        storeBlock(at, Mode::combine(loadBlock(at), first));
        storeBlock(at + 16, Mode::combine(loadBlock(at + 16), second));
        storeBlock(at + 32, Mode::combine(loadBlock(at + 32), third));
        at += Tile::kPeriod;
        count -= Tile::kPeriod;
    }
    fillTail<Mode>(at, count, tile);
}

} // namespace quarlo::kernel
