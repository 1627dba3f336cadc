// Mapping between coordinate frames. A point, a line end and a rectangle corner with the same
// coordinates map to the same place, since there is one formula for all.
#pragma once

#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>

namespace quarlo {

/// What a 16-bit field keeps of a wider result: its low bits, never saturated.
constexpr int16_t low16(int64_t value) {
    return static_cast<int16_t>(value);
}

/// One axis of a mapping. The ends of the source fall on the ends of the destination. An extent
/// below 1, mirrored or not, counts as 1.
class AxisMap {
  public:
    constexpr AxisMap(int16_t sourceLow, int16_t sourceHigh, int16_t low, int16_t high)
        : sourceLow_(sourceLow),
          sourceExtent_(std::max(sourceHigh - sourceLow, 1)),
          low_(low),
          extent_(std::max(high - low, 1)) {}

    /// Rounds half up from the frame's low end on. The bias stays positive below it, so that values
    /// there are pulled towards the frame. Products reach 33 bits.
    constexpr int16_t operator()(int16_t value) const {
        const int64_t scaled = int64_t{value - sourceLow_} * extent_ + (sourceExtent_ >> 1);
        return low16(scaled / sourceExtent_ + low_);
    }

  private:
    int32_t sourceLow_;
    int32_t sourceExtent_;
    int32_t low_;
    int32_t extent_;
};

/// A mapping from a source frame to a destination frame, which are rectangles taken by value: what
/// is mapped may be one of them.
class FrameMap {
  public:
    constexpr FrameMap(const GRect& source, const GRect& destination)
        : x_(source.left, source.right, destination.left, destination.right),
          y_(source.top, source.bottom, destination.top, destination.bottom) {}

    constexpr void operator()(GPoint& point) const { point = {x_(point.x), y_(point.y)}; }

    /// The corners are not sorted.
    constexpr void operator()(GRect& rect) const {
        rect = {x_(rect.left), y_(rect.top), x_(rect.right), y_(rect.bottom)};
    }

    constexpr void operator()(GLine& line) const {
        line = {x_(line.x1), y_(line.y1), x_(line.x2), y_(line.y2)};
    }

    /// Maps the points, then the bounding box.
    void operator()(GPoly& poly) const {
        for (int32_t i = 0; i < poly.count; ++i) {
            (*this)(poly.points[i]);
        }
        (*this)(poly.bounds);
    }

  private:
    AxisMap x_;
    AxisMap y_;
};

} // namespace quarlo
