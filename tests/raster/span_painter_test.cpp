#include "raster/span_painter.h"

#include "raster/drawing.h"
#include "raster/pixel_ops.h"
#include "support/random_calls.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

using SpanPainterTest = RasterTest;

constexpr int16_t kWidth = 40;
constexpr int16_t kHeight = 12;

struct Run {
    int32_t left;
    int32_t right;
    int32_t y;

    friend std::ostream& operator<<(std::ostream& out, const Run& run) {
        return out << "columns " << run.left << " to " << run.right << " of row " << run.y;
    }
};

Run randomRun(Random& random) {
    const int32_t left = random.between(-3, kWidth + 2);
    return {left, left + random.between(-2, 20), random.between(-2, kHeight + 1)};
}

/// The colour and the place that the last pixel leaves to the next one.
std::pair<uint32_t, ptrdiff_t> cellAfter(const std::vector<Run>& runs, const Paint& paint,
                                         int16_t bits, bool bySlots) {
    PixelCell& cell = pixelCells[bits / 8 - 1];
    cell = {};
    Drawing drawing(kWidth, kHeight, bits);
    CopiedOps ops;
    if (bySlots) {
        ops.attach(drawing);
    }
    {
        const Canvas canvas(*drawing);
        SpanPainter painter(canvas, paint, G_MODE_COPY);
        for (const Run& run : runs) {
            painter.add(run.left, run.right, run.y);
        }
    }
    return {cell.color,
            cell.cursor == nullptr ? -1 : cell.cursor - drawing.surface().memory().data()};
}

TEST_F(SpanPainterTest, LeavesTheSameCellsByKernelsAndBySlots) {
    constexpr uint8_t kRows[8] = {0x80, 0xC0, 0x01, 0xF0, 0x00, 0x22, 0xFF, 0x0D};
    for (const int16_t bits : kDepths) {
        for (const Paint& paint : {Paint::solid(0x21), Paint{0x21, 0x43, kRows}}) {
            forRandomCalls(200, 5, randomRun, [&](const auto& runs) -> std::string {
                return cellAfter(runs, paint, bits, false) == cellAfter(runs, paint, bits, true)
                           ? ""
                           : "cells differ";
            });
        }
    }
}

} // namespace
