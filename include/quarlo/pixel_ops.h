/**
 * @file pixel_ops.h
 * The pixel operations that all rasterizing ends in: one entry for each pixel format and drawing
 * mode, and one that the platform fills for its device surfaces.
 *
 * Programs and platforms may look at the entry that a draw handle points at.
 */
#ifndef QUARLO_PIXEL_OPS_H
#define QUARLO_PIXEL_OPS_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Drawing modes: how a colour is combined with the byte that is there, byte by byte. */
enum {
    G_MODE_COPY = 0, /**< destination = colour */
    G_MODE_AND = 1,  /**< destination = destination AND colour */
    G_MODE_OR = 2,   /**< destination = destination OR colour */
    G_MODE_XOR = 3   /**< destination = destination XOR colour */
};

/**
 * One entry of the pixel operation table. A null slot means that the entry lacks the operation.
 *
 * Coordinates are surface coordinates, already clipped: operations test no bounds. Colours are
 * pixel values. A memory entry combines by its own mode, whatever `mode` says.
 */
struct GPixelOps {
    /** Slot 0: writes one pixel and leaves the format's cursor behind it. */
    int32_t (*setPixel)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                        int32_t mode);
    /** Slot 1: writes `count` pixels from x rightwards; none for a count below 1. */
    int32_t (*span)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                    int32_t mode, int16_t count);
    /** Slot 2: writes the format's last colour at its cursor and moves the cursor on. */
    int32_t (*nextPixel)(void);
    /** Slot 3: no operation; never called. */
    void (*unused)(void);
    /** Slot 4: reads one pixel. */
    uint32_t (*readPixel)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y);
    /**
     * Slot 5: plots a glyph pixel by coverage. `level` is 0 to 2^bits - 1 of the glyph's bits a
     * pixel (the byte's top four bits for glyphs of 8 bits).
     */
    int32_t (*coveragePixel)(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y,
                             uint32_t pixel, int32_t mode, int32_t level);
    /** Slot 6: fills a rectangle; tried first by GDDrawRect(). */
    int32_t (*drawRect)(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t pixel,
                        int32_t mode);
    /** Slot 7: fills a rectangle; tried first by every other solid fill. */
    int32_t (*fillRect)(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t pixel,
                        int32_t mode);
    /** Slot 8: fills a rectangle with an 8 x 8 pattern anchored to the surface's origin. */
    int32_t (*patternRect)(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t fore,
                           uint32_t back, int32_t mode, const uint8_t pattern[8]);
};

QUARLO_END

#endif
