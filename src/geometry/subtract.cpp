// What is left of a rectangle: without another one, and where it stood before it moved.
#include "geometry/geometry.h"

#include <quarlo/rect.h>

using namespace quarlo;

int16_t GRRestRect(const GRect* minuend, const GRect* subtrahend, GRect out[4]) {
    const GRect a = *minuend;
    const GRect b = *subtrahend;
    if (areDisjoint(a, b)) {
        out[0] = a;
        return 1;
    }
    const int16_t sharedLeft = std::max(a.left, b.left);
    const int16_t sharedRight = std::min(a.right, b.right);
    const GRect pieces[] = {
        {a.left, a.top, low16(b.left - 1), a.bottom},
        {low16(b.right + 1), a.top, a.right, a.bottom},
        {sharedLeft, a.top, sharedRight, low16(b.top - 1)},
        {sharedLeft, low16(b.bottom + 1), sharedRight, a.bottom},
    };
    int16_t count = 0;
    for (const GRect& piece : pieces) {
        if (isValid(piece)) {
            out[count++] = piece;
        }
    }
    return count;
}

int16_t GRShiftRect(GRect* rect, int16_t dx, int16_t dy, GRect* out1, GRect* out2) {
    const GRect old = *rect;
    offset(*rect, dx, dy);
    const GRect moved = *rect;
    if (areDisjoint(moved, old)) {
        *out1 = old;
        return 1;
    }

    // Strips reach to the moved rectangle's edge line and include it.
    GRect* next = out1;
    int16_t keptLeft = old.left;
    int16_t keptRight = old.right;
    if (old.left < moved.left) {
        *next = sorted(old.left, old.top, moved.left, old.bottom);
        next = out2;
        keptLeft = moved.left;
    } else if (old.left > moved.left) {
        *next = sorted(moved.right, old.top, old.right, old.bottom);
        next = out2;
        keptRight = moved.right;
    }
    if (old.top < moved.top) {
        *next = sorted(keptLeft, old.top, keptRight, moved.top);
    } else if (old.top > moved.top) {
        *next = sorted(keptLeft, moved.bottom, keptRight, old.bottom);
    }
    return static_cast<int16_t>((old.left != moved.left) + (old.top != moved.top));
}
