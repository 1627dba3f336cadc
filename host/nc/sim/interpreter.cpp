// What a block says: its words, functions and modes.
#include "nc/sim/interpreter.h"

#include "gcode/block_reader.h"

#include <algorithm>
#include <cmath>

namespace gpi::nc {

using gcode::Block;
using gcode::code;
using gcode::Code;
using gcode::kAxisLetters;
using gcode::Motion;
using gcode::nameOf;

namespace {

constexpr std::string_view kKnownLetters = "FHIJKLNOPQRSTXYZ";

constexpr double kLongestDwell = 86400.0;

// Codes that only say what this control does anyway.
constexpr Code kAlwaysInForce[] = {code(15), code(40), code(69), code(94), code(97)};

/// A whole number from 0 to `most`, or -1.
int32_t wholeNumber(double value, double most) {
    return value >= 0.0 && value <= most && value == std::floor(value) ? static_cast<int32_t>(value)
                                                                       : -1;
}

} // namespace

void Interpreter::read(std::string_view line, int32_t number, bool skipDeletable, Orders& orders) {
    orders_ = &orders;
    line_ = number;
    const size_t before = orders.size();
    Block block;
    block.line = number;
    std::string fault;
    try {
        switch (gcode::readBlock(line, &macros_, block, fault)) {
        case gcode::Reading::Nothing:
            return;
        case gcode::Reading::Refused:
            throw Refusal{fault};
        case gcode::Reading::Words:
            break;
        }
        if (block.deletable && skipDeletable) {
            return;
        }
        run(block);
    } catch (const Refusal& refusal) {
        const std::string where = number > 0 ? "line " + std::to_string(number) + ": " : "";
        add(Fault{refusal.alarm, where + refusal.text});
    }
    if (orders.size() == before) {
        add(NoOrder{});
    }
    Order& last = orders.back();
    last.endsBlock = true;
    if (auto* const segment = std::get_if<Segment>(&last.what)) {
        segment->endsBlock = true;
    }
}

void Interpreter::reset() {
    state_ = {};
    spindleTurn_ = 0;
    coolant_ = 0;
    workOffset_ = 1;
    lengthOffset_ = 0;
    exactStop_ = false;
}

void Interpreter::run(const Block& block) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (block.has(letter) && kKnownLetters.find(letter) == std::string_view::npos) {
            throw Refusal{std::string(1, letter) + " is not supported"};
        }
    }
    applyWords(block);
    applyFunctions(block);
    const Point3 before = zero();
    applyCodes(block);
    if (single_ == code(10)) {
        setWorkOffset(block);
    }
    if (zero() != before) {
        add(ShiftZero{zero()});
    }
    switch (single_) {
    case code(4):
        if (!(block.value('P') >= 0.0 && block.value('P') <= kLongestDwell)) {
            throw Refusal{"G4 with a P out of range"};
        }
        add(Dwell{block.value('P')});
        break;
    case code(10):
        break; // its words are no place to go to
    case code(28):
        moveToReference(block);
        break;
    case code(53):
        moveInMachine(block);
        break;
    default:
        move(block);
        break;
    }
    stopAfter(block);
}

void Interpreter::applyWords(const Block& block) {
    for (const gcode::Assignment& assignment : block.assignments) {
        if (!Macros::exists(assignment.variable)) {
            throw Refusal{gcode::variableName(assignment.variable) + " is not a variable"};
        }
        macros_.set(assignment.variable, assignment.value);
    }
    if (block.has('F')) {
        if (!(block.value('F') > 0.0)) {
            throw Refusal{"F must be more than 0"};
        }
        // A unit that the block sets holds for its feed too.
        const auto& codes = block.gCodes;
        const bool inches = std::find(codes.begin(), codes.end(), code(20)) != codes.end();
        const bool metric = std::find(codes.begin(), codes.end(), code(21)) != codes.end();
        feed_ = block.value('F') * (inches ? 25.4 : metric ? 1.0 : state_.unit);
    }
    if (block.has('S')) {
        if (!(block.value('S') >= 0.0 && block.value('S') <= kFastestSpindle)) {
            throw Refusal{"S out of range"};
        }
        spindleSpeed_ = block.value('S');
    }
    if (block.has('T')) {
        const int32_t tool = wholeNumber(block.value('T'), kTools);
        if (tool < 0) {
            throw Refusal{"there is no such tool"};
        }
        add(PrepareTool{tool});
    }
}

void Interpreter::turnSpindle() {
    add(TurnSpindle{spindleSpeed_ * spindleTurn_});
}

/// The M codes that come before the move.
void Interpreter::applyFunctions(const Block& block) {
    if (block.has('S') && spindleTurn_ != 0) {
        turnSpindle();
    }
    for (const Code mCode : block.mCodes) {
        switch (mCode) {
        case code(3):
        case code(4):
        case code(5):
            spindleTurn_ = mCode == code(3) ? 1 : mCode == code(4) ? -1 : 0;
            turnSpindle();
            break;
        case code(6):
            add(ChangeTool{});
            break;
        case code(7):
        case code(8):
        case code(9):
            coolant_ = mCode == code(9) ? 0 : coolant_ | (mCode == code(7) ? 2 : 1);
            add(SwitchCoolant{coolant_});
            break;
        case code(0):
        case code(1):
        case code(2):
        case code(30):
        case code(99):
            break; // after the move
        default:
            throw Refusal{nameOf('M', mCode) + " is not supported"};
        }
    }
}

/// The M codes that come after it.
void Interpreter::stopAfter(const Block& block) {
    for (const Code mCode : block.mCodes) {
        if (mCode == code(0) || mCode == code(1)) {
            add(ProgramStop{mCode == code(1)});
        } else if (mCode == code(2) || mCode == code(30) || mCode == code(99)) {
            spindleTurn_ = 0;
            coolant_ = 0;
            add(ProgramEnd{});
        }
    }
}

void Interpreter::applyCodes(const Block& block) {
    const Motion before = state_.motion;
    single_ = 0;
    for (const Code gCode : block.gCodes) {
        if (gCode == code(4) || gCode == code(10) || gCode == code(28) || gCode == code(53)) {
            if (single_ != 0) {
                throw Refusal{nameOf('G', single_) + " and " + nameOf('G', gCode) +
                              " in one block"};
            }
            single_ = gCode;
        } else if (gCode == code(43)) {
            const int32_t tool = wholeNumber(block.value('H'), kTools);
            if (!block.has('H') || tool < 0) {
                throw Refusal{"G43 without the H of a tool"};
            }
            lengthOffset_ = static_cast<size_t>(tool);
        } else if (!applyMode(gCode) && state_.apply(gCode) != gcode::CodeEffect::Drawn) {
            throw Refusal{nameOf('G', gCode) + " is not supported"};
        }
    }
    if (state_.motion == Motion::Cycle && before != Motion::Cycle) {
        cycle_.begin(programPosition()[state_.plane.normal]);
    }
}

/// @return whether it is one of this control's modes
bool Interpreter::applyMode(Code gCode) {
    const Code whole = gCode / 10;
    if (gCode % 10 != 0) {
        return false;
    }
    if (whole >= 54 && whole <= 59) {
        workOffset_ = static_cast<size_t>(whole - 53);
        return true;
    }
    switch (whole) {
    case 49:
        lengthOffset_ = 0;
        return true;
    case 61:
    case 64:
        exactStop_ = whole == 61;
        return true;
    default:
        return std::find(std::begin(kAlwaysInForce), std::end(kAlwaysInForce), gCode) !=
               std::end(kAlwaysInForce);
    }
}

/// G10 L2 P1 X...: sets the work offset of G54, and so on.
void Interpreter::setWorkOffset(const Block& block) {
    const int32_t number = wholeNumber(block.value('P'), GPI_NC_WORK_OFFSETS - 1);
    if (block.value('L') != 2.0 || !block.has('P') || number < 0) {
        throw Refusal{"G10 without L2 and the P of an offset"};
    }
    for (const Axis axis : kEveryAxis) {
        if (block.has(kAxisLetters[axis])) {
            double& offset = offsets_.work[static_cast<size_t>(number)][axis];
            offset = state_.coordinate(offset, block.value(kAxisLetters[axis]));
        }
    }
}

Point3 Interpreter::programPosition() const {
    const Point3 zero = this->zero();
    return {position_[0] - zero[0], position_[1] - zero[1], position_[2] - zero[2]};
}

double Interpreter::modal(int32_t group) const {
    switch (group) {
    case GPI_NC_MODAL_MOTION:
        return state_.motion == Motion::Cycle ? state_.cycle / 10.0
                                              : static_cast<double>(state_.motion);
    case GPI_NC_MODAL_PLANE:
        return state_.plane.normal == gcode::kZ   ? 17.0
               : state_.plane.normal == gcode::kY ? 18.0
                                                  : 19.0;
    case GPI_NC_MODAL_DISTANCE:
        return state_.incremental ? 91.0 : 90.0;
    case GPI_NC_MODAL_FEED:
        return 94.0;
    case GPI_NC_MODAL_UNITS:
        return state_.unit == 1.0 ? 21.0 : 20.0;
    case GPI_NC_MODAL_RADIUS:
        return 40.0;
    case GPI_NC_MODAL_LENGTH:
        return lengthOffset_ == 0 ? 49.0 : 43.0;
    case GPI_NC_MODAL_WORK_OFFSET:
        return 53.0 + static_cast<double>(workOffset_);
    case GPI_NC_MODAL_RETRACT:
        return state_.retractToR ? 99.0 : 98.0;
    default:
        return exactStop_ ? 61.0 : 64.0;
    }
}

} // namespace gpi::nc
