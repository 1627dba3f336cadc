#include "gcode/arc.h"

#include <algorithm>
#include <cmath>

namespace gcode {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;

// Points nearer than this are one point: programs carry three to five decimals.
constexpr double kSamePlace = 1e-6;

// A programmed centre or radius is rounded to the program's decimals; what is off by more than
// this, and by more than a thousandth of the radius, is not rounding.
constexpr double kRounding = 0.01;

bool isMoreThanRounding(double difference, double radius) {
    return difference > kRounding && difference > radius * 0.001;
}

double distanceInPlane(const Plane& plane, const Point3& a, const Point3& b) {
    return std::hypot(b[plane.first] - a[plane.first], b[plane.second] - a[plane.second]);
}

/// The way round from one angle to another, a whole turn where they are the same.
double sweepBetween(double from, double to, bool clockwise) {
    double sweep = to - from;
    if (clockwise) {
        return sweep >= 0.0 ? sweep - kTurn : sweep;
    }
    return sweep <= 0.0 ? sweep + kTurn : sweep;
}

} // namespace

std::optional<Arc> arcAboutCentre(const Plane& plane, const Point3& start, const Point3& end,
                                  double toCentreFirst, double toCentreSecond, bool clockwise) {
    Arc arc{};
    arc.plane = plane;
    arc.start = start;
    arc.end = end;
    arc.centreFirst = start[plane.first] + toCentreFirst;
    arc.centreSecond = start[plane.second] + toCentreSecond;
    arc.startRadius = std::hypot(toCentreFirst, toCentreSecond);
    if (arc.startRadius < kSamePlace) {
        return std::nullopt;
    }
    const double endFirst = end[plane.first] - arc.centreFirst;
    const double endSecond = end[plane.second] - arc.centreSecond;
    arc.endRadius = std::hypot(endFirst, endSecond);
    arc.startAngle = std::atan2(-toCentreSecond, -toCentreFirst);
    const bool wholeTurn = distanceInPlane(plane, start, end) < kSamePlace;
    const double endAngle = wholeTurn ? arc.startAngle : std::atan2(endSecond, endFirst);
    arc.sweep = sweepBetween(arc.startAngle, endAngle, clockwise);
    return arc;
}

std::optional<Arc> arcOfRadius(const Plane& plane, const Point3& start, const Point3& end,
                               double radius, bool clockwise) {
    const double distance = distanceInPlane(plane, start, end);
    if (distance < kSamePlace || std::abs(radius) < kSamePlace) {
        return std::nullopt;
    }
    const double half = distance / 2.0;
    const double size = std::max(std::abs(radius), half);
    // From the middle between the points the centre lies square to the way from start to end: to
    // the left of it for the shorter counterclockwise and the longer clockwise arc.
    const double height = std::sqrt((size - half) * (size + half));
    const double toLeft = clockwise == (radius < 0.0) ? height : -height;
    const double first = end[plane.first] - start[plane.first];
    const double second = end[plane.second] - start[plane.second];
    return arcAboutCentre(plane, start, end, first / 2.0 - second / distance * toLeft,
                          second / 2.0 + first / distance * toLeft, clockwise);
}

bool radiusFallsShort(const Plane& plane, const Point3& start, const Point3& end, double radius) {
    const double half = distanceInPlane(plane, start, end) / 2.0;
    return isMoreThanRounding(half - std::abs(radius), half);
}

bool Arc::isSpiral() const {
    return isMoreThanRounding(std::abs(endRadius - startRadius), startRadius);
}

int Arc::chordCount() const {
    const double radius = std::max(startRadius, endRadius);
    // A chord over the angle a leaves its arc by radius x (1 - cos(a / 2)).
    const double widest = 2.0 * std::acos(std::max(0.0, 1.0 - kChordTolerance / radius));
    const double step = std::max(widest, kSmallestStep);
    return std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / step)));
}

Point3 Arc::at(double part) const {
    const double angle = startAngle + sweep * part;
    const double radius = startRadius + (endRadius - startRadius) * part;
    Point3 point;
    point[plane.first] = centreFirst + radius * std::cos(angle);
    point[plane.second] = centreSecond + radius * std::sin(angle);
    point[plane.normal] = start[plane.normal] + (end[plane.normal] - start[plane.normal]) * part;
    return point;
}

Point3 Arc::chordEnd(int index, int count) const {
    return index >= count ? end : at(static_cast<double>(index) / count);
}

} // namespace gcode
