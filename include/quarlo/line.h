/**
 * @file line.h
 * Lines: two end points whose order always stays. Records are the caller's; none may be null.
 * Results wrap around at 16 bits.
 */
#ifndef QUARLO_LINE_H
#define QUARLO_LINE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Sets a line; nothing is sorted. */
QUARLO_API void GLSetLine(GLine* line, int16_t x1, int16_t y1, int16_t x2, int16_t y2);

/** Copies the four fields out. */
QUARLO_API void GLGetLine(const GLine* line, int16_t* x1, int16_t* y1, int16_t* x2, int16_t* y2);

/** Copies a line; the source comes first. */
QUARLO_API void GLDuplicateLine(const GLine* source, GLine* destination);

/** Moves a line. */
QUARLO_API void GLOffsetLine(GLine* line, int16_t dx, int16_t dy);

/** Maps both end points from one frame to another, as GRMapRect() maps the corners. */
QUARLO_API void GLMapLine(GLine* line, const GRect* source, const GRect* destination);

/** GLMapLine() from the physical rectangle to the handle's virtual rectangle. */
QUARLO_API void GLPhysicalToVirtualLine(const GDrawHandle* handle, GLine* line);

/** GLMapLine() from the handle's virtual rectangle to the physical rectangle. */
QUARLO_API void GLVirtualToPhysicalLine(const GDrawHandle* handle, GLine* line);

QUARLO_END

#endif
