// The machine that the simulated control moves: a small milling machine.
#pragma once

#include "gcode/point.h"

#include <cstdint>

namespace gpi::nc {

using gcode::Axis;
using gcode::Point3;

inline constexpr int32_t kAxes = 3;
inline constexpr Axis kEveryAxis[kAxes] = {gcode::kX, gcode::kY, gcode::kZ};
inline constexpr int32_t kTools = 24;

/// Seconds of a step of the simulation.
inline constexpr double kTick = 0.001;

/// Reach of the axes, millimetres from the reference. An axis may stand at its limit.
inline constexpr Point3 kLowerLimit{-400.0, -300.0, -200.0};
inline constexpr Point3 kUpperLimit{400.0, 300.0, 200.0};

inline constexpr double kRapidSpeed = 250.0;    ///< of an axis, millimetres a second
inline constexpr double kFastestCut = 200.0;    ///< along the path, millimetres a second
inline constexpr double kHomingSpeed = 100.0;   ///< of an axis, millimetres a second
inline constexpr double kAcceleration = 1000.0; ///< along the path, millimetres a second squared

/// Acceleration towards the centre of an arc.
inline constexpr double kCentripetal = 500.0;

/// How much the velocity may jump where two moves meet at an angle, millimetres a second.
inline constexpr double kCornerJump = 2.0;

inline constexpr double kFastestSpindle = 12000.0; ///< revolutions a minute
inline constexpr double kSpindleRamp = 6000.0;     ///< revolutions a minute, a second
inline constexpr double kServoGain = 40.0;         ///< following error: speed over this, 1/s
inline constexpr double kUsualJog = 1000.0 / 60.0; ///< of steps before any jog

} // namespace gpi::nc
