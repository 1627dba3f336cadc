// Where a block leads.
#include "nc/sim/interpreter.h"

#include "gcode/block_moves.h"

#include <algorithm>

namespace gpi::nc {

using gcode::Block;
using gcode::kAxisLetters;
using gcode::Motion;

namespace {

// Moves shorter than this are none.
constexpr double kSamePlace = 1e-9;

// Holes of one block: more would fill the memory with orders.
constexpr size_t kMostHoles = 1000;

} // namespace

void Interpreter::move(const Block& block) {
    switch (state_.motion) {
    case Motion::Rapid:
    case Motion::Line:
        if (gcode::hasAxisWord(block)) {
            addLine(toMachine(gcode::targetOf(block, state_, programPosition())),
                    state_.motion == Motion::Rapid);
        }
        break;
    case Motion::ClockwiseArc:
    case Motion::CounterclockwiseArc:
        if (gcode::movesAlongArc(block)) {
            moveAlongArc(block);
        }
        break;
    case Motion::Cycle:
        if (gcode::hasAxisWord(block) || block.has('R')) {
            drill(block);
        }
        break;
    case Motion::NotDrawn:
        break;
    }
}

/// G53: straight to a place from the reference.
void Interpreter::moveInMachine(const Block& block) {
    if (state_.motion != Motion::Rapid && state_.motion != Motion::Line) {
        throw Refusal{"G53 without G0 or G1"};
    }
    if (state_.incremental) {
        throw Refusal{"G53 in G91"};
    }
    addLine(gcode::targetOf(block, state_, position_), state_.motion == Motion::Rapid);
}

/// G28: by way of a place to the reference, the axes that are named or all of them.
void Interpreter::moveToReference(const Block& block) {
    addLine(toMachine(gcode::targetOf(block, state_, programPosition())), true);
    Point3 target = position_;
    for (const Axis axis : kEveryAxis) {
        if (block.has(kAxisLetters[axis]) || !gcode::hasAxisWord(block)) {
            target[axis] = 0.0;
        }
    }
    addLine(target, true);
}

void Interpreter::moveAlongArc(const Block& block) {
    const Point3 start = programPosition();
    const Point3 target = gcode::targetOf(block, state_, start);
    auto arc = gcode::arcOf(block, state_, start, target);
    if (!arc) {
        throw Refusal{"an arc without a centre or radius"};
    }
    if (block.has('R')
            ? gcode::radiusFallsShort(arc->plane, start, target, block.value('R') * state_.unit)
            : arc->isSpiral()) {
        throw Refusal{"an arc that does not reach its end"};
    }
    const Point3 zero = this->zero();
    arc->start = position_;
    arc->end = toMachine(target);
    arc->centreFirst += zero[arc->plane.first];
    arc->centreSecond += zero[arc->plane.second];
    addSegment(Segment::round(*arc), false);
}

void Interpreter::drill(const Block& block) {
    cycle_.take(block, state_);
    if (!cycle_.complete()) {
        throw Refusal{gcode::nameOf('G', state_.cycle) + " without its levels"};
    }
    const size_t count = gcode::holeCount(block);
    if (count > kMostHoles) {
        throw Refusal{"more than " + std::to_string(kMostHoles) + " holes"};
    }
    for (size_t left = count; left > 0; --left) {
        for (const gcode::HoleMove& move : cycle_.hole(block, state_, programPosition())) {
            addLine(toMachine(move.end), !move.drills);
        }
    }
}

void Interpreter::addLine(const Point3& machine, bool rapid) {
    Segment segment = Segment::straight(position_, machine);
    if (segment.length() > kSamePlace) {
        addSegment(segment, rapid);
    }
}

void Interpreter::addSegment(Segment segment, bool rapid) {
    if (const auto axis = segment.leavesReach()) {
        throw Refusal{std::string(1, kAxisLetters[*axis]) + " would pass its limit",
                      GPI_NC_ALARM_LIMIT};
    }
    if (!rapid && feed_ <= 0.0) {
        throw Refusal{"a cut without a feed"};
    }
    segment.rapid = rapid;
    segment.mostSpeed =
        rapid ? segment.fastest(kRapidSpeed) : std::min(kFastestCut, segment.fastest(kRapidSpeed));
    segment.speed = rapid ? segment.mostSpeed : std::min(feed_ / 60.0, segment.mostSpeed);
    segment.exactStop = exactStop_;
    segment.line = line_;
    position_ = segment.end();
    add(segment);
}

Point3 Interpreter::toMachine(const Point3& program) const {
    const Point3 zero = this->zero();
    return {program[0] + zero[0], program[1] + zero[1], program[2] + zero[2]};
}

} // namespace gpi::nc
