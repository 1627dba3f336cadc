/**
 * @file dirty.h
 * A list of up to five screen areas that want redrawing. Adding never fails: a sixth area makes
 * the two merge whose union wastes the least.
 *
 * The list is the caller's, empty when zero-filled. No argument is tested for null. Rectangles are
 * taken as they are, neither sorted nor clipped.
 */
#ifndef QUARLO_DIRTY_H
#define QUARLO_DIRTY_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Most areas in a list between calls. */
enum { G_DIRTY_RECT_COUNT = 5 };

/** A list of areas. The last entry of each array is used during an add only. */
typedef struct GDirtyRectList {
    GRect rects[G_DIRTY_RECT_COUNT + 1];       /**< the areas */
    int32_t areas[G_DIRTY_RECT_COUNT + 1];     /**< pixels in each rectangle */
    int32_t count;                             /**< entries in use, 0 to 5 */
    int32_t drawForce[G_DIRTY_RECT_COUNT + 1]; /**< non-zero: to be redrawn whatever changed */
} GDirtyRectList;

/**
 * Adds an area. In a full list the pair with the least waste merges, the first of equals; a merged
 * area has a force flag of 1 if either part had one.
 *
 * @param drawForce non-zero when the area must be redrawn whatever changed
 */
QUARLO_API void GDRAddDirtyRect(GDirtyRectList* list, const GRect* rect, uint32_t drawForce);

/**
 * Merges, in one pass, every pair of areas whose union is no larger than both together.
 */
QUARLO_API void GDRRefreshDirtyRect(GDirtyRectList* list);

/** Empties the list; the old entries stay readable. */
QUARLO_API void GDRClearDirtyRect(GDirtyRectList* list);

/** Number of areas, 0 to 5. */
QUARLO_API int32_t GDRGetDirtyRectNum(const GDirtyRectList* list);

/** The list's own array of areas. */
QUARLO_API GRect* GDRGetDirtyRect(GDirtyRectList* list);

/** The list's own array of force flags. */
QUARLO_API int32_t* GDRGetDrawForce(GDirtyRectList* list);

/** Copies a whole list; the source comes first. */
QUARLO_API void GDRDuplicateDirtyRect(const GDirtyRectList* source, GDirtyRectList* destination);

QUARLO_END

#endif
