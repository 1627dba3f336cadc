#include "gcode/drilling_cycle.h"

#include <algorithm>

namespace gcode {

void DrillingCycle::take(const Block& block, const ModalState& state) {
    if (block.has('R')) {
        retract = block.value('R') * state.unit;
    }
    const char normal = kAxisLetters[state.plane.normal];
    if (block.has(normal)) {
        bottom = block.value(normal) * state.unit;
    }
}

std::vector<HoleMove> DrillingCycle::hole(const Block& block, const ModalState& state,
                                          const Point3& from) const {
    const Axis normal = state.plane.normal;
    const double retractLevel = state.incremental ? initialLevel + *retract : *retract;
    const double bottomLevel = state.incremental ? retractLevel + *bottom : *bottom;
    const double leaveLevel =
        state.retractToR ? retractLevel : std::max(initialLevel, retractLevel);

    std::vector<HoleMove> moves;
    Point3 place = from;
    const auto moveOn = [&](bool drills) {
        if (place != (moves.empty() ? from : moves.back().end)) {
            moves.push_back({place, drills});
        }
    };
    place[normal] = std::max(place[normal], retractLevel);
    moveOn(false);
    for (const Axis axis : {state.plane.first, state.plane.second}) {
        const char letter = kAxisLetters[axis];
        if (block.has(letter)) {
            place[axis] = state.coordinate(place[axis], block.value(letter));
        }
    }
    moveOn(false);
    place[normal] = retractLevel;
    moveOn(false);
    place[normal] = bottomLevel;
    moveOn(true);
    place[normal] = leaveLevel;
    moveOn(false);
    return moves;
}

size_t holeCount(const Block& block) {
    const char letter = block.has('L') ? 'L' : 'K';
    return block.has(letter) ? static_cast<size_t>(std::max(0.0, block.value(letter))) : 1;
}

} // namespace gcode
