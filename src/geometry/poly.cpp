#include "geometry/geometry.h"

#include <quarlo/poly.h>

using namespace quarlo;

void GPSetPoly(GPoly* poly, int16_t count, GPoint* points, const GRect* bounds) {
    *poly = {count, points, *bounds};
}

void GPGetPoly(const GPoly* poly, int16_t* count, GPoint** points, GRect* bounds) {
    *count = poly->count;
    *points = poly->points;
    *bounds = poly->bounds;
}

void GPOffsetPoly(GPoly* poly, int16_t dx, int16_t dy) {
    for (int32_t i = 0; i < poly->count; ++i) {
        offset(poly->points[i], dx, dy);
    }
}

void GPMapPoly(GPoly* poly, const GRect* source, const GRect* destination) {
    FrameMap(*source, *destination)(*poly);
}
