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

/// The last half-pixel column that a ray into the upper half, seen from the right, has not passed
/// on a row over the centre.
int64_t columnOf(int64_t rayX, int64_t rayY, int64_t height) {
    return rayY == 0 ? 2 * kFar
                     : std::clamp<int64_t>(floorDivide(rayX * height, rayY), -2 * kFar, 2 * kFar);
}

} // namespace

Sector::Sector(const Ellipse& ellipse, const ArcSpan& arc)
    : doubledX_(ellipse.leftCentre + ellipse.rightCentre),
      doubledY_(ellipse.topCentre + ellipse.bottomCentre) {
    start_ = rayTo(arc.start.on(ellipse));
    end_ = rayTo(arc.end.on(ellipse));
    const bool together = cross(start_, end_) == 0 && start_.isUpper() == end_.isUpper();
    const bool far = arc.sweep > 2 * ArcAngle::kQuarter;
    whole_ = together && far;
    empty_ = together && !far;
}

Sector::Ray Sector::rayTo(const GPoint& point) const {
    return {int64_t{2} * point.x - doubledX_, doubledY_ - int64_t{2} * point.y};
}

/// Whether a ray lies from start, included, to end, on the way of growing angles.
bool Sector::holds(const Ray& ray) const {
    const auto precedes = [](const Ray& a, const Ray& b) {
        return a.isUpper() != b.isUpper() ? a.isUpper() : cross(a, b) > 0;
    };
    const bool afterStart = !precedes(ray, start_);
    const bool beforeEnd = precedes(ray, end_);
    return precedes(start_, end_) ? afterStart && beforeEnd : afterStart || beforeEnd;
}

Sector::Parts Sector::partsOf(int32_t row) const {
    if (whole_ || empty_) {
        return {{whole_ ? kAll : kNone, kNone}};
    }
    const int64_t height = doubledY_ - int64_t{2} * row;
    if (height == 0) {
        return levelParts();
    }
    if (height > 0) {
        return upperParts(height, start_, end_);
    }
    // The lower half is the upper one after half a turn.
    Parts parts = upperParts(-height, start_.turned(), end_.turned());
    for (ColumnRun& run : parts.runs) {
        run = {doubledX_ - run.right, doubledX_ - run.left};
    }
    return parts;
}

/// Angles grow from right to left here.
Sector::Parts Sector::upperParts(int64_t height, const Ray& start, const Ray& end) const {
    const auto column = [this](int64_t halves) {
        return static_cast<int32_t>(floorDivide(halves + doubledX_, 2));
    };
    const bool startsHere = start.isUpper();
    const bool endsHere = end.isUpper();
    if (!startsHere && !endsHere) {
        const bool all = cross(start, end) < 0;
        return {{all ? kAll : kNone, kNone}};
    }
    const int32_t last = startsHere ? column(columnOf(start.x, start.y, height)) : kFar;
    const int32_t first = endsHere ? column(columnOf(end.x, end.y, height)) + 1 : -kFar;
    if (startsHere && endsHere && cross(start, end) < 0) {
        return {{{first, kFar}, {-kFar, last}}};
    }
    return {{{first, last}, kNone}};
}

/// The row through the centre: the centre itself, and what lies on either side of it.
Sector::Parts Sector::levelParts() const {
    const int32_t centre = static_cast<int32_t>(floorDivide(doubledX_, 2));
    const bool whole = doubledX_ % 2 == 0;
    const bool right = holds({1, 0});
    const bool left = holds({-1, 0});
    const int32_t inner = whole ? centre : centre + 1;
    return {{{left ? -kFar : inner, right ? kFar : centre}, kNone}};
}

} // namespace quarlo
