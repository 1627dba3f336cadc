#include "raster/kernel/copy_row.h"
#include "raster/kernel/mode.h"
#include "raster/kernel/transfer.h"

#include <cstdlib>
#include <cstring>

namespace quarlo::kernel {
namespace {

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
