// Where things are drawn: places and lines from fixed seeds, the same in every run.
#pragma once

#include "workload.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace bench {

/// The upper left corner of a shape, and of what is copied there.
struct Place {
    int16_t x;
    int16_t y;
    int16_t sourceX;
    int16_t sourceY;
};

struct Segment {
    int16_t x1;
    int16_t y1;
    int16_t x2;
    int16_t y2;
};

/// The shapes that one pass over a workload draws: places or segments, by its operation.
struct Shapes {
    std::span<const Place> places;
    std::span<const Segment> segments;

    size_t count() const { return places.empty() ? segments.size() : places.size(); }
    /// At most `limit` of them, from the first.
    Shapes first(size_t limit) const;
};

/// The same shapes on every call.
Shapes shapesOf(const Workload& workload);

} // namespace bench
