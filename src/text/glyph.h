// Drawing one glyph at the pen position.
#pragma once

#include "raster/canvas.h"

#include <quarlo/font.h>

#include <cstdint>

namespace quarlo {

/// How often each column and row of a glyph is drawn, 1 to 255.
struct Magnification {
    int32_t x;
    int32_t y;

    bool isNatural() const { return x == 1 && y == 1; }
};

/// A font's own magnification. 0 counts as 1.
Magnification magnificationOf(const GFontRecord& font);

/// Draws a glyph at its natural size on the handle's canvas and moves the pen past it, also where
/// nothing can be seen.
void drawGlyph(const Canvas& canvas, const GGlyphRequest& glyph);

/// Draws a glyph by a rectangle for each set pixel, in application coordinates, and moves the pen
/// past it.
void drawGlyphZoomed(GDrawHandle* handle, const GGlyphRequest& glyph, const Magnification& scale);

/// Whether a glyph's bits can be read: its size is positive and its depth one of 1, 2, 4 and 8.
bool hasBitmap(const GGlyphRequest& glyph);

/// Bytes of a bitmap row.
inline int32_t rowBytes(const GGlyphRequest& glyph) {
    return (glyph.width * glyph.bitsPerPixel + 7) / 8;
}

} // namespace quarlo
