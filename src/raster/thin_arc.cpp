// Arcs one pixel thin.
#include "raster/outline.h"
#include "raster/wide_line.h"

#include <algorithm>

namespace quarlo {
namespace {

/// Distances from the centre of a quarter, both included.
struct Piece {
    int32_t inner;
    int32_t outer;
};

constexpr Piece kNothing = {1, 0};

/// The runs of one row, which may overlap where quarters share pixels.
class RowRuns {
  public:
    void add(int32_t left, int32_t right) {
        if (left <= right) {
            runs_[count_++] = {left, right};
        }
    }

    /// Paints them from left to right, each pixel once.
    void paint(SpanPainter& painter, int32_t y) {
        std::sort(runs_, runs_ + count_,
                  [](const ColumnRun& a, const ColumnRun& b) { return a.left < b.left; });
        int32_t next = INT32_MIN;
        for (int32_t i = 0; i < count_; ++i) {
            painter.add(std::max(runs_[i].left, next), runs_[i].right, y);
            next = std::max(next, runs_[i].right + 1);
        }
    }

  private:
    ColumnRun runs_[8]; ///< a quarter has two at most
    int32_t count_ = 0;
};

/// The part of a quarter's row between a pixel of the outline and the top.
Piece above(const ArcEnd& end, const Piece& piece, int32_t y) {
    if (y != end.y) {
        return y < end.y ? kNothing : piece;
    }
    return {piece.inner, end.x};
}

/// The part between it and the middle.
Piece below(const ArcEnd& end, const Piece& piece, int32_t y) {
    if (y != end.y) {
        return y > end.y ? kNothing : piece;
    }
    return {end.x, piece.outer};
}

/// A quarter's row on an arc. Angles grow towards the top in every other quarter.
class QuarterRow {
  public:
    QuarterRow(const Ellipse& ellipse, const ArcSpan& arc, int32_t quadrant)
        : ellipse_(ellipse), arc_(arc), quadrant_(quadrant) {}

    void addTo(RowRuns& runs, const Piece& piece, int32_t y) const {
        const ArcEnd& start = arc_.outlineStart;
        const ArcEnd& end = arc_.outlineEnd;
        const bool starts = start.quadrant == quadrant_;
        const bool ends = end.quadrant == quadrant_;
        if (!starts && !ends) {
            if (arc_.holdsQuarter(quadrant_)) {
                add(runs, piece);
            }
            return;
        }
        const bool rising = quadrant_ % 2 == 0;
        const Piece fromStart = rising ? above(start, piece, y) : below(start, piece, y);
        const Piece toEnd = rising ? below(end, piece, y) : above(end, piece, y);
        if (starts && ends && !arc_.returns()) {
            add(runs,
                {std::max(fromStart.inner, toEnd.inner), std::min(fromStart.outer, toEnd.outer)});
            return;
        }
        if (starts) {
            add(runs, fromStart);
        }
        if (ends) {
            add(runs, toEnd);
        }
    }

  private:
    void add(RowRuns& runs, const Piece& piece) const {
        if (quadrant_ == 1 || quadrant_ == 2) {
            runs.add(ellipse_.leftCentre - piece.outer, ellipse_.leftCentre - piece.inner);
        } else {
            runs.add(ellipse_.rightCentre + piece.inner, ellipse_.rightCentre + piece.outer);
        }
    }

    const Ellipse& ellipse_;
    const ArcSpan& arc_;
    int32_t quadrant_;
};

void drawThinArc(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc, uint32_t pixel,
                 int32_t mode) {
    const QuarterRow quarters[] = {
        {ellipse, arc, 0}, {ellipse, arc, 1}, {ellipse, arc, 2}, {ellipse, arc, 3}};
    SpanPainter painter(canvas, Paint::solid(pixel), mode);
    walkOutline(ellipse, Sides::None, [&](int32_t inner, int32_t outer, int32_t y) {
        const Piece piece{inner, outer};
        const int32_t upper = ellipse.topCentre - y;
        const int32_t lower = ellipse.bottomCentre + y;
        RowRuns runs;
        quarters[0].addTo(runs, piece, y);
        quarters[1].addTo(runs, piece, y);
        if (upper != lower) {
            runs.paint(painter, upper);
            runs = RowRuns();
        }
        quarters[2].addTo(runs, piece, y);
        quarters[3].addTo(runs, piece, y);
        runs.paint(painter, lower);
    });
}

} // namespace

void drawArc(const Canvas& canvas, const Ellipse& ellipse, const ArcSpan& arc, uint32_t pixel,
             int32_t mode) {
    if (isWide(canvas.handle)) {
        const Sector sector(ellipse, arc);
        drawWideOutline(canvas, ellipse, Sides::None, &sector, pixel, mode);
    } else {
        drawThinArc(canvas, ellipse, arc, pixel, mode);
    }
}

} // namespace quarlo
