// Shapes known by their rows, on their way into the scan converter.
#pragma once

#include "raster/canvas.h"
#include "raster/sector.h"

#include <cstdint>

namespace quarlo {

/// A block of the library's memory; null where there was none.
class Block {
  public:
    explicit Block(int64_t bytes);
    ~Block();
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;

    explicit operator bool() const { return memory_ != nullptr; }
    void* get() const { return memory_; }

  private:
    void* memory_;
};

/// Up to four runs on each of a range of rows, filled as polygons whose left and right edges are
/// tables. Runs of a row that do not overlap are painted once each.
class RunTable {
  public:
    static constexpr int32_t kMostRuns = 4;

    /// For the rows from `first` to `last` as far as they are visible.
    RunTable(const Canvas& canvas, int32_t first, int32_t last);

    /// False when nothing is visible, or memory is short. Nothing else may be called then.
    bool isReady() const { return bool(block_); }

    int32_t firstRow() const { return first_; }
    int32_t lastRow() const { return last_; }
    bool holds(int32_t row) const { return first_ <= row && row <= last_; }

    /// Adds a run to a row of the table; one past the fourth is lost.
    void add(int32_t row, int32_t left, int32_t right);

    /// The part of a run in a sector, or all of it where there is none.
    void add(int32_t row, const ColumnRun& run, const Sector* sector);

    /// Fills all runs; pattern and colours are those of GDFillPolygon().
    void fill(uint32_t fore, uint32_t back, int32_t pattern, int32_t mode);

  private:
    int16_t* edge(int32_t number) const;

    const Canvas& canvas_;
    const int32_t first_;
    const int32_t last_;
    const int32_t length_; ///< entries of an edge: a polygon does not paint its last row
    const Block block_;
};

} // namespace quarlo
