#include "raster/line.h"

#include "geometry/view.h"
#include "raster/clip_line.h"
#include "raster/wide_line.h"

#include <quarlo/draw.h>

namespace quarlo {
namespace {

bool isInside(const GLine& line, const GRect& area) {
    return contains(area, line.x1, line.y1) && contains(area, line.x2, line.y2);
}

/// The part of a line that can be seen, in `clipped` where it has to be cut; null when there is
/// none. Most lines lie inside, and are not even copied.
const GLine* visiblePart(const Canvas& canvas, const GLine& line, GLine& clipped) {
    if (isInside(line, canvas.area)) {
        return &line;
    }
    clipped = line;
    return isValid(canvas.area) && GDClipLine(clipped, canvas.area) ? &clipped : nullptr;
}

} // namespace

int32_t GDRasterLine(const Canvas& canvas, const GLine& line) {
    const GDrawHandle& handle = canvas.handle;
    if (handle.penDash != 0) {
        return drawDashedLine(canvas, line) ? 1 : 0;
    }
    GLine clipped;
    const GLine* const visible = visiblePart(canvas, line, clipped);
    if (visible == nullptr) {
        return 0;
    }
    if (isWide(handle)) {
        drawWideLine(canvas, line);
    } else {
        drawThinLine(canvas, *visible);
    }
    return 1;
}

} // namespace quarlo

using quarlo::Canvas;

void GDMoveTo(GDrawHandle* handle, int16_t x, int16_t y) {
    handle->penPos = {x, y};
}

void GDLineTo(GDrawHandle* handle, int16_t x, int16_t y) {
    if (handle->penPixel == G_NO_COLOR) {
        return;
    }
    GLine line{handle->penPos.x, handle->penPos.y, x, y};
    GDDrawLine(handle, &line);
    handle->dashPhase = 0;
    handle->penPos = {x, y};
}

int32_t GDDrawLine(GDrawHandle* handle, GLine* line) {
    quarlo::mapToScreen(*handle, *line);
    if (handle->penPixel == G_NO_COLOR) {
        return 0;
    }
    return quarlo::GDRasterLine(Canvas(*handle), *line);
}
