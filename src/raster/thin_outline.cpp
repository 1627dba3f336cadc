// Outlines one pixel thin.
#include "raster/outline.h"
#include "raster/wide_line.h"

namespace quarlo {
namespace {

/// Two runs of a row, left and right of the middle, or one where they meet.
void addPair(SpanPainter& painter, const Ellipse& ellipse, int32_t inner, int32_t outer,
             int32_t y) {
    const int32_t left = ellipse.leftCentre - outer;
    const int32_t right = ellipse.rightCentre + outer;
    const int32_t leftEnd = ellipse.leftCentre - inner;
    const int32_t rightStart = ellipse.rightCentre + inner;
    if (leftEnd >= rightStart) {
        painter.add(left, right, y);
    } else {
        painter.add(left, leftEnd, y);
        painter.add(rightStart, right, y);
    }
}

void drawThinOutline(const Canvas& canvas, const Ellipse& ellipse, Sides sides, uint32_t pixel,
                     int32_t mode) {
    SpanPainter painter(canvas, Paint::solid(pixel), mode);
    walkOutline(ellipse, sides, [&](int32_t inner, int32_t outer, int32_t y) {
        ellipse.forRowsAt(y, [&](int32_t row) {
            if (y == ellipse.b) {
                painter.add(ellipse.leftCentre - outer, ellipse.rightCentre + outer, row);
            } else {
                addPair(painter, ellipse, inner, outer, row);
            }
        });
    });
    const int32_t first = std::max(ellipse.topCentre + 1, painter.top());
    const int32_t last = std::min(ellipse.bottomCentre - 1, painter.bottom());
    for (int32_t y = first; y <= last; ++y) {
        addPair(painter, ellipse, ellipse.a, ellipse.a, y);
    }
}

} // namespace

void drawOutline(const Canvas& canvas, const Ellipse& ellipse, Sides sides, uint32_t pixel,
                 int32_t mode) {
    if (isWide(canvas.handle)) {
        drawWideOutline(canvas, ellipse, sides, nullptr, pixel, mode);
    } else {
        drawThinOutline(canvas, ellipse, sides, pixel, mode);
    }
}

} // namespace quarlo
