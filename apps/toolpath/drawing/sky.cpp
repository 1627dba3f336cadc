#include "drawing/sky.h"

namespace toolpath {
namespace {

void fill(GDrawHandle* handle, const GGradationInfo& gradation, const GRect& rect) {
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDSetGradationInfo(handle, &gradation);
    GDDrawRect(handle, &rect);
}

/// A memory surface of 8 bits whose pixels are looked up in the sky's palette.
GVram* createIndexSurface(Sky& sky, int16_t width, int16_t height) {
    GVram descriptor{};
    descriptor.width = width;
    descriptor.height = height;
    descriptor.bitsPerPixel = 8;
    descriptor.colorType = G_COLOR_PALETTE;
    descriptor.redMask = 0xFF0000;
    descriptor.greenMask = 0xFF00;
    descriptor.blueMask = 0xFF;
    descriptor.paletteCount = static_cast<uint16_t>(sky.palette.size());
    descriptor.palette = sky.palette.data();
    return GDCreateVram(&descriptor);
}

/// Draws the gradation out of sight and copies it from there, which looks its pixels up.
void fillLookedUp(GDrawHandle* handle, Sky sky, const GRect& rect) {
    const auto width = static_cast<int16_t>(rect.right - rect.left + 1);
    const auto height = static_cast<int16_t>(rect.bottom - rect.top + 1);
    GVram* indices = createIndexSurface(sky, width, height);
    GDrawHandle* painter = GDOpenDrawHandle(0, 0);
    if (painter != nullptr && GDSetVram(painter, G_MEMORY_SURFACE, indices) != 0) {
        const GRect whole{0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1)};
        fill(painter, sky.gradation, whole);

        // Both places are coordinates of the handle: its origin moves the source's as well.
        GPoint origin;
        GDGetLocalOrigin(handle, &origin);
        GDBitBlt(handle, indices, origin.x, origin.y, width, height, GDGetVram(handle), rect.left,
                 rect.top, G_MODE_COPY);
    }
    GDCloseDrawHandle(painter);
    GDDeleteVram(indices);
}

} // namespace

void drawSky(GDrawHandle* handle, const Style& style, const View& view) {
    if (style.sky.direct) {
        fill(handle, style.sky.gradation, view.bounds());
    } else {
        fillLookedUp(handle, style.sky, view.bounds());
    }
}

} // namespace toolpath
