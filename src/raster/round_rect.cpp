// Rounded rectangles.
#include "draw/clip.h"
#include "geometry/view.h"
#include "raster/fill_notice.h"
#include "raster/outline.h"

#include <quarlo/draw.h>

#include <algorithm>

namespace quarlo {
namespace {

/// The radii in surface units: in virtual mode a point's distances from the virtual rectangle's
/// corner, mapped as a point, since the physical rectangle starts at (0, 0).
GPoint radiiOnScreen(const GDrawHandle& handle, int16_t rx, int16_t ry) {
    GPoint radii{rx, ry};
    if (isVirtual(handle)) {
        radii = {low16(handle.virtualRect.left + rx), low16(handle.virtualRect.top + ry)};
        virtualToPhysical(handle)(radii);
    }
    return radii;
}

/// The quarters in the corners of the box.
Ellipse cornersOf(const GRect& box, const GPoint& radii) {
    const int32_t a = std::min<int32_t>((box.right - box.left) >> 1, radii.x);
    const int32_t b = std::min<int32_t>((box.bottom - box.top) >> 1, radii.y);
    return {box, std::max(a, 0), std::max(b, 0)};
}

/// The quarters' rows, then the band between them. The band takes in the centre rows, which are
/// filled twice, deliberately.
void fill(const Canvas& canvas, const Ellipse& corners, const GRect& box, const Paint& paint) {
    const int32_t mode = canvas.handle.drawingMode;
    fillEllipse(canvas, corners, paint, mode);
    GRect band{box.left, low16(corners.topCentre), box.right, low16(corners.bottomCentre)};
    if (!clipTo(band, canvas.area)) {
        return;
    }
    if (paint.rows == nullptr) {
        fillRect(canvas, band, paint.fore, mode);
    } else {
        fillPatternRect(canvas, band, paint.fore, paint.back, mode, paint.rows);
    }
}

void fillByStyle(const Canvas& canvas, const Ellipse& corners, const GRect& box) {
    GDrawHandle& handle = canvas.handle;
    const int16_t style = handle.fillPattern;
    if (style == G_FILL_FORE) {
        fill(canvas, corners, box, Paint::solid(handle.forePixel));
    } else if (style == G_FILL_BACK) {
        fill(canvas, corners, box, Paint::solid(handle.backPixel));
    } else if (style >= 0 && style < G_FILL_PATTERN_COUNT) {
        const uint8_t* const rows = handle.fillPatterns[style];
        noticeFillPattern(canvas, rows);
        fill(canvas, corners, box, {handle.forePixel, handle.backPixel, rows});
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawRRect(GDrawHandle* handle, const GRect* rect, int16_t rx, int16_t ry) {
    GRect box = *rect;
    mapToScreen(*handle, box);
    const Canvas canvas(*handle);
    if (!isValid(canvas.area) || areDisjoint(box, canvas.area)) {
        return;
    }
    const Ellipse corners = cornersOf(box, radiiOnScreen(*handle, rx, ry));
    fillByStyle(canvas, corners, box);
    if (handle->penPixel != G_NO_COLOR) {
        drawOutline(canvas, corners, Sides::Straight, handle->penPixel, handle->drawingMode);
    }
}
