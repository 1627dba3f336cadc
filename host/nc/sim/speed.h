// How fast something that must be able to stop may go.
#pragma once

#include <algorithm>
#include <cmath>

namespace gpi::nc {

/// The speed at the end of a tick that keeps it possible to leave a stretch at a given speed.
///
/// Speed changes evenly during a tick, so a tick covers (speed + next) / 2 x tick. The result is
/// the greatest that neither passes `most`, nor accelerates or brakes by more than `acceleration`,
/// nor leaves less than the way it then takes to brake to `leaving`; when these are at odds,
/// braking as hard as allowed.
///
/// @param speed now, not negative
/// @param way left in the stretch
/// @param leaving speed allowed at its end
inline double nextSpeed(double speed, double way, double leaving, double most, double acceleration,
                        double tick) {
    const double change = acceleration * tick;
    // next^2 <= leaving^2 + 2 a (way - (speed + next) tick / 2), solved for next.
    const double room = leaving * leaving + 2.0 * acceleration * way - change * speed;
    const double root = change * change + 4.0 * room;
    const double braking = root > 0.0 ? (std::sqrt(root) - change) / 2.0 : 0.0;
    const double next = std::min({speed + change, most, braking});
    return std::max({next, speed - change, 0.0});
}

/// Whether something may simply stop at the end of its way: it is there within a tick.
inline bool arrives(double speed, double way, double acceleration, double tick) {
    return way <= acceleration * tick * tick && speed <= acceleration * tick;
}

} // namespace gpi::nc
