// Circular arcs and helices, and the chords that stand for them in a path.
#pragma once

#include "gcode/modal_state.h"

#include <numbers>
#include <optional>

namespace gcode {

/// No chord leaves its arc by more than this, in millimetres, up to the radius where chords of
/// kSmallestStep do (1 m); beyond it by no more than a hundred thousandth of the radius.
inline constexpr double kChordTolerance = 0.01;
inline constexpr double kSmallestStep = std::numbers::pi / 360.0;

/// An arc about an axis parallel to the plane's normal. The radius and the third coordinate change
/// evenly from start to end: an arc that ends on its circle is round, with travel along the normal
/// a helix, and one whose end lies off its circle a spiral.
struct Arc {
    Plane plane;
    Point3 start;
    Point3 end;
    double centreFirst;  ///< centre along the plane's first axis
    double centreSecond; ///< centre along the plane's second axis
    double startRadius;
    double endRadius;
    double startAngle; ///< radians, counterclockwise from the first axis
    double sweep;      ///< radians, negative for clockwise; a whole turn where start meets end

    /// The place at a part of the sweep, from 0 to 1.
    Point3 at(double part) const;
    int chordCount() const;
    /// The end of chord `index`, 1 to chordCount(); that of the last is `end` itself.
    Point3 chordEnd(int index, int count) const;
    /// Whether the end lies off the circle through the start by more than rounding explains.
    bool isSpiral() const;
};

/// The arc about a centre, given as its distances from the start along the plane's axes.
/// @return nothing for an arc without a radius
std::optional<Arc> arcAboutCentre(const Plane& plane, const Point3& start, const Point3& end,
                                  double toCentreFirst, double toCentreSecond, bool clockwise);

/// An arc through two points. The radius is negative for the longer of the two arcs. Where it is
/// shorter than half the distance the arc is a half circle.
/// @return nothing for a radius of 0, or where start and end are one point in the plane
std::optional<Arc> arcOfRadius(const Plane& plane, const Point3& start, const Point3& end,
                               double radius, bool clockwise);

/// Whether a radius is too short to reach between two points by more than rounding explains.
bool radiusFallsShort(const Plane& plane, const Point3& start, const Point3& end, double radius);

} // namespace gcode
