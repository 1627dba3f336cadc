#include "gcode/block_moves.h"

namespace gcode {
namespace {

constexpr char kCentreLetters[] = {'I', 'J', 'K'};

} // namespace

bool hasAxisWord(const Block& block) {
    return block.has('X') || block.has('Y') || block.has('Z');
}

bool movesAlongArc(const Block& block) {
    return hasAxisWord(block) || block.has('I') || block.has('J') || block.has('K');
}

Point3 targetOf(const Block& block, const ModalState& state, const Point3& from) {
    Point3 target = from;
    for (const Axis axis : {kX, kY, kZ}) {
        const char letter = kAxisLetters[axis];
        if (block.has(letter)) {
            target[axis] = state.coordinate(target[axis], block.value(letter));
        }
    }
    return target;
}

std::optional<Arc> arcOf(const Block& block, const ModalState& state, const Point3& from,
                         const Point3& to) {
    const Plane& plane = state.plane;
    const bool clockwise = state.motion == Motion::ClockwiseArc;
    if (block.has('R')) {
        return arcOfRadius(plane, from, to, block.value('R') * state.unit, clockwise);
    }
    const char first = kCentreLetters[plane.first];
    const char second = kCentreLetters[plane.second];
    if (!block.has(first) && !block.has(second)) {
        return std::nullopt;
    }
    return arcAboutCentre(plane, from, to, block.value(first) * state.unit,
                          block.value(second) * state.unit, clockwise);
}

} // namespace gcode
