/**
 * @file rect.h
 * Rectangle arithmetic: setting, comparing, intersecting, uniting, subtracting, moving, growing
 * and mapping between coordinate frames.
 *
 * Records are the caller's; none may be null. Both edges of a rectangle are inclusive. A rectangle
 * is valid when left <= right and top <= bottom; only GRSetRect() and GRResizeRect() sort, every
 * other function stores what it computes. Arithmetic has 32 bits, results are stored as their low
 * 16 bits: they wrap around and never saturate.
 */
#ifndef QUARLO_RECT_H
#define QUARLO_RECT_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Sets a rectangle from any two opposite corners; each pair is sorted. */
QUARLO_API void GRSetRect(GRect* rect, int16_t x1, int16_t y1, int16_t x2, int16_t y2);

/** Copies the four fields out. */
QUARLO_API void GRGetRect(const GRect* rect, int16_t* left, int16_t* top, int16_t* right,
                          int16_t* bottom);

/** Copies a rectangle; the source comes first. */
QUARLO_API void GRDuplicateRect(const GRect* source, GRect* destination);

/** Whether all four fields are equal. @return 1 or 0 */
QUARLO_API int16_t GREqualRect(const GRect* a, const GRect* b);

/** Whether a rectangle is valid; one of a single pixel is. @return 1 or 0 */
QUARLO_API int16_t GRCheckRect(const GRect* rect);

/**
 * Intersects two rectangles. Rectangles that share only an edge line meet in that line.
 *
 * @param out the intersection, left as it was when there is none; may be `a` or `b`
 * @return 1; 0 when the rectangles are disjoint
 */
QUARLO_API int16_t GRInceptRect(const GRect* a, const GRect* b, GRect* out);

/** The smallest rectangle around two. @param out the result; may be `a` or `b` */
QUARLO_API void GRUnionRect(const GRect* a, const GRect* b, GRect* out);

/** Whether a point (first) lies in a rectangle, its edges included. @return 1 or 0 */
QUARLO_API int16_t GRPointInRect(const GPoint* point, const GRect* rect);

/** Moves a rectangle. */
QUARLO_API void GROffsetRect(GRect* rect, int16_t dx, int16_t dy);

/**
 * Grows a rectangle by `dx` on its left and right and by `dy` above and below, then sorts each
 * pair. Negative values shrink; shrinking past nothing turns the rectangle over.
 */
QUARLO_API void GRResizeRect(GRect* rect, int16_t dx, int16_t dy);

/**
 * Subtracts `b` from `a`. The pieces never overlap and come in the order left and right of `b`
 * (the full height of `a`), above and below it (the columns that both share).
 *
 * @param out room for four pieces; only those returned are written
 * @return number of pieces, 0 (`b` covers `a`) to 4; 1, a copy of `a`, when they are disjoint
 */
QUARLO_API int16_t GRRestRect(const GRect* a, const GRect* b, GRect out[4]);

/**
 * Moves a rectangle and finds the strips of its old area that a scroll uncovers. Each strip
 * includes the edge line of the moved rectangle: moving right by 5 yields a strip of 6 columns.
 *
 * @param rect moved by (dx, dy)
 * @param out1 the vertical strip; the horizontal one when nothing moved sideways; the whole old
 *     rectangle when it and the moved one are disjoint
 * @param out2 the horizontal strip of a diagonal move
 * @return number of strips written, 0 (no movement) to 2
 */
QUARLO_API int16_t GRShiftRect(GRect* rect, int16_t dx, int16_t dy, GRect* out1, GRect* out2);

/**
 * Maps a rectangle from one frame to another so that the corners of the frames meet: for a
 * horizontal value v, ((v - source.left) * dw + (sw >> 1)) / sw + destination.left, with
 * extents sw and dw of right - left, at least 1, and a division that truncates toward zero.
 * Vertical values likewise. A mirrored frame counts as one of extent 1; the result is not sorted.
 */
QUARLO_API void GRMapRect(GRect* rect, const GRect* source, const GRect* destination);

/**
 * GRMapRect() from the physical rectangle to the handle's virtual rectangle. The physical
 * rectangle is one for the whole process: the last surface opened or attached sets it.
 */
QUARLO_API void GRPhysicalToVirtualRect(const GDrawHandle* handle, GRect* rect);

/** GRMapRect() from the handle's virtual rectangle to the physical rectangle. */
QUARLO_API void GRVirtualToPhysicalRect(const GDrawHandle* handle, GRect* rect);

/**
 * Converts a rectangle from the handle's application coordinates to surface coordinates: in
 * virtual mode as GRVirtualToPhysicalRect(), in local mode minus the local origin.
 */
QUARLO_API void GRMapToScreenRect(const GDrawHandle* handle, GRect* rect);

QUARLO_END

#endif
