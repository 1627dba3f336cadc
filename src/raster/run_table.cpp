#include "raster/run_table.h"

#include "geometry/map.h"
#include "memory/memory.h"
#include "raster/polygon.h"

#include <quarlo/draw.h>

#include <algorithm>

namespace quarlo {
namespace {

/// Two table edges from the first row to behind the last. They stand in one block with the tables.
struct Header {
    GPoint points[8];
};

} // namespace

Block::Block(int64_t bytes)
    : memory_(bytes > 0 && bytes <= INT32_MAX
                  ? allocateCleared(kLibrarySpace, static_cast<int32_t>(bytes))
                  : nullptr) {}

Block::~Block() {
    if (memory_ != nullptr) {
        release(memory_);
    }
}

RunTable::RunTable(const Canvas& canvas, int32_t first, int32_t last)
    : canvas_(canvas),
      first_(std::max<int32_t>(first, canvas.area.top)),
      last_(std::min<int32_t>(last, canvas.area.bottom)),
      length_(last_ - first_ + 2),
      block_(first_ > last_ ? 0
                            : static_cast<int64_t>(sizeof(Header)) +
                                  int64_t{2} * kMostRuns * length_ * int64_t{sizeof(int16_t)}) {
    if (isReady()) {
        // What no run takes stands where nothing is painted.
        std::fill_n(edge(0), 2 * kMostRuns * length_, low16(canvas.area.right + 1));
    }
}

int16_t* RunTable::edge(int32_t number) const {
    auto* const columns = reinterpret_cast<int16_t*>(static_cast<Header*>(block_.get()) + 1);
    return columns + number * ptrdiff_t{length_};
}

void RunTable::add(int32_t row, int32_t left, int32_t right) {
    const GRect& area = canvas_.area;
    left = std::max<int32_t>(left, area.left);
    right = std::min<int32_t>(right, area.right);
    if (left > right) {
        return;
    }
    for (int32_t run = 0; run < kMostRuns; ++run) {
        int16_t& place = edge(2 * run)[row - first_];
        if (place > area.right) {
            place = low16(left);
            edge(2 * run + 1)[row - first_] = low16(right);
            return;
        }
    }
}

void RunTable::add(int32_t row, const ColumnRun& run, const Sector* sector) {
    if (sector == nullptr) {
        add(row, run.left, run.right);
        return;
    }
    sector->cut(run, row, [&](int32_t left, int32_t right) { add(row, left, right); });
}

void RunTable::fill(uint32_t fore, uint32_t back, int32_t pattern, int32_t mode) {
    GPoint* const points = static_cast<Header*>(block_.get())->points;
    for (int32_t run = 0; run < kMostRuns; ++run) {
        const int16_t* const left = edge(2 * run);
        const int16_t* const right = edge(2 * run + 1);
        const bool used = std::any_of(left, left + length_ - 1, [this](int16_t column) {
            return column <= canvas_.area.right;
        });
        if (!used) {
            return;
        }
        points[0] = points[7] = {0, low16(first_)};
        points[3] = points[4] = {0, low16(last_ + 1)};
        GDSetTableEdge(points, left, 0);
        GDSetTableEdge(points + 4, right, 0);
        GDFillPolygon(canvas_, {8, points, {}}, fore, back, pattern, mode);
    }
}

} // namespace quarlo
