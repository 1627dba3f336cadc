// Wide solid lines and the joins between them.
#pragma once

#include "raster/canvas.h"

#include <quarlo/types.h>

namespace quarlo {

inline bool isWide(const GDrawHandle& handle) {
    return handle.penWidth > 1 || handle.penHeight > 1;
}

/// Fills the pen's quadrilateral along a line, in pen colour, and joins it to the line drawn before
/// where it starts at that one's end. A line without length draws nothing and is forgotten.
void drawWideLine(const Canvas& canvas, const GLine& line);

/// Fills an ellipse of the pen's size around a point, in pen colour.
void drawPenDot(const Canvas& canvas, const GPoint& at);

/// Joins the last wide line to the first of a closed frame, where they meet.
void closeFrame(const Canvas& canvas, const GLine& first);

} // namespace quarlo
