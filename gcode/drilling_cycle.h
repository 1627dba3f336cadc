// The drilling cycles: which moves one of their blocks stands for.
#pragma once

#include "gcode/block.h"
#include "gcode/modal_state.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace gcode {

/// A straight move of a drilling cycle.
struct HoleMove {
    Point3 end;
    bool drills; ///< the plunge from the retract level to the bottom; the others are positioning
};

/// The words of a drilling cycle that stay in force from hole to hole, as they were programmed.
struct DrillingCycle {
    double initialLevel = 0.0;     ///< millimetres, where the tool was when the cycle began
    std::optional<double> retract; ///< R: absolute, or from the initial level
    std::optional<double> bottom;  ///< the normal axis' word: absolute, or from the R level

    /// Begins a cycle at a level. The words of the last one are forgotten.
    void begin(double level) { *this = {level, std::nullopt, std::nullopt}; }

    /// Takes the words of a block.
    void take(const Block& block, const ModalState& state);

    /// Whether it is known where a hole begins and ends.
    bool complete() const { return retract && bottom; }

    /// The moves of a block's next hole that lead somewhere: to the place, to the R level, down,
    /// and back up. The cycle must be complete.
    std::vector<HoleMove> hole(const Block& block, const ModalState& state,
                               const Point3& from) const;
};

/// How many holes a block drills, by L or K, each on from the last by the block's distances where
/// these are incremental. 0 only sets the cycle up.
size_t holeCount(const Block& block);

} // namespace gcode
