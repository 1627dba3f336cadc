// Dashed lines. The pattern advances by Euclidean distance, and off the surface too, so that a line
// shows the same dashes wherever it is clipped.
#include "geometry/geometry.h"
#include "raster/line.h"
#include "raster/line_course.h"

#include <algorithm>
#include <cmath>

namespace quarlo {
namespace {

constexpr int32_t kPhases = 64;

/// The 64 steps of the handle's dash, step k in bit k; false when there is no such dash. The slot
/// behind dash 8 is fill pattern 0.
bool findDash(const GDrawHandle& handle, uint64_t& pattern) {
    if (handle.penDash < 1 || handle.penDash > G_DASH_COUNT + 1) {
        return false;
    }
    const uint8_t* const bytes =
        handle.penDash <= G_DASH_COUNT ? handle.dashes[handle.penDash - 1] : handle.fillPatterns[0];
    pattern = 0;
    for (int byte = 0; byte < 8; ++byte) {
        pattern |= uint64_t{bytes[byte]} << (8 * byte);
    }
    return true;
}

/// How far the pattern moves with each pixel, 16.16 fixed point.
uint32_t dashStep(const GLine& line, int32_t extent) {
    const auto dx = static_cast<double>(line.x2 - line.x1);
    const auto dy = static_cast<double>(line.y2 - line.y1);
    const auto length = static_cast<int64_t>(std::sqrt(dx * dx + dy * dy));
    return static_cast<uint32_t>((length << 16) / extent);
}

/// The pen's cross-section at a pixel, along the shorter axis: centred, but for even sizes half a
/// pixel to the right on steep lines and half a pixel up on flat ones.
struct CrossSection {
    int32_t before;
    int32_t behind;

    CrossSection(const GDrawHandle& handle, bool steep)
        : before(steep ? (handle.penWidth - 1) / 2 : handle.penHeight / 2),
          behind(steep ? handle.penWidth / 2 : (handle.penHeight - 1) / 2) {}

    bool thin() const { return before == 0 && behind == 0; }

    /// The part of the cross-section at a pixel that lies in an area which it meets.
    GRect run(const GPoint& at, bool steep, const GRect& area) const {
        if (steep) {
            return {low16(std::max<int32_t>(at.x - before, area.left)), at.y,
                    low16(std::min<int32_t>(at.x + behind, area.right)), at.y};
        }
        return {at.x, low16(std::max<int32_t>(at.y - before, area.top)), at.x,
                low16(std::min<int32_t>(at.y + behind, area.bottom))};
    }
};

/// Every pixel of the run is a set-pixel call of its own where the platform draws.
void drawRun(const Canvas& canvas, const GRect& run, uint32_t pixel, int32_t mode) {
    if (canvas.kernels != nullptr) {
        fillRect(canvas, run, pixel, mode);
        return;
    }
    for (int32_t y = run.top; y <= run.bottom; ++y) {
        for (int32_t x = run.left; x <= run.right; ++x) {
            canvas.setPixel(low16(x), low16(y), pixel, mode);
        }
    }
}

void drawRuns(const Canvas& canvas, const LineCourse& course, const StepRange& steps,
              const CrossSection& section, kernel::DashSteps dash) {
    LineCourse::Walk walk(course, steps.first);
    for (int64_t left = steps.last - steps.first; left >= 0; --left) {
        dash.phase += dash.step;
        if ((dash.pattern >> (dash.phase >> 16 & 63) & 1) != 0) {
            drawRun(canvas, section.run(walk.at(), course.steep(), canvas.area),
                    canvas.handle.penPixel, canvas.handle.drawingMode);
        }
        walk.advance();
    }
}

void drawVisible(const Canvas& canvas, const LineCourse& course, const StepRange& steps,
                 const CrossSection& section, const kernel::DashSteps& dash) {
    if (canvas.kernels == nullptr || !section.thin()) {
        drawRuns(canvas, course, steps, section, dash);
        return;
    }
    const GPoint start = course.pixelAt(steps.first);
    const uint32_t pixel = canvas.handle.penPixel;
    uint8_t* const cursor = canvas.kernels->dashedLine(
        canvas.addressOf(start.x, start.y),
        course.walk(steps, canvas.kernels->bytesPerPixel, canvas.surface.bytesPerLine), dash,
        pixel);
    if (cursor != nullptr) {
        canvas.leaveCell(pixel, cursor);
    }
}

} // namespace

bool drawDashedLine(const Canvas& canvas, const GLine& line) {
    GDrawHandle& handle = canvas.handle;
    uint64_t pattern;
    if (!findDash(handle, pattern)) {
        return false;
    }
    if (line.x1 == line.x2 && line.y1 == line.y2) {
        return true;
    }
    const LineCourse course(line);
    const uint32_t step = dashStep(line, course.count() - 1);
    const auto phase = static_cast<uint32_t>(handle.dashPhase & (kPhases - 1)) << 16;
    const CrossSection section(handle, course.steep());
    const StepRange steps = course.stepsWithin(canvas.area, section.before, section.behind);
    if (isValid(canvas.area) && !steps.empty()) {
        const uint32_t skipped = static_cast<uint32_t>(steps.first) * step;
        drawVisible(canvas, course, steps, section, {pattern, phase + skipped, step});
    }
    const uint32_t walked = static_cast<uint32_t>(course.count()) * step;
    handle.dashPhase = static_cast<int16_t>((phase + walked) >> 16 & (kPhases - 1));
    return true;
}

} // namespace quarlo
