// Where the words of a block lead.
#pragma once

#include "gcode/arc.h"
#include "gcode/block.h"
#include "gcode/modal_state.h"

#include <optional>

namespace gcode {

bool hasAxisWord(const Block& block);

/// Whether a block in an arc's mode moves: it has an axis or a centre.
bool movesAlongArc(const Block& block);

/// Where a block's axis words lead from a place.
Point3 targetOf(const Block& block, const ModalState& state, const Point3& from);

/// The arc of a block from one place to another, by R or by the centre.
/// @return nothing without a centre or radius to go by
std::optional<Arc> arcOf(const Block& block, const ModalState& state, const Point3& from,
                         const Point3& to);

} // namespace gcode
