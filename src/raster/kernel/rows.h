// Rows of memory filled with one row's colours. How a row is cut into stores depends on its length
// alone, so it is chosen once for all rows; the last store of a row overlaps the one before it.
#pragma once

#include "raster/kernel/long_row.h"
#include "raster/kernel/row_color.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// A row of at least a block. Its end is read before anything is written, so that the bytes that
/// two stores share are combined with the colour once.
template <typename Mode>
inline void fillRow(uint8_t* at, size_t length, const RowColor& color) {
    uint8_t* const end = at + length - kBlock;
    const Block old = Mode::kReads ? loadBlock(end) : Block{};
    for (; length > kPeriod; length -= kPeriod, at += kPeriod) {
        combineInto<Mode>(at, color.first);
        combineInto<Mode>(at + kBlock, color.second);
        combineInto<Mode>(at + 2 * kBlock, color.third);
    }
    if (length > kBlock) {
        combineInto<Mode>(at, color.first);
    }
    if (length > 2 * kBlock) {
        combineInto<Mode>(at + kBlock, color.second);
    }
    storeBlock(end, Mode::combine(old, color.last));
}

/// Long rows use the widest vectors of the processor at hand: the C library's own copy of what was
/// filled first where nothing is read, and otherwise a tile in memory.
template <typename Mode>
void fillLongRows(uint8_t* at, ptrdiff_t stride, size_t length, int32_t height,
                  const RowColor& color) {
    if constexpr (!Mode::kReads) {
        const size_t part = std::min(length, kCopiedPart);
        fillRow<Mode>(at, part, part < length ? color.wholePeriods() : color);
        copyAlong(at, length, part);
        for (const uint8_t* const first = at; height > 1; --height) {
            at += stride;
            std::memcpy(at, first, length);
        }
    } else {
        const LongTile tile(color);
        const size_t tiles = (length - kBlock) / LongTile::kBytes;
        const size_t done = tiles * LongTile::kBytes;
        for (; height > 0; --height, at += stride) {
            kCombineLong[Mode::kNumber](at, tiles, tile);
            fillRow<Mode>(at + done, length - done, color);
        }
    }
}

/// Rows of one to two words, the second of which may overlap the first.
template <typename Mode, typename Word>
inline void fillShortRows(uint8_t* at, ptrdiff_t stride, size_t length, int32_t height,
                          const RowColor& color) {
    uint8_t bytes[kBlock];
    storeBlock(bytes, color.first);
    const auto first = loadWord<Word>(bytes);
    const auto last = loadWord<Word>(bytes + length - sizeof(Word));
    for (; height > 0; --height, at += stride) {
        uint8_t* const end = at + length - sizeof(Word);
        const Word old = Mode::kReads ? loadWord<Word>(end) : Word{};
        combineInto<Mode>(at, first);
        storeWord(end, Mode::combine(old, last));
    }
}

/// Inlined wherever it is used, so that colours stay in registers: from memory, rows of a hundred
/// pixels take a seventh longer.
template <typename Mode>
[[gnu::always_inline]] inline void fillRows(uint8_t* at, ptrdiff_t stride, size_t length,
                                            int32_t height, const RowColor& color) {
    if (length >= kLongPart || (!Mode::kReads && length >= kLongRow && height > 1)) {
        fillLongRows<Mode>(at, stride, length, height, color);
    } else if (length >= kBlock) {
        for (; height > 0; --height, at += stride) {
            fillRow<Mode>(at, length, color);
        }
    } else if (length >= 8) {
        fillShortRows<Mode, uint64_t>(at, stride, length, height, color);
    } else if (length >= 4) {
        fillShortRows<Mode, uint32_t>(at, stride, length, height, color);
    } else if (length >= 2) {
        fillShortRows<Mode, uint16_t>(at, stride, length, height, color);
    } else {
        fillShortRows<Mode, uint8_t>(at, stride, length, height, color);
    }
}

} // namespace quarlo::kernel
