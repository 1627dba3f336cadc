// The runs of one row.
#pragma once

#include "raster/sector.h"
#include "raster/span_painter.h"

#include <algorithm>
#include <cstdint>

namespace quarlo {

/// Runs of columns that may overlap; painted from left to right, each pixel once.
class RowRuns {
  public:
    static constexpr int32_t kMost = 10; ///< two of each quarter of an arc, and two radii

    void clear() { count_ = 0; }

    /// Adds a run in its place; nothing when its ends stand the other way.
    void add(int32_t left, int32_t right) {
        if (left > right) {
            return;
        }
        int32_t place = count_++;
        for (; place > 0 && runs_[place - 1].left > left; --place) {
            runs_[place] = runs_[place - 1];
        }
        runs_[place] = {left, right};
    }

    void paint(SpanPainter& painter, int32_t y) const {
        int32_t next = INT32_MIN;
        for (int32_t i = 0; i < count_; ++i) {
            painter.add(std::max(runs_[i].left, next), runs_[i].right, y);
            next = std::max(next, runs_[i].right + 1);
        }
    }

  private:
    ColumnRun runs_[kMost]; ///< by their left ends
    int32_t count_ = 0;
};

} // namespace quarlo
