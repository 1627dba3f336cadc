// The gradation behind the isometric view.
#pragma once

#include "drawing/style.h"
#include "drawing/view.h"

namespace toolpath {

/// Fills a view's area with the style's gradation. The view stays selected.
void drawSky(GDrawHandle* handle, const Style& style, const View& view);

} // namespace toolpath
