// Drawing, text and coordinate modes, and the origin.
#include "geometry/geometry.h"
#include "raster/pixel_ops.h"

#include <quarlo/clip.h>
#include <quarlo/handle.h>

void GDSetDrawingMode(GDrawHandle* handle, int32_t mode) {
    handle->drawingMode = static_cast<int16_t>(mode);
    quarlo::selectPixelOps(*handle);
}

void GDSetTextMode(GDrawHandle* handle, int32_t mode) {
    handle->textMode = static_cast<int16_t>(mode);
}

GDrawHandle* GDSetTextAlign(GDrawHandle* handle, int32_t) {
    return handle;
}

void GDSetLocalMode(GDrawHandle* handle) {
    handle->modeFlags = static_cast<uint16_t>(handle->modeFlags & ~G_FLAG_VIRTUAL);
}

void GDSetVirtualMode(GDrawHandle* handle) {
    handle->modeFlags = static_cast<uint16_t>(handle->modeFlags | G_FLAG_VIRTUAL);
}

void GDSetVirtualRect(GDrawHandle* handle, const GRect* rect) {
    handle->virtualRect = *rect;
}

void GDSetLocalOrigin(GDrawHandle* handle, const GPoint* origin) {
    handle->localOrigin = *origin;
}

void GDGetLocalOrigin(const GDrawHandle* handle, GPoint* origin) {
    *origin = handle->localOrigin;
}

void GDOffsetLocalOrigin(GDrawHandle* handle, const GPoint* delta) {
    quarlo::offset(handle->localOrigin, delta->x, delta->y);
}
