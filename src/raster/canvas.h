// The canvas: what a primitive needs to know of a handle's target, gathered once a primitive.
#pragma once

#include "draw/surface.h"
#include "raster/kernel/kernels.h"

#include <quarlo/handle.h>

#include <cstddef>
#include <cstdint>

namespace quarlo {

/// A drawing target in surface coordinates. `kernels` is null where drawing must go through the
/// slots of `ops`, one by one; both ways write the same bytes.
struct Canvas {
    GDrawHandle& handle;
    GVram& surface;
    const GPixelOps& ops;
    const kernel::Kernels* kernels;
    GRect area; ///< all that may be drawn on; kNowhere when nothing may

    explicit Canvas(GDrawHandle& handle);

    /// Where the kernels find a pixel. Only with kernels.
    uint8_t* addressOf(int32_t x, int32_t y) const {
        return surface.pixels + y * ptrdiff_t{surface.bytesPerLine} +
               x * ptrdiff_t{kernels->bytesPerPixel};
    }

    /// Writes one pixel that lies in the area.
    void setPixel(int16_t x, int16_t y, uint32_t pixel, int32_t mode) const;

    /// Writes `count` pixels, at least one, that lie in the area.
    void span(int16_t x, int16_t y, int32_t count, uint32_t pixel, int32_t mode) const;

    /// Remembers what a kernel wrote last, as the operations of the table do.
    void leaveCell(uint32_t pixel, uint8_t* cursor) const;
};

/// Fills a rectangle that lies in the area; nothing for colour -1.
void fillRect(const Canvas& canvas, const GRect& rect, uint32_t pixel, int32_t mode);

/// Fills a rectangle that lies in the area with an 8 x 8 pattern anchored to the surface's origin.
/// Colours of -1 are written like any other.
void fillPatternRect(const Canvas& canvas, const GRect& rect, uint32_t fore, uint32_t back,
                     int32_t mode, const uint8_t rows[8]);

} // namespace quarlo
