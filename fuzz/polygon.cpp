// Polygons, with and without edges that follow tables, in any style: drawn by the kernels and slot
// by slot they are the same bytes, and none outside the clip rectangle changes.
#include "input.h"
#include "require.h"
#include "scene.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace quarlo::fuzz {
namespace {

constexpr int kMostPolygons = 8;

/// A polygon and the tables of its edges, in one block, so that tables are in reach of points.
class Shape {
  public:
    explicit Shape(Input& in) {
        const int32_t runs = in.below(3);
        for (size_t left = static_cast<size_t>(in.below(40)); left > 0; --left) {
            addVertex(in);
        }
        for (int32_t i = 0; i < runs; ++i) {
            addTable(in);
            addVertex(in);
        }
    }

    /// Always at the same place: a frame, or a polygon that is moved, takes a table's reference for
    /// a point like any other.
    void draw(GDrawHandle* handle) {
        block_.resize(2 * points_.size() + columns_.size());
        auto* const points = reinterpret_cast<GPoint*>(block_.data());
        int16_t* const columns = block_.data() + 2 * points_.size();
        std::copy(points_.begin(), points_.end(), points);
        std::copy(columns_.begin(), columns_.end(), columns);
        for (const Table& table : tables_) {
            require(GDSetTableEdge(points + table.run, columns + table.column, table.bottomUp) == 1,
                    "a table is out of reach");
        }
        GPoly poly = {static_cast<int16_t>(points_.size()), points, {}};
        GDDrawPoly(handle, &poly);
    }

  private:
    struct Table {
        size_t run;    ///< its first point
        size_t column; ///< its first
        int32_t bottomUp;
    };

    /// No point but those of a table may have the mark of one.
    static int16_t readColumn(Input& in) {
        const int16_t x = in.coordinate();
        return x == G_TABLE_EDGE ? int16_t{0} : x;
    }

    void addVertex(Input& in) {
        const int16_t x = readColumn(in);
        points_.push_back({x, in.coordinate()});
    }

    void addTable(Input& in) {
        const int16_t top = in.coordinate();
        const int32_t rows = std::min<int32_t>(in.byte(), INT16_MAX - top);
        const auto bottom = static_cast<int16_t>(top + rows);
        const bool falling = in.flag();
        tables_.push_back({points_.size(), columns_.size(), in.flag() ? 1 : 0});
        const std::array<GPoint, 4> run = {
            {{readColumn(in), falling ? top : bottom}, {}, {}, {5, falling ? bottom : top}}};
        points_.insert(points_.end(), run.begin(), run.end());
        const int16_t first = in.coordinate();
        const int32_t slope = in.below(7) - 3;
        for (int32_t row = 0; row <= rows; ++row) {
            columns_.push_back(static_cast<int16_t>(first + slope * row));
        }
    }

    std::vector<GPoint> points_;
    std::vector<int16_t> columns_;
    std::vector<Table> tables_;
    std::vector<int16_t> block_; ///< the points and, behind them, the columns
};

/// A style and a place, set alike on both handles.
template <typename Set>
void onBoth(GDrawHandle* first, GDrawHandle* second, Set set) {
    set(first);
    set(second);
}

void setStyle(Input& in, GDrawHandle* first, GDrawHandle* second) {
    const int32_t pattern = in.below(44) - 5;
    const uint32_t fore = in.flag() ? in.pixel() : G_NO_COLOR;
    const uint32_t back = in.flag() ? in.pixel() : G_NO_COLOR;
    const uint32_t pen = in.flag() ? in.pixel() : G_NO_COLOR;
    const int32_t mode = in.below(4);
    const int32_t dash = in.below(G_DASH_COUNT + 1);
    const auto penWidth = static_cast<int16_t>(in.below(9));
    const auto penHeight = static_cast<int16_t>(in.below(9));
    const int32_t join = in.below(4);
    const GRect rect = readRect(in);
    const bool isVirtual = in.below(4) == 0;
    onBoth(first, second, [&](GDrawHandle* handle) {
        GDSetFillAttribute(handle, pattern, fore, back);
        GDSetPenColor(handle, pen);
        GDSetDrawingMode(handle, mode);
        GDSetPenDash(handle, dash);
        GDSetPenSize(handle, penWidth, penHeight);
        GDSetPenJoin(handle, join);
        GDSetClipRect(handle, nullptr);
        if (isVirtual) {
            GDSetVirtualRect(handle, &rect);
            GDSetVirtualMode(handle);
        } else {
            GDSetLocalMode(handle);
            GDSetClipRect(handle, &rect);
        }
    });
}

void run(Input& in) {
    RecordingPlatform platform;
    GuardedSurface display(1, 1, 8);
    platform.addDisplay(0, display);
    platform.recordOperations(false);
    const auto width = static_cast<int16_t>(1 + in.below(64));
    const auto height = static_cast<int16_t>(1 + in.below(48));
    const int16_t bits = kDepths[in.below(3)];
    Drawing byKernels(width, height, bits);
    Drawing bySlots(width, height, bits, Against::Start);
    const GuardedMemory& expected = bySlots.surface().memory();
    const GuardedMemory& actual = byKernels.surface().memory();
    CopiedOps copied;
    for (int left = kMostPolygons; left > 0 && !in.isUsedUp(); --left) {
        setStyle(in, byKernels, bySlots);
        copied.attach(bySlots);
        Shape shape(in);
        const std::vector<uint8_t> before(actual.data(), actual.data() + actual.size());
        const Writable writable(*byKernels.surface());
        shape.draw(byKernels);
        shape.draw(bySlots);
        require(actual.intact() && expected.intact(), "memory beside the surface was written");
        require(std::memcmp(actual.data(), expected.data(), actual.size()) == 0,
                "kernels and slots drew something else");
        const int bytesPerLine = byKernels.surface()->bytesPerLine;
        for (int i = 0; i < static_cast<int>(before.size()); ++i) {
            const auto at = static_cast<size_t>(i);
            require(actual.data()[at] == before[at] || writable(i / bytesPerLine, i % bytesPerLine),
                    "a byte outside the clip rectangle was written");
        }
    }
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::Input input({data, size});
    quarlo::fuzz::run(input);
    return 0;
}
