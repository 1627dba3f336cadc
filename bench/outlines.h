// The shapes that are neither rectangles nor straight lines.
#pragma once

#include "workload.h"

#include <array>
#include <vector>

namespace bench {

/// A point in a shape's box.
struct Vertex {
    int x;
    int y;
};

bool isPolygon(Operation operation);

/// The vertices of a polygon, the same in every run.
const std::vector<Vertex>& polygonOf(Operation operation);

inline constexpr int kCornerRadius = 12;

/// Degrees, 0 on the right, growing towards the top.
inline constexpr int kArcStart = 30;
inline constexpr int kArcEnd = 300;

/// A curve in a box of 100 x 100: its ends and the two points that it is drawn to.
inline constexpr std::array<Vertex, 4> kCurve = {{{0, 99}, {20, -30}, {80, 130}, {99, 0}}};

/// A horizontal run of pixels in a shape's box, both ends included.
struct Run {
    int left;
    int right;
    int y;
};

/// The runs that a filled shape consists of, found pixel by pixel or edge by edge; none for
/// outlines.
std::vector<Run> runsOf(const Workload& workload);

} // namespace bench
