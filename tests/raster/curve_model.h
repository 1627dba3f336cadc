// Ellipses and what is made of them as sets of pixels, a second way: from the plain steps, and from
// what shapes are rather than how they are walked.
#pragma once

#include <quarlo/types.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <utility>
#include <vector>

namespace quarlo::test {

/// A pixel as (row, column).
using Pixel = std::pair<int32_t, int32_t>;
using Pixels = std::set<Pixel>;

/// The widest column of each row of a quarter, from the top row down.
inline std::vector<int32_t> quarterColumns(int64_t a, int64_t b) {
    std::vector<int32_t> columns;
    int64_t x = 0;
    int64_t y = b;
    int64_t dx = 0;
    int64_t dy = 2 * a * a * b;
    int64_t d = a * a / 4 - a * a * b + b * b;
    if (dy > 0) {
        do {
            if (d > 0) {
                columns.push_back(static_cast<int32_t>(x));
                y = y - 1;
                dy = dy - 2 * a * a;
                d = d - dy;
            }
            dx = dx + 2 * b * b;
            x = x + 1;
            d = d + dx + b * b;
        } while (dx < dy);
    }
    if (y < 0) {
        return columns;
    }
    int64_t d2 = d + ((3 * (a * a - b * b)) / 2 - dy - dx) / 2;
    do {
        columns.push_back(static_cast<int32_t>(x));
        if (d2 < 0) {
            dx = dx + 2 * b * b;
            d2 = d2 + dx;
            x = x + 1;
        }
        dy = dy - 2 * a * a;
        d2 = d2 - dy + a * a;
        y = y - 1;
    } while (y >= 0);
    return columns;
}

/// A curved shape in a box: an oval, or a rounded rectangle.
struct CurveModel {
    int32_t a;
    int32_t b;
    int32_t left; ///< centre columns and rows
    int32_t right;
    int32_t top;
    int32_t bottom;
    bool banded; ///< a rounded rectangle: full rows from centre row to centre row

    static CurveModel oval(const GRect& box) {
        return {box, (box.right - box.left) / 2, (box.bottom - box.top) / 2, false};
    }

    static CurveModel roundRect(const GRect& box, int32_t rx, int32_t ry) {
        return {box, std::max(std::min((box.right - box.left) >> 1, rx), 0),
                std::max(std::min((box.bottom - box.top) >> 1, ry), 0), true};
    }

    CurveModel(const GRect& box, int32_t radiusX, int32_t radiusY, bool band)
        : a(radiusX),
          b(radiusY),
          left(box.left + radiusX),
          right(box.right - radiusX),
          top(box.top + radiusY),
          bottom(box.bottom - radiusY),
          banded(band) {}

    /// The filled rows of the quarters, as (row, first column, last column).
    struct Row {
        int32_t y;
        int32_t first;
        int32_t last;
    };
    std::vector<Row> quarterRows() const {
        std::vector<Row> rows;
        const auto columns = quarterColumns(a, b);
        for (int32_t i = 0; i < static_cast<int32_t>(columns.size()); ++i) {
            const int32_t x = columns[static_cast<size_t>(i)];
            const int32_t y = b - i;
            rows.push_back({top - y, left - x, right + x});
            if (top - y != bottom + y) {
                rows.push_back({bottom + y, left - x, right + x});
            }
        }
        return rows;
    }

    Pixels filled() const {
        Pixels pixels;
        for (const Row& row : quarterRows()) {
            for (int32_t x = row.first; x <= row.last; ++x) {
                pixels.insert({row.y, x});
            }
        }
        for (int32_t y = top; banded && y <= bottom; ++y) {
            for (int32_t x = left - a; x <= right + a; ++x) {
                pixels.insert({y, x});
            }
        }
        return pixels;
    }

    /// The pixels of the fill with nothing of it beyond them, seen from the middle: above in the
    /// upper half, below in the lower one, and at the ends of each row.
    Pixels outline() const {
        const Pixels fill = filled();
        Pixels pixels;
        for (const auto& [y, x] : fill) {
            const bool upper = 2 * y <= top + bottom;
            const bool lower = 2 * y >= top + bottom;
            const auto empty = [&fill](int32_t row, int32_t column) {
                return !fill.contains({row, column});
            };
            if ((upper && empty(y - 1, x)) || (lower && empty(y + 1, x)) || empty(y, x - 1) ||
                empty(y, x + 1)) {
                pixels.insert({y, x});
            }
        }
        return pixels;
    }
};

/// The pixels of a set that lie in an area.
inline Pixels within(const Pixels& pixels, const GRect& area) {
    Pixels inside;
    for (const auto& [y, x] : pixels) {
        if (area.left <= x && x <= area.right && area.top <= y && y <= area.bottom) {
            inside.insert({y, x});
        }
    }
    return inside;
}

} // namespace quarlo::test
