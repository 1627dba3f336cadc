// Memory surfaces: made and freed.
#include "draw/surface.h"

#include "memory/memory.h"
#include "platform/service_table.h"

#include <quarlo/surface.h>

#include <algorithm>

namespace {

using quarlo::allocateCleared;
using quarlo::allocateRecord;
using quarlo::kLibrarySpace;
using quarlo::release;

constexpr int16_t kLargestExtent = 2560;

/// The upper bound holds for the signed value only: an extent of 0x8000 or above passes here and
/// fails or not by the size of the pixel memory that it asks for.
bool isAcceptable(int16_t width, int16_t height, int16_t bitsPerPixel) {
    return width != 0 && height != 0 && width <= kLargestExtent && height <= kLargestExtent &&
           quarlo::isPixelFormat(bitsPerPixel);
}

/// A zeroed surface without colours, or null.
GVram* createBlank(int16_t width, int16_t height, int16_t bitsPerPixel) {
    if (!isAcceptable(width, height, bitsPerPixel)) {
        return nullptr;
    }
    auto* const surface = allocateRecord<GVram>();
    if (surface == nullptr) {
        return nullptr;
    }
    const auto bytesPerLine = static_cast<int16_t>((bitsPerPixel >> 3) * width);
    void* const pixels = allocateCleared(kLibrarySpace, height * bytesPerLine);
    if (pixels == nullptr) {
        release(surface);
        return nullptr;
    }
    surface->id = G_MEMORY_SURFACE;
    surface->width = width;
    surface->height = height;
    surface->bitsPerPixel = bitsPerPixel;
    surface->bytesPerLine = bytesPerLine;
    surface->pixels = static_cast<uint8_t*>(pixels);
    surface->bounds = {0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1)};
    surface->drawable = &surface->bounds;
    return surface;
}

/// Copies a palette; false when there is none to copy or memory is short.
bool copyPalette(GVram& surface, const GVram& descriptor) {
    if (descriptor.paletteCount == 0 || descriptor.palette == nullptr) {
        return false;
    }
    const int32_t size = descriptor.paletteCount * int32_t{sizeof(uint32_t)};
    surface.palette = static_cast<uint32_t*>(allocateCleared(kLibrarySpace, size));
    if (surface.palette == nullptr) {
        return false;
    }
    surface.paletteCount = descriptor.paletteCount;
    std::copy_n(descriptor.palette, descriptor.paletteCount, surface.palette);
    return true;
}

struct Masks {
    uint32_t red;
    uint32_t green;
    uint32_t blue;
};

Masks usualMasks(int16_t bitsPerPixel) {
    switch (bitsPerPixel) {
    case 8:
        return {0xE0, 0x1C, 0x03};
    case 16:
        return {0x7C00, 0x3E0, 0x1F};
    default:
        return {0xFF, 0xFF00, 0xFF0000};
    }
}

void setMasks(GVram& surface, const Masks& masks) {
    surface.redMask = masks.red;
    surface.greenMask = masks.green;
    surface.blueMask = masks.blue;
}

} // namespace

GVram* GDCreateVram(const GVram* descriptor) {
    if (descriptor == nullptr) {
        return nullptr;
    }
    GVram* const surface =
        createBlank(descriptor->width, descriptor->height, descriptor->bitsPerPixel);
    if (surface == nullptr) {
        return nullptr;
    }
    surface->colorType = descriptor->colorType;
    setMasks(*surface, {descriptor->redMask, descriptor->greenMask, descriptor->blueMask});
    if (surface->colorType == G_COLOR_PALETTE && !copyPalette(*surface, *descriptor)) {
        GDDeleteVram(surface);
        return nullptr;
    }
    return surface;
}

GVram* GDCreateVVram(int16_t width, int16_t height, int16_t bitsPerPixel) {
    GVram* const surface = createBlank(width, height, bitsPerPixel);
    if (surface != nullptr) {
        surface->colorType = G_COLOR_DIRECT;
        setMasks(*surface, usualMasks(bitsPerPixel));
    }
    return surface;
}

int32_t GDDeleteVram(GVram* surface) {
    if (surface == nullptr) {
        return 0;
    }
    if (quarlo::isDeviceSurface(*surface)) {
        return surface->id;
    }
    if (surface->palette != nullptr) {
        release(surface->palette);
    }
    if (surface->pixels != nullptr) {
        release(surface->pixels);
    }
    return release(surface);
}

GWord GDChangeVirtualVram(GWord first, GWord second) {
    return quarlo::ForwardTo<GDChangeVirtualVram, 119>::lazy(first, second);
}
