#include "geometry/geometry.h"

#include <quarlo/point.h>

#include <cstring>

using namespace quarlo;

void GPTSetPoint(GPoint* point, int16_t x, int16_t y) {
    *point = {x, y};
}

void GPTGetPoint(const GPoint* point, int16_t* x, int16_t* y) {
    *x = point->x;
    *y = point->y;
}

void GPTDuplicatePoint(const GPoint* source, void* destination) {
    std::memcpy(destination, source, sizeof *source);
}

void GPTOffsetPoint(GPoint* point, int16_t dx, int16_t dy) {
    offset(*point, dx, dy);
}

void GPTMapPoint(GPoint* point, const GRect* source, const GRect* destination) {
    FrameMap(*source, *destination)(*point);
}
