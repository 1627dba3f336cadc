// Draw handles: opened on the display, retargeted to other surfaces, closed.
#include "draw/handle.h"

#include "draw/color.h"
#include "draw/defaults.h"
#include "draw/device_surface.h"
#include "draw/surface.h"
#include "draw/view_reset.h"
#include "memory/memory.h"
#include "raster/pixel_ops.h"

#include <quarlo/handle.h>

#include <cstring>

namespace quarlo {
namespace {

void attach(GDrawHandle& handle, GVram* surface) {
    handle.display = surface;
    handle.target = surface;
}

void releaseSurface(GDrawHandle& handle, GVram* surface) {
    if (isDeviceSurface(*surface)) {
        ReleaseDeviceSurface::checked(&handle, surface);
    } else {
        GDDeleteVram(surface);
    }
}

bool isDrawable(const GVram* surface) {
    return surface != nullptr && !isDeviceSurface(*surface) && isPixelFormat(surface->bitsPerPixel);
}

bool attachMemorySurface(GDrawHandle& handle, GVram* surface) {
    if (!isDrawable(surface)) {
        return false;
    }
    attach(handle, surface);
    if (surface->colorType == G_COLOR_DIRECT) {
        setChannelShifts(handle, surface->redMask, surface->greenMask, surface->blueMask);
    }
    return true;
}

bool attachDeviceSurface(GDrawHandle& handle, int16_t id) {
    GVram* const surface = GetDeviceSurface::checked(&handle, id);
    if (surface == nullptr) {
        return false;
    }
    attach(handle, surface);
    setChannelShifts(handle, handle.modeRedMask, handle.modeGreenMask, handle.modeBlueMask);
    return true;
}

} // namespace

bool initialiseHandle(GDrawHandle& handle) {
    GVram* const surface = GetDeviceSurface::checked(&handle, 0);
    if (surface == nullptr) {
        return false;
    }
    attach(handle, surface);
    resetView(handle);
    handle.penWidth = 1;
    handle.penHeight = 1;
    selectPixelOps(handle);
    std::memcpy(handle.dashes, kDefaultDashes, sizeof handle.dashes);
    std::memcpy(handle.fillPatterns, kDefaultFillPatterns, sizeof handle.fillPatterns);
    return true;
}

} // namespace quarlo

using namespace quarlo;

GDrawHandle* GDOpenDrawHandle(GWord first, GWord second) {
    auto* const handle = allocateRecord<GDrawHandle>();
    if (handle == nullptr) {
        return nullptr;
    }
    handle->openArg1 = first;
    handle->openArg2 = second;
    if (!initialiseHandle(*handle)) {
        release(handle);
        return nullptr;
    }
    return handle;
}

void GDCloseDrawHandle(GDrawHandle* handle) {
    if (handle == nullptr) {
        return;
    }
    // A memory surface stays: once detached by closing it is the program's.
    if (isDeviceSurface(*handle->display)) {
        ReleaseDeviceSurface::checked(handle, handle->display);
    }
    release(handle);
}

GVram* GDGetVram(GDrawHandle* handle) {
    return handle == nullptr ? nullptr : handle->display;
}

int32_t GDSetVram(GDrawHandle* handle, int16_t id, GVram* surface) {
    if (handle == nullptr || !GetDeviceSurface::bound()) {
        return 0;
    }
    GVram* const previous = handle->target;
    const bool attached = id == G_MEMORY_SURFACE ? attachMemorySurface(*handle, surface)
                                                 : attachDeviceSurface(*handle, id);
    if (!attached) {
        return 0;
    }
    if (previous != nullptr && previous != handle->target) {
        releaseSurface(*handle, previous);
    }
    resetView(*handle);
    selectPixelOps(*handle);
    return 1;
}

int32_t GDSetDisplay(GDrawHandle* handle, int16_t number) {
    if (handle == nullptr) {
        return 0;
    }
    GVram* const surface = GetDeviceSurface::checked(handle, number);
    if (surface == nullptr) {
        return 0;
    }
    handle->display = surface;
    return 1;
}

GDrawHandle* GDBeginDraw(GDrawHandle* handle) {
    return handle;
}

GDrawHandle* GDEndDraw(GDrawHandle* handle) {
    return handle;
}
