#include "geometry/geometry.h"

#include <quarlo/rect.h>

using namespace quarlo;

void GRSetRect(GRect* rect, int16_t x1, int16_t y1, int16_t x2, int16_t y2) {
    *rect = sorted(x1, y1, x2, y2);
}

void GRGetRect(const GRect* rect, int16_t* left, int16_t* top, int16_t* right, int16_t* bottom) {
    *left = rect->left;
    *top = rect->top;
    *right = rect->right;
    *bottom = rect->bottom;
}

void GRDuplicateRect(const GRect* source, GRect* destination) {
    *destination = *source;
}

int16_t GREqualRect(const GRect* a, const GRect* b) {
    return a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}

int16_t GRCheckRect(const GRect* rect) {
    return isValid(*rect);
}

int16_t GRInceptRect(const GRect* a, const GRect* b, GRect* out) {
    GRect common = *a;
    if (!intersect(common, *b)) {
        return 0;
    }
    *out = common;
    return 1;
}

void GRUnionRect(const GRect* a, const GRect* b, GRect* out) {
    *out = unite(*a, *b);
}

int16_t GRPointInRect(const GPoint* point, const GRect* rect) {
    return contains(*rect, *point);
}

void GROffsetRect(GRect* rect, int16_t dx, int16_t dy) {
    offset(*rect, dx, dy);
}

void GRResizeRect(GRect* rect, int16_t dx, int16_t dy) {
    *rect = sorted(low16(rect->left - dx), low16(rect->top - dy), low16(rect->right + dx),
                   low16(rect->bottom + dy));
}

void GRMapRect(GRect* rect, const GRect* source, const GRect* destination) {
    FrameMap(*source, *destination)(*rect);
}
