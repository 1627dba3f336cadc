#include "text/glyph.h"

#include "draw/clip.h"
#include "geometry/view.h"

#include <algorithm>

namespace quarlo {
namespace {

/// The visible part of a glyph's box, and where the box lies.
struct VisibleGlyph {
    const GGlyphRequest& glyph;
    GPoint origin;
    GRect area;

    int32_t firstColumn() const { return area.left - origin.x; }
    const uint8_t* row(int32_t y) const {
        return glyph.bits + (y - origin.y) * ptrdiff_t{rowBytes(glyph)};
    }
};

void blitByKernel(const Canvas& canvas, const VisibleGlyph& visible, uint32_t pixel) {
    const GRect& area = visible.area;
    const kernel::GlyphBits bits{visible.row(area.top), rowBytes(visible.glyph),
                                 visible.glyph.bitsPerPixel, visible.firstColumn()};
    uint8_t* const end =
        canvas.kernels->glyph(canvas.addressOf(area.left, area.top), canvas.surface.bytesPerLine,
                              bits, widthOf(area), heightOf(area), pixel);
    if (end != nullptr) {
        canvas.leaveCell(pixel, end);
    }
}

/// By coverage where the operations know it and the glyph has more than one bit a pixel. Levels
/// have four bits at most.
void plot(const Canvas& canvas, int32_t x, int32_t y, uint32_t pixel, int32_t bits,
          uint32_t value) {
    const int32_t mode = canvas.handle.drawingMode;
    if (bits > 1 && canvas.ops.coveragePixel != nullptr) {
        const auto level = static_cast<int32_t>(bits == 8 ? value >> 4 : value);
        canvas.ops.coveragePixel(&canvas.handle, &canvas.surface, low16(x), low16(y), pixel, mode,
                                 level);
    } else {
        canvas.setPixel(low16(x), low16(y), pixel, mode);
    }
}

void blitBySlots(const Canvas& canvas, const VisibleGlyph& visible, uint32_t pixel) {
    const GRect& area = visible.area;
    const int32_t bits = visible.glyph.bitsPerPixel;
    for (int32_t y = area.top; y <= area.bottom; ++y) {
        const uint8_t* const row = visible.row(y);
        int32_t bit = visible.firstColumn() * bits;
        for (int32_t x = area.left; x <= area.right; ++x, bit += bits) {
            const uint32_t byte = row[bit >> 3];
            const uint32_t value = byte >> (8 - (bit & 7) - bits) & ((1U << bits) - 1);
            if (value != 0) {
                plot(canvas, x, y, pixel, bits, value);
            }
        }
    }
}

void blit(const Canvas& canvas, const VisibleGlyph& visible) {
    const uint32_t pixel = canvas.handle.penPixel;
    if (pixel == G_NO_COLOR || visible.glyph.bits == nullptr) {
        return;
    }
    if (canvas.kernels != nullptr) {
        blitByKernel(canvas, visible, pixel);
    } else {
        blitBySlots(canvas, visible, pixel);
    }
}

void fillBackground(const Canvas& canvas, const GRect& area) {
    const GDrawHandle& handle = canvas.handle;
    if ((handle.textMode & G_TEXT_TRANSPARENT) == 0 && handle.backPixel != G_NO_COLOR) {
        fillRect(canvas, area, handle.backPixel, handle.drawingMode);
    }
}

/// Takes the pen on by a glyph's width, by way of the surface. Where the glyph begins there.
GPoint advancePen(GDrawHandle& handle, int32_t width) {
    GPoint origin = handle.penPos;
    mapToScreen(handle, origin);
    GPoint next{low16(origin.x + width), origin.y};
    mapFromScreen(handle, next);
    handle.penPos = next;
    return origin;
}

} // namespace

bool hasBitmap(const GGlyphRequest& glyph) {
    const int32_t bits = glyph.bitsPerPixel;
    return glyph.width > 0 && glyph.height > 0 &&
           (bits == 1 || bits == 2 || bits == 4 || bits == 8);
}

void drawGlyph(const Canvas& canvas, const GGlyphRequest& glyph) {
    const GPoint origin = advancePen(canvas.handle, glyph.width);
    if (!hasBitmap(glyph)) {
        return;
    }
    const GRect& limit = canvas.area;
    const int32_t right = std::min<int32_t>(origin.x + glyph.width - 1, limit.right);
    const int32_t bottom = std::min<int32_t>(origin.y + glyph.height - 1, limit.bottom);
    const GRect area{std::max(origin.x, limit.left), std::max(origin.y, limit.top), low16(right),
                     low16(bottom)};
    if (!isValid(area)) {
        return;
    }
    fillBackground(canvas, area);
    blit(canvas, {glyph, origin, area});
}

} // namespace quarlo
