// The canvas: what a primitive needs to know of a handle's target, gathered once a primitive. All
// of it is inline: it is half the cost of a short line.
#pragma once

#include "draw/surface.h"
#include "raster/kernel/kernels.h"
#include "raster/pixel_ops.h"

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

    explicit Canvas(GDrawHandle& drawHandle)
        : handle(drawHandle),
          surface(*drawHandle.target),
          ops(*drawHandle.pixelOps),
          kernels(kernelsOf(drawHandle.pixelOps)),
          area(areaOf(surface, kernels)) {}

    /// Where the kernels find a pixel. Only with kernels.
    uint8_t* addressOf(int32_t x, int32_t y) const {
        return surface.pixels + y * ptrdiff_t{surface.bytesPerLine} +
               x * ptrdiff_t{kernels->bytesPerPixel};
    }

    /// Remembers what a kernel wrote last, as the operations of the table do.
    void leaveCell(uint32_t pixel, uint8_t* cursor) const {
        pixelCells[kernels->bytesPerPixel - 1] = {pixel, cursor};
    }

    /// Writes one pixel that lies in the area.
    void setPixel(int16_t x, int16_t y, uint32_t pixel, int32_t mode) const {
        if (ops.setPixel != nullptr) {
            ops.setPixel(&handle, &surface, x, y, pixel, mode);
        }
    }

    /// Writes `count` pixels, at least one, that lie in the area.
    void span(int16_t x, int16_t y, int32_t count, uint32_t pixel, int32_t mode) const {
        if (kernels != nullptr) {
            leaveCell(pixel, kernels->fill(addressOf(x, y), surface.bytesPerLine, count, 1, pixel));
        } else if (ops.span != nullptr) {
            ops.span(&handle, &surface, x, y, pixel, mode, static_cast<int16_t>(count));
        }
    }

  private:
    /// The clip rectangle, confined to pixel memory where there is any. A wild drawing mode may
    /// have selected the entry of another format: then it is the entry's pixels that must fit.
    static GRect areaOf(const GVram& surface, const kernel::Kernels* kernels) {
        GRect area = drawableOf(surface);
        if (surface.pixels == nullptr) {
            return kernels == nullptr && isValid(area) ? area : kNowhere;
        }
        const GRect memory =
            kernels != nullptr ? memoryOf(surface, kernels->bytesPerPixel) : memoryOf(surface);
        return clipTo(area, memory) ? area : kNowhere;
    }
};

/// Fills a rectangle that lies in the area; nothing for colour -1.
void fillRect(const Canvas& canvas, const GRect& rect, uint32_t pixel, int32_t mode);

/// Fills a rectangle that lies in the area with an 8 x 8 pattern anchored to the surface's origin.
/// Colours of -1 are written like any other.
void fillPatternRect(const Canvas& canvas, const GRect& rect, uint32_t fore, uint32_t back,
                     int32_t mode, const uint8_t rows[8]);

} // namespace quarlo
