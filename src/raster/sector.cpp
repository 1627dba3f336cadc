#include "raster/sector.h"

#include <algorithm>

namespace quarlo {
namespace {

constexpr int32_t kFar = 1 << 20; // beyond every column
constexpr ColumnRun kNone = {1, 0};
constexpr ColumnRun kAll = {-kFar, kFar};

int64_t floorDivide(int64_t dividend, int64_t divisor) {
    const int64_t quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

} // namespace

Sector::Sector(const Ellipse& ellipse, const ArcSpan& arc)
    : doubledX_(ellipse.leftCentre + ellipse.rightCentre),
      topCentre_(ellipse.topCentre),
      bottomCentre_(ellipse.bottomCentre),
      start_(rayTo(ellipse, arc.start)),
      end_(rayTo(ellipse, arc.end)) {
    const bool together = cross(start_, end_) == 0 && start_.upper == end_.upper;
    const bool far = arc.sweep > 2 * ArcAngle::kQuarter;
    whole_ = together && far;
    empty_ = together && !far;
}

Sector::Ray Sector::rayTo(const Ellipse& ellipse, const ArcEnd& end) const {
    const bool left = end.quadrant == 1 || end.quadrant == 2;
    const bool above = end.quadrant < 2;
    // The smallest ellipses have their ends in the centre; their rays are level.
    const int64_t x = end.x == 0 && end.y == 0 ? 1 : end.x;
    Ray ray{left ? ellipse.leftCentre : ellipse.rightCentre,
            left ? -x : x,
            above ? end.y : -end.y,
            0,
            0,
            above};
    const int32_t gapX = ellipse.rightCentre - ellipse.leftCentre;
    const int32_t gapY = ellipse.bottomCentre - ellipse.topCentre;
    ray.halfX = 2 * ray.x + (left ? -gapX : gapX);
    ray.halfY = 2 * ray.y + (above ? gapY : -gapY);
    // Through the row of the centre a ray to the right starts the upper half, one to the left the
    // lower.
    if (ray.halfY == 0) {
        ray.upper = !left;
    }
    return ray;
}

/// After half a turn, which makes the lower half the upper one.
Sector::Ray Sector::turned(const Ray& ray) const {
    return {doubledX_ - ray.centre, -ray.x, -ray.y, -ray.halfX, -ray.halfY, !ray.upper};
}

/// On the way of growing angles, from the level ray on the right.
bool Sector::precedes(const Ray& a, const Ray& b) {
    return a.upper != b.upper ? a.upper : cross(a, b) > 0;
}

Sector::Parts Sector::partsOf(int32_t row) const {
    if (whole_ || empty_) {
        return {{whole_ ? kAll : kNone, kNone}};
    }
    if (row == topCentre_ && row == bottomCentre_) {
        return levelParts();
    }
    if (row <= topCentre_) {
        return upperParts(topCentre_ - row, start_, end_);
    }
    Parts parts = upperParts(row - bottomCentre_, turned(start_), turned(end_));
    for (ColumnRun& run : parts.runs) {
        run = {doubledX_ - run.right, doubledX_ - run.left};
    }
    return parts;
}

/// The last column, seen from the right, that does not lie behind a ray of the upper half on a row
/// over the centre.
int32_t Sector::columnOn(const Ray& ray, int64_t height) {
    if (ray.y > 0) {
        const int64_t column = ray.centre + floorDivide(ray.x * height, ray.y);
        return static_cast<int32_t>(std::clamp<int64_t>(column, -kFar, kFar));
    }
    if (ray.x > 0) {
        return kFar;
    }
    return height == 0 ? ray.centre : -kFar;
}

/// Angles grow from right to left here.
Sector::Parts Sector::upperParts(int64_t height, const Ray& start, const Ray& end) {
    if (!start.upper && !end.upper) {
        const bool all = cross(start, end) < 0;
        return {{all ? kAll : kNone, kNone}};
    }
    const int32_t last = start.upper ? columnOn(start, height) : kFar;
    const int32_t first = end.upper ? columnOn(end, height) + 1 : -kFar;
    if (start.upper && end.upper && cross(start, end) < 0) {
        return {{{first, kFar}, {-kFar, last}}};
    }
    return {{{first, last}, kNone}};
}

/// Whether the level ray to one side lies from start, included, to end.
bool Sector::holdsLevel(bool right) const {
    Ray level{0, right ? 1 : -1, 0, right ? 1 : -1, 0, right};
    const bool afterStart = !precedes(level, start_);
    const bool beforeEnd = precedes(level, end_);
    return precedes(start_, end_) ? afterStart && beforeEnd : afterStart || beforeEnd;
}

/// The row through the centre: the centre itself, and what lies on either side of it.
Sector::Parts Sector::levelParts() const {
    const auto centre = static_cast<int32_t>(floorDivide(doubledX_, 2));
    const bool between = doubledX_ % 2 != 0;
    const int32_t left = holdsLevel(false) ? -kFar : centre + (between ? 1 : 0);
    const int32_t right = holdsLevel(true) ? kFar : centre;
    return {{{left, right}, kNone}};
}

} // namespace quarlo
