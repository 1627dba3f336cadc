// The axes of the machine.
#pragma once

#include "drawing/style.h"
#include "drawing/view.h"

namespace toolpath {

/// Draws an arrow from program zero along each axis that the view shows, as long in every view.
void drawAxes(GDrawHandle* handle, const Style& style, const View& view);

} // namespace toolpath
