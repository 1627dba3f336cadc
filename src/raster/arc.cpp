// Arcs.
#include "geometry/view.h"
#include "raster/outline.h"

#include <quarlo/draw.h>

using namespace quarlo;

void GDDrawArc(GDrawHandle* handle, const GRect* rect, int16_t startAngle, int16_t endAngle) {
    GRect box = *rect;
    mapToScreen(*handle, box);
    const Canvas canvas(*handle);
    const Ellipse ellipse = Ellipse::inscribed(box);
    if (isValid(canvas.area) && !areDisjoint(box, canvas.area) && ellipse.a >= 0 &&
        ellipse.b >= 0) {
        const ArcSpan arc = findArc(handle->arc, ellipse, startAngle, endAngle);
        if (handle->penPixel != G_NO_COLOR) {
            drawArc(canvas, ellipse, arc, handle->penPixel, handle->drawingMode);
        }
    }
    // Also what an arc before this one left is taken for surface coordinates, deliberately.
    mapFromScreen(*handle, handle->arc.start);
    mapFromScreen(*handle, handle->arc.end);
}
