#include "raster/arc_end.h"

#include "geometry/map.h"

#include <cmath>

namespace quarlo {
namespace {

constexpr int32_t kOne = 1 << 16; // 16.16 fixed point
constexpr double kRadiansPerTenth = 0.00174532925;

/// Rows a column: positive, and 0 for the level angles, whose tangents are not quite 0.
float tangentOf(ArcAngle angle) {
    if (angle.tenths % (2 * ArcAngle::kQuarter) == 0) {
        return 0;
    }
    return static_cast<float>(std::fabs(std::tan(angle.tenths * kRadiansPerTenth)));
}

} // namespace

GPoint ArcEnd::on(const Ellipse& ellipse) const {
    const bool left = quadrant == 1 || quadrant == 2;
    const bool upper = quadrant < 2;
    return {low16(left ? ellipse.leftCentre - x : ellipse.rightCentre + x),
            low16(upper ? ellipse.topCentre - y : ellipse.bottomCentre + y)};
}

ArcEndSearch::ArcEndSearch(ArcAngle angle, const Ellipse& ellipse)
    : first_(ellipse.b), end_{angle.quadrant(), 0, ellipse.b} {
    if (angle.isUpright()) {
        found_ = true;
        return;
    }
    const float tangent = tangentOf(angle);
    // Not even a tenth of a degree off an axis does one of them reach 600.
    slope_ = static_cast<int32_t>(tangent * kOne);
    inverseSlope_ = tangent == 0 ? ellipse.a * kOne : static_cast<int32_t>(kOne / tangent);
}

void ArcEndSearch::feed(int32_t x, int32_t y) {
    if (found_) {
        return;
    }
    const int64_t height = int64_t{y} * kOne;
    if (y == 0 || (x != 0 && height / x <= slope_)) {
        settle(x, y);
        found_ = true;
    }
    previous_ = x;
}

/// Within its row the pixel moves inwards as long as the slope stays below the angle's.
void ArcEndSearch::settle(int32_t x, int32_t y) {
    const int64_t height = int64_t{y} * kOne;
    const int32_t outermost = x;
    while (x >= 1 && x > previous_ && height / x < slope_) {
        --x;
    }
    end_.x = x;
    end_.y = y;
    covered_ = x < outermost && x == previous_ && y < first_;
}

ArcEnd ArcEndSearch::outlineEnd() const {
    ArcEnd end = end_;
    if (covered_) {
        (end.isRising() ? end.x : end.y) += 1;
    }
    return end;
}

bool ArcSpan::holdsQuarter(int32_t quadrant) const {
    const int32_t to = (quadrant - start.quadrant + 4) % 4;
    const int32_t last = returns() ? 4 : (end.quadrant - start.quadrant + 4) % 4;
    return to > 0 && to < last;
}

ArcSpan findArc(GArcState& state, const Ellipse& ellipse, int32_t startTenths, int32_t endTenths) {
    const ArcAngle from = ArcAngle::of(startTenths);
    const ArcAngle to = ArcAngle::of(endTenths);
    ArcEndSearch start(from, ellipse);
    ArcEndSearch end(to, ellipse);
    walkRows(ellipse, [&](int32_t x, int32_t y) {
        start.feed(x, y);
        end.feed(x, y);
    });
    state.start = start.end().on(ellipse);
    state.end = end.end().on(ellipse);
    state.inverseSlope = end.inverseSlope();
    return {start.end(), end.end(), start.outlineEnd(), end.outlineEnd(),
            ArcAngle::of(to.tenths - from.tenths).tenths};
}

} // namespace quarlo
