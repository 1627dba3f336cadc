/**
 * @file surface.h
 * Surfaces: frame buffers of 8, 16 or 24 bits a pixel that drawing goes to.
 *
 * A surface is either the device's own, handed out and taken back by the platform, or a memory
 * surface made here. Both have the same record.
 */
#ifndef QUARLO_SURFACE_H
#define QUARLO_SURFACE_H

#include <quarlo/types.h>

QUARLO_BEGIN

/** Values of GVram::colorType. */
enum {
    G_COLOR_DIRECT = 1, /**< a pixel value holds its channels where the three masks say */
    G_COLOR_PALETTE = 2 /**< a pixel value is an index into the palette */
};

/** The id of every memory surface. */
enum { G_MEMORY_SURFACE = -1 };

/** A surface. */
struct GVram {
    int16_t id;            /**< -1 for a memory surface, else the device surface's number */
    int16_t width;         /**< pixels a row, 1 to 2560 */
    int16_t height;        /**< rows, 1 to 2560 */
    int16_t bitsPerPixel;  /**< 8, 16 or 24 */
    int16_t bytesPerLine;  /**< bytes from one row to the next; memory surfaces are not padded */
    uint8_t* pixels;       /**< `height` x `bytesPerLine` bytes, top row first, left pixel first */
    uint32_t reserved;     /**< 0 for a memory surface, the platform's otherwise */
    int8_t colorType;      /**< #G_COLOR_DIRECT or #G_COLOR_PALETTE */
    uint32_t redMask;      /**< where red lies in a pixel value */
    uint32_t greenMask;    /**< where green lies in a pixel value */
    uint32_t blueMask;     /**< where blue lies in a pixel value */
    uint16_t paletteCount; /**< entries in `palette` */
    uint32_t* palette;     /**< the surface's own colour table, or null */
    GRect bounds;          /**< (0, 0, width - 1, height - 1) */
    GRect* drawable;       /**< what all drawing is clipped to; a memory surface's own `bounds` */
};

/**
 * Makes a memory surface like a descriptor.
 *
 * Pixel bytes stand low byte first and start at zero. A palette is copied.
 *
 * @param descriptor a record of which `width`, `height` (1 to 2560), `bitsPerPixel` (8, 16 or 24),
 *     `colorType`, the three masks, `paletteCount` and `palette` are read; a palette surface needs
 *     a palette of at least one entry
 * @return the surface, owned by the caller until it is attached (GDSetVram()) or deleted
 *     (GDDeleteVram()); null for a null descriptor, a refused size or depth, a palette surface
 *     without a palette, or when memory is short
 */
QUARLO_API GVram* GDCreateVram(const GVram* descriptor);

/**
 * Makes a direct-colour memory surface with the usual channel masks: 3-3-2 at 8 bits a pixel,
 * 5-5-5 at 16, and the bytes red, green, blue at 24.
 *
 * @param width pixels a row, 1 to 2560
 * @param height rows, 1 to 2560
 * @param bitsPerPixel 8, 16 or 24
 * @return the surface, zeroed and owned like that of GDCreateVram(); null when refused or when
 *     memory is short
 */
QUARLO_API GVram* GDCreateVVram(int16_t width, int16_t height, int16_t bitsPerPixel);

/**
 * Frees a memory surface with its palette and pixels. A device surface is left alone.
 *
 * @param surface the surface, or null
 * @return 0 for null; the id of a device surface; else the platform's result of the last free
 */
QUARLO_API int32_t GDDeleteVram(GVram* surface);

/**
 * The surface attached to a draw handle.
 *
 * @return the surface; null for a null handle
 */
QUARLO_API GVram* GDGetVram(GDrawHandle* handle);

/**
 * Attaches a surface to a draw handle and resets the handle's geometry to it: view, virtual
 * rectangle and the shared physical rectangle become the whole surface, local origin and pen
 * position (0, 0). Colours, pen, patterns and modes stay; converted colours are converted anew.
 *
 * The handle owns the memory surface attached to it: attaching another one deletes it. A device
 * surface goes back to the platform. Attaching the surface that is already attached releases
 * nothing.
 *
 * @param id -1 (65535) to attach `surface`, else the number of a device surface to ask for
 * @param surface a memory surface of 8, 16 or 24 bits a pixel; not read for a device surface
 * @return 1; 0 with nothing changed for a null handle, a refused surface, a platform that has no
 *     such device surface, or one that hands out no device surfaces at all (service 3)
 */
QUARLO_API int32_t GDSetVram(GDrawHandle* handle, int16_t id, GVram* surface);

/**
 * Sets how colours become pixel values on device surfaces, and re-converts the handle's fore, back
 * and pen colours.
 *
 * @param handle the handle; nothing happens for null
 * @param enable low 8 bits: 0 takes colours as raw pixel values, 1 converts 0x00RRGGBB colours
 *     everywhere, any other value converts them on memory surfaces only
 * @param redMask where red lies in a device pixel value
 * @param greenMask where green lies in a device pixel value
 * @param blueMask where blue lies in a device pixel value
 */
QUARLO_API void GDSetColorMode(GDrawHandle* handle, uint8_t enable, uint32_t redMask,
                               uint32_t greenMask, uint32_t blueMask);

/**
 * Forwards to service 119, bound on demand. The platform defines both arguments.
 *
 * @return the service's result; 0 when the platform lacks it
 */
QUARLO_API GWord GDChangeVirtualVram(GWord first, GWord second);

QUARLO_END

#endif
