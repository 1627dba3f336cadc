// Straight lines on a canvas, in surface coordinates.
#pragma once

#include "raster/canvas.h"

#include <quarlo/types.h>

#include <cstdint>

namespace quarlo {

/// Draws a line with all of the handle's pen: colour, size, join and dash. The colour must not
/// be -1.
///
/// @return 1 when something was drawn or walked, 0 when nothing of the line is visible
int32_t GDRasterLine(const Canvas& canvas, const GLine& line);

/// A line that lies in the canvas' area, both ends included. One without length draws nothing.
void drawThinLine(const Canvas& canvas, const GLine& line);

/// An unclipped line in the handle's dash; its dash phase advances also where nothing is drawn.
/// False when the handle's dash number names no dash.
bool drawDashedLine(const Canvas& canvas, const GLine& line);

} // namespace quarlo
