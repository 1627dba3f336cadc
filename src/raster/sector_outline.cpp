// Outlines of sectors: the arc and the radii to its ends.
#include "raster/line_course.h"
#include "raster/thin_arc.h"
#include "raster/wide_line.h"

#include <algorithm>

namespace quarlo {
namespace {

/// The centre pixel of an end's quarter.
GPoint centreOf(const Ellipse& ellipse, const ArcEnd& end) {
    return ArcEnd{end.quadrant, 0, 0}.on(ellipse);
}

GLine between(const GPoint& from, const GPoint& to) {
    return {from.x, from.y, to.x, to.y};
}

/// A radius one pixel thin. It runs outwards, so that mirrored angles have mirrored radii.
class ThinRadius {
  public:
    ThinRadius(const Ellipse& ellipse, const ArcEnd& end)
        : line_(between(centreOf(ellipse, end), end.on(ellipse))), course_(line_) {}

    void addTo(RowRuns& runs, int32_t row) const {
        if (row < std::min(line_.y1, line_.y2) || row > std::max(line_.y1, line_.y2)) {
            return;
        }
        if (course_.count() == 1) {
            return; // the end is the centre, which is the arc's too
        }
        const int16_t y = low16(row);
        const StepRange steps = course_.stepsWithin({INT16_MIN, y, INT16_MAX, y}, 0, 0);
        const int32_t first = course_.pixelAt(steps.first).x;
        const int32_t last = course_.pixelAt(steps.last).x;
        runs.add(std::min(first, last), std::max(first, last));
    }

  private:
    GLine line_;
    LineCourse course_;
};

/// Every pixel once.
void drawThinOutline(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc,
                     uint32_t pixel, int32_t mode) {
    const ThinRadius start(ellipse, arc.start);
    const ThinRadius end(ellipse, arc.end);
    SpanPainter painter(canvas, Paint::solid(pixel), mode);
    ThinArc(ellipse, arc, ThinArc::Tips::Shared).walk([&](RowRuns& runs, int32_t row) {
        if (painter.top() <= row && row <= painter.bottom()) {
            start.addTo(runs, row);
            end.addTo(runs, row);
            runs.paint(painter, row);
        }
    });
}

/// One line after the other, so that the pen's join rounds or bevels the middle. The corners on the
/// arc are round: neither the arc's end, cut along the radius, nor the radius' own fills them.
void drawWideRadii(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc) {
    const GPoint start = arc.start.on(ellipse);
    const GPoint centre = centreOf(ellipse, arc.start);
    const GPoint end = arc.end.on(ellipse);
    drawWideLine(canvas, between(start, centre));
    drawWideLine(canvas, between(centre, end));
    drawPenDot(canvas, start);
    drawPenDot(canvas, end);
}

} // namespace

void drawSectorOutline(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc,
                       uint32_t pixel, int32_t mode) {
    if (isWide(canvas.handle)) {
        drawArc(canvas, ellipse, arc, pixel, mode);
        drawWideRadii(canvas, ellipse, arc);
    } else {
        drawThinOutline(canvas, ellipse, arc, pixel, mode);
    }
}

} // namespace quarlo
