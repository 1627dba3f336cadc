// One row of bytes combined into another, which may overlap it.
#pragma once

#include "raster/kernel/block.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// Parts what is read from what is written after it. s390x combines memory with memory byte by
/// byte, and GCC 12 uses that for whole words, which goes wrong where the two overlap.
inline void finishReading() {
#if defined(__s390x__)
    std::atomic_signal_fence(std::memory_order_seq_cst);
#endif
}

/// Of two words' length at most, at least one: both are read before either is written, so the rows
/// may overlap and the words too.
template <typename Mode, typename Word>
void combineTwo(uint8_t* to, const uint8_t* from, size_t count) {
    const size_t last = count - sizeof(Word);
    const Word first = Mode::combine(loadWord<Word>(to), loadWord<Word>(from));
    const Word second = Mode::combine(loadWord<Word>(to + last), loadWord<Word>(from + last));
    finishReading();
    storeWord(to, first);
    storeWord(to + last, second);
}

/// A row of more than two blocks, combined into one that may begin at a lower address within it.
/// What is left behind whole blocks is a block that overlaps the last of them, worked out first.
template <typename Mode>
void combineForward(uint8_t* to, const uint8_t* from, size_t count) {
    uint8_t* const end = to + count - kBlock;
    const Block last = Mode::combine(loadBlock(end), loadBlock(from + count - kBlock));
    for (; to < end; to += kBlock, from += kBlock) {
        const Block block = Mode::combine(loadBlock(to), loadBlock(from));
        finishReading();
        storeBlock(to, block);
    }
    storeBlock(end, last);
}

/// The same for one that may begin at a higher address.
template <typename Mode>
void combineBackward(uint8_t* to, const uint8_t* from, size_t count) {
    const Block first = Mode::combine(loadBlock(to), loadBlock(from));
    for (; count > kBlock; count -= kBlock) {
        uint8_t* const last = to + count - kBlock;
        const Block block = Mode::combine(loadBlock(last), loadBlock(from + count - kBlock));
        finishReading();
        storeBlock(last, block);
    }
    storeBlock(to, first);
}

template <typename Mode>
void copyLongRow(uint8_t* to, const uint8_t* from, size_t count) {
    if constexpr (!Mode::kReads) {
        std::memmove(to, from, count);
    } else if (reinterpret_cast<uintptr_t>(to) <= reinterpret_cast<uintptr_t>(from)) {
        combineForward<Mode>(to, from, count);
    } else {
        combineBackward<Mode>(to, from, count);
    }
}

template <typename Mode>
[[gnu::always_inline]] inline void copyRow(uint8_t* to, const uint8_t* from, size_t count) {
    if (count > 2 * kBlock) {
        copyLongRow<Mode>(to, from, count);
    } else if (count >= kBlock) {
        combineTwo<Mode, Block>(to, from, count);
    } else if (count >= 8) {
        combineTwo<Mode, uint64_t>(to, from, count);
    } else if (count >= 4) {
        combineTwo<Mode, uint32_t>(to, from, count);
    } else if (count >= 2) {
        combineTwo<Mode, uint16_t>(to, from, count);
    } else {
        *to = Mode::combine(*to, *from);
    }
}

} // namespace quarlo::kernel
