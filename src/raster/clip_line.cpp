#include "raster/clip_line.h"

#include <cstdint>
#include <utility>

namespace quarlo {
namespace {

struct End {
    int32_t x;
    int32_t y;
};

enum Outcode : unsigned { kInside = 0, kLeft = 1, kAbove = 2, kRight = 4, kBelow = 8 };

unsigned outcode(const End& end, const GRect& rect) {
    return (end.x < rect.left ? kLeft : kInside) | (end.y < rect.top ? kAbove : kInside) |
           (end.x > rect.right ? kRight : kInside) | (end.y > rect.bottom ? kBelow : kInside);
}

/// Where the line through two ends crosses `at` on the axis of `from` and `to`.
int32_t crossing(int32_t at, int32_t from, int32_t to, int32_t otherFrom, int32_t otherTo) {
    const int64_t product = int64_t{otherTo - otherFrom} * (at - from);
    return otherFrom + static_cast<int32_t>(product / (to - from));
}

/// Moves an outer end onto the first edge that its code names.
End moveToEdge(const End& outer, const End& other, unsigned code, const GRect& rect) {
    const auto toColumn = [&](int32_t x) {
        return End{x, crossing(x, outer.x, other.x, outer.y, other.y)};
    };
    const auto toRow = [&](int32_t y) {
        return End{crossing(y, outer.y, other.y, outer.x, other.x), y};
    };
    if ((code & kLeft) != 0) {
        return toColumn(rect.left);
    }
    if ((code & kAbove) != 0) {
        return toRow(rect.top);
    }
    if ((code & kRight) != 0) {
        return toColumn(rect.right);
    }
    return toRow(rect.bottom);
}

} // namespace

bool GDClipLine(GLine& line, const GRect& rect) {
    End first{line.x1, line.y1};
    End second{line.x2, line.y2};
    unsigned firstCode = outcode(first, rect);
    unsigned secondCode = outcode(second, rect);
    bool swapped = false;
    while ((firstCode | secondCode) != 0) {
        if ((firstCode & secondCode) != 0) {
            return false;
        }
        if (firstCode == 0) {
            std::swap(first, second);
            std::swap(firstCode, secondCode);
            swapped = !swapped;
        }
        first = moveToEdge(first, second, firstCode, rect);
        firstCode = outcode(first, rect);
    }
    if (swapped) {
        std::swap(first, second);
    }
    line = {static_cast<int16_t>(first.x), static_cast<int16_t>(first.y),
            static_cast<int16_t>(second.x), static_cast<int16_t>(second.y)};
    return true;
}

} // namespace quarlo
