#include "model/path_tracer.h"

#include <algorithm>
#include <string>

namespace toolpath {
namespace {

constexpr char kCentreLetters[] = {'I', 'J', 'K'};

// F, N, O, S and T move nothing; the rest are arguments of the motions that are drawn.
constexpr std::string_view kKnownLetters = "FIJKLNOPQRSTXYZ";

bool hasAxisWord(const Block& block) {
    return block.has('X') || block.has('Y') || block.has('Z');
}

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
        if (hasAxisWord(block)) {
            const bool rapid = state_.motion == Motion::Rapid;
            add(block, rapid ? MoveKind::Rapid : MoveKind::Cut, targetOf(block));
        }
        break;
    case Motion::ClockwiseArc:
    case Motion::CounterclockwiseArc:
        if (hasAxisWord(block) || block.has('I') || block.has('J') || block.has('K')) {
            moveAlongArc(block, targetOf(block));
        }
        break;
    case Motion::Cycle:
        if (hasAxisWord(block) || block.has('R')) {
            drill(block);
        }
        break;
    case Motion::NotDrawn:
        break;
    }
}

/// An arc that cannot be drawn leaves a gap: the path goes on at its end, positioned there.
void PathTracer::moveAlongArc(const Block& block, const Point3& target) {
    const Plane& plane = state_.plane;
    const bool clockwise = state_.motion == Motion::ClockwiseArc;
    const char first = kCentreLetters[plane.first];
    const char second = kCentreLetters[plane.second];
    const Point3 start = path_.end();

    std::optional<Arc> arc;
    if (block.has('R')) {
        const double radius = block.value('R') * state_.unit;
        arc = arcOfRadius(plane, start, target, radius, clockwise);
        if (arc && radiusFallsShort(plane, start, target, radius)) {
            remarks_.add(block.line, "an arc of too short a radius is drawn as a half circle");
        }
    } else if (block.has(first) || block.has(second)) {
        arc = arcAboutCentre(plane, start, target, block.value(first) * state_.unit,
                             block.value(second) * state_.unit, clockwise);
        if (arc && arc->isSpiral()) {
            remarks_.add(block.line, "an arc that ends off its circle is drawn as a spiral");
        }
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
    if (cycle_.complete()) {
        cycle_.drill(block, state_, path_);
    } else {
        remarks_.add(block.line, nameOf('G', state_.cycle) + " without its levels is not drawn");
    }
}

Point3 PathTracer::targetOf(const Block& block) const {
    Point3 target = path_.end();
    for (const Axis axis : {kX, kY, kZ}) {
        const char letter = kAxisLetters[axis];
        if (block.has(letter)) {
            target[axis] = state_.coordinate(target[axis], block.value(letter));
        }
    }
    return target;
}

void PathTracer::add(const Block& block, MoveKind kind, const Point3& end) {
    if (!path_.full()) {
        path_.moves.push_back({end, block.line, kind});
    }
}

} // namespace toolpath
