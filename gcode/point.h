// Places in space.
#pragma once

#include <array>
#include <cstdint>

namespace gcode {

enum Axis : uint8_t { kX, kY, kZ };

/// A place in millimetres, indexed by Axis.
using Point3 = std::array<double, 3>;

/// The words that move an Axis.
inline constexpr char kAxisLetters[] = {'X', 'Y', 'Z'};

} // namespace gcode
