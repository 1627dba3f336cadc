#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kPen = 13;

/// Corners from blunt to sharp.
void chain(GDrawHandle* handle, const GRect& figure) {
    constexpr int kWidths[] = {54, 43, 32, 21, 10};
    Points points = {point(figure.left + kPen / 2, figure.bottom - kPen / 2)};
    int x = points.front().x;
    bool up = true;
    for (const int width : kWidths) {
        x += width;
        points.push_back(point(x, up ? figure.top + kPen / 2 : figure.bottom - kPen / 2));
        up = !up;
    }
    drawPolyline(handle, points);
}

void triangle(GDrawHandle* handle, const GRect& figure) {
    const GRect area = inset(figure, kPen / 2);
    drawPolygon(handle, {point(centreOf(area).x, area.top), point(area.right, area.bottom),
                         point(area.left, area.bottom)});
}

void rectangle(GDrawHandle* handle, const GRect& figure) {
    const GRect frame = inset(figure, kPen / 2);
    GDDrawRect(handle, &frame);
}

void drawRow(GDrawHandle* handle, const Grid& grid, int row, int join, const char* name) {
    const auto with = [join](void (*draw)(GDrawHandle*, const GRect&)) {
        return [join, draw](GDrawHandle* to, const GRect& figure) {
            setPen(to, kInk, kPen, 0, join);
            draw(to, figure);
        };
    };
    drawFigure(handle, grid.figure(row * 3), name, with(chain));
    drawFigure(handle, grid.figure(row * 3 + 1), "A polygon", with(triangle));
    drawFigure(handle, grid.figure(row * 3 + 2), "A rectangle", with(rectangle));
}

} // namespace

void drawJoinFigures(GDrawHandle* handle) {
    const Grid grid(3, 3);
    drawRow(handle, grid, 0, G_JOIN_NONE, "No join");
    drawRow(handle, grid, 1, G_JOIN_BEVEL, "Bevel");
    drawRow(handle, grid, 2, G_JOIN_ROUND, "Round");
}

} // namespace gallery
