#include "model/tool_path.h"

#include <algorithm>

namespace toolpath {
namespace {

void include(Box3& box, bool& empty, const Point3& point) {
    if (empty) {
        box = {point, point};
        empty = false;
        return;
    }
    for (size_t axis = 0; axis < point.size(); ++axis) {
        box.low[axis] = std::min(box.low[axis], point[axis]);
        box.high[axis] = std::max(box.high[axis], point[axis]);
    }
}

} // namespace

Box3 machinedBox(const ToolPath& path) {
    Box3 machined;
    Box3 moved{path.start, path.start};
    bool nothingMachined = true;
    bool nothingMoved = false;
    const Point3* from = &path.start;
    for (const Move& move : path.moves) {
        if (move.kind != MoveKind::Rapid) {
            include(machined, nothingMachined, *from);
            include(machined, nothingMachined, move.end);
        }
        include(moved, nothingMoved, move.end);
        from = &move.end;
    }
    return nothingMachined ? moved : machined;
}

} // namespace toolpath
