// Pies.
#include "geometry/view.h"
#include "raster/fill_notice.h"
#include "raster/line.h"
#include "raster/outline.h"
#include "raster/polygon.h"
#include "raster/run_table.h"
#include "raster/wide_line.h"

#include <quarlo/draw.h>

namespace quarlo {
namespace {

void fillSector(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc, uint32_t fore,
                uint32_t back, int32_t pattern) {
    const Sector sector(ellipse, arc);
    RunTable table(canvas, ellipse.topCentre - ellipse.b, ellipse.bottomCentre + ellipse.b);
    if (!table.isReady()) {
        return;
    }
    walkRows(ellipse, [&](int32_t x, int32_t y) {
        ellipse.forRowsAt(y, [&](int32_t row) {
            if (table.holds(row)) {
                table.add(row, {ellipse.leftCentre - x, ellipse.rightCentre + x}, &sector);
            }
        });
    });
    table.fill(fore, back, pattern, canvas.handle.drawingMode);
}

void fillByStyle(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc) {
    GDrawHandle& handle = canvas.handle;
    const int16_t style = handle.fillPattern;
    if (style == G_FILL_FORE) {
        fillSector(canvas, ellipse, arc, handle.forePixel, handle.forePixel, kSolidPattern);
    } else if (style == G_FILL_BACK) {
        fillSector(canvas, ellipse, arc, handle.backPixel, handle.backPixel, kSolidPattern);
    } else if (style >= 0 && style < G_FILL_PATTERN_COUNT) {
        noticeFillPattern(canvas, handle.fillPatterns[style]);
        fillSector(canvas, ellipse, arc, handle.forePixel, handle.backPixel, style);
    }
}

/// The centre pixel of an end's quarter.
GPoint centreOf(const Ellipse& ellipse, const ArcEnd& end) {
    return ArcEnd{end.quadrant, 0, 0}.on(ellipse);
}

/// From the arc's start to the centre and on to its end, so that wide radii are joined there.
void drawRadii(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc) {
    const GPoint start = arc.start.on(ellipse);
    const GPoint end = arc.end.on(ellipse);
    const GPoint centre = centreOf(ellipse, arc.start);
    // The ellipse may have centres side by side. A wide pen covers both.
    const GPoint other = isWide(canvas.handle) ? centre : centreOf(ellipse, arc.end);
    drawSolidLine(canvas, {start.x, start.y, centre.x, centre.y});
    drawSolidLine(canvas, {other.x, other.y, end.x, end.y});
    if (isWide(canvas.handle) && canvas.handle.penJoin == G_JOIN_ROUND) {
        drawRoundJoin(canvas, start);
        drawRoundJoin(canvas, end);
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawPie(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle) {
    GRect box = *rect;
    mapToScreen(*handle, box);
    const Canvas canvas(*handle);
    const Ellipse ellipse = Ellipse::inscribed(box);
    if (isValid(canvas.area) && !areDisjoint(box, canvas.area) && ellipse.a >= 0 &&
        ellipse.b >= 0) {
        const ArcSpan arc = findArc(handle->arc, ellipse, startAngle, endAngle);
        fillByStyle(canvas, ellipse, arc);
        if (handle->penPixel != G_NO_COLOR) {
            drawArc(canvas, ellipse, arc, handle->penPixel, handle->drawingMode);
            drawRadii(canvas, ellipse, arc);
        }
    }
    // Also what an arc before this one left is taken for surface coordinates, deliberately.
    mapFromScreen(*handle, handle->arc.start);
    mapFromScreen(*handle, handle->arc.end);
}
