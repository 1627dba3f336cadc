// The grid that the views measure the path by.
#pragma once

#include "drawing/style.h"
#include "drawing/view.h"

namespace toolpath {

/// Lines at every multiple of `step` millimetres, every `strongEvery`th of them strong.
struct Grid {
    double step;
    int strongEvery;
};

/// The closest of 1, 2, 5, 10, 20... units that leaves room between the lines.
///
/// @param scale pixels a millimetre
/// @param unit of the program, in millimetres
Grid gridFor(double scale, double unit);

/// A box grown in X and Y to grid lines that lie at least a third of a step outside.
Box3 grownToGrid(const Box3& box, const Grid& grid);

/// Draws the lines that cross an area, at the height of its lower corner.
void drawGrid(GDrawHandle* handle, const View& view, const Grid& grid, const Box3& area,
              uint32_t color, uint32_t strongColor);

/// The part of the plane at a height that a plan shows.
Box3 visibleArea(const View& plan, double height);

} // namespace toolpath
