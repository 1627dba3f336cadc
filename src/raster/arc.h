// What a call between two angles does besides drawing.
#pragma once

#include "geometry/view.h"
#include "raster/arc_end.h"
#include "raster/canvas.h"

#include <cstdint>

namespace quarlo {

/// Calls draw(canvas, ellipse, arc) when the ellipse inscribed in a rectangle, given in application
/// coordinates, can be seen. The ellipse's centres and the arc's ends, these in application
/// coordinates, are left in the handle.
template <typename Draw>
void withArc(GDrawHandle& handle, GRect box, int16_t startAngle, int16_t endAngle,
             const Draw& draw) {
    mapToScreen(handle, box);
    const Canvas canvas(handle);
    const Ellipse ellipse = Ellipse::inscribed(box);
    const bool visible = isValid(canvas.area) && !areDisjoint(box, canvas.area);
    if (visible && ellipse.a >= 0 && ellipse.b >= 0) {
        leaveCentres(handle.ellipse, ellipse);
        draw(canvas, ellipse, findArc(handle.arc, ellipse, startAngle, endAngle));
    }
    // Also what an arc before this one left is taken for surface coordinates, deliberately.
    mapFromScreen(handle, handle.arc.start);
    mapFromScreen(handle, handle.arc.end);
}

} // namespace quarlo
