#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kFullTurn = 3600;

void drawArc(GDrawHandle* handle, const GRect& rect, int start, int end) {
    GDDrawArc(handle, &rect, static_cast<int16_t>(start), static_cast<int16_t>(end));
}

/// One arc with its ellipse in grey behind it.
auto between(int start, int end, int pen) {
    return [=](GDrawHandle* handle, const GRect& figure) {
        const GRect rect = inset(figure, 6);
        setPen(handle, kSand);
        GDDrawOval(handle, &rect);
        setPen(handle, kInk, pen);
        drawArc(handle, rect, start, end);
    };
}

/// Arcs of equal length, one colour after the other, are one ring without a seam.
void ring(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kRed, kGold, kGreen, kBlue};
    constexpr int kParts = 12;
    const GRect rect = inset(squareIn(figure), 10);
    for (int i = 0; i < kParts; ++i) {
        setPen(handle, kColors[i % 4], 17);
        drawArc(handle, rect, i * kFullTurn / kParts, (i + 1) * kFullTurn / kParts);
    }
}

void rainbow(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kRed, kGold, kGreen, kBlue};
    GRect rect = edges(figure.left, figure.top + 6, figure.right, figure.bottom * 2 - figure.top);
    for (const uint32_t color : kColors) {
        rect = inset(rect, 7);
        setPen(handle, color, 7);
        drawArc(handle, rect, 0, 1800);
    }
}

/// A spiral of halves of circles.
void spiral(GDrawHandle* handle, const GRect& figure) {
    const GPoint centre = centreOf(figure);
    setPen(handle, kInk, 2);
    int x = centre.x;
    for (int radius = 2; radius * 2 + 2 < heightOf(figure) / 2 * 2; radius += 2) {
        const bool upper = radius % 4 == 2;
        const GRect rect = upper ? edges(x - 2 * radius, centre.y - radius, x, centre.y + radius)
                                 : edges(x, centre.y - radius, x + 2 * radius, centre.y + radius);
        drawArc(handle, rect, upper ? 0 : 1800, upper ? 1800 : 0);
        x += upper ? -2 * radius : 2 * radius;
    }
}

/// The scale of a meter: an arc, marks on it, and a hand.
void meter(GDrawHandle* handle, const GRect& figure) {
    const GRect rect = inset(squareIn(figure), 4);
    const GPoint centre = centreOf(rect);
    const int radius = widthOf(rect) / 2;
    setPen(handle, kGreen, 5);
    drawArc(handle, rect, 900, 2250);
    setPen(handle, kGold, 5);
    drawArc(handle, rect, 150, 900);
    setPen(handle, kRed, 5);
    drawArc(handle, rect, kFullTurn - 450, 150);
    setPen(handle, kInk);
    for (int angle = -450; angle <= 2250; angle += 270) {
        const GPoint outer = onCircle(centre, radius - 5, angle);
        const GPoint inner = onCircle(centre, radius - 10, angle);
        drawLine(handle, outer.x, outer.y, inner.x, inner.y);
    }
    setPen(handle, kInk, 3);
    const GPoint tip = onCircle(centre, radius - 12, 1300);
    drawLine(handle, centre.x, centre.y, tip.x, tip.y);
}

} // namespace

void drawArcFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "0 to 90", between(0, 900, 1));
    drawFigure(handle, grid.figure(1), "45 to 225", between(450, 2250, 1));
    drawFigure(handle, grid.figure(2), "300 to 60", between(3000, 600, 1));
    drawFigure(handle, grid.figure(3), "60 to 300", between(600, 3000, 1));
    drawFigure(handle, grid.figure(4), "Pen 3", between(450, 2250, 3));
    drawFigure(handle, grid.figure(5), "Pen 8", between(600, 3000, 8));
    drawFigure(handle, grid.figure(6), "Pen 12", between(3000, 600, 12));
    drawFigure(handle, grid.figure(7), "12 parts", ring);
    drawFigure(handle, grid.figure(8), "Halves", rainbow);
    drawFigure(handle, grid.figure(9), "A spiral", spiral);
    drawFigure(handle, grid.figure(10), "A meter", meter);
    drawFigure(handle, grid.figure(11), "1 to 359, pen 5", between(10, 3590, 5));
}

} // namespace gallery
