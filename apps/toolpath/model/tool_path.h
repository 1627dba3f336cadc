// The path of a tool: what a part program makes it do, as straight moves in millimetres.
#pragma once

#include "gcode/point.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace toolpath {

using gcode::Axis;
using gcode::kX;
using gcode::kY;
using gcode::kZ;
using gcode::Point3;

enum class MoveKind : uint8_t {
    Rapid, ///< positioning, out of the material
    Cut,   ///< a straight piece of a cut; arcs come as chords
    Point, ///< one plunge of a drilling cycle, from the retract level to the bottom
};

/// A straight move from where the move before it ended.
struct Move {
    Point3 end;
    int32_t line; ///< of the program, from 1
    MoveKind kind;
};

struct ToolPath {
    /// A path takes no more moves than this: a short program can ask for billions of them.
    static constexpr size_t kMostMoves = 4'000'000;

    Point3 start{};
    std::vector<Move> moves;
    double unit = 1.0; ///< of the program, in millimetres: 1, or 25.4 for inches

    bool full() const { return moves.size() >= kMostMoves; }
    const Point3& end() const { return moves.empty() ? start : moves.back().end; }
};

/// An axis-parallel box, both ends inclusive.
struct Box3 {
    Point3 low{};
    Point3 high{};
};

/// The box around all that is machined: cuts and points from begin to end. A path that machines
/// nothing gives the box around all its moves.
Box3 machinedBox(const ToolPath& path);

} // namespace toolpath
