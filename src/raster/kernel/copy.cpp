#include "raster/kernel/block.h"
#include "raster/kernel/mode.h"
#include "raster/kernel/transfer.h"

#include <cstdlib>
#include <cstring>

namespace quarlo::kernel {
namespace {

/// Of two words' length at most, at least one: both are read before either is written, so the rows
/// may overlap and the words too.
template <typename Mode, typename Word>
void combineTwo(uint8_t* to, const uint8_t* from, size_t count) {
    const size_t last = count - sizeof(Word);
    const Word first = Mode::combine(loadWord<Word>(to), loadWord<Word>(from));
    const Word second = Mode::combine(loadWord<Word>(to + last), loadWord<Word>(from + last));
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
        storeBlock(to, Mode::combine(loadBlock(to), loadBlock(from)));
    }
    storeBlock(end, last);
}

/// The same for one that may begin at a higher address.
template <typename Mode>
void combineBackward(uint8_t* to, const uint8_t* from, size_t count) {
    const Block first = Mode::combine(loadBlock(to), loadBlock(from));
    for (; count > kBlock; count -= kBlock) {
        uint8_t* const last = to + count - kBlock;
        storeBlock(last, Mode::combine(loadBlock(last), loadBlock(from + count - kBlock)));
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
inline void copyRow(uint8_t* to, const uint8_t* from, size_t count) {
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

/// Whether all rows lie one behind the other on both sides, so that they are one long row.
bool areOneRow(const Transfer& transfer, size_t length) {
    return transfer.toStride == transfer.fromStride &&
           static_cast<ptrdiff_t>(length) == std::abs(transfer.toStride);
}

template <typename Mode>
void copyRows(const Transfer& transfer, size_t length) {
    uint8_t* to = transfer.to;
    const uint8_t* from = transfer.from;
    if (areOneRow(transfer, length)) {
        const ptrdiff_t first =
            transfer.toStride < 0 ? (transfer.height - 1) * transfer.toStride : 0;
        copyRow<Mode>(to + first, from + first, length * static_cast<size_t>(transfer.height));
        return;
    }
    for (int32_t row = 0;;) {
        copyRow<Mode>(to, from, length);
        if (++row == transfer.height) {
            return;
        }
        to += transfer.toStride;
        from += transfer.fromStride;
    }
}

} // namespace

void copyRect(const Transfer& transfer, int32_t bytesPerPixel, int32_t mode) {
    const auto length = static_cast<size_t>(transfer.width) * static_cast<size_t>(bytesPerPixel);
    switch (mode) {
    case 0:
        return copyRows<Copy>(transfer, length);
    case 1:
        return copyRows<And>(transfer, length);
    case 2:
        return copyRows<Or>(transfer, length);
    case 3:
        return copyRows<Xor>(transfer, length);
    default:
        return;
    }
}

} // namespace quarlo::kernel
