// Where the work and the tools are.
#pragma once

#include "nc/sim/machine.h"

#include <gpi/nc.h>

#include <array>
#include <cstddef>

namespace gpi::nc {

struct Tool {
    /// As G_NC_TOOL_OFFSET counts: length, radius, and the wear of each.
    std::array<double, 4> sizes{};

    double length() const { return sizes[0] + sizes[2]; }
};

struct Offsets {
    std::array<Point3, GPI_NC_WORK_OFFSETS> work{}; ///< 0 common, 1 to 6 for G54 to G59
    std::array<Tool, kTools + 1> tools{};           ///< by their numbers; 0 is none

    /// Where program zero stands, from the reference.
    Point3 zero(size_t workOffset, size_t tool) const {
        Point3 zero{};
        for (size_t axis = 0; axis < zero.size(); ++axis) {
            zero[axis] = work[0][axis] + work[workOffset][axis];
        }
        zero[gcode::kZ] += tools[tool].length();
        return zero;
    }
};

} // namespace gpi::nc
