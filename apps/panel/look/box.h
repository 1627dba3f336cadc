// Rectangles by their edges. Both ends are inclusive, as everywhere in the library.
#pragma once

#include <quarlo/quarlo.h>

#include <cstdint>

namespace panel {

/// The rectangle of a size at a place.
inline GRect box(int left, int top, int width, int height) {
    return {static_cast<int16_t>(left), static_cast<int16_t>(top),
            static_cast<int16_t>(left + width - 1), static_cast<int16_t>(top + height - 1)};
}

inline int16_t widthOf(const GRect& rect) {
    return static_cast<int16_t>(rect.right - rect.left + 1);
}

inline int16_t heightOf(const GRect& rect) {
    return static_cast<int16_t>(rect.bottom - rect.top + 1);
}

/// Less a border, left and right, and above and below.
inline GRect inside(GRect rect, int sides, int ends) {
    GRResizeRect(&rect, static_cast<int16_t>(-sides), static_cast<int16_t>(-ends));
    return rect;
}

/// Less a border of the same width all around.
inline GRect inside(GRect rect, int border) {
    return inside(rect, border, border);
}

inline bool meet(const GRect& a, const GRect& b) {
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

inline bool contains(const GRect& rect, GPoint point) {
    return GRPointInRect(&point, &rect) != 0;
}

/// Cuts a strip off and returns it.
inline GRect takeTop(GRect& rect, int height) {
    const GRect taken = box(rect.left, rect.top, widthOf(rect), height);
    rect.top = static_cast<int16_t>(rect.top + height);
    return taken;
}

inline GRect takeBottom(GRect& rect, int height) {
    rect.bottom = static_cast<int16_t>(rect.bottom - height);
    return box(rect.left, rect.bottom + 1, widthOf(rect), height);
}

inline GRect takeLeft(GRect& rect, int width) {
    const GRect taken = box(rect.left, rect.top, width, heightOf(rect));
    rect.left = static_cast<int16_t>(rect.left + width);
    return taken;
}

inline GRect takeRight(GRect& rect, int width) {
    rect.right = static_cast<int16_t>(rect.right - width);
    return box(rect.right + 1, rect.top, width, heightOf(rect));
}

} // namespace panel
