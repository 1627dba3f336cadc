// What the library asks of a surface's record before it trusts it.
#pragma once

#include "draw/clip.h"

#include <quarlo/surface.h>

#include <cstddef>
#include <cstdint>

namespace quarlo {

inline bool isDeviceSurface(const GVram& surface) {
    return surface.id != G_MEMORY_SURFACE;
}

constexpr bool isPixelFormat(int32_t bitsPerPixel) {
    return bitsPerPixel == 8 || bitsPerPixel == 16 || bitsPerPixel == 24;
}

/// Whether the surface has pixel memory that can be read and written here.
inline bool hasPixels(const GVram& surface) {
    return surface.pixels != nullptr && isPixelFormat(surface.bitsPerPixel);
}

/// The clip rectangle of a surface; nowhere on a device surface that came without one.
inline GRect drawableOf(const GVram& surface) {
    return surface.drawable != nullptr ? *surface.drawable : kNowhere;
}

/// The pixels of a size that a surface's memory holds in its rows and columns, whatever its clip
/// rectangle and bounds say.
inline GRect memoryOf(const GVram& surface, int32_t bytesPerPixel) {
    int32_t width = surface.width;
    if (width * bytesPerPixel > surface.bytesPerLine) {
        width = bytesPerPixel > 0 ? surface.bytesPerLine / bytesPerPixel : 0;
    }
    if (width <= 0 || surface.height <= 0) {
        return kNowhere;
    }
    return {0, 0, low16(width - 1), low16(surface.height - 1)};
}

inline GRect memoryOf(const GVram& surface) {
    return memoryOf(surface, surface.bitsPerPixel >> 3);
}

/// The address of a pixel in the surface's memory.
inline uint8_t* addressOf(const GVram& surface, int32_t x, int32_t y) {
    return surface.pixels + y * ptrdiff_t{surface.bytesPerLine} +
           x * ptrdiff_t{surface.bitsPerPixel >> 3};
}

} // namespace quarlo
