#include "model/path_tracer.h"

#include "gcode/block_moves.h"

#include <algorithm>
#include <string>

namespace toolpath {

using gcode::CodeEffect;
using gcode::Motion;
using gcode::nameOf;

namespace {

// F, N, O, S and T move nothing; the rest are arguments of the motions that are drawn.
constexpr std::string_view kKnownLetters = "FIJKLNOPQRSTXYZ";

bool endsProgram(Code mCode) {
    return mCode == code(2) || mCode == code(30) || mCode == code(99);
}

// Calls of subprograms, whose moves are missing from the picture.
bool callsSubprogram(Code mCode) {
    return mCode == code(97) || mCode == code(98);
}

} // namespace

ToolPath tracePath(std::string_view program, Remarks& remarks) {
    ToolPath path;
    ProgramReader reader(program, remarks);
    PathTracer tracer(path, remarks);
    Block block;
    while (reader.next(block) && tracer.run(block)) {
        if (path.full()) {
            remarks.add(block.line, "more than " + std::to_string(ToolPath::kMostMoves) +
                                        " moves: the rest is not drawn");
            break;
        }
    }
    return path;
}

bool PathTracer::run(const Block& block) {
    nameOtherWords(block);
    if (applyCodes(block)) {
        move(block);
    }
    for (const Code mCode : block.mCodes) {
        if (callsSubprogram(mCode)) {
            remarks_.add(block.line, nameOf('M', mCode) + " is not drawn");
        }
    }
    return std::none_of(block.mCodes.begin(), block.mCodes.end(), endsProgram);
}

void PathTracer::nameOtherWords(const Block& block) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if (block.has(letter) && kKnownLetters.find(letter) == std::string_view::npos) {
            remarks_.add(block.line, std::string(1, letter) + " is not drawn");
        }
    }
}

/// Sets the modes that a block's G codes ask for. @return whether its axis words move the tool
bool PathTracer::applyCodes(const Block& block) {
    const Motion before = state_.motion;
    bool moves = true;
    for (const Code gCode : block.gCodes) {
        const CodeEffect effect = state_.apply(gCode);
        if (effect != CodeEffect::Drawn) {
            remarks_.add(block.line, nameOf('G', gCode) + " is not drawn");
        }
        moves = moves && effect != CodeEffect::TakesAxisWords;
    }
    path_.unit = state_.unit;
    if (state_.motion == Motion::Cycle && before != Motion::Cycle) {
        cycle_.begin(path_.end()[state_.plane.normal]);
    }
    return moves;
}

void PathTracer::move(const Block& block) {
    switch (state_.motion) {
    case Motion::Rapid:
    case Motion::Line:
        if (gcode::hasAxisWord(block)) {
            const bool rapid = state_.motion == Motion::Rapid;
            add(block, rapid ? MoveKind::Rapid : MoveKind::Cut,
                gcode::targetOf(block, state_, path_.end()));
        }
        break;
    case Motion::ClockwiseArc:
    case Motion::CounterclockwiseArc:
        if (gcode::movesAlongArc(block)) {
            moveAlongArc(block, gcode::targetOf(block, state_, path_.end()));
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

/// An arc that cannot be drawn leaves a gap: the path goes on at its end, positioned there.
void PathTracer::moveAlongArc(const Block& block, const Point3& target) {
    const Point3 start = path_.end();
    const auto arc = gcode::arcOf(block, state_, start, target);
    if (arc && block.has('R')) {
        if (gcode::radiusFallsShort(arc->plane, start, target, block.value('R') * state_.unit)) {
            remarks_.add(block.line, "an arc of too short a radius is drawn as a half circle");
        }
    } else if (arc && arc->isSpiral()) {
        remarks_.add(block.line, "an arc that ends off its circle is drawn as a spiral");
    }
    if (block.has('P')) {
        remarks_.add(block.line, "P of an arc is not drawn");
    }
    if (!arc) {
        remarks_.add(block.line, "an arc without a centre or radius is not drawn");
        add(block, MoveKind::Rapid, target);
        return;
    }
    const int count = arc->chordCount();
    for (int i = 1; i <= count; ++i) {
        add(block, MoveKind::Cut, arc->chordEnd(i, count));
    }
}

void PathTracer::drill(const Block& block) {
    cycle_.take(block, state_);
    if (!cycle_.complete()) {
        remarks_.add(block.line, nameOf('G', state_.cycle) + " without its levels is not drawn");
        return;
    }
    for (size_t left = gcode::holeCount(block); left > 0 && !path_.full(); --left) {
        const auto moves = cycle_.hole(block, state_, path_.end());
        if (moves.empty()) {
            return;
        }
        for (const gcode::HoleMove& move : moves) {
            add(block, move.drills ? MoveKind::Point : MoveKind::Rapid, move.end);
        }
    }
}

void PathTracer::add(const Block& block, MoveKind kind, const Point3& end) {
    if (!path_.full()) {
        path_.moves.push_back({end, block.line, kind});
    }
}

} // namespace toolpath
