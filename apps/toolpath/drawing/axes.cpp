#include "drawing/axes.h"

#include <cmath>

namespace toolpath {
namespace {

constexpr double kLength = 42.0;    // pixels
constexpr double kBarbLength = 7.0; // pixels
constexpr double kBarbAngle = 0.38; // radians from the shaft

void drawArrow(GDrawHandle* handle, const View& view, Axis axis) {
    Point3 tip{};
    tip[axis] = kLength / view.scale();
    GLine shaft;
    if (!view.line({}, tip, shaft)) {
        return;
    }
    const double back = std::atan2(shaft.y1 - shaft.y2, shaft.x1 - shaft.x2);
    for (const double angle : {back - kBarbAngle, back + kBarbAngle}) {
        GDMoveTo(handle, shaft.x2, shaft.y2);
        GDLineTo(handle,
                 static_cast<int16_t>(shaft.x2 + std::lround(kBarbLength * std::cos(angle))),
                 static_cast<int16_t>(shaft.y2 + std::lround(kBarbLength * std::sin(angle))));
    }
    GDDrawLine(handle, &shaft);
}

} // namespace

void drawAxes(GDrawHandle* handle, const Style& style, const View& view) {
    view.select(handle);
    GDSetPenColor(handle, style[Ink::XAxis]);
    drawArrow(handle, view, kX);
    GDSetPenColor(handle, style[Ink::YAxis]);
    drawArrow(handle, view, kY);
    if (view.projection() == Projection::Isometric) {
        GDSetPenColor(handle, style[Ink::ZAxis]);
        drawArrow(handle, view, kZ);
    }
}

} // namespace toolpath
