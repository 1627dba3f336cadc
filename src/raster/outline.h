// Outlines of ellipses and rounded rectangles, whole or in part.
#pragma once

#include "raster/arc_end.h"
#include "raster/ellipse.h"
#include "raster/sector.h"

#include <algorithm>

namespace quarlo {

/// What lies between the quarters of an outline.
enum class Sides {
    None,    ///< an oval: its rows are those of the ellipse
    Straight ///< a rounded rectangle: from centre row to centre row it is as wide as its box
};

/// Calls piece(inner, outer, y) for the outline's part of a quarter on each row from y = b down to
/// 0: the columns from `inner` to `outer` beyond the centre. They are the pixels of the filled row
/// that nothing covers from above, and its last one: closed, 8-connected, each pixel once. On the
/// first row all of the filled row belongs to it, also between the centres.
template <typename Piece>
void walkOutline(const Ellipse& ellipse, Sides sides, const Piece& piece) {
    int32_t above = -1;
    walkRows(ellipse, [&](int32_t x, int32_t y) {
        const int32_t outer = sides == Sides::Straight && y == 0 ? ellipse.a : x;
        piece(std::min(above + 1, outer), outer, y);
        above = outer;
    });
}

/// Draws the outline with the handle's pen in a pixel value: one pixel thin, or as a ring of the
/// pen's size, which reaches outwards as far as a pen centred on the outline, and where the pen is
/// even one pixel less inwards. A dash is of no account.
void drawOutline(const Canvas& canvas, const Ellipse& ellipse, Sides sides, uint32_t pixel,
                 int32_t mode);

/// Draws the outline of an ellipse from one end of an arc to the other, both included when it is
/// thin: then it is exactly that part of the whole thin outline. A wide one is cut along the rays
/// from the centre.
void drawArc(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc, uint32_t pixel,
             int32_t mode);

/// Draws the same arc and the radii to its ends. A thin outline has each pixel once.
void drawSectorOutline(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc,
                       uint32_t pixel, int32_t mode);

/// The ring alone, or its part in a sector.
void drawWideOutline(const Canvas& canvas, const Ellipse& ellipse, Sides sides,
                     const Sector* sector, uint32_t pixel, int32_t mode);

} // namespace quarlo
