// Clipping of lines.
#pragma once

#include <quarlo/types.h>

namespace quarlo {

/// Clips a line in place to a valid rectangle and keeps its direction; false when no part of it is
/// visible, the line then being of no use. (Cohen-Sutherland, with the quotients truncated.)
bool GDClipLine(GLine& line, const GRect& rect);

} // namespace quarlo
