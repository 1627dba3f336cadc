// Arcs.
#include "raster/arc.h"
#include "raster/thin_arc.h"
#include "raster/wide_line.h"

#include <quarlo/draw.h>

namespace quarlo {
namespace {

/// Not inlined, so that its batch of spans does not lie on the stack below a wide arc.
[[gnu::noinline]] void drawThinArc(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc,
                                   uint32_t pixel, int32_t mode) {
    SpanPainter painter(canvas, Paint::solid(pixel), mode);
    ThinArc(ellipse, arc, ThinArc::Tips::Once).walk([&](RowRuns& runs, int32_t row) {
        runs.paint(painter, row);
    });
}

} // namespace

void drawArc(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc, uint32_t pixel,
             int32_t mode) {
    if (isWide(canvas.handle)) {
        const Sector sector(ellipse, arc);
        drawWideOutline(canvas, ellipse, Sides::None, &sector, pixel, mode);
    } else {
        drawThinArc(canvas, ellipse, arc, pixel, mode);
    }
}

} // namespace quarlo

using namespace quarlo;

void GDDrawArc(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle) {
    withArc(*handle, *rect, startAngle, endAngle,
            [](const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc) {
                const GDrawHandle& pen = canvas.handle;
                if (pen.penPixel != G_NO_COLOR) {
                    drawArc(canvas, ellipse, arc, pen.penPixel, pen.drawingMode);
                }
            });
}
