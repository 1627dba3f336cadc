#include "draw.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <cmath>

namespace gallery {

GRect squareIn(const GRect& rect) {
    const int side = (std::min(widthOf(rect), heightOf(rect)) - 1) / 2 * 2 + 1;
    return box(rect.left, rect.top, side, side);
}

void setPen(GDrawHandle* handle, uint32_t color, int size, int dash, int join) {
    GDSetPenColor(handle, color);
    GDSetPenSize(handle, static_cast<int16_t>(size), static_cast<int16_t>(size));
    GDSetPenDash(handle, dash);
    GDSetPenJoin(handle, join);
}

void noPen(GDrawHandle* handle) {
    GDSetPenColor(handle, G_NO_COLOR);
}

void drawLine(GDrawHandle* handle, int x1, int y1, int x2, int y2) {
    const GPoint from = point(x1, y1);
    const GPoint to = point(x2, y2);
    GLine line = {from.x, from.y, to.x, to.y};
    GDDrawLine(handle, &line);
}

void drawPolyline(GDrawHandle* handle, const Points& points) {
    GDMoveTo(handle, points.front().x, points.front().y);
    for (size_t i = 1; i < points.size(); ++i) {
        GDLineTo(handle, points[i].x, points[i].y);
    }
}

void drawPolygon(GDrawHandle* handle, Points points) {
    GPoly poly = {static_cast<int16_t>(points.size()), points.data(), {}};
    GDDrawPoly(handle, &poly);
}

void fillBox(GDrawHandle* handle, const GRect& rect, uint32_t color) {
    const GDrawHandle before = *handle;
    GDSetPenColor(handle, G_NO_COLOR);
    GDSetFillAttribute(handle, G_FILL_FORE, color, color);
    GDDrawRect(handle, &rect);
    GDSetFillAttribute(handle, before.fillPattern, before.foreColor, before.backColor);
    GDSetPenColor(handle, before.penColor);
}

GPoint onCircle(GPoint centre, int radius, int angle) {
    constexpr double kTenthOfDegree = 0.00174532925199432958;
    const double radians = angle * kTenthOfDegree;
    return point(centre.x + static_cast<int>(std::lround(radius * std::cos(radians))),
                 centre.y - static_cast<int>(std::lround(radius * std::sin(radians))));
}

Points starPoints(GPoint centre, int radius, int corners, int step) {
    Points points;
    for (int i = 0; i < corners; ++i) {
        points.push_back(onCircle(centre, radius, 900 + i * step * 3600 / corners));
    }
    return points;
}

} // namespace gallery
