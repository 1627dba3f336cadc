// What lies behind the path: the ground of a view, its grid and the work area.
#pragma once

#include "drawing/grid.h"
#include "drawing/style.h"
#include "drawing/view.h"

namespace toolpath {

/// The plan: paper with a grid all over, and on it the work area as a patterned rectangle.
void drawPlanGround(GDrawHandle* handle, const Style& style, const View& plan, const Box3& work,
                    const Grid& grid);

/// The isometric view: a gradation, and before it the work area as a box that stands on the grid.
void drawIsometricGround(GDrawHandle* handle, const Style& style, const View& isometric,
                         const Box3& work, const Grid& grid);

} // namespace toolpath
