#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr int kTableTop = kContent.top;
constexpr int kRowHeight = 22;
constexpr int kFiguresTop = 300;

/// Every dash with pens of three sizes, a column each.
void drawTable(GDrawHandle* handle) {
    constexpr int kPens[] = {1, 3, 7};
    const Grid columns(3, 1);
    for (int column = 0; column < 3; ++column) {
        const GRect cell = columns.figure(column);
        const int pen = kPens[column];
        resetState(handle);
        drawLabel(handle, cell.left + 24, kTableTop - 2, "Pen " + std::to_string(pen), kGrey);
        for (int dash = 1; dash <= G_DASH_COUNT; ++dash) {
            const int y = kTableTop + 4 + dash * kRowHeight;
            setPen(handle, kInk);
            drawLabel(handle, cell.left, y - kSmallLabel / 2, std::to_string(dash), kGrey);
            setPen(handle, kInk, pen, dash);
            drawLine(handle, cell.left + 24, y, cell.right, y);
        }
    }
}

void everyAngle(GDrawHandle* handle, const GRect& figure) {
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int reach = widthOf(area) / 2;
    for (int angle = 0; angle < 3600; angle += 150) {
        const GPoint inner = onCircle(centre, reach / 5, angle);
        const GPoint outer = onCircle(centre, reach, angle);
        setPen(handle, angle % 300 == 0 ? kInk : kRed, 1, 3);
        GDMoveTo(handle, inner.x, inner.y);
        GDLineTo(handle, outer.x, outer.y);
    }
}

Points zigzag(const GRect& area) {
    constexpr int kTeeth = 5;
    Points points;
    for (int i = 0; i <= kTeeth; ++i) {
        points.push_back(point(area.left + (widthOf(area) - 1) * i / kTeeth,
                               i % 2 == 0 ? area.bottom : area.top));
    }
    return points;
}

/// GDDrawLine() carries the pattern on, GDLineTo() starts it anew.
void carriedAndRestarted(GDrawHandle* handle, const GRect& figure) {
    const int height = (heightOf(figure) - 24) / 2;
    const Points carried = zigzag(box(figure.left, figure.top, widthOf(figure), height));
    const Points restarted =
        zigzag(box(figure.left, figure.bottom - height + 1, widthOf(figure), height));
    setPen(handle, kInk, 3, 2);
    for (size_t i = 1; i < carried.size(); ++i) {
        drawLine(handle, carried[i - 1].x, carried[i - 1].y, carried[i].x, carried[i].y);
    }
    setPen(handle, kRed, 3, 2);
    drawPolyline(handle, restarted);
}

void frames(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kInk, kRed, kBlue, kGreen};
    for (int i = 0; i < 4; ++i) {
        setPen(handle, kColors[i], i % 2 == 0 ? 1 : 3, 2 + i);
        const GRect frame = inset(figure, 1 + i * 16);
        GDDrawRect(handle, &frame);
    }
}

} // namespace

void drawDashFigures(GDrawHandle* handle) {
    drawTable(handle);
    const Grid grid(3, 1, edges(kContent.left, kFiguresTop, kContent.right, kContent.bottom));
    drawFigure(handle, grid.figure(0), "Every angle", everyAngle);
    drawFigure(handle, grid.figure(1), "Carried on, started anew", carriedAndRestarted);
    drawFigure(handle, grid.figure(2), "Frames", frames);
}

} // namespace gallery
