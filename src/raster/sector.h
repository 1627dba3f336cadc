// Sectors: what lies between two rays from the centre of an ellipse.
#pragma once

#include "raster/arc_end.h"

#include <cstdint>

namespace quarlo {

/// A run of columns, both included; empty when they stand the other way.
struct ColumnRun {
    int32_t left;
    int32_t right;
};

/// The pixels from the ray through an arc's start, included, to the ray through its end, not
/// included: sectors side by side share no pixel but the centre, which lies in all of them.
class Sector {
  public:
    Sector(const Ellipse& ellipse, const ArcSpan& arc);

    /// Calls action(left, right) for the one or two parts of a row's run that lie in the sector.
    template <typename Action>
    void cut(const ColumnRun& run, int32_t row, const Action& action) const {
        for (const ColumnRun& part : partsOf(row).runs) {
            const int32_t left = part.left > run.left ? part.left : run.left;
            const int32_t right = part.right < run.right ? part.right : run.right;
            if (left <= right) {
                action(left, right);
            }
        }
    }

  private:
    /// A direction in half pixels, upwards positive.
    struct Ray {
        int64_t x;
        int64_t y;

        Ray turned() const { return {-x, -y}; }
        /// From the level ray on the right, included, half a turn on.
        bool isUpper() const { return y > 0 || (y == 0 && x > 0); }
    };

    struct Parts {
        ColumnRun runs[2];
    };

    static int64_t cross(const Ray& a, const Ray& b) { return a.x * b.y - a.y * b.x; }

    Ray rayTo(const GPoint& point) const;
    bool holds(const Ray& ray) const;
    Parts partsOf(int32_t row) const;
    Parts upperParts(int64_t height, const Ray& start, const Ray& end) const;
    Parts levelParts() const;

    int32_t doubledX_; ///< twice the centre, which may lie between pixels
    int32_t doubledY_;
    Ray start_{};
    Ray end_{};
    bool whole_; ///< the ends are one ray and the arc goes all the way round
    bool empty_; ///< it goes nowhere
};

} // namespace quarlo
