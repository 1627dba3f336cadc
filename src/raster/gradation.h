// Colour ramps.
#pragma once

#include "raster/canvas.h"

namespace quarlo {

/// Fills the visible part of a rectangle with the handle's gradation, whose bands are laid over the
/// whole rectangle: clipping moves no colour. Both are in surface coordinates; `visible` lies in
/// `whole` and in the canvas' area.
void fillGradation(const Canvas& canvas, const GRect& visible, const GRect& whole);

} // namespace quarlo
