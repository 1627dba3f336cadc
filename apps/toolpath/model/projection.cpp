#include "model/projection.h"

#include <algorithm>

namespace toolpath {
namespace {

// Seen along a diagonal of the cube each axis is shortened alike; drawn at full length, X and Y
// rise and fall by 30 degrees.
constexpr double kCos30 = 0.86602540378443865;
constexpr double kSin30 = 0.5;

/// Liang-Barsky: narrows the part [enter, leave] of a segment to the inside of one edge, where
/// `along` is the way towards the edge and `room` the distance left to it.
bool clipToEdge(double along, double room, double& enter, double& leave) {
    if (along == 0.0) {
        return room >= 0.0;
    }
    const double part = room / along;
    if (along > 0.0) {
        leave = std::min(leave, part);
    } else {
        enter = std::max(enter, part);
    }
    return enter <= leave;
}

} // namespace

Point2 project(Projection projection, const Point3& point) {
    switch (projection) {
    case Projection::Plan:
        return {point[kX], point[kY]};
    case Projection::Elevation:
        return {point[kX], point[kZ]};
    case Projection::Isometric:
        break;
    }
    return {(point[kX] + point[kY]) * kCos30, (point[kY] - point[kX]) * kSin30 + point[kZ]};
}

Point3 unproject(Projection projection, const Point2& point, double height) {
    switch (projection) {
    case Projection::Plan:
        return {point.x, point.y, height};
    case Projection::Elevation:
        return {point.x, 0.0, point.y};
    case Projection::Isometric:
        break;
    }
    const double sum = point.x / kCos30;
    const double difference = (point.y - height) / kSin30;
    return {(sum - difference) / 2, (sum + difference) / 2, height};
}

Box2 projectBox(Projection projection, const Box3& box) {
    const Point2 first = project(projection, box.low);
    Box2 frame{first, first};
    for (unsigned corner = 1; corner < 8; ++corner) {
        const Point2 p = project(projection, {corner & 1U ? box.high[kX] : box.low[kX],
                                              corner & 2U ? box.high[kY] : box.low[kY],
                                              corner & 4U ? box.high[kZ] : box.low[kZ]});
        frame.low = {std::min(frame.low.x, p.x), std::min(frame.low.y, p.y)};
        frame.high = {std::max(frame.high.x, p.x), std::max(frame.high.y, p.y)};
    }
    return frame;
}

bool clipSegment(Point2& from, Point2& to, double halfWidth) {
    const Point2 start = from;
    const Point2 way{to.x - from.x, to.y - from.y};
    double enter = 0.0;
    double leave = 1.0;
    if (!clipToEdge(-way.x, halfWidth + start.x, enter, leave) ||
        !clipToEdge(way.x, halfWidth - start.x, enter, leave) ||
        !clipToEdge(-way.y, halfWidth + start.y, enter, leave) ||
        !clipToEdge(way.y, halfWidth - start.y, enter, leave)) {
        return false;
    }
    if (leave < 1.0) {
        to = {start.x + way.x * leave, start.y + way.y * leave};
    }
    if (enter > 0.0) {
        from = {start.x + way.x * enter, start.y + way.y * enter};
    }
    return true;
}

} // namespace toolpath
