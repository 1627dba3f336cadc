// The drilling cycles: which moves one of their blocks stands for.
#pragma once

#include "model/modal_state.h"
#include "model/program_reader.h"
#include "model/tool_path.h"

#include <optional>

namespace toolpath {

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

    /// Drills the holes of a block: to the place, to the R level, down, and back up; as often as L
    /// or K says, each time on by the block's distances where these are incremental.
    void drill(const Block& block, const ModalState& state, ToolPath& path) const;
};

} // namespace toolpath
