#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <cmath>

namespace gallery {
namespace {

constexpr double kTurn = 6.28318530717958648;

/// From an inner square to an outer one, so that every slope starts and ends on whole pixels.
void everyAngle(GDrawHandle* handle, const GRect& figure) {
    constexpr int kRatio = 4;
    constexpr int kStep = 16;
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int reach = widthOf(area) / 2 / kStep * kStep;
    const auto ray = [&](int dx, int dy) {
        drawLine(handle, centre.x + dx / kRatio, centre.y + dy / kRatio, centre.x + dx,
                 centre.y + dy);
    };
    for (int i = -reach; i < reach; i += kStep) {
        ray(i, -reach);
        ray(reach, i);
        ray(-i, reach);
        ray(-reach, -i);
    }
}

void ruled(GDrawHandle* handle, const GRect& figure) {
    const GRect area = squareIn(figure);
    const int side = widthOf(area) - 1;
    for (int i = 0, at = 0; at <= side; at += ++i) {
        drawLine(handle, area.left, area.top + at, area.right, area.top + at);
        drawLine(handle, area.left + at, area.top, area.left + at, area.bottom);
    }
}

/// Straight lines whose outline is a curve.
void envelope(GDrawHandle* handle, const GRect& figure) {
    constexpr int kLines = 20;
    const GRect area = squareIn(figure);
    const int side = widthOf(area) - 1;
    for (int i = 0; i <= kLines; ++i) {
        const int at = side * i / kLines;
        setPen(handle, kBlue);
        drawLine(handle, area.left, area.top + at, area.left + at, area.bottom);
        setPen(handle, kRed);
        drawLine(handle, area.right, area.bottom - at, area.right - at, area.top);
    }
}

void polyline(GDrawHandle* handle, const GRect& figure) {
    constexpr int kPoints = 180;
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int radius = widthOf(area) / 2;
    Points points;
    for (int i = 0; i <= kPoints; ++i) {
        const double t = kTurn * i / kPoints;
        points.push_back(point(centre.x + static_cast<int>(std::lround(radius * std::sin(3 * t))),
                               centre.y + static_cast<int>(std::lround(radius * std::sin(4 * t)))));
    }
    drawPolyline(handle, points);
}

/// Single pixels, as the seeds of a sunflower stand.
void pixels(GDrawHandle* handle, const GRect& figure) {
    constexpr double kGoldenAngle = 2.39996322972865332;
    constexpr int kSeeds = 600;
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    const int radius = widthOf(area) / 2;
    for (int i = 1; i <= kSeeds; ++i) {
        const double distance = radius * std::sqrt(static_cast<double>(i) / kSeeds);
        const double angle = kGoldenAngle * i;
        const GPoint seed =
            point(centre.x + static_cast<int>(std::lround(distance * std::cos(angle))),
                  centre.y + static_cast<int>(std::lround(distance * std::sin(angle))));
        GDSetPixel(handle, seed.x, seed.y);
    }
}

void colours(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kInk, kRed, kGold, kGreen, kBlue, kGrey};
    const GRect area = squareIn(figure);
    const GPoint centre = centreOf(area);
    int reach = widthOf(area) / 2;
    for (int i = 0; reach > 0; ++i, reach -= 4) {
        setPen(handle, kColors[static_cast<size_t>(i) % std::size(kColors)]);
        drawPolyline(handle, {point(centre.x, centre.y - reach), point(centre.x + reach, centre.y),
                              point(centre.x, centre.y + reach), point(centre.x - reach, centre.y),
                              point(centre.x, centre.y - reach)});
    }
}

} // namespace

void drawLineFigures(GDrawHandle* handle) {
    const Grid grid(3, 2);
    drawFigure(handle, grid.figure(0), "Every angle", everyAngle);
    drawFigure(handle, grid.figure(1), "Level and upright", ruled);
    drawFigure(handle, grid.figure(2), "An envelope of lines", envelope);
    drawFigure(handle, grid.figure(3), "A chain of 180 lines", polyline);
    drawFigure(handle, grid.figure(4), "600 single pixels", pixels);
    drawFigure(handle, grid.figure(5), "Colours", colours);
}

} // namespace gallery
