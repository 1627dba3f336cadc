// Rectangles, solid and patterned: what every other filled shape ends in.
#include "geometry/geometry.h"
#include "raster/canvas.h"

namespace quarlo {
namespace {

/// Bit 7 of a pattern row is its leftmost pixel; row and bit follow the surface's coordinates.
bool isSet(const uint8_t rows[8], int32_t x, int32_t y) {
    return (rows[y & 7] << (x & 7) & 0x80) != 0;
}

void patternByPixels(const Canvas& canvas, const GRect& rect, uint32_t fore, uint32_t back,
                     int32_t mode, const uint8_t rows[8]) {
    for (int32_t y = rect.top; y <= rect.bottom; ++y) {
        for (int32_t x = rect.left; x <= rect.right; ++x) {
            canvas.setPixel(low16(x), low16(y), isSet(rows, x, y) ? fore : back, mode);
        }
    }
}

} // namespace

void fillRect(const Canvas& canvas, const GRect& rect, uint32_t pixel, int32_t mode) {
    if (pixel == G_NO_COLOR) {
        return;
    }
    if (canvas.kernels != nullptr) {
        canvas.leaveCell(pixel, canvas.kernels->fill(canvas.addressOf(rect.left, rect.top),
                                                     canvas.surface.bytesPerLine, widthOf(rect),
                                                     heightOf(rect), pixel));
    } else if (canvas.ops.fillRect != nullptr) {
        canvas.ops.fillRect(&canvas.handle, &canvas.surface, &rect, pixel, mode);
    } else {
        for (int32_t y = rect.top; y <= rect.bottom; ++y) {
            canvas.span(rect.left, low16(y), widthOf(rect), pixel, mode);
        }
    }
}

void fillPatternRect(const Canvas& canvas, const GRect& rect, uint32_t fore, uint32_t back,
                     int32_t mode, const uint8_t rows[8]) {
    if (canvas.kernels != nullptr) {
        const uint32_t last = isSet(rows, rect.right, rect.bottom) ? fore : back;
        canvas.leaveCell(last, canvas.kernels->fillPattern(canvas.addressOf(rect.left, rect.top),
                                                           canvas.surface.bytesPerLine,
                                                           widthOf(rect), heightOf(rect), fore,
                                                           back, rows, rect.left, rect.top));
    } else if (canvas.ops.patternRect != nullptr) {
        canvas.ops.patternRect(&canvas.handle, &canvas.surface, &rect, fore, back, mode, rows);
    } else {
        patternByPixels(canvas, rect, fore, back, mode, rows);
    }
}

} // namespace quarlo
