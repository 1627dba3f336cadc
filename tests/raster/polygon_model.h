// The polygon fill a second way: linked by nothing, sorted by swapping neighbours, line by line.
#pragma once

#include <quarlo/types.h>

#include <cstdint>
#include <cstdlib>
#include <utility>
#include <vector>

namespace quarlo::test {

/// A run of a polygon fill, both ends included.
struct PaintedRun {
    int32_t left;
    int32_t right;
    int32_t y;

    bool operator==(const PaintedRun&) const = default;
};

/// An edge of the model. A table has one column a line, top line first.
struct ModelEdge {
    int32_t top;
    int32_t lines;
    int64_t x;
    int64_t step;
    std::vector<int16_t> table;
};

inline ModelEdge straightEdge(GPoint a, GPoint b) {
    if (a.y > b.y) {
        std::swap(a, b);
    }
    const int64_t step = int64_t{b.x - a.x} * 32768 / (b.y - a.y);
    return {a.y, b.y - a.y + 1, int64_t{a.x} * 32768, step, {}};
}

/// Edges between consecutive points, the last back to the first; horizontal ones are left out.
inline std::vector<ModelEdge> straightEdges(const std::vector<GPoint>& points) {
    std::vector<ModelEdge> edges;
    for (size_t k = 0; k < points.size(); ++k) {
        const GPoint a = points[k];
        const GPoint b = points[(k + 1) % points.size()];
        if (a.y != b.y) {
            edges.push_back(straightEdge(a, b));
        }
    }
    return edges;
}

/// The edge's column on a line that it crosses.
inline int32_t columnOn(const ModelEdge& edge, int32_t y) {
    const int32_t down = y - edge.top;
    if (!edge.table.empty()) {
        return edge.table[static_cast<size_t>(down)];
    }
    return static_cast<int32_t>((edge.x + edge.step * down + 0x4000) >> 15);
}

/// The runs of all lines of an area, clipped to it, top line first.
inline std::vector<PaintedRun> polygonRuns(const std::vector<ModelEdge>& edges, const GRect& area) {
    std::vector<PaintedRun> runs;
    for (int32_t y = area.top; y <= area.bottom && edges.size() >= 2; ++y) {
        std::vector<int32_t> columns;
        for (const ModelEdge& edge : edges) {
            // On its last line an edge neither opens nor closes a run.
            if (y >= edge.top && y < edge.top + edge.lines - 1) {
                columns.push_back(columnOn(edge, y));
            }
        }
        for (bool swapped = true; swapped;) {
            swapped = false;
            for (size_t i = 1; i < columns.size(); ++i) {
                if (columns[i] < columns[i - 1]) {
                    std::swap(columns[i], columns[i - 1]);
                    swapped = true;
                }
            }
        }
        for (size_t i = 1; i < columns.size(); i += 2) {
            const int32_t left = std::max<int32_t>(columns[i - 1], area.left);
            const int32_t right = std::min<int32_t>(columns[i], area.right);
            if (left <= right) {
                runs.push_back({left, right, y});
            }
        }
    }
    return runs;
}

} // namespace quarlo::test
