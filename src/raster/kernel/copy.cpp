#include "raster/kernel/block.h"
#include "raster/kernel/mode.h"
#include "raster/kernel/transfer.h"

namespace quarlo::kernel {
namespace {

/// Combines a row into one that may begin at a lower address within it.
template <typename Mode>
void combineForward(uint8_t* to, const uint8_t* from, size_t count) {
    for (; count >= 16; count -= 16) {
        storeBlock(to, Mode::combine(loadBlock(to), loadBlock(from)));
        to += 16;
        from += 16;
    }
    for (; count > 0; --count) {
        *to = Mode::combine(*to, *from);
        ++to;
        ++from;
    }
}

/// Combines a row into one that may begin at a higher address within it.
template <typename Mode>
void combineBackward(uint8_t* to, const uint8_t* from, size_t count) {
    for (; count >= 16; count -= 16) {
        uint8_t* const last = to + count - 16;
        storeBlock(last, Mode::combine(loadBlock(last), loadBlock(from + count - 16)));
    }
    for (; count > 0; --count) {
        to[count - 1] = Mode::combine(to[count - 1], from[count - 1]);
    }
}

template <typename Mode>
void copyRow(uint8_t* to, const uint8_t* from, size_t count) {
    if constexpr (!Mode::kReads) {
        std::memmove(to, from, count);
    } else if (reinterpret_cast<uintptr_t>(to) <= reinterpret_cast<uintptr_t>(from)) {
        combineForward<Mode>(to, from, count);
    } else {
        combineBackward<Mode>(to, from, count);
    }
}

template <typename Mode>
void copyRows(const Transfer& transfer, size_t length) {
    uint8_t* to = transfer.to;
    const uint8_t* from = transfer.from;
    if (transfer.toStride == transfer.fromStride &&
        static_cast<ptrdiff_t>(length) == transfer.toStride) {
        copyRow<Mode>(to, from, length * static_cast<size_t>(transfer.height));
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
