// Rectangles as the model sees them: both corners belong to them.
#pragma once

#include <quarlo/types.h>

#include <algorithm>

namespace quarlo::test {

inline bool isInside(const GRect& rect, int x, int y) {
    return x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
}

inline GRect common(const GRect& a, const GRect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

inline bool isEmpty(const GRect& rect) {
    return rect.left > rect.right || rect.top > rect.bottom;
}

} // namespace quarlo::test
