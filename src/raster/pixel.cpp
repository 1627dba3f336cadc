// Single pixels.
#include "geometry/view.h"
#include "raster/canvas.h"

#include <quarlo/draw.h>

namespace quarlo {
namespace {

/// Whether a point in surface coordinates may be written or read.
bool isReachable(const Canvas& canvas, const GPoint& point) {
    const GVram& surface = canvas.surface;
    return point.x >= 0 && point.y >= 0 && point.x <= surface.width && point.y <= surface.height &&
           contains(canvas.area, point);
}

/// What the surface's memory holds, for a device whose platform offers no read operation.
uint32_t readMemory(const GVram& surface, const GPoint& point) {
    if (!isDeviceSurface(surface) || !hasPixels(surface)) {
        return G_NO_COLOR;
    }
    return kernel::readPixel(addressOf(surface, point.x, point.y), surface.bitsPerPixel);
}

} // namespace
} // namespace quarlo

using namespace quarlo;

int32_t GDSetPixel(GDrawHandle* handle, int16_t x, int16_t y) {
    if (handle->penPixel == G_NO_COLOR) {
        return -1;
    }
    GDMoveTo(handle, x, y);
    GPoint point{x, y};
    mapToScreen(*handle, point);
    const Canvas canvas(*handle);
    if (!isReachable(canvas, point) || canvas.ops.setPixel == nullptr) {
        return 0;
    }
    return canvas.ops.setPixel(handle, &canvas.surface, point.x, point.y, handle->penPixel,
                               handle->drawingMode);
}

uint32_t GDGetPixel(GDrawHandle* handle, int16_t x, int16_t y) {
    GPoint point{x, y};
    mapToScreen(*handle, point);
    const Canvas canvas(*handle);
    if (!isReachable(canvas, point)) {
        return G_NO_COLOR;
    }
    if (canvas.ops.readPixel == nullptr) {
        return readMemory(canvas.surface, point);
    }
    return canvas.ops.readPixel(handle, &canvas.surface, point.x, point.y);
}
