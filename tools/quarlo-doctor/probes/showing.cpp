// Making the display visible: flush, palette, zoom.
#include "probe.h"
#include "screen.h"

namespace doctor {
namespace {

/// Services 9 and 58.
template <int32_t Number>
Complaint flushes(const Platform& platform) {
    Screen screen(platform);
    if (screen.surface == nullptr) {
        return "has no surface to show";
    }
    const int32_t shown = platform.service<GPIFlush>(Number)(
        &screen.handle, 0, 0, screen.surface->width, screen.surface->height);
    return shown == 1 ? "" : "does not show the display";
}

bool hasPalette(const Screen& screen) {
    return screen.surface != nullptr && screen.surface->colorType == G_COLOR_PALETTE;
}

/// On the entries of the surface's record, which stay as they are.
Complaint setsPalette(const Platform& platform) {
    Screen screen(platform);
    const auto set = platform.service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);
    const uint32_t colors[2] = {0x102030, 0x405060};
    if (!hasPalette(screen)) {
        return set(&screen.handle, 0, 2, colors) == 0 ? "" : "sets entries of no palette";
    }
    const GVram& surface = *screen.surface;
    if (set(&screen.handle, surface.paletteCount, 1, colors) != 0) {
        return "sets entries behind the palette";
    }
    return set(&screen.handle, 0, surface.paletteCount, surface.palette) == 1
               ? ""
               : "refuses entries of the palette";
}

Complaint getsPalette(const Platform& platform) {
    Screen screen(platform);
    const auto get = platform.service<GPIGetPalette>(GPI_SERVICE_GET_PALETTE);
    uint32_t read[2] = {};
    if (!hasPalette(screen)) {
        return get(&screen.handle, 0, 2, read) == 0 ? "" : "reads entries of no palette";
    }
    const auto set = platform.service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);
    uint32_t old[2] = {};
    get(&screen.handle, 0, 2, old);
    const uint32_t colors[2] = {0x102030, 0x405060};
    set(&screen.handle, 0, 2, colors);
    const bool same =
        get(&screen.handle, 0, 2, read) == 1 && read[0] == colors[0] && read[1] == colors[1];
    set(&screen.handle, 0, 2, old);
    return same ? "" : "does not read what was set";
}

Complaint setsZoom(const Platform& platform) {
    Screen screen(platform);
    const auto set = platform.service<GPISetZoomScale>(GPI_SERVICE_SET_ZOOM_SCALE);
    return set(&screen.handle, 1, 1) == 1 ? "" : "refuses the natural size";
}

Complaint setsScroll(const Platform& platform) {
    Screen screen(platform);
    const auto set = platform.service<GPISetScrollPos>(GPI_SERVICE_SET_SCROLL_POS);
    return set(&screen.handle, 0, 0) == 1 ? "" : "refuses the upper left corner";
}

} // namespace

std::span<const Probe> showingProbes() {
    static const std::vector<int32_t> kSurface = {GPI_SERVICE_GET_SURFACE};
    static const Probe kProbes[] = {
        {GPI_SERVICE_FLUSH, flushes<GPI_SERVICE_FLUSH>, kSurface},
        {GPI_SERVICE_FLUSH_FORCE, flushes<GPI_SERVICE_FLUSH_FORCE>, kSurface},
        {GPI_SERVICE_SET_PALETTE, setsPalette, kSurface},
        {GPI_SERVICE_GET_PALETTE, getsPalette, {GPI_SERVICE_GET_SURFACE, GPI_SERVICE_SET_PALETTE}},
        {GPI_SERVICE_SET_ZOOM_SCALE, setsZoom, kSurface},
        {GPI_SERVICE_SET_SCROLL_POS, setsScroll, kSurface},
    };
    return kProbes;
}

} // namespace doctor
