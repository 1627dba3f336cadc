// Rectangle, point and line arithmetic for the inside of the library, inline so that drawing pays
// no call for it. Arithmetic has 32 bits; what is stored are its low 16 bits.
#pragma once

#include "geometry/map.h"

#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>

namespace quarlo {

/// A rectangle is valid when both pairs stand in order; one of a single pixel is.
constexpr bool isValid(const GRect& rect) {
    return rect.left <= rect.right && rect.top <= rect.bottom;
}

constexpr bool contains(const GRect& rect, int32_t x, int32_t y) {
    return rect.left <= x && x <= rect.right && rect.top <= y && y <= rect.bottom;
}

constexpr bool contains(const GRect& rect, const GPoint& point) {
    return contains(rect, point.x, point.y);
}

/// Whether `inner` lies wholly within `outer`.
constexpr bool contains(const GRect& outer, const GRect& inner) {
    return outer.left <= inner.left && inner.right <= outer.right && outer.top <= inner.top &&
           inner.bottom <= outer.bottom;
}

constexpr bool areDisjoint(const GRect& a, const GRect& b) {
    return a.right < b.left || a.left > b.right || a.bottom < b.top || a.top > b.bottom;
}

/// Cuts `rect` to `limit`. Disjoint rectangles give false and leave `rect` as it was. Two inverted
/// rectangles need not be disjoint and may leave an inverted one.
constexpr bool intersect(GRect& rect, const GRect& limit) {
    if (areDisjoint(rect, limit)) {
        return false;
    }
    rect = {std::max(rect.left, limit.left), std::max(rect.top, limit.top),
            std::min(rect.right, limit.right), std::min(rect.bottom, limit.bottom)};
    return true;
}

/// The bounding box of two rectangles.
constexpr GRect unite(const GRect& a, const GRect& b) {
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right),
            std::max(a.bottom, b.bottom)};
}

/// The rectangle between two opposite corners, given in any order.
constexpr GRect sorted(int16_t x1, int16_t y1, int16_t x2, int16_t y2) {
    return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

constexpr void offset(GPoint& point, int32_t dx, int32_t dy) {
    point = {low16(point.x + dx), low16(point.y + dy)};
}

constexpr void offset(GRect& rect, int32_t dx, int32_t dy) {
    rect = {low16(rect.left + dx), low16(rect.top + dy), low16(rect.right + dx),
            low16(rect.bottom + dy)};
}

constexpr void offset(GLine& line, int32_t dx, int32_t dy) {
    line = {low16(line.x1 + dx), low16(line.y1 + dy), low16(line.x2 + dx), low16(line.y2 + dy)};
}

/// Columns of a rectangle; zero or less when it is inverted.
constexpr int32_t widthOf(const GRect& rect) {
    return rect.right - rect.left + 1;
}

/// Rows of a rectangle; zero or less when it is inverted.
constexpr int32_t heightOf(const GRect& rect) {
    return rect.bottom - rect.top + 1;
}

} // namespace quarlo
