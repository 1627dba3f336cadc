// Thin solid lines.
#include "raster/line.h"
#include "raster/line_course.h"

#include <algorithm>
#include <utility>

namespace quarlo {
namespace {

/// Along the longer axis lines run to the right and down, whichever end comes first.
GLine ordered(const GLine& line) {
    const bool steep = std::abs(line.y2 - line.y1) > std::abs(line.x2 - line.x1);
    const bool backward = steep ? line.y2 < line.y1 : line.x2 < line.x1;
    return backward ? GLine{line.x2, line.y2, line.x1, line.y1} : line;
}

void lineBySlots(const Canvas& canvas, const LineCourse& course) {
    LineCourse::Walk walk(course, 0);
    for (int32_t left = course.count(); left > 0; --left) {
        canvas.setPixel(walk.at().x, walk.at().y, canvas.handle.penPixel,
                        canvas.handle.drawingMode);
        walk.advance();
    }
}

} // namespace

void drawThinLine(const Canvas& canvas, const GLine& line) {
    const uint32_t pixel = canvas.handle.penPixel;
    if (line.x1 == line.x2 && line.y1 == line.y2) {
        return;
    }
    if (line.y1 == line.y2) {
        canvas.span(std::min(line.x1, line.x2), line.y1, std::abs(line.x2 - line.x1) + 1, pixel,
                    canvas.handle.drawingMode);
        return;
    }
    if (line.x1 == line.x2 && canvas.kernels != nullptr) {
        fillRect(canvas, {line.x1, std::min(line.y1, line.y2), line.x1, std::max(line.y1, line.y2)},
                 pixel, canvas.handle.drawingMode);
        return;
    }
    const GLine forward = ordered(line);
    const LineCourse course(forward);
    if (canvas.kernels == nullptr) {
        lineBySlots(canvas, course);
        return;
    }
    const kernel::LineSteps steps = course.walk(
        {0, course.count() - 1}, canvas.kernels->bytesPerPixel, canvas.surface.bytesPerLine);
    canvas.leaveCell(pixel,
                     canvas.kernels->line(canvas.addressOf(forward.x1, forward.y1), steps, pixel));
}

} // namespace quarlo
