// Arcs a second way: the outline as one list of pixels in the order of growing angles, of which an
// arc is a part.
#pragma once

#include "raster/curve_model.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace quarlo::test {

/// The pixel of an angle, by its distances from the centre of its quarter.
struct ModelEnd {
    int32_t quadrant;
    int32_t x;
    int32_t y;
    int32_t inverseSlope;

    GPoint on(const CurveModel& oval) const {
        const bool left = quadrant == 1 || quadrant == 2;
        const bool upper = quadrant < 2;
        return {static_cast<int16_t>(left ? oval.left - x : oval.right + x),
                static_cast<int16_t>(upper ? oval.top - y : oval.bottom + y)};
    }
};

/// Step by step, for an angle from 0 to 3599.
inline ModelEnd modelEnd(const CurveModel& oval, int32_t angle) {
    const int32_t quadrant = angle / 900;
    if (angle == 900 || angle == 2700) {
        return {quadrant, 0, oval.b, 0};
    }
    const auto t =
        angle % 1800 == 0 ? 0.0F : static_cast<float>(std::fabs(std::tan(angle * 0.00174532925)));
    const auto s = static_cast<int64_t>(t * 65536);
    const int32_t inverseSlope = t == 0 ? oval.a * 65536 : static_cast<int32_t>(65536 / t);
    const auto list = quarterColumns(oval.a, oval.b);
    int64_t height = int64_t{oval.b} * 65536;
    size_t i = 0;
    while (height > 0 && !(list[i] != 0 && height / list[i] <= s)) {
        height -= 65536;
        ++i;
    }
    const int32_t previous = i == 0 ? 0 : list[i - 1];
    int32_t x = list[i];
    while (x >= 1 && !(x <= previous || height / x >= s)) {
        --x;
    }
    return {quadrant, x, static_cast<int32_t>(height >> 16), inverseSlope};
}

/// The whole outline in the order of growing angles, from the right.
class OutlineWalk {
  public:
    explicit OutlineWalk(const CurveModel& oval) : oval_(oval) {
        const auto columns = quarterColumns(oval.a, oval.b);
        for (int32_t quadrant = 0; quadrant < 4; ++quadrant) {
            const bool rising = quadrant % 2 == 0;
            for (int32_t i = 0; i <= oval.b; ++i) {
                const int32_t y = rising ? i : oval.b - i;
                const auto row = static_cast<size_t>(oval.b - y);
                const int32_t outer = columns[row];
                const int32_t above = row == 0 ? -1 : columns[row - 1];
                addRow(quadrant, y, std::min(above + 1, outer), outer);
            }
        }
    }

    /// The place of an angle's pixel; where it is none of the outline's, of the one before it.
    size_t placeOf(const ModelEnd& end) const {
        size_t place = 0;
        for (size_t i = 0; i < steps_.size(); ++i) {
            if (!precedes(end, steps_[i].end)) {
                place = i;
            }
        }
        return place;
    }

    size_t next(size_t place) const { return (place + 1) % steps_.size(); }

    void paint(size_t place, Pixels& pixels) const {
        const Step& step = steps_[place];
        if (!step.isTip) {
            const GPoint point = step.end.on(oval_);
            pixels.insert({point.y, point.x});
        }
    }

  private:
    struct Step {
        ModelEnd end;
        bool isTip; ///< on the axis behind the quarter, which has painted it
    };

    static bool precedes(const ModelEnd& a, const ModelEnd& b) {
        if (a.quadrant != b.quadrant) {
            return a.quadrant < b.quadrant;
        }
        const bool rising = a.quadrant % 2 == 0;
        const ModelEnd& higher = rising ? b : a;
        const ModelEnd& lower = rising ? a : b;
        return higher.y != lower.y ? higher.y > lower.y : higher.x < lower.x;
    }

    void addRow(int32_t quadrant, int32_t y, int32_t inner, int32_t outer) {
        const bool rising = quadrant % 2 == 0;
        const bool isTip = rising ? oval_.top == oval_.bottom && y == 0 && inner < outer
                                  : oval_.left == oval_.right && outer == 0;
        for (int32_t i = inner; i <= outer; ++i) {
            const int32_t x = rising ? outer + inner - i : i;
            steps_.push_back({{quadrant, x, y, 0}, isTip});
        }
    }

    const CurveModel& oval_;
    std::vector<Step> steps_;
};

/// The pixels of an arc between two angles from 0 to 3599.
inline Pixels arcPixels(const CurveModel& oval, int32_t start, int32_t end) {
    const OutlineWalk walk(oval);
    const size_t first = walk.placeOf(modelEnd(oval, start));
    const size_t last = walk.placeOf(modelEnd(oval, end));
    Pixels pixels;
    walk.paint(first, pixels);
    // Ends on one pixel: the arc is that pixel, or goes all the way round.
    if (first == last && (end - start + 3600) % 3600 <= 1800) {
        return pixels;
    }
    size_t place = first;
    do {
        place = walk.next(place);
        walk.paint(place, pixels);
    } while (place != last);
    return pixels;
}

} // namespace quarlo::test
