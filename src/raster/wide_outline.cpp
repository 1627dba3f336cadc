// Outlines as wide as the pen.
#include "raster/outline.h"
#include "raster/polygon.h"
#include "raster/run_table.h"

#include <cmath>
#include <cstdlib>

namespace quarlo {
namespace {

constexpr int32_t kNoColumns = INT32_MIN;

/// Distances from a centre column have eight bits after the point.
constexpr int kFraction = 8;

/// Half the row of an ellipse at a height over its centre, as a distance. Axes and height are given
/// in half pixels; the height lies within the ellipse.
int32_t halfRow(int32_t axisX, int32_t axisY, int32_t height) {
    if (axisY == 0) {
        return axisX << (kFraction - 1);
    }
    const double square = static_cast<double>(int64_t{axisY} * axisY - int64_t{height} * height);
    const double share = std::sqrt(square) / axisY;
    return static_cast<int32_t>(axisX * share * (1 << (kFraction - 1)));
}

/// An elliptic brush by the rows over its centre.
struct Brush {
    int32_t y; ///< rows over the centre that it reaches
    int32_t* reach;

    Brush(int32_t reachX, int32_t reachY, int32_t* table) : y(reachY), reach(table) {
        for (int32_t row = 0; row <= y; ++row) {
            reach[row] = halfRow(2 * reachX, 2 * reachY, 2 * row);
        }
    }
};

/// The shape that brushes follow: its rows, and those that its thin outline encloses, by height
/// over the centres. They are smooth, unlike the rows that the fill paints; these are there as
/// well, for ring and fill have to meet.
class Shape {
  public:
    static constexpr int32_t kTables = 3;

    Shape(const Ellipse& ellipse, Sides sides, int32_t* tables)
        : ellipse_(ellipse),
          whole_(tables),
          inside_(whole_ + ellipse.b + 1),
          painted_(inside_ + ellipse.b + 1) {
        walkOutline(ellipse, sides, [this](int32_t /*inner*/, int32_t outer, int32_t y) {
            const int32_t a = 2 * ellipse_.a;
            const int32_t b = 2 * ellipse_.b;
            // Very flat ellipses end early, in the fill as well.
            whole_[y] = std::min(halfRow(a + 1, b + 1, 2 * y), (outer + 1) * (1 << kFraction));
            inside_[y] = y < ellipse_.b ? halfRow(a - 1, b - 1, 2 * y) : kNoColumns;
            painted_[y] = outer;
        });
    }

    int32_t top() const { return ellipse_.topCentre - ellipse_.b; }
    int32_t bottom() const { return ellipse_.bottomCentre + ellipse_.b; }

    int32_t whole(int32_t row) const { return whole_[heightOf(row)]; }

    /// Only between top and bottom, both excluded.
    int32_t inside(int32_t row) const {
        return isBetweenCentres(row) ? (2 * ellipse_.a - 1) * (1 << (kFraction - 1))
                                     : inside_[heightOf(row)];
    }

    /// Columns that the fill paints beyond the centres.
    int32_t painted(int32_t row) const { return painted_[heightOf(row)]; }

    /// Those of them that the thin outline encloses; only between top and bottom.
    int32_t enclosed(int32_t row) const {
        const int32_t y = heightOf(row);
        return isBetweenCentres(row) ? ellipse_.a - 1 : std::min(painted_[y + 1], painted_[y] - 1);
    }

  private:
    bool isBetweenCentres(int32_t row) const {
        return ellipse_.topCentre < row && row < ellipse_.bottomCentre;
    }
    int32_t heightOf(int32_t row) const {
        return std::max({ellipse_.topCentre - row, row - ellipse_.bottomCentre, 0});
    }

    const Ellipse& ellipse_;
    int32_t* whole_;
    int32_t* inside_;
    int32_t* painted_;
};

/// The rows between the shape grown by one brush and the hole that is left of it shrunk by another:
/// Minkowski sum and difference, row by row.
class Ring {
  public:
    Ring(const Shape& shape, const Brush& outward, const Brush& inward)
        : shape_(shape), outward_(outward), inward_(inward) {}

    /// How far beyond the centres a row of the ring reaches; `enough` is as far as matters.
    int32_t outer(int32_t row, int32_t enough) const {
        const int32_t first = std::max(row - outward_.y, shape_.top());
        const int32_t last = std::min(row + outward_.y, shape_.bottom());
        int32_t reach = shape_.top() <= row && row <= shape_.bottom() ? shape_.painted(row) : 0;
        for (int32_t y = first; y <= last && reach < enough; ++y) {
            const int32_t sum = shape_.whole(y) + outward_.reach[std::abs(y - row)];
            reach = std::max(reach, sum >> kFraction);
        }
        return reach;
    }

    /// How far the hole does; kNoColumns where there is none. `least` is as little as matters.
    int32_t inner(int32_t row, int32_t least) const {
        if (row - inward_.y <= shape_.top() || row + inward_.y >= shape_.bottom()) {
            return kNoColumns;
        }
        int32_t reach = shape_.enclosed(row);
        for (int32_t y = row - inward_.y; y <= row + inward_.y && reach >= least; ++y) {
            const int32_t difference = shape_.inside(y) - inward_.reach[std::abs(y - row)];
            reach = std::min(reach, difference >> kFraction);
        }
        return reach < least ? kNoColumns : reach;
    }

  private:
    const Shape& shape_;
    const Brush& outward_;
    const Brush& inward_;
};

/// The ring's visible rows: one run where there is no hole, else two.
void tabulate(RunTable& table, const Ring& ring, const Ellipse& ellipse, const GRect& area,
              const Sector* sector) {
    const int32_t left = ellipse.leftCentre;
    const int32_t right = ellipse.rightCentre;
    const int32_t enough = std::max(left - area.left, area.right - right) + 1;
    const int32_t least = (left - right) / 2;
    for (int32_t row = table.firstRow(); row <= table.lastRow(); ++row) {
        const int32_t outer = ring.outer(row, enough);
        const int32_t hole = ring.inner(row, least);
        if (hole == kNoColumns) {
            table.add(row, {left - outer, right + outer}, sector);
        } else {
            table.add(row, {left - outer, left - hole - 1}, sector);
            table.add(row, {right + hole + 1, right + outer}, sector);
        }
    }
}

} // namespace

void drawWideOutline(const Canvas& canvas, const Ellipse& ellipse, Sides sides,
                     const Sector* sector, uint32_t pixel, int32_t mode) {
    const int32_t penX = std::max<int32_t>(canvas.handle.penWidth, 1);
    const int32_t penY = std::max<int32_t>(canvas.handle.penHeight, 1);
    if (ellipse.a < 0 || ellipse.b < 0) {
        return;
    }
    RunTable table(canvas, ellipse.topCentre - ellipse.b - penY / 2,
                   ellipse.bottomCentre + ellipse.b + penY / 2);
    const int32_t shapeSize = Shape::kTables * (ellipse.b + 1);
    const int32_t outwardSize = penY / 2 + 1;
    const int32_t inwardSize = (penY - 1) / 2 + 1;
    const Block block(int64_t{shapeSize + outwardSize + inwardSize} * int64_t{sizeof(int32_t)});
    if (!table.isReady() || !block) {
        return;
    }
    auto* const rows = static_cast<int32_t*>(block.get());
    const Shape shape(ellipse, sides, rows);
    const Brush outward(penX / 2, penY / 2, rows + shapeSize);
    const Brush inward((penX - 1) / 2, (penY - 1) / 2, rows + shapeSize + outwardSize);
    tabulate(table, {shape, outward, inward}, ellipse, canvas.area, sector);
    table.fill(pixel, pixel, kSolidPattern, mode);
}

} // namespace quarlo
