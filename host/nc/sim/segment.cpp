#include "nc/sim/segment.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace gpi::nc {
namespace {

// Points that a program's arithmetic puts on a limit.
constexpr double kRounding = 1e-6;

std::optional<Axis> axisOutOfReach(const Point3& point) {
    for (const Axis axis : kEveryAxis) {
        if (!(point[axis] >= kLowerLimit[axis] - kRounding &&
              point[axis] <= kUpperLimit[axis] + kRounding)) {
            return axis;
        }
    }
    return std::nullopt;
}

} // namespace

Segment Segment::straight(const Point3& from, const Point3& to) {
    Segment segment;
    segment.start_ = from;
    segment.end_ = to;
    segment.length_ = std::hypot(to[0] - from[0], to[1] - from[1], to[2] - from[2]);
    return segment;
}

Segment Segment::round(const gcode::Arc& arc) {
    Segment segment;
    segment.start_ = arc.start;
    segment.end_ = arc.end;
    segment.arc_ = arc;
    const double flat = (arc.startRadius + arc.endRadius) / 2.0 * std::abs(arc.sweep);
    segment.length_ = std::hypot(flat, arc.end[arc.plane.normal] - arc.start[arc.plane.normal]);
    return segment;
}

Point3 Segment::at(double way) const {
    if (way >= length_) {
        return end_;
    }
    const double part = way / length_;
    if (arc_) {
        return arc_->at(part);
    }
    Point3 point;
    for (const Axis axis : kEveryAxis) {
        point[axis] = start_[axis] + (end_[axis] - start_[axis]) * part;
    }
    return point;
}

Point3 Segment::direction(double way) const {
    Point3 direction{};
    if (arc_) {
        const double angle = arc_->startAngle + arc_->sweep * std::min(way / length_, 1.0);
        const double turn = arc_->sweep < 0.0 ? -1.0 : 1.0;
        const double climb = (end_[arc_->plane.normal] - start_[arc_->plane.normal]) / length_;
        const double flat = std::sqrt(std::max(0.0, 1.0 - climb * climb)) * turn;
        direction[arc_->plane.first] = -std::sin(angle) * flat;
        direction[arc_->plane.second] = std::cos(angle) * flat;
        direction[arc_->plane.normal] = climb;
        return direction;
    }
    for (const Axis axis : kEveryAxis) {
        direction[axis] = (end_[axis] - start_[axis]) / length_;
    }
    return direction;
}

std::optional<Axis> Segment::leavesReach() const {
    const int count = arc_ ? arc_->chordCount() : 0;
    for (int i = 1; i < count; ++i) {
        if (const auto axis = axisOutOfReach(arc_->chordEnd(i, count))) {
            return axis;
        }
    }
    return axisOutOfReach(end_);
}

double Segment::fastest(double axisSpeed) const {
    if (arc_) {
        const double radius = std::min(arc_->startRadius, arc_->endRadius);
        return std::min(axisSpeed, std::sqrt(kCentripetal * radius));
    }
    double speed = std::numeric_limits<double>::max();
    for (const double part : direction(0.0)) {
        if (part != 0.0) {
            speed = std::min(speed, axisSpeed / std::abs(part));
        }
    }
    return speed;
}

double cornerSpeed(const Segment& before, const Segment& after) {
    const Point3 in = before.direction(before.length());
    const Point3 out = after.direction(0.0);
    const double turn = std::hypot(out[0] - in[0], out[1] - in[1], out[2] - in[2]);
    return turn > 0.0 ? kCornerJump / turn : std::numeric_limits<double>::max();
}

} // namespace gpi::nc
