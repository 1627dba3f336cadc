// Labels drawn as lines: a small alphabet of strokes, needing no font.
#pragma once

#include <quarlo/types.h>

#include <string_view>

namespace gallery {

/// Height of a capital in pixels.
constexpr int capHeight(int scale) {
    return 6 * scale + 1;
}

/// Width in pixels from the first stroke to the last.
int textWidth(std::string_view text, int scale = 1);

/// Draws capitals, digits and a few signs with a thin pen, upper left corner at (left, top);
/// characters without strokes draw nothing. The handle's pen stays as it was.
void drawText(GDrawHandle* handle, int left, int top, std::string_view text, uint32_t color,
              int scale = 1);

} // namespace gallery
