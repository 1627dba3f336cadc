// Arcs one pixel thin, row by row.
#pragma once

#include "raster/outline.h"
#include "raster/row_runs.h"

#include <cstdint>

namespace quarlo {

/// The pixels of a thin outline from one end of an arc to the other, both included.
class ThinArc {
  public:
    /// What becomes of the tips of narrow ellipses, where the outline runs out to an axis and back
    /// over the same pixels.
    enum class Tips {
        Shared, ///< they are of the quarters on both sides
        Once    ///< they are of the quarter before the axis, so that arcs end to end share no more
                ///< than the pixel where they meet
    };

    ThinArc(const Ellipse& ellipse, const ArcSpan& arc, Tips tips)
        : ellipse_(ellipse), arc_(arc), tips_(tips) {
        for (int32_t quadrant = 0; quadrant < 4; ++quadrant) {
            whole_[quadrant] = arc.holdsQuarter(quadrant);
        }
    }

    /// Calls action(runs, row) once for every row of the ellipse, with what lies on it.
    template <typename Action>
    void walk(const Action& action) const {
        walkOutline(ellipse_, Sides::None, [&](int32_t inner, int32_t outer, int32_t y) {
            const Piece piece{inner, outer, y};
            const int32_t upper = ellipse_.topCentre - y;
            const int32_t lower = ellipse_.bottomCentre + y;
            RowRuns runs;
            addQuarter(runs, 0, piece);
            addQuarter(runs, 1, piece);
            if (upper != lower) {
                action(runs, upper);
                runs.clear();
            }
            addQuarter(runs, 2, piece);
            addQuarter(runs, 3, piece);
            action(runs, lower);
        });
    }

  private:
    /// A quarter's part of the outline on one row, as distances from its centre.
    struct Piece {
        int32_t inner;
        int32_t outer;
        int32_t y;
    };

    void addQuarter(RowRuns& runs, int32_t quadrant, const Piece& piece) const;
    void add(RowRuns& runs, int32_t quadrant, const Piece& piece) const;
    bool isTipOfPrevious(int32_t quadrant, const Piece& piece) const;
    static Piece above(const ArcEnd& end, const Piece& piece);
    static Piece below(const ArcEnd& end, const Piece& piece);

    const Ellipse& ellipse_;
    const ArcSpan& arc_;
    const Tips tips_;
    bool whole_[4]; ///< the quarters that the arc holds from end to end
};

} // namespace quarlo
