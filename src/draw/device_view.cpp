// What the platform does for its own display: palette, zoom, scroll, drawable regions.
#include "platform/service_table.h"

#include <quarlo/clip.h>
#include <quarlo/handle.h>

using quarlo::ForwardTo;

GWord GDSetPalette(GDrawHandle* handle, int32_t first, int32_t count, const uint32_t* colors) {
    return ForwardTo<GDSetPalette, 10>::unchecked(handle, first, count, colors);
}

GWord GDGetPalette(GDrawHandle* handle, int32_t first, int32_t count, uint32_t* colors) {
    return ForwardTo<GDGetPalette, 11>::unchecked(handle, first, count, colors);
}

GWord GDSetZoomScale(GDrawHandle* handle, int32_t x, int32_t y) {
    return ForwardTo<GDSetZoomScale, 55>::unchecked(handle, x, y);
}

GWord GDSetScrollPos(GDrawHandle* handle, int32_t x, int32_t y) {
    return ForwardTo<GDSetScrollPos, 56>::unchecked(handle, x, y);
}

int32_t GDSetDrawableRegion(GDrawHandle* handle, const GRect* region) {
    if (handle == nullptr || region == nullptr) {
        return 0;
    }
    return ForwardTo<GDSetDrawableRegion, 59>::checked(handle, region);
}

int32_t GDRemoveDrawableRegion(GDrawHandle* handle, const GRect* region) {
    if (handle == nullptr || region == nullptr) {
        return 0;
    }
    return ForwardTo<GDRemoveDrawableRegion, 60>::checked(handle, region);
}
