// Making a rectangle of the display visible.
#include "draw/clip.h"
#include "geometry/view.h"
#include "platform/service_table.h"

#include <quarlo/transfer.h>

namespace quarlo {
namespace {

using Flush = ForwardTo<GDFlushScreen, 9>;
using FlushForce = ForwardTo<GDFlushScreenForce, 58>;

template <typename Show>
int32_t flush(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t height) {
    if (width <= 0 || height <= 0) {
        return 0;
    }
    GRect rect{x, y, low16(x + width - 1), low16(y + height - 1)};
    mapToScreen(*handle, rect);
    if (!clipTo(rect, handle->view)) {
        return 0;
    }
    return Show::unchecked(handle, rect.left, rect.top, low16(widthOf(rect)),
                           low16(heightOf(rect)));
}

} // namespace
} // namespace quarlo

int32_t GDFlushScreen(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t height) {
    return quarlo::flush<quarlo::Flush>(handle, x, y, width, height);
}

int32_t GDFlushScreenForce(GDrawHandle* handle, int16_t x, int16_t y, int16_t width,
                           int16_t height) {
    return quarlo::flush<quarlo::FlushForce>(handle, x, y, width, height);
}
