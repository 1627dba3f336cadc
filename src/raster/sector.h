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
    /// From the centre of a quarter through a pixel of the outline.
    struct Ray {
        int32_t centre; ///< column
        int64_t x;      ///< to the pixel; upwards positive
        int64_t y;
        int64_t halfX; ///< the same from the middle of the ellipse, in half pixels
        int64_t halfY;
        bool upper; ///< it runs through the rows of the upper half
    };

    struct Parts {
        ColumnRun runs[2];
    };

    Ray rayTo(const Ellipse& ellipse, const ArcEnd& end) const;
    Ray turned(const Ray& ray) const;
    static int64_t cross(const Ray& a, const Ray& b) {
        return a.halfX * b.halfY - a.halfY * b.halfX;
    }
    static bool precedes(const Ray& a, const Ray& b);
    bool holdsLevel(bool right) const;

    static int32_t columnOn(const Ray& ray, int64_t height);
    static Parts upperParts(int64_t height, const Ray& start, const Ray& end);
    Parts partsOf(int32_t row) const;
    Parts levelParts() const;

    int32_t doubledX_; ///< twice the middle column, which may lie between pixels
    int32_t topCentre_;
    int32_t bottomCentre_;
    Ray start_;
    Ray end_;
    bool whole_; ///< the ends are one ray and the arc goes all the way round
    bool empty_; ///< it goes nowhere
};

} // namespace quarlo
