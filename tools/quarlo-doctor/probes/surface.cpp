// Device surfaces: handed out, taken back, confined, shown in place of another.
#include "probe.h"
#include "screen.h"

namespace doctor {
namespace {

constexpr int32_t kNoSurface = 32767;
constexpr int kLargestExtent = 2560;

bool isInside(const GRect& inner, const GRect& outer) {
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool hasExtent(const GVram& surface) {
    return surface.width >= 1 && surface.width <= kLargestExtent && surface.height >= 1 &&
           surface.height <= kLargestExtent;
}

bool hasFormat(const GVram& surface) {
    return surface.bitsPerPixel == 8 || surface.bitsPerPixel == 16 || surface.bitsPerPixel == 24;
}

bool hasColors(const GVram& surface) {
    if (surface.colorType == G_COLOR_PALETTE) {
        return surface.palette != nullptr && surface.paletteCount > 0;
    }
    const uint32_t red = surface.redMask;
    const uint32_t green = surface.greenMask;
    const uint32_t blue = surface.blueMask;
    return surface.colorType == G_COLOR_DIRECT && red != 0 && green != 0 && blue != 0 &&
           ((red & green) | (green & blue) | (blue & red)) == 0;
}

Complaint getsSurface(const Platform& platform) {
    const Screen screen(platform);
    const GVram* const surface = screen.surface;
    if (surface == nullptr) {
        return "has no surface 0";
    }
    if (surface->id != 0) {
        return "calls surface 0 by another number";
    }
    if (!hasExtent(*surface)) {
        return "has a surface of an extent outside 1 to 2560";
    }
    if (!hasFormat(*surface)) {
        return "has a surface of other than 8, 16 or 24 bits a pixel";
    }
    if (surface->bytesPerLine < surface->width * (surface->bitsPerPixel / 8)) {
        return "has a surface whose rows overlap";
    }
    if (!hasColors(*surface)) {
        return "has a surface without a palette or three masks apart";
    }
    const GRect whole{0, 0, static_cast<int16_t>(surface->width - 1),
                      static_cast<int16_t>(surface->height - 1)};
    if (surface->drawable == nullptr || !isInside(*surface->drawable, whole)) {
        return "has a surface whose drawable rectangle is missing or reaches outside";
    }
    GDrawHandle handle{};
    const auto get = platform.service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE);
    return get(&handle, kNoSurface) == nullptr ? "" : "has a surface of any number";
}

Complaint releasesSurface(const Platform& platform) {
    Screen screen(platform);
    if (screen.surface == nullptr) {
        return "has no surface to take back";
    }
    platform.service<GPIReleaseSurface>(GPI_SERVICE_RELEASE_SURFACE)(&screen.handle,
                                                                     screen.surface);
    return Screen(platform).surface != nullptr ? "" : "takes surface 0 back for good";
}

Complaint setsRegion(const Platform& platform) {
    Screen screen(platform);
    if (!screen.isUsable()) {
        return "has no surface to confine";
    }
    const auto set = platform.service<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);
    const GRect region{1, 2, 5, 7};
    if (set(&screen.handle, &region) != 1) {
        return "refuses a rectangle of the display";
    }
    return isInside(*screen.surface->drawable, region) ? "" : "does not confine drawing";
}

Complaint removesRegion(const Platform& platform) {
    Screen screen(platform);
    if (!screen.isUsable()) {
        return "has no surface to confine";
    }
    const auto set = platform.service<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);
    const auto remove =
        platform.service<GPIRemoveDrawableRegion>(GPI_SERVICE_REMOVE_DRAWABLE_REGION);
    const GRect region{1, 2, 5, 7};
    if (remove(&screen.handle, &region) == 1) {
        return "removes what was not set";
    }
    set(&screen.handle, &region);
    return remove(&screen.handle, &region) == 1 ? "" : "does not remove what was set";
}

Complaint changesSurface(const Platform& platform) {
    const auto change =
        platform.service<GPIChangeVirtualSurface>(GPI_SERVICE_CHANGE_VIRTUAL_SURFACE);
    if (change(kNoSurface, 0) != 0) {
        return "shows a surface that there is not";
    }
    return change(0, 0) == 1 ? "" : "does not show surface 0";
}

} // namespace

std::span<const Probe> surfaceProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_GET_SURFACE, getsSurface, {}},
        {GPI_SERVICE_RELEASE_SURFACE, releasesSurface, {GPI_SERVICE_GET_SURFACE}},
        {GPI_SERVICE_SET_DRAWABLE_REGION, setsRegion, {GPI_SERVICE_GET_SURFACE}},
        {GPI_SERVICE_REMOVE_DRAWABLE_REGION,
         removesRegion,
         {GPI_SERVICE_GET_SURFACE, GPI_SERVICE_SET_DRAWABLE_REGION}},
        {GPI_SERVICE_CHANGE_VIRTUAL_SURFACE, changesSurface, {}},
    };
    return kProbes;
}

} // namespace doctor
