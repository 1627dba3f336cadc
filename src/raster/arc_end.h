// Where an arc starts and ends on its ellipse.
#pragma once

#include "raster/ellipse.h"

#include <cstdint>

namespace quarlo {

/// Tenths of a degree, 0 to 3599: 0 on the right, 900 at the top.
struct ArcAngle {
    int32_t tenths;

    /// Takes full turns off, or adds them to what is negative.
    static ArcAngle of(int32_t tenths) {
        const int32_t rest = tenths % kFullTurn;
        return {rest < 0 ? rest + kFullTurn : rest};
    }

    /// 0 upper right, 1 upper left, 2 lower left, 3 lower right.
    int32_t quadrant() const { return tenths / kQuarter; }

    /// On the vertical through the centre.
    bool isUpright() const { return tenths == kQuarter || tenths == 3 * kQuarter; }

    static constexpr int32_t kQuarter = 900;
    static constexpr int32_t kFullTurn = 3600;
};

/// A pixel by its distances from the centre of its quarter.
struct ArcEnd {
    int32_t quadrant;
    int32_t x;
    int32_t y;

    GPoint on(const Ellipse& ellipse) const;

    /// Angles grow towards the top here.
    bool isRising() const { return quadrant % 2 == 0; }
};

/// The search for an angle's pixel among the rows of a quarter, which are fed to it from the top
/// down: the first whose slope seen from the centre is not above the angle's.
class ArcEndSearch {
  public:
    ArcEndSearch(ArcAngle angle, const Ellipse& ellipse);

    /// The next row and its outermost column.
    void feed(int32_t x, int32_t y);

    ArcEnd end() const { return end_; }

    /// The pixel of the thin outline that stands for it. The search may stop at one that the row
    /// above covers; then it is the neighbour that a fill of the sector holds.
    ArcEnd outlineEnd() const;

    /// Columns a row, 16.16 fixed point: 0 upright, the semi-axis for a level angle.
    int32_t inverseSlope() const { return inverseSlope_; }

  private:
    void settle(int32_t x, int32_t y);

    int64_t slope_ = 0; ///< rows a column, 16.16 fixed point
    int32_t inverseSlope_ = 0;
    int32_t previous_ = 0; ///< column of the row above
    const int32_t first_;  ///< row
    bool covered_ = false; ///< the end is not in the thin outline
    bool found_ = false;
    ArcEnd end_;
};

/// Both ends of an arc and what lies between them.
struct ArcSpan {
    ArcEnd start;
    ArcEnd end;
    ArcEnd outlineStart; ///< the same ends as pixels of the thin outline
    ArcEnd outlineEnd;
    int32_t sweep; ///< tenths of a degree from start to end, 0 to 3599

    /// Whether the arc passes through a whole quarter.
    bool holdsQuarter(int32_t quadrant) const;
    /// Whether it starts and ends in one quarter after passing all others.
    bool returns() const { return start.quadrant == end.quadrant && sweep > ArcAngle::kQuarter; }
};

/// Finds the ends of an arc and leaves them, in surface coordinates, and the slope of the last one
/// in the handle.
ArcSpan findArc(GArcState& state, const Ellipse& ellipse, int32_t startTenths, int32_t endTenths);

} // namespace quarlo
