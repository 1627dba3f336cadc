// Filled and framed rectangles.
#include "draw/clip.h"
#include "geometry/view.h"
#include "raster/fill_notice.h"
#include "raster/gradation.h"
#include "raster/line.h"
#include "raster/wide_line.h"

#include <quarlo/draw.h>

namespace quarlo {
namespace {

/// The platform's whole-rectangle operation goes first here, before the one of every other fill.
void fillSolid(const Canvas& canvas, const GRect& rect, uint32_t pixel) {
    const int32_t mode = canvas.handle.drawingMode;
    if (pixel != G_NO_COLOR && canvas.ops.drawRect != nullptr) {
        canvas.ops.drawRect(&canvas.handle, &canvas.surface, &rect, pixel, mode);
    } else {
        fillRect(canvas, rect, pixel, mode);
    }
}

/// Fills the visible part of a rectangle by the handle's fill style.
void fill(const Canvas& canvas, const GRect& visible, const GRect& whole) {
    GDrawHandle& handle = canvas.handle;
    switch (handle.fillPattern) {
    case G_FILL_FORE:
        return fillSolid(canvas, visible, handle.forePixel);
    case G_FILL_BACK:
        return fillSolid(canvas, visible, handle.backPixel);
    case G_FILL_GRADATION:
        return fillGradation(canvas, visible, whole);
    default:
        break;
    }
    if (handle.fillPattern >= 0 && handle.fillPattern < G_FILL_PATTERN_COUNT) {
        const uint8_t* const rows = handle.fillPatterns[handle.fillPattern];
        noticeFillPattern(canvas, rows);
        fillPatternRect(canvas, visible, handle.forePixel, handle.backPixel, handle.drawingMode,
                        rows);
    }
}

/// The four edges clockwise from the top, each with both its corners.
void frame(const Canvas& canvas, const GRect& rect) {
    GDrawHandle& handle = canvas.handle;
    const GLine edges[] = {{rect.left, rect.top, rect.right, rect.top},
                           {rect.right, rect.top, rect.right, rect.bottom},
                           {rect.right, rect.bottom, rect.left, rect.bottom},
                           {rect.left, rect.bottom, rect.left, rect.top}};
    for (const GLine& edge : edges) {
        GDRasterLine(canvas, edge);
    }
    if (contains(canvas.area, rect.left, rect.top)) {
        closeFrame(canvas, edges[0]);
    }
    handle.dashPhase = 0;
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawRect(GDrawHandle* handle, const GRect* rect) {
    GRect whole = *rect;
    mapToScreen(*handle, whole);
    const Canvas canvas(*handle);
    GRect visible = whole;
    if (!isValid(canvas.area) || !clipTo(visible, canvas.area)) {
        return;
    }
    fill(canvas, visible, whole);
    if (handle->penPixel != G_NO_COLOR) {
        frame(canvas, whole);
    }
}
