// Clipping of areas.
#pragma once

#include "geometry/geometry.h"

namespace quarlo {

/// A rectangle that nothing lies in.
inline constexpr GRect kNowhere = {0, 0, -1, -1};

/// Cuts `rect` to `limit`; false when nothing is left, an inverted rectangle included. `rect` then
/// holds no meaning.
constexpr bool clipTo(GRect& rect, const GRect& limit) {
    if (contains(limit, rect)) {
        return isValid(rect); // as most are, and quicker to see than to cut
    }
    return intersect(rect, limit) && isValid(rect);
}

} // namespace quarlo
