// Traces a program from a literal and says what came of it in a readable form.
#pragma once

#include "gcode/arc.h"
#include "model/path_tracer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <string_view>

namespace toolpath {

using namespace gcode; // the tests speak of planes and codes

struct Traced {
    ToolPath path;
    Remarks remarks;
};

inline Traced trace(std::string_view program) {
    Traced traced;
    traced.path = tracePath(program, traced.remarks);
    return traced;
}

/// "rapid 1 2 3", one move a line; coordinates rounded to a thousandth.
inline std::string listMoves(const ToolPath& path) {
    static constexpr const char* kNames[] = {"rapid", "cut", "point"};
    std::ostringstream list;
    for (const Move& move : path.moves) {
        list << kNames[static_cast<size_t>(move.kind)];
        for (const double value : move.end) {
            list << ' ' << std::round(value * 1000.0) / 1000.0 + 0.0;
        }
        list << '\n';
    }
    return list.str();
}

inline std::string listMoves(std::string_view program) {
    return listMoves(trace(program).path);
}

/// "line 1: G41 is not drawn", one remark a line.
inline std::string listRemarks(std::string_view program) {
    const Traced traced = trace(program);
    std::string list;
    for (const Remark& remark : traced.remarks.list()) {
        list += "line " + std::to_string(remark.line) + ": " + remark.text + '\n';
    }
    return list;
}

} // namespace toolpath
