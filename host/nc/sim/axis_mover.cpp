#include "nc/sim/axis_mover.h"

#include "nc/sim/machine.h"
#include "nc/sim/speed.h"

#include <algorithm>
#include <cmath>

namespace gpi::nc {

void AxisMover::halt() {
    *this = {};
}

void AxisMover::advance(double& position) {
    if (!moving_) {
        return;
    }
    const double side = goal_ < position ? -1.0 : 1.0;
    const double speed = velocity_ * side;
    const double way = std::abs(goal_ - position);
    const double next = speed < 0.0 ? std::min(0.0, speed + kAcceleration * kTick)
                                    : nextSpeed(speed, way, 0.0, most_, kAcceleration, kTick);
    position += side * (speed + next) / 2.0 * kTick;
    velocity_ = side * next;
    if (most_ == 0.0 && next == 0.0) {
        halt();
    } else if (speed >= 0.0 && arrives(next, std::abs(goal_ - position), kAcceleration, kTick)) {
        position = goal_;
        halt();
    }
}

} // namespace gpi::nc
