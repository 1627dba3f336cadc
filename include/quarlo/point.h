/**
 * @file point.h
 * Points. Records are the caller's; none may be null. Results wrap around at 16 bits.
 */
#ifndef QUARLO_POINT_H
#define QUARLO_POINT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Sets a point. */
QUARLO_API void GPTSetPoint(GPoint* point, int16_t x, int16_t y);

/** Copies both fields out. */
QUARLO_API void GPTGetPoint(const GPoint* point, int16_t* x, int16_t* y);

/**
 * Copies a point; the source comes first.
 *
 * @param destination a GPoint, written byte by byte: it need not be aligned
 */
QUARLO_API void GPTDuplicatePoint(const GPoint* source, void* destination);

/** Moves a point. */
QUARLO_API void GPTOffsetPoint(GPoint* point, int16_t dx, int16_t dy);

/** Maps a point from one frame to another, as GRMapRect() maps left and top. */
QUARLO_API void GPTMapPoint(GPoint* point, const GRect* source, const GRect* destination);

/** GPTMapPoint() from the physical rectangle to the handle's virtual rectangle. */
QUARLO_API void GPTPhysicalToVirtualPoint(const GDrawHandle* handle, GPoint* point);

/** GPTMapPoint() from the handle's virtual rectangle to the physical rectangle. */
QUARLO_API void GPTVirtualToPhysicalPoint(const GDrawHandle* handle, GPoint* point);

QUARLO_END

#endif
