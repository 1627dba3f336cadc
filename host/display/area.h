// Rectangles of pixels: GRect with both edges inclusive, and what displays need to do with them.
#pragma once

#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>

namespace gpi {

/// The whole of a picture.
inline GRect wholeArea(int width, int height) {
    return {0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1)};
}

inline bool isEmpty(const GRect& area) {
    return area.left > area.right || area.top > area.bottom;
}

inline int widthOf(const GRect& area) {
    return area.right - area.left + 1;
}

inline int heightOf(const GRect& area) {
    return area.bottom - area.top + 1;
}

inline bool contains(const GRect& area, int x, int y) {
    return x >= area.left && x <= area.right && y >= area.top && y <= area.bottom;
}

/// What two areas share; empty when that is nothing.
inline GRect intersection(const GRect& a, const GRect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

/// The smallest area around two; an empty one adds nothing.
inline GRect unite(const GRect& a, const GRect& b) {
    if (isEmpty(a)) {
        return b;
    }
    if (isEmpty(b)) {
        return a;
    }
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

/// The part of `limit` in a rectangle given by its corner and size, computed without wrap-around.
inline GRect clipped(const GRect& limit, int64_t x, int64_t y, int64_t width, int64_t height) {
    const auto edge = [](int64_t value, int64_t least, int64_t most) {
        return static_cast<int16_t>(std::clamp(value, least, most));
    };
    // One beyond the limit is enough to show that nothing is left.
    return {edge(x, limit.left, limit.right + 1), edge(y, limit.top, limit.bottom + 1),
            edge(x + width - 1, limit.left - 1, limit.right),
            edge(y + height - 1, limit.top - 1, limit.bottom)};
}

inline bool sameArea(const GRect& a, const GRect& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

} // namespace gpi
