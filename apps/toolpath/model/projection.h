// From places in space to places in a picture.
#pragma once

#include "model/tool_path.h"

#include <cstdint>

namespace toolpath {

/// A place in a picture: x to the right and y upwards.
struct Point2 {
    double x;
    double y;
};

struct Box2 {
    Point2 low;
    Point2 high;
};

enum class Projection : uint8_t {
    Plan,      ///< from above: X to the right, Y up
    Elevation, ///< from the front: X to the right, Z up
    Isometric, ///< from the front right: X to the lower right, Y to the upper right, Z up
};

/// All three axes keep their true ratio; in the isometric view each is shown at the same scale.
Point2 project(Projection projection, const Point3& point);

/// The place at a height, or in an elevation at Y 0, that is projected to a point.
Point3 unproject(Projection projection, const Point2& point, double height);

/// The box around a projected box.
Box2 projectBox(Projection projection, const Box3& box);

/// Cuts a segment to the square of the given half width about the origin.
/// @return whether a part of it lies inside
bool clipSegment(Point2& from, Point2& to, double halfWidth);

} // namespace toolpath
