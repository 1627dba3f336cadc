#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <cmath>

namespace gallery {
namespace {

constexpr int kSizes = 9;
constexpr int kGap = 8;

void fan(GDrawHandle* handle, const GRect& figure, int pen, int step) {
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int reach = widthOf(area) / 2;
    setPen(handle, kInk, pen);
    for (int angle = 0; angle < 3600; angle += step) {
        const GPoint inner = onCircle(centre, reach / 3, angle);
        const GPoint outer = onCircle(centre, reach, angle);
        drawLine(handle, inner.x, inner.y, outer.x, outer.y);
    }
}

/// Where the line of a size lies, so that all have the same gap between them.
int placeOf(int size, int gap) {
    return size * (size - 1) / 2 + size / 2 + (size - 1) * gap;
}

/// Each size twice: level on the left, upright on the right, equal gaps between the lines.
void levelAndUpright(GDrawHandle* handle, const GRect& figure) {
    constexpr int kWidth = 80;
    const int thickness = placeOf(kSizes, 0) + kSizes / 2 + 1;
    const int levelGap = (heightOf(figure) - thickness) / (kSizes - 1);
    const int uprightGap = (kWidth - thickness) / (kSizes - 1);
    for (int size = 1; size <= kSizes; ++size) {
        const int x = figure.right - kWidth + 1 + placeOf(size, uprightGap);
        const int y = figure.top + placeOf(size, levelGap);
        setPen(handle, kInk, size);
        drawLine(handle, figure.left, y, figure.left + kWidth - 1, y);
        drawLine(handle, x, figure.top, x, figure.bottom);
    }
}

/// Parallel lines of every size, leaning to both sides.
void oblique(GDrawHandle* handle, const GRect& figure) {
    const GRect area = inset(figure, 4);
    const GPoint centre = centreOf(area);
    const int rise = heightOf(area) - 1 - placeOf(kSizes, kGap);
    for (int size = 1; size <= kSizes; ++size) {
        const int y = area.top + placeOf(size, kGap);
        setPen(handle, size % 2 == 0 ? kRed : kInk, size);
        drawLine(handle, area.left, y, centre.x - kGap, y + rise);
        drawLine(handle, area.right, y, centre.x + kGap, y + rise);
    }
}

/// A flat nib: thick one way, thin the other.
void nib(GDrawHandle* handle, const GRect& figure) {
    constexpr double kTurn = 6.28318530717958648;
    constexpr int kPoints = 120;
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int radius = widthOf(area) / 2 - 5;
    Points points;
    for (int i = 0; i <= kPoints; ++i) {
        const double t = kTurn * i / kPoints;
        points.push_back(point(centre.x + static_cast<int>(std::lround(radius * std::sin(2 * t))),
                               centre.y + static_cast<int>(std::lround(radius * std::sin(3 * t)))));
    }
    setPen(handle, kBlue);
    GDSetPenSize(handle, 9, 2);
    GDSetPenJoin(handle, G_JOIN_BEVEL);
    drawPolyline(handle, points);
}

} // namespace

void drawWideLineFigures(GDrawHandle* handle) {
    const Grid grid(3, 2);
    const auto fanOf = [](int pen, int step) {
        return [=](GDrawHandle* to, const GRect& figure) { fan(to, figure, pen, step); };
    };
    drawFigure(handle, grid.figure(0), "Pens 1 to 9", levelAndUpright);
    drawFigure(handle, grid.figure(1), "Pens 1 to 9, oblique", oblique);
    drawFigure(handle, grid.figure(2), "Pen 2", fanOf(2, 75));
    drawFigure(handle, grid.figure(3), "Pen 5", fanOf(5, 150));
    drawFigure(handle, grid.figure(4), "Pen 8", fanOf(8, 225));
    drawFigure(handle, grid.figure(5), "A nib of 9 x 2", nib);
}

} // namespace gallery
