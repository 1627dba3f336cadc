// Pies.
#include "raster/arc.h"
#include "raster/fill_notice.h"
#include "raster/outline.h"
#include "raster/polygon.h"
#include "raster/run_table.h"

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

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawPie(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle) {
    withArc(*handle, *rect, startAngle, endAngle,
            [](const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc) {
                const GDrawHandle& pen = canvas.handle;
                fillByStyle(canvas, ellipse, arc);
                if (pen.penPixel != G_NO_COLOR) {
                    drawSectorOutline(canvas, ellipse, arc, pen.penPixel, pen.drawingMode);
                }
            });
}
