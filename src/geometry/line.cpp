#include "geometry/geometry.h"

#include <quarlo/line.h>

using namespace quarlo;

void GLSetLine(GLine* line, int16_t x1, int16_t y1, int16_t x2, int16_t y2) {
    *line = {x1, y1, x2, y2};
}

void GLGetLine(const GLine* line, int16_t* x1, int16_t* y1, int16_t* x2, int16_t* y2) {
    *x1 = line->x1;
    *y1 = line->y1;
    *x2 = line->x2;
    *y2 = line->y2;
}

void GLDuplicateLine(const GLine* source, GLine* destination) {
    *destination = *source;
}

void GLOffsetLine(GLine* line, int16_t dx, int16_t dy) {
    offset(*line, dx, dy);
}

void GLMapLine(GLine* line, const GRect* source, const GRect* destination) {
    FrameMap(*source, *destination)(*line);
}
