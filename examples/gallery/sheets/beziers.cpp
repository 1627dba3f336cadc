#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <array>

namespace gallery {
namespace {

using Curve = std::array<GPoint, 4>;

void drawCurve(GDrawHandle* handle, Curve curve) {
    const GPoly poly = {static_cast<int16_t>(curve.size()), curve.data(), {}};
    GDDrawBezier(handle, &poly);
}

/// A curve in hundredths of a figure's width and height.
Curve inFigure(const GRect& figure, const std::array<int, 8>& hundredths) {
    Curve curve;
    for (size_t i = 0; i < curve.size(); ++i) {
        curve[i] = point(figure.left + (widthOf(figure) - 1) * hundredths[2 * i] / 100,
                         figure.top + (heightOf(figure) - 1) * hundredths[2 * i + 1] / 100);
    }
    return curve;
}

/// The curve with its four points and the two lines that it leaves along.
auto withHandles(const std::array<int, 8>& hundredths) {
    return [hundredths](GDrawHandle* handle, const GRect& figure) {
        const Curve curve = inFigure(figure, hundredths);
        setPen(handle, kRed);
        drawLine(handle, curve[0].x, curve[0].y, curve[1].x, curve[1].y);
        drawLine(handle, curve[3].x, curve[3].y, curve[2].x, curve[2].y);
        for (const GPoint& at : curve) {
            fillBox(handle, box(at.x - 2, at.y - 2, 5, 5), kRed);
        }
        setPen(handle, kInk, 3, 0, G_JOIN_ROUND);
        drawCurve(handle, curve);
    };
}

/// One curve turns into its mirror image.
void sweep(GDrawHandle* handle, const GRect& figure) {
    constexpr int kSteps = 12;
    for (int i = 0; i <= kSteps; ++i) {
        const int t = 140 * i / kSteps - 20;
        drawCurve(handle, inFigure(figure, {0, 100, t, 0, 100 - t, 0, 100, 100}));
    }
}

/// Curves from one corner to the other, pulled further and further.
void leaf(GDrawHandle* handle, const GRect& figure) {
    for (int pull = 0; pull <= 100; pull += 10) {
        setPen(handle, kGreen);
        drawCurve(handle, inFigure(figure, {0, 100, 0, 100 - pull, 100 - pull, 0, 100, 0}));
        drawCurve(handle, inFigure(figure, {0, 100, pull, 100, 100, pull, 100, 0}));
    }
}

void pens(GDrawHandle* handle, const GRect& figure) {
    constexpr int kPens[] = {1, 2, 3, 5, 8};
    int y = 18;
    for (const int pen : kPens) {
        setPen(handle, kInk, pen, 0, G_JOIN_ROUND);
        drawCurve(handle, inFigure(figure, {3, y, 40, y - 50, 60, y + 50, 97, y}));
        y += 13 + pen;
    }
}

void dashes(GDrawHandle* handle, const GRect& figure) {
    for (int dash = 1; dash <= G_DASH_COUNT; ++dash) {
        const int y = 3 + dash * 10;
        setPen(handle, dash % 2 == 0 ? kRed : kInk, 1, dash);
        drawCurve(handle, inFigure(figure, {0, y, 40, y - 40, 60, y + 40, 100, y}));
    }
}

/// Loops that begin and end in the middle.
void petals(GDrawHandle* handle, const GRect& figure) {
    constexpr int kPetals = 12;
    const GPoint centre = centreOf(squareIn(figure));
    for (int i = 0; i < kPetals; ++i) {
        const int angle = 900 + i * 3600 / kPetals;
        setPen(handle, i % 2 == 0 ? kRed : kGold);
        drawCurve(handle, {centre, onCircle(centre, 64, angle - 300),
                           onCircle(centre, 64, angle + 300), centre});
    }
}

/// Each quarter's control points lie at 0.5523 of the radius.
void circle(GDrawHandle* handle, const GRect& figure) {
    const GRect area = inset(squareIn(figure), 2);
    const GPoint at = centreOf(area);
    const int radius = widthOf(area) / 2;
    const int pull = radius * 5523 / 10000;
    setPen(handle, kBlue, 3, 0, G_JOIN_ROUND);
    for (const int x : {-1, 1}) {
        for (const int y : {-1, 1}) {
            drawCurve(handle,
                      {point(at.x + x * radius, at.y), point(at.x + x * radius, at.y + y * pull),
                       point(at.x + x * pull, at.y + y * radius), point(at.x, at.y + y * radius)});
        }
    }
}

/// Written with a flat nib.
void script(GDrawHandle* handle, const GRect& figure) {
    constexpr std::array<int, 8> kStrokes[] = {
        {4, 62, 20, 10, 44, -20, 34, 40},
        {34, 40, 28, 84, 22, 116, 46, 84},
        {46, 84, 66, 56, 76, 8, 62, 12},
        {62, 12, 44, 18, 60, 110, 96, 66},
    };
    setPen(handle, kInk);
    GDSetPenSize(handle, 6, 2);
    GDSetPenJoin(handle, G_JOIN_ROUND);
    for (const auto& stroke : kStrokes) {
        drawCurve(handle, inFigure(figure, stroke));
    }
}

/// Strands over each other.
void rope(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kRed, kGold, kBlue};
    for (int i = 0; i < 3; ++i) {
        setPen(handle, kColors[i], 5, 0, G_JOIN_ROUND);
        const int low = 20 + 30 * i;
        const int high = 110 - low;
        drawCurve(handle, inFigure(figure, {3, low, 20, low, 34, high, 50, high}));
        drawCurve(handle, inFigure(figure, {50, high, 66, high, 80, low, 97, low}));
    }
}

} // namespace

void drawBezierFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "An arch", withHandles({4, 96, 20, 4, 80, 4, 96, 96}));
    drawFigure(handle, grid.figure(1), "A wave", withHandles({4, 50, 40, 4, 60, 96, 96, 50}));
    drawFigure(handle, grid.figure(2), "A cusp", withHandles({4, 96, 96, 4, 4, 4, 96, 96}));
    drawFigure(handle, grid.figure(3), "A hook", withHandles({4, 96, 4, 4, 96, 96, 96, 40}));
    drawFigure(handle, grid.figure(4), "A sweep", sweep);
    drawFigure(handle, grid.figure(5), "A leaf", leaf);
    drawFigure(handle, grid.figure(6), "Pens 1 to 8", pens);
    drawFigure(handle, grid.figure(7), "Dashes 1 to 8", dashes);
    drawFigure(handle, grid.figure(8), "Petals", petals);
    drawFigure(handle, grid.figure(9), "A circle of four", circle);
    drawFigure(handle, grid.figure(10), "A nib of 6 x 2", script);
    drawFigure(handle, grid.figure(11), "A rope, pen 5", rope);
}

} // namespace gallery
