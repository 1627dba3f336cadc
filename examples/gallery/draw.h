// Drawing calls in the words that the sheets use: numbers of any width, lists of points.
#pragma once

#include <quarlo/handle.h>
#include <quarlo/types.h>

#include <vector>

namespace gallery {

using Points = std::vector<GPoint>;

constexpr GPoint point(int x, int y) {
    return {static_cast<int16_t>(x), static_cast<int16_t>(y)};
}

constexpr GRect edges(int left, int top, int right, int bottom) {
    return {static_cast<int16_t>(left), static_cast<int16_t>(top), static_cast<int16_t>(right),
            static_cast<int16_t>(bottom)};
}

constexpr GRect box(int left, int top, int width, int height) {
    return edges(left, top, left + width - 1, top + height - 1);
}

constexpr int widthOf(const GRect& rect) {
    return rect.right - rect.left + 1;
}

constexpr int heightOf(const GRect& rect) {
    return rect.bottom - rect.top + 1;
}

constexpr GPoint centreOf(const GRect& rect) {
    return point((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
}

/// The rectangle without a margin on each side.
constexpr GRect inset(const GRect& rect, int margin) {
    return edges(rect.left + margin, rect.top + margin, rect.right - margin, rect.bottom - margin);
}

/// The largest square with an odd side, and so with a middle pixel, at the left of a rectangle.
GRect squareIn(const GRect& rect);

void setPen(GDrawHandle* handle, uint32_t color, int size = 1, int dash = 0,
            int join = G_JOIN_NONE);

/// No outlines.
void noPen(GDrawHandle* handle);

void drawLine(GDrawHandle* handle, int x1, int y1, int x2, int y2);

/// Lines from each point to the next, drawn on from the pen position.
void drawPolyline(GDrawHandle* handle, const Points& points);

/// Fills and frames a polygon in the handle's style.
void drawPolygon(GDrawHandle* handle, Points points);

/// Fills a rectangle with one colour, whatever the handle's style and pen, which stay.
void fillBox(GDrawHandle* handle, const GRect& rect, uint32_t color);

/// The corners of a regular polygon, the first at the top; with a step of more than one, in the
/// order of a star.
Points starPoints(GPoint centre, int radius, int corners, int step = 1);

/// A point on a circle; angles in tenths of a degree, 0 on the right, growing towards the top.
GPoint onCircle(GPoint centre, int radius, int angle);

} // namespace gallery
