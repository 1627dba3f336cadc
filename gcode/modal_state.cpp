#include "gcode/modal_state.h"

#include <algorithm>
#include <iterator>

namespace gcode {
namespace {

/// Codes from first to last.
struct CodeRange {
    Code first;
    Code last;
};

// Compensation, offsets, path control and feed: a block that names them may move as well.
constexpr CodeRange kModeOnly[] = {
    {code(7), code(8)},         // diameter programming
    {code(15), code(15)},       // polar coordinates off
    {code(40), code(44, 9)},    // cutter and tool length compensation
    {code(49), code(49)},       // tool length compensation off
    {code(54), code(59, 9)},    // work offsets
    {code(61), code(64, 9)},    // exact stop and path blending
    {code(69), code(69)},       // rotation off
    {code(90, 1), code(90, 1)}, // arc centres absolute
    {code(91, 1), code(91, 1)}, // arc centres incremental
    {code(93), code(97, 9)},    // feed and spindle
};

// Motions that stay in force as G1 does.
constexpr CodeRange kMotions[] = {
    {code(5), code(6, 9)},   // splines
    {code(32), code(34, 9)}, // threads
    {code(38), code(38, 9)}, // probing
    {code(74), code(74, 9)}, // left-hand tapping
    {code(76), code(76, 9)}, // fine boring
};

template <size_t N>
bool contains(const CodeRange (&ranges)[N], Code number) {
    return std::any_of(std::begin(ranges), std::end(ranges), [number](const CodeRange& range) {
        return number >= range.first && number <= range.last;
    });
}

bool isCycle(Code number) {
    return number == code(73) ||
           (number >= code(81) && number <= code(89) && number % code(1) == 0);
}

} // namespace

CodeEffect ModalState::apply(Code gCode) {
    if (setMotion(gCode) || setMode(gCode)) {
        return CodeEffect::Drawn;
    }
    if (contains(kMotions, gCode)) {
        motion = Motion::NotDrawn;
    }
    return contains(kModeOnly, gCode) ? CodeEffect::LeavesMotion : CodeEffect::TakesAxisWords;
}

bool ModalState::setMotion(Code gCode) {
    if (isCycle(gCode)) {
        motion = Motion::Cycle;
        cycle = gCode;
        return true;
    }
    switch (gCode) {
    case code(0):
    case code(80):
        motion = Motion::Rapid;
        return true;
    case code(1):
        motion = Motion::Line;
        return true;
    case code(2):
        motion = Motion::ClockwiseArc;
        return true;
    case code(3):
        motion = Motion::CounterclockwiseArc;
        return true;
    default:
        return false;
    }
}

bool ModalState::setMode(Code gCode) {
    switch (gCode) {
    case code(17):
        plane = kPlaneXY;
        return true;
    case code(18):
        plane = kPlaneZX;
        return true;
    case code(19):
        plane = kPlaneYZ;
        return true;
    case code(20):
        unit = 25.4;
        return true;
    case code(21):
        unit = 1.0;
        return true;
    case code(90):
    case code(91):
        incremental = gCode == code(91);
        return true;
    case code(98):
    case code(99):
        retractToR = gCode == code(99);
        return true;
    default:
        return false;
    }
}

} // namespace gcode
