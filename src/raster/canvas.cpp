#include "raster/canvas.h"

#include "raster/pixel_ops.h"

namespace quarlo {
namespace {

/// The clip rectangle, confined to pixel memory where there is any. A wild drawing mode may have
/// selected the entry of another format: then it is the entry's pixels that must fit.
GRect areaOf(const GVram& surface, const kernel::Kernels* kernels) {
    GRect area = drawableOf(surface);
    if (surface.pixels == nullptr) {
        return kernels == nullptr && isValid(area) ? area : kNowhere;
    }
    const GRect memory =
        kernels != nullptr ? memoryOf(surface, kernels->bytesPerPixel) : memoryOf(surface);
    return clipTo(area, memory) ? area : kNowhere;
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
