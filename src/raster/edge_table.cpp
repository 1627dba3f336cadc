#include "raster/edge_table.h"

#include "memory/memory.h"

#include <cstddef>
#include <cstring>

namespace quarlo {
namespace {

/// The columns of a table edge, whose third point holds a reference to them: the pointer itself,
/// or, where that does not fit, the distance from the point.
const int16_t* columnsOf(const GPoint* run) {
    if constexpr (sizeof(void*) == sizeof(GPoint)) {
        const int16_t* columns;
        std::memcpy(&columns, &run[2], sizeof columns);
        return columns;
    } else {
        int32_t distance;
        std::memcpy(&distance, &run[2], sizeof distance);
        return reinterpret_cast<const int16_t*>(reinterpret_cast<const uint8_t*>(&run[2]) +
                                                distance);
    }
}

bool precedesDown(const GEdge& a, const GEdge& b) {
    return a.yTop != b.yTop ? a.yTop < b.yTop : a.order < b.order;
}

bool precedesAcross(const GEdge& a, const GEdge& b) {
    return a.x != b.x ? a.x < b.x : a.order < b.order;
}

/// Moves each edge back to its place. From line to line few edges change places, so this takes one
/// comparison an edge; false when so many did that another method is faster.
bool sortByInsertion(GEdge* first, GEdge* last) {
    constexpr std::ptrdiff_t kMovesPerEdge = 8;
    std::ptrdiff_t moves = (last - first) * kMovesPerEdge;
    for (GEdge* edge = first + 1; edge < last; ++edge) {
        if (edge[0].x >= edge[-1].x) {
            continue;
        }
        const GEdge moved = *edge;
        GEdge* place = edge;
        do {
            *place = place[-1];
            --place;
            --moves;
        } while (place != first && moved.x < place[-1].x);
        *place = moved;
        if (moves < 0) {
            return false;
        }
    }
    return true;
}

} // namespace

EdgeTable::~EdgeTable() {
    if (state_.edges != nullptr) {
        release(state_.edges);
    }
    state_.edges = state_.active = state_.pending = nullptr;
}

bool EdgeTable::build(const GPoly& poly, Tables tables) {
    const int32_t count = poly.count;
    state_.edges = static_cast<GEdge*>(
        allocateCleared(kLibrarySpace, (count + 1) * static_cast<int32_t>(sizeof(GEdge))));
    if (state_.edges == nullptr) {
        return false;
    }
    end_ = state_.edges;
    int32_t at = 0;
    while (at < count - 1) {
        if (tables == Tables::Read && at + 3 < count && poly.points[at + 1].x == INT16_MIN) {
            addTable(poly.points + at);
            at += 3;
        } else {
            addStraight(poly.points[at], poly.points[at + 1]);
            at += 1;
        }
    }
    addStraight(poly.points[0], poly.points[at]);
    std::sort(state_.edges, end_, precedesDown);
    state_.active = state_.pending = state_.edges;
    return end_ - state_.edges >= 2;
}

void EdgeTable::addStraight(const GPoint& from, const GPoint& to) {
    if (from.y == to.y) {
        return;
    }
    const GPoint& upper = from.y < to.y ? from : to;
    const GPoint& lower = from.y < to.y ? to : from;
    const int64_t across = int64_t{lower.x - upper.x} * (1 << kFraction);
    GEdge edge{};
    edge.step = static_cast<int32_t>(across / (lower.y - upper.y));
    edge.x = upper.x * (1 << kFraction);
    const int32_t skipped = std::max(top_ - upper.y, 0);
    if (upper.y + skipped <= lower.y) {
        edge.x += static_cast<int32_t>(int64_t{edge.step} * skipped);
    }
    add(edge, upper.y, lower.y);
}

void EdgeTable::addTable(const GPoint* run) {
    const int32_t first = std::min(run[0].y, run[3].y);
    const int32_t last = std::max(run[0].y, run[3].y);
    const int32_t start = std::max(first, top_);
    if (start > last) {
        return;
    }
    const bool bottomUp = run[1].y != first;
    GEdge edge{};
    edge.flags = kFromTable | (bottomUp ? kBottomUp : 0);
    edge.table = columnsOf(run) + (bottomUp ? last - start : start - first);
    edge.x = *edge.table * (1 << kFraction);
    add(edge, first, last);
}

/// Keeps the lines that can be seen. Behind the last of them one more is kept, on which an edge
/// that goes on is not yet on its last line.
void EdgeTable::add(GEdge& edge, int32_t first, int32_t last) {
    first = std::max(first, top_);
    last = std::min(last, bottom_ + 1);
    if (first > last || first > bottom_) {
        return;
    }
    edge.yTop = static_cast<int16_t>(first);
    edge.linesLeft = static_cast<uint16_t>(last - first + 1);
    edge.order = static_cast<uint32_t>(end_ - state_.edges);
    *end_++ = edge;
}

bool EdgeTable::advanceTo(int32_t y) {
    dropFinished();
    admit(y);
    sortActive();
    return state_.active != state_.pending;
}

/// Brings the active edges to the next line and closes the gaps of those that end, towards the
/// pending ones.
void EdgeTable::dropFinished() {
    GEdge* kept = state_.pending;
    for (GEdge* edge = state_.pending; edge != state_.active;) {
        --edge;
        if (--edge->linesLeft == 0) {
            continue;
        }
        if ((edge->flags & kFromTable) == 0) {
            edge->x += edge->step;
        } else {
            edge->table += (edge->flags & kBottomUp) != 0 ? -1 : 1;
            edge->x = *edge->table * (1 << kFraction);
        }
        if (--kept != edge) {
            *kept = *edge;
        }
    }
    state_.active = kept;
}

void EdgeTable::admit(int32_t y) {
    while (state_.pending != end_ && state_.pending->yTop == y) {
        ++state_.pending;
    }
}

void EdgeTable::sortActive() {
    if (sortByInsertion(state_.active, state_.pending)) {
        return;
    }
    uint32_t order = 0;
    for (GEdge* edge = state_.active; edge != state_.pending; ++edge) {
        edge->order = order++;
    }
    std::sort(state_.active, state_.pending, precedesAcross);
}

} // namespace quarlo
