#include "drawing/grid.h"

#include <algorithm>
#include <cmath>

namespace toolpath {
namespace {

constexpr double kClosestLines = 11.0; // pixels

/// Draws the lines across an axis, X or Y: the strong or the others. They are counted, for far from
/// zero a place may be too coarse to step from one line to the next.
void drawLines(GDrawHandle* handle, const View& view, const Grid& grid, const Box3& area, Axis axis,
               bool strong) {
    constexpr double kRounding = 1e-6;
    constexpr double kMostLines = 10000; // wider than any display
    const double first = std::ceil(area.low[axis] / grid.step - kRounding);
    const double last = std::floor(area.high[axis] / grid.step + kRounding);
    const double count = std::min(last - first + 1, kMostLines);
    for (int i = 0; i < count; ++i) {
        const double k = first + i;
        if ((std::fmod(k, grid.strongEvery) == 0.0) == strong) {
            Point3 from = area.low;
            Point3 to = {area.high[kX], area.high[kY], area.low[kZ]};
            from[axis] = to[axis] = k * grid.step;
            drawLine(handle, view, from, to);
        }
    }
}

} // namespace

Grid gridFor(double scale, double unit) {
    const double least = kClosestLines / (scale * unit);
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const Grid& grid : {Grid{1, 10}, Grid{2, 5}, Grid{5, 10}}) {
        if (grid.step * decade >= least) {
            return {grid.step * decade * unit, grid.strongEvery};
        }
    }
    return {10 * decade * unit, 10};
}

Box3 grownToGrid(const Box3& box, const Grid& grid) {
    constexpr double kLeast = 1.0 / 3.0;
    Box3 grown = box;
    for (const Axis axis : {kX, kY}) {
        grown.low[axis] = std::floor(box.low[axis] / grid.step - kLeast) * grid.step;
        grown.high[axis] = std::ceil(box.high[axis] / grid.step + kLeast) * grid.step;
    }
    return grown;
}

void drawGrid(GDrawHandle* handle, const View& view, const Grid& grid, const Box3& area,
              uint32_t color, uint32_t strongColor) {
    // No faint line runs over a strong one.
    for (const bool strong : {false, true}) {
        GDSetPenColor(handle, strong ? strongColor : color);
        drawLines(handle, view, grid, area, kX, strong);
        drawLines(handle, view, grid, area, kY, strong);
    }
}

Box3 visibleArea(const View& plan, double height) {
    const GRect bounds = plan.bounds();
    return {plan.place({bounds.left, bounds.bottom}, height),
            plan.place({bounds.right, bounds.top}, height)};
}

} // namespace toolpath
