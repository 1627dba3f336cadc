// Bevelled borders of ovals.
#include "geometry/geometry.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/rect.h>

namespace quarlo {
namespace {

void resize(GRect& rect, int32_t by) {
    GRResizeRect(&rect, low16(by), low16(by));
}

/// A frame ring, and on it the two halves of the bevel, which leave a pixel of the frame on both
/// sides. `ring` is the middle of the border.
void drawRing(GDrawHandle* handle, const GRect& ring, const GBorderStyle& border, bool pressed) {
    const int16_t width = low16(border.width);
    const int16_t bevel = low16(border.frameColor == G_NO_COLOR ? width : width - 2);
    GDSetPenDash(handle, 0);
    GDSetPenColor(handle, border.frameColor);
    GDSetPenSize(handle, width, width);
    GDSetFillPattern(handle, G_FILL_NONE);
    GDDrawOval(handle, &ring);
    GDSetPenSize(handle, bevel, bevel);
    GDSetPenColor(handle, pressed ? border.colorB : border.colorA);
    GDDrawArc(handle, &ring, 450, 2250);
    GDSetPenColor(handle, pressed ? border.colorA : border.colorB);
    GDDrawArc(handle, &ring, 2250, 450);
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawOvalBorder(GDrawHandle* handle, const GRect* rect, GRect* inner,
                      const GBorderStyle* border, int16_t pressed) {
    if (rect == nullptr) {
        return;
    }
    GRect left = *rect;
    if (border->enabled != 0) {
        GRect ring = *rect;
        const int16_t width = low16(border->width);
        if (width > 0) {
            resize(left, 1 - width);
            resize(ring, -((width - 1) >> 1));
        }
        if (handle != nullptr && width >= 1) {
            drawRing(handle, ring, *border, pressed != 0);
        }
        if (static_cast<int32_t>(border->frameColor) >= 0 || width >= 1) {
            resize(left, -1);
        }
    }
    if (inner != nullptr) {
        *inner = left;
    }
}
