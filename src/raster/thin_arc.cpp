#include "raster/thin_arc.h"

#include <algorithm>

namespace quarlo {

/// The part of a piece between a pixel of the outline and the top.
ThinArc::Piece ThinArc::above(const ArcEnd& end, const Piece& piece) {
    if (piece.y < end.y) {
        return {1, 0, piece.y};
    }
    return {piece.inner, piece.y > end.y ? piece.outer : end.x, piece.y};
}

/// The part between it and the middle.
ThinArc::Piece ThinArc::below(const ArcEnd& end, const Piece& piece) {
    if (piece.y > end.y) {
        return {1, 0, piece.y};
    }
    return {piece.y < end.y ? piece.inner : end.x, piece.outer, piece.y};
}

/// Whether a piece lies on the upright axis before a quarter. On the level one no more than a pixel
/// does.
bool ThinArc::isTipOfPrevious(int32_t quadrant, const Piece& piece) const {
    return quadrant % 2 != 0 && ellipse_.leftCentre == ellipse_.rightCentre && piece.outer == 0;
}

/// Angles grow towards the top in every other quarter.
void ThinArc::addQuarter(RowRuns& runs, int32_t quadrant, const Piece& piece) const {
    const ArcEnd& start = arc_.outlineStart;
    const ArcEnd& end = arc_.outlineEnd;
    const bool starts = start.quadrant == quadrant;
    const bool ends = end.quadrant == quadrant;
    if (tips_ == Tips::Once && isTipOfPrevious(quadrant, piece)) {
        return;
    }
    if (!starts && !ends) {
        if (whole_[quadrant]) {
            add(runs, quadrant, piece);
        }
        return;
    }
    const bool rising = quadrant % 2 == 0;
    const Piece fromStart = rising ? above(start, piece) : below(start, piece);
    const Piece toEnd = rising ? below(end, piece) : above(end, piece);
    if (starts && ends && !arc_.returns()) {
        add(runs, quadrant,
            {std::max(fromStart.inner, toEnd.inner), std::min(fromStart.outer, toEnd.outer),
             piece.y});
        return;
    }
    if (starts) {
        add(runs, quadrant, fromStart);
    }
    if (ends) {
        add(runs, quadrant, toEnd);
    }
}

void ThinArc::add(RowRuns& runs, int32_t quadrant, const Piece& piece) const {
    if (quadrant == 1 || quadrant == 2) {
        runs.add(ellipse_.leftCentre - piece.outer, ellipse_.leftCentre - piece.inner);
    } else {
        runs.add(ellipse_.rightCentre + piece.inner, ellipse_.rightCentre + piece.outer);
    }
}

} // namespace quarlo
