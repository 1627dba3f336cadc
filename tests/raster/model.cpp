#include "raster/model.h"

#include "raster/model_rect.h"

#include <algorithm>

namespace quarlo::test {
namespace {

int16_t scaled(int value, int low, int high, int toLow, int toHigh) {
    const int64_t extent = std::max(high - low, 1);
    const int64_t toExtent = std::max(toHigh - toLow, 1);
    return static_cast<int16_t>(((value - low) * toExtent + extent / 2) / extent + toLow);
}

} // namespace

Model::Model(const GDrawHandle& like) : handle(like), surface(*like.target) {
    bytes.assign(surface.pixels, surface.pixels + surface.height * surface.bytesPerLine);
    surface.pixels = bytes.data();
    surface.drawable = &surface.bounds;
    handle.display = &surface;
    handle.target = &surface;
}

/// A memory surface is drawn on by the entry at mode + bits x 4, be it another format's.
Model::Operation Model::operation() const {
    if (surface.id != G_MEMORY_SURFACE) {
        const bool known = handle.drawingMode >= 0 && handle.drawingMode <= 3;
        return {known ? surface.bitsPerPixel / 8 : 0, handle.drawingMode};
    }
    const int entry = handle.drawingMode + surface.bitsPerPixel * 4;
    for (const int bits : {8, 16, 24}) {
        if (entry >= bits * 4 && entry <= bits * 4 + 3) {
            return {bits / 8, entry - bits * 4};
        }
    }
    return {0, 0};
}

/// The clip rectangle, and no pixel that would not end within its row.
GRect Model::limit() const {
    const int bytesPerPixel = std::max(operation().bytesPerPixel, 1);
    const int width = std::min<int>(surface.width, surface.bytesPerLine / bytesPerPixel);
    const GRect memory{0, 0, static_cast<int16_t>(width - 1),
                       static_cast<int16_t>(surface.height - 1)};
    return common(*surface.drawable, memory);
}

GPoint Model::mapped(GPoint point) const {
    if ((handle.modeFlags & G_FLAG_VIRTUAL) == 0) {
        return {static_cast<int16_t>(point.x - handle.localOrigin.x),
                static_cast<int16_t>(point.y - handle.localOrigin.y)};
    }
    const GRect& from = handle.virtualRect;
    const GRect& to = handle.view;
    return {scaled(point.x, from.left, from.right, to.left, to.right),
            scaled(point.y, from.top, from.bottom, to.top, to.bottom)};
}

std::ptrdiff_t Model::offsetOf(int x, int y) const {
    return y * std::ptrdiff_t{surface.bytesPerLine} + x * operation().bytesPerPixel;
}

void Model::plot(int x, int y, uint32_t pixel) {
    const Operation op = operation();
    if (op.bytesPerPixel == 0) {
        return;
    }
    const std::ptrdiff_t offset = offsetOf(x, y);
    for (int i = 0; i < op.bytesPerPixel; ++i) {
        uint8_t& old = bytes.at(static_cast<size_t>(offset + i));
        const auto color = static_cast<uint8_t>(pixel >> (8 * i));
        const uint8_t results[] = {color, static_cast<uint8_t>(old & color),
                                   static_cast<uint8_t>(old | color),
                                   static_cast<uint8_t>(old ^ color)};
        old = results[op.mode];
    }
    if (surface.id == G_MEMORY_SURFACE) {
        cells[op.bytesPerPixel - 1] = {pixel, offset + op.bytesPerPixel};
    }
}

bool Model::isReachable(const GPoint& point) const {
    return point.x >= 0 && point.y >= 0 && point.x <= surface.width && point.y <= surface.height &&
           isInside(limit(), point.x, point.y);
}

int32_t Model::setPixel(int16_t x, int16_t y) {
    if (handle.penPixel == G_NO_COLOR) {
        return -1;
    }
    moveTo(x, y);
    const GPoint point = mapped({x, y});
    const bool hasOperation = surface.id != G_MEMORY_SURFACE || operation().bytesPerPixel != 0;
    if (!isReachable(point) || !hasOperation) {
        return 0;
    }
    plot(point.x, point.y, handle.penPixel);
    return 1;
}

uint32_t Model::getPixel(int16_t x, int16_t y) const {
    const GPoint point = mapped({x, y});
    const int bytesPerPixel =
        surface.id == G_MEMORY_SURFACE ? operation().bytesPerPixel : surface.bitsPerPixel / 8;
    if (!isReachable(point) || bytesPerPixel == 0) {
        return G_NO_COLOR;
    }
    uint32_t pixel = 0;
    const std::ptrdiff_t offset =
        point.y * std::ptrdiff_t{surface.bytesPerLine} + point.x * bytesPerPixel;
    for (int i = 0; i < bytesPerPixel; ++i) {
        pixel |= uint32_t{bytes.at(static_cast<size_t>(offset + i))} << (8 * i);
    }
    return pixel;
}

} // namespace quarlo::test
