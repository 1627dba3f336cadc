/**
 * @file poly.h
 * Polygons: a count, the caller's points and the caller's bounding box.
 *
 * Records and points are the caller's; no record may be null. A count of zero or less is a polygon
 * without points. Results wrap around at 16 bits.
 */
#ifndef QUARLO_POLY_H
#define QUARLO_POLY_H

#include <quarlo/types.h>

QUARLO_BEGIN

/**
 * Sets a polygon.
 *
 * @param count number of points
 * @param points kept by reference; must live as long as the polygon is used
 * @param bounds copied, never checked against the points
 */
QUARLO_API void GPSetPoly(GPoly* poly, int16_t count, GPoint* points, const GRect* bounds);

/** Copies the three fields out; the points stay where they are. */
QUARLO_API void GPGetPoly(const GPoly* poly, int16_t* count, GPoint** points, GRect* bounds);

/** Moves every point. The bounding box stays as it was. */
QUARLO_API void GPOffsetPoly(GPoly* poly, int16_t dx, int16_t dy);

/**
 * Maps every point from one frame to another as GPTMapPoint() does, then the bounding box as
 * GRMapRect() does.
 */
QUARLO_API void GPMapPoly(GPoly* poly, const GRect* source, const GRect* destination);

/** GPMapPoly() from the physical rectangle to the handle's virtual rectangle. */
QUARLO_API void GPPhysicalToVirtualPoly(const GDrawHandle* handle, GPoly* poly);

/** GPMapPoly() from the handle's virtual rectangle to the physical rectangle. */
QUARLO_API void GPVirtualToPhysicalPoly(const GDrawHandle* handle, GPoly* poly);

QUARLO_END

#endif
