// Entries of the pixel operation table.
#pragma once

#include "raster/pixel_ops.h"

#include <quarlo/handle.h>
#include <quarlo/surface.h>

#include <cstdint>

namespace quarlo::test {

/// The entry that the table has for a format and mode 0 to 3.
inline const GPixelOps* entryFor(int16_t bitsPerPixel, int16_t mode) {
    GVram surface{};
    surface.id = G_MEMORY_SURFACE;
    surface.bitsPerPixel = bitsPerPixel;
    GDrawHandle handle{};
    handle.target = &surface;
    handle.drawingMode = mode;
    selectPixelOps(handle);
    return handle.pixelOps;
}

} // namespace quarlo::test
