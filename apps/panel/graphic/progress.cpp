#include "graphic/progress.h"

#include <algorithm>

namespace panel {
namespace {

double squareDistance(const toolpath::Point3& place, const Place& tool) {
    double sum = 0.0;
    for (size_t axis = 0; axis < kAxes; ++axis) {
        const double way = place[axis] - tool[axis];
        sum += way * way;
    }
    return sum;
}

/// The place of a segment that is nearest to the tool, as part of its length.
double nearestPart(const toolpath::Point3& from, const toolpath::Point3& to, const Place& tool) {
    double along = 0.0;
    double square = 0.0;
    for (size_t axis = 0; axis < kAxes; ++axis) {
        const double way = to[axis] - from[axis];
        along += way * (tool[axis] - from[axis]);
        square += way * way;
    }
    return square > 0.0 ? std::clamp(along / square, 0.0, 1.0) : 1.0;
}

double squareDistance(const ToolPath& path, size_t move, const Place& tool) {
    const toolpath::Point3& from = startOf(path, move);
    const toolpath::Point3& to = path.moves[move].end;
    const double part = nearestPart(from, to, tool);
    toolpath::Point3 nearest{};
    for (size_t axis = 0; axis < kAxes; ++axis) {
        nearest[axis] = from[axis] + (to[axis] - from[axis]) * part;
    }
    return squareDistance(nearest, tool);
}

/// A circle comes back to where it begins: the search ends where the path leads away from the tool.
constexpr double kFar = 25.0; // square millimetres

bool before(const Move& move, int32_t line) {
    return move.line < line;
}

} // namespace

bool Progress::follow(const ToolPath& path, const Snapshot& now) {
    const auto& moves = path.moves;
    const auto found = std::lower_bound(moves.begin(), moves.end(), now.line, before);
    const auto first = static_cast<size_t>(found - moves.begin());
    const bool runs = now.state == G_NC_STATE_RUNNING || now.state == G_NC_STATE_HELD;
    if (!runs) {
        return true; // what was done stays in view
    }
    const bool anew = first < done_ && (done_ == moves.size() || moves[done_].line != now.line);
    size_t nearest = anew ? first : std::max(first, done_);
    double least = nearest < moves.size() ? squareDistance(path, nearest, now.work) : 0.0;
    for (size_t i = nearest; i < moves.size() && moves[i].line == now.line; ++i) {
        const double distance = squareDistance(path, i, now.work);
        if (distance < least) {
            least = distance;
            nearest = i;
        } else if (distance > least + kFar) {
            break;
        }
    }
    done_ = nearest;
    return !anew;
}

} // namespace panel
