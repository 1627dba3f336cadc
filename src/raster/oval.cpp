// Ovals.
#include "geometry/view.h"
#include "raster/fill_notice.h"
#include "raster/outline.h"

#include <quarlo/draw.h>

#include <algorithm>

namespace quarlo {
namespace {

/// Whether anything of a box, grown by half the pen, can be seen.
bool isVisible(const Canvas& canvas, const GRect& box) {
    const GDrawHandle& pen = canvas.handle;
    const bool thin = pen.penWidth == 1 && pen.penHeight == 1;
    const int32_t grown = thin ? 0 : std::max(pen.penWidth, pen.penHeight) / 2;
    const GRect& area = canvas.area;
    return isValid(area) && box.right + grown >= area.left && box.left - grown <= area.right &&
           box.bottom + grown >= area.top && box.top - grown <= area.bottom;
}

void fill(const Canvas& canvas, const Ellipse& ellipse, const GRect& box) {
    GDrawHandle& handle = canvas.handle;
    const int32_t mode = handle.drawingMode;
    switch (handle.fillPattern) {
    case G_FILL_FORE:
        return fillEllipse(canvas, ellipse, Paint::solid(handle.forePixel), mode);
    case G_FILL_BACK:
        return fillEllipse(canvas, ellipse, Paint::solid(handle.backPixel), mode);
    case G_FILL_GRADATION:
        return fillEllipseGradation(canvas, ellipse, box);
    default:
        break;
    }
    if (handle.fillPattern >= 0 && handle.fillPattern < G_FILL_PATTERN_COUNT) {
        const uint8_t* const rows = handle.fillPatterns[handle.fillPattern];
        noticeFillPattern(canvas, rows);
        fillEllipse(canvas, ellipse, {handle.forePixel, handle.backPixel, rows}, mode);
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawOval(GDrawHandle* handle, const GRect* rect) {
    GRect box = *rect;
    mapToScreen(*handle, box);
    const Canvas canvas(*handle);
    if (!isVisible(canvas, box)) {
        return;
    }
    const Ellipse ellipse = Ellipse::inscribed(box);
    fill(canvas, ellipse, box);
    if (handle->penPixel != G_NO_COLOR) {
        drawOutline(canvas, ellipse, Sides::None, handle->penPixel, handle->drawingMode);
    }
}
