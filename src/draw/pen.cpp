// The pen: size, dash, join.
#include <quarlo/handle.h>

#include <algorithm>

void GDSetPenSize(GDrawHandle* handle, int16_t width, int16_t height) {
    handle->penWidth = std::max<int16_t>(width, 1);
    handle->penHeight = std::max<int16_t>(height, 1);
}

void GDSetPenDash(GDrawHandle* handle, int32_t number) {
    handle->penDash = static_cast<int16_t>(number);
}

void GDSetPenJoin(GDrawHandle* handle, int32_t join) {
    handle->penJoin = static_cast<uint16_t>(join);
}

void GDDefinePenDash(GDrawHandle* handle, int32_t number, const uint8_t steps[8]) {
    if (number < 1) {
        return;
    }
    // There is one slot more than there are dashes: it lies behind dash 8, on fill pattern 0.
    const int32_t slot = (number - 1) % (G_DASH_COUNT + 1);
    std::copy_n(steps, 8, slot < G_DASH_COUNT ? handle->dashes[slot] : handle->fillPatterns[0]);
}
