#include "model/canned_cycles.h"

#include <algorithm>

namespace toolpath {
namespace {

/// How often a block drills: 0 only sets the cycle up.
size_t repeats(const Block& block) {
    const char letter = block.has('L') ? 'L' : 'K';
    return block.has(letter) ? static_cast<size_t>(std::max(0.0, block.value(letter))) : 1;
}

/// Adds moves that lead somewhere, until the path takes no more.
class HoleMoves {
  public:
    HoleMoves(ToolPath& path, int32_t line) : path_(path), line_(line) {}

    void to(MoveKind kind, const Point3& place) {
        if (place != path_.end() && !path_.full()) {
            path_.moves.push_back({place, line_, kind});
        }
    }

  private:
    ToolPath& path_;
    int32_t line_;
};

} // namespace

void DrillingCycle::take(const Block& block, const ModalState& state) {
    if (block.has('R')) {
        retract = block.value('R') * state.unit;
    }
    const char normal = kAxisLetters[state.plane.normal];
    if (block.has(normal)) {
        bottom = block.value(normal) * state.unit;
    }
}

void DrillingCycle::drill(const Block& block, const ModalState& state, ToolPath& path) const {
    const Axis normal = state.plane.normal;
    const double retractLevel = state.incremental ? initialLevel + *retract : *retract;
    const double bottomLevel = state.incremental ? retractLevel + *bottom : *bottom;
    const double leaveLevel =
        state.retractToR ? retractLevel : std::max(initialLevel, retractLevel);

    HoleMoves moves(path, block.line);
    for (size_t left = repeats(block); left > 0 && !path.full(); --left) {
        const size_t before = path.moves.size();
        Point3 place = path.end();
        place[normal] = std::max(place[normal], retractLevel);
        moves.to(MoveKind::Rapid, place);
        for (const Axis axis : {state.plane.first, state.plane.second}) {
            const char letter = kAxisLetters[axis];
            if (block.has(letter)) {
                place[axis] = state.coordinate(place[axis], block.value(letter));
            }
        }
        moves.to(MoveKind::Rapid, place);
        place[normal] = retractLevel;
        moves.to(MoveKind::Rapid, place);
        place[normal] = bottomLevel;
        moves.to(MoveKind::Point, place);
        place[normal] = leaveLevel;
        moves.to(MoveKind::Rapid, place);
        if (path.moves.size() == before) {
            return;
        }
    }
}

} // namespace toolpath
