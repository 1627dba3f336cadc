// The course of a thin line: which pixels it takes, by integer midpoint stepping.
#pragma once

#include "raster/kernel/kernels.h"

#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace quarlo {

/// Consecutive steps of a course, both included; empty when `first` is past `last`.
struct StepRange {
    int64_t first;
    int64_t last;

    bool empty() const { return first > last; }
    void narrow(int64_t low, int64_t high) {
        first = std::max(first, low);
        last = std::min(last, high);
    }
};

/// A line from its first to its second end point, one pixel for each step along the longer axis (x
/// where both are alike). At an exact tie the shorter axis steps. The two ends must differ.
class LineCourse {
  public:
    explicit LineCourse(const GLine& line) : x_(line.x1), y_(line.y1) {
        const int32_t dx = line.x2 - line.x1;
        const int32_t dy = line.y2 - line.y1;
        steep_ = std::abs(dy) > std::abs(dx);
        extent_ = std::max(std::abs(dx), std::abs(dy));
        across_ = std::min(std::abs(dx), std::abs(dy));
        xStep_ = static_cast<int8_t>(dx > 0 ? 1 : -1);
        yStep_ = static_cast<int8_t>(dy > 0 ? 1 : -1);
    }

    /// Whether the longer axis is y.
    bool steep() const { return steep_; }

    /// Pixels, and steps along the longer axis plus one.
    int32_t count() const { return extent_ + 1; }

    /// The steps at which the pixel, thickened by `before` and `behind` along the shorter axis,
    /// meets a rectangle.
    StepRange stepsWithin(const GRect& rect, int32_t before, int32_t behind) const {
        StepRange steps{0, extent_};
        const int32_t xBefore = steep_ ? before : 0;
        const int32_t xBehind = steep_ ? behind : 0;
        const int32_t yBefore = steep_ ? 0 : before;
        const int32_t yBehind = steep_ ? 0 : behind;
        narrowAxis(steps, !steep_, xStep_, rect.left - xBehind - x_, rect.right + xBefore - x_);
        narrowAxis(steps, steep_, yStep_, rect.top - yBehind - y_, rect.bottom + yBefore - y_);
        return steps;
    }

    GPoint pixelAt(int64_t step) const {
        const int64_t x = steep_ ? minorSteps(step) : step;
        const int64_t y = steep_ ? step : minorSteps(step);
        return {static_cast<int16_t>(x_ + xStep_ * x), static_cast<int16_t>(y_ + yStep_ * y)};
    }

    /// The walk through pixel memory from one step to another.
    kernel::LineSteps walk(const StepRange& steps, int32_t bytesPerPixel, ptrdiff_t stride) const {
        const ptrdiff_t alongX = xStep_ * ptrdiff_t{bytesPerPixel};
        const ptrdiff_t alongY = yStep_ * stride;
        return {static_cast<int32_t>(steps.last - steps.first + 1),
                steep_ ? alongY : alongX,
                steep_ ? alongX : alongY,
                static_cast<int32_t>(errorAt(steps.first)),
                2 * across_,
                2 * extent_};
    }

    /// A walk through surface coordinates, starting at a step.
    class Walk {
      public:
        Walk(const LineCourse& course, int64_t step)
            : course_(course), at_(course.pixelAt(step)), error_(course.errorAt(step)) {}

        const GPoint& at() const { return at_; }

        void advance() {
            error_ += 2 * int64_t{course_.across_};
            const bool both = error_ >= 0;
            if (both) {
                error_ -= 2 * int64_t{course_.extent_};
            }
            if (both || !course_.steep_) {
                at_.x = static_cast<int16_t>(at_.x + course_.xStep_);
            }
            if (both || course_.steep_) {
                at_.y = static_cast<int16_t>(at_.y + course_.yStep_);
            }
        }

      private:
        const LineCourse& course_;
        GPoint at_;
        int64_t error_;
    };

  private:
    int64_t errorAt(int64_t step) const {
        return step * 2 * across_ - extent_ - minorSteps(step) * 2 * extent_;
    }

    /// Steps along the shorter axis taken by a step of the longer one.
    int64_t minorSteps(int64_t step) const {
        return (step * 2 * across_ + extent_) / (2 * int64_t{extent_});
    }

    /// Keeps the steps at which the offset on one axis, `direction` times a count, lies between
    /// `low` and `high`.
    void narrowAxis(StepRange& steps, bool major, int32_t direction, int64_t low,
                    int64_t high) const {
        if (direction < 0) {
            std::swap(low, high);
            low = -low;
            high = -high;
        }
        if (major) {
            steps.narrow(low, high);
        } else if (across_ == 0) {
            if (low > 0 || high < 0) {
                steps = {0, -1};
            }
        } else {
            steps.narrow(firstStepTo(low), firstStepTo(high + 1) - 1);
        }
    }

    /// The first step by which the shorter axis has taken `minor` steps.
    int64_t firstStepTo(int64_t minor) const {
        const int64_t twice = 2 * int64_t{across_};
        const int64_t reach = 2 * minor * extent_ - extent_;
        return reach <= 0 ? 0 : (reach + twice - 1) / twice;
    }

    int32_t x_;
    int32_t y_;
    int32_t extent_; ///< of the longer axis
    int32_t across_; ///< of the shorter axis
    int8_t xStep_;
    int8_t yStep_;
    bool steep_;
};

} // namespace quarlo
