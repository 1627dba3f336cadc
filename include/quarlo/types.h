/**
 * @file types.h
 * The types that every family of the library shares: exact integers, text units, and the small
 * geometry records that drawing calls take.
 *
 * Every header here is C11 and C++17 at once. Records are plain; their fields stand in the order
 * that a binary sees, with natural alignment and pointers as wide as the machine's.
 */
#ifndef QUARLO_TYPES_H
#define QUARLO_TYPES_H

#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

#if !defined(_WIN32)
#define QUARLO_API __attribute__((visibility("default")))
#elif defined(QUARLO_BUILDING)
#define QUARLO_API /* a list of names and ordinals says what is exported */
#else
#define QUARLO_API __declspec(dllimport)
#endif

#ifdef __cplusplus
#define QUARLO_BEGIN extern "C" {
#define QUARLO_END }
#else
#define QUARLO_BEGIN
#define QUARLO_END
#endif

QUARLO_BEGIN

/**
 * An argument or result whose meaning belongs to the platform and that may carry a pointer:
 * 32 bits on a 32-bit target, 64 bits on a 64-bit one.
 */
typedef uintptr_t GWord;

/** A colour or a pixel value that stands for "none": nothing is drawn with it. */
#define G_NO_COLOR UINT32_C(0xFFFFFFFF)

/** A point in pixels. */
typedef struct GPoint {
    int16_t x; /**< column */
    int16_t y; /**< row */
} GPoint;

/** A rectangle in pixels. Both edges are inclusive: (0, 0, 9, 9) covers 10 x 10 pixels. */
typedef struct GRect {
    int16_t left;   /**< first column */
    int16_t top;    /**< first row */
    int16_t right;  /**< last column */
    int16_t bottom; /**< last row */
} GRect;

/** A line from (x1, y1) to (x2, y2). Unlike a rectangle it is never sorted. */
typedef struct GLine {
    int16_t x1; /**< column where it begins */
    int16_t y1; /**< row where it begins */
    int16_t x2; /**< column where it ends */
    int16_t y2; /**< row where it ends */
} GLine;

/** A polygon. The points stay the caller's; the library neither copies nor frees them. */
typedef struct GPoly {
    int16_t count;  /**< number of points */
    GPoint* points; /**< the caller's array of `count` points */
    GRect bounds;   /**< the caller's bounding box: stored and mapped, never computed or checked */
} GPoly;

/** An extent in pixels. */
typedef struct GSize {
    int16_t width;  /**< columns */
    int16_t height; /**< rows */
} GSize;

typedef struct GVram GVram;             /**< a surface: surface.h */
typedef struct GDrawHandle GDrawHandle; /**< a draw handle and its state: handle.h */
typedef struct GPixelOps GPixelOps;     /**< one entry of the pixel operation table: pixel_ops.h */
typedef struct GFontRecord GFontRecord; /**< a font, owned by the platform: font.h */

QUARLO_END

#endif
