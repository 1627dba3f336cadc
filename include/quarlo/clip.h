/**
 * @file clip.h
 * How application coordinates become surface coordinates, and the rectangle that drawing is
 * confined to.
 *
 * In local mode the local origin is the application coordinate of surface pixel (0, 0). In virtual
 * mode the handle's virtual rectangle is stretched onto the physical rectangle, the same for all
 * handles of the process, and the local origin counts for nothing. A handle starts in local mode.
 *
 * The clip rectangle belongs to the surface: all handles on one surface share it. It is kept in
 * surface coordinates inside the handle's `view`; the functions here speak application
 * coordinates. None of them tests the handle for null unless it says so.
 */
#ifndef QUARLO_CLIP_H
#define QUARLO_CLIP_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Most rectangles that GDPushClipRect() saves. */
enum { G_CLIP_STACK_DEPTH = 22 };

/** Chooses local mode. */
QUARLO_API void GDSetLocalMode(GDrawHandle* handle);

/** Chooses virtual mode. */
QUARLO_API void GDSetVirtualMode(GDrawHandle* handle);

/** Sets the application frame of virtual mode; copied unchecked and unsorted. */
QUARLO_API void GDSetVirtualRect(GDrawHandle* handle, const GRect* rect);

/** Sets the local origin. */
QUARLO_API void GDSetLocalOrigin(GDrawHandle* handle, const GPoint* origin);

/** Copies the local origin out. */
QUARLO_API void GDGetLocalOrigin(const GDrawHandle* handle, GPoint* origin);

/** Moves the local origin; wraps around at 16 bits. */
QUARLO_API void GDOffsetLocalOrigin(GDrawHandle* handle, const GPoint* delta);

/**
 * Replaces the clip rectangle by the part of a rectangle that lies in the handle's view.
 *
 * @param rect application coordinates; null for the whole view
 * @return 1; 0 with the clip left as it was when the rectangle lies wholly outside the view
 */
QUARLO_API int32_t GDSetClipRect(GDrawHandle* handle, const GRect* rect);

/** The clip rectangle in the handle's application coordinates. */
QUARLO_API void GDGetClipRect(const GDrawHandle* handle, GRect* rect);

/**
 * Narrows the clip rectangle to its intersection with a rectangle.
 *
 * @param rect application coordinates
 * @param previous receives the clip rectangle as it was, to be restored by GDSetClipRect(); not
 *     written when 0 is returned; may be null
 * @return 1; 0 with nothing changed when `rect` is null or nothing would be left
 */
QUARLO_API int32_t GDInceptClipRect(GDrawHandle* handle, const GRect* rect, GRect* previous);

/**
 * Saves the clip rectangle, in application coordinates, and sets another one. The save stack is
 * one for all handles and holds #G_CLIP_STACK_DEPTH rectangles.
 *
 * @param rect as for GDSetClipRect(); the old clip is saved even when it is refused, so every push
 *     needs its pop
 * @return the result of GDSetClipRect(); with a full stack its depth, and nothing changes
 */
QUARLO_API int32_t GDPushClipRect(GDrawHandle* handle, const GRect* rect);

/**
 * Restores the clip rectangle saved last, by the mapping that the handle has now.
 *
 * @return the result of GDSetClipRect(); 0 when nothing is saved
 */
QUARLO_API int32_t GDPopClipRect(GDrawHandle* handle);

/** Empties the save stack. */
QUARLO_API void GDInitBackupClipBuf(void);

/**
 * Forwards to service 59: tells the platform which part of the display the program draws on, so
 * that it confines the device surface to it.
 *
 * @param region surface coordinates
 * @return the service's result: 1 done, 0 refused; 0 when an argument is null or the service is
 *     missing
 */
QUARLO_API int32_t GDSetDrawableRegion(GDrawHandle* handle, const GRect* region);

/**
 * Forwards to service 60: gives a region up again.
 *
 * @param region as given to GDSetDrawableRegion()
 * @return as for GDSetDrawableRegion()
 */
QUARLO_API int32_t GDRemoveDrawableRegion(GDrawHandle* handle, const GRect* region);

/**
 * Forwards to service 55, which the platform must have: how much larger than its pixels the
 * platform shows the display. No coordinate of the library changes.
 *
 * @param x horizontal factor, 1 and up
 * @param y vertical factor, 1 and up
 * @return the service's result: 1 done, 0 refused
 */
QUARLO_API GWord GDSetZoomScale(GDrawHandle* handle, int32_t x, int32_t y);

/**
 * Forwards to service 56, which the platform must have: which display pixel the platform shows at
 * its upper left corner. No coordinate of the library changes.
 *
 * @param x display column
 * @param y display row
 * @return the service's result: 1 done, 0 refused
 */
QUARLO_API GWord GDSetScrollPos(GDrawHandle* handle, int32_t x, int32_t y);

QUARLO_END

#endif
