// The polygon scan converter: everything filled that is neither a rectangle nor an ellipse.
#pragma once

#include "raster/canvas.h"

#include <quarlo/types.h>

#include <cstdint>

namespace quarlo {

/// Pattern number of a solid fill in the fore colour.
inline constexpr int32_t kSolidPattern = -1;

/// Fills a polygon in surface coordinates by the even-odd rule. Its runs of four points that carry
/// a table edge are taken as such. Both ends of a run are painted; the lowest line of every edge is
/// left to the edges that go on through it.
///
/// @param pattern -1 fills solid in the fore colour, 0 and above select pattern (number modulo 38)
///     of the handle in both colours, any other negative number fills nothing
void GDFillPolygon(const Canvas& canvas, const GPoly& poly, uint32_t fore, uint32_t back,
                   int32_t pattern, int32_t mode);

} // namespace quarlo
