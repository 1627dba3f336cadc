#include "drawing/backdrop.h"

#include "drawing/sky.h"

namespace toolpath {
namespace {

constexpr int32_t kStockPattern = 8; // diagonals

void fillRect(GDrawHandle* handle, const GRect& rect, int32_t pattern, uint32_t fore,
              uint32_t back) {
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, pattern, fore, back);
    GDDrawRect(handle, &rect);
}

void drawBoxEdges(GDrawHandle* handle, const View& view, const Box3& box) {
    const auto corner = [&box](unsigned bits) {
        return Point3{bits & 1U ? box.high[kX] : box.low[kX],
                      bits & 2U ? box.high[kY] : box.low[kY],
                      bits & 4U ? box.high[kZ] : box.low[kZ]};
    };
    for (unsigned from = 0; from < 8; ++from) {
        for (const unsigned axis : {1U, 2U, 4U}) {
            if ((from & axis) == 0) {
                drawLine(handle, view, corner(from), corner(from | axis));
            }
        }
    }
}

} // namespace

void drawPlanGround(GDrawHandle* handle, const Style& style, const View& plan, const Box3& work,
                    const Grid& grid) {
    plan.select(handle);
    fillRect(handle, plan.bounds(), G_FILL_FORE, style[Ink::Paper], style[Ink::Paper]);
    const Box3 paper = visibleArea(plan, work.low[kZ]);
    drawGrid(handle, plan, grid, paper, style[Ink::Grid], style[Ink::GridStrong]);

    const GPoint lowerLeft = plan.pixel(work.low);
    const GPoint upperRight = plan.pixel(work.high);
    const GRect stock{lowerLeft.x, upperRight.y, upperRight.x, lowerLeft.y};
    fillRect(handle, stock, kStockPattern, style[Ink::StockMark], style[Ink::Stock]);
    drawGrid(handle, plan, {grid.step * grid.strongEvery, 1}, work, style[Ink::GridStrong],
             style[Ink::GridStrong]);

    GDSetPenColor(handle, style[Ink::Edge]);
    GDSetFillPattern(handle, G_FILL_NONE);
    GDDrawRect(handle, &stock);
}

void drawIsometricGround(GDrawHandle* handle, const Style& style, const View& isometric,
                         const Box3& work, const Grid& grid) {
    isometric.select(handle);
    drawSky(handle, style, isometric);
    drawGrid(handle, isometric, grid, work, style[Ink::FloorGrid], style[Ink::FloorStrong]);
    GDSetPenColor(handle, style[Ink::FloorEdge]);
    drawBoxEdges(handle, isometric, work);
}

} // namespace toolpath
