#include "raster/canvas.h"

#include "raster/pixel_ops.h"

namespace quarlo {
namespace {

/// The clip rectangle, confined to pixel memory where there is any. An entry of another format than
/// the surface's draws nothing: its addresses would lie outside.
GRect areaOf(const GVram& surface, const kernel::Kernels* kernels) {
    GRect area = drawableOf(surface);
    if (!isValid(area)) {
        return kNowhere;
    }
    if (kernels != nullptr &&
        (surface.pixels == nullptr || surface.bitsPerPixel != kernels->bytesPerPixel * 8)) {
        return kNowhere;
    }
    if (surface.pixels != nullptr && !clipTo(area, memoryOf(surface))) {
        return kNowhere;
    }
    return area;
}

} // namespace

Canvas::Canvas(GDrawHandle& drawHandle)
    : handle(drawHandle),
      surface(*drawHandle.target),
      ops(*drawHandle.pixelOps),
      kernels(kernelsOf(drawHandle.pixelOps)),
      area(areaOf(surface, kernels)) {}

void Canvas::leaveCell(uint32_t pixel, uint8_t* cursor) const {
    pixelCells[kernels->bytesPerPixel - 1] = {pixel, cursor};
}

void Canvas::setPixel(int16_t x, int16_t y, uint32_t pixel, int32_t mode) const {
    if (ops.setPixel != nullptr) {
        ops.setPixel(&handle, &surface, x, y, pixel, mode);
    }
}

void Canvas::span(int16_t x, int16_t y, int32_t count, uint32_t pixel, int32_t mode) const {
    if (kernels != nullptr) {
        leaveCell(pixel, kernels->fill(addressOf(x, y), surface.bytesPerLine, count, 1, pixel));
    } else if (ops.span != nullptr) {
        ops.span(&handle, &surface, x, y, pixel, mode, static_cast<int16_t>(count));
    }
}

} // namespace quarlo
