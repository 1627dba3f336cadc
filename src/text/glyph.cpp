#include "text/glyph.h"

#include "draw/clip.h"
#include "geometry/view.h"

#include <algorithm>

namespace quarlo {
namespace {

/// The visible part of a glyph's box, both ends included, and where the box lies.
struct VisibleGlyph {
    const GGlyphRequest& glyph;
    GPoint origin;
    int32_t left;
    int32_t top;
    int32_t right;
    int32_t bottom;

    VisibleGlyph(const GGlyphRequest& request, const GPoint& at, const GRect& limit)
        : glyph(request),
          origin(at),
          left(std::max(at.x, limit.left)),
          top(std::max(at.y, limit.top)),
          right(std::min<int32_t>(at.x + request.width - 1, limit.right)),
          bottom(std::min<int32_t>(at.y + request.height - 1, limit.bottom)) {}

    bool isEmpty() const { return left > right || top > bottom; }
    GRect area() const { return {low16(left), low16(top), low16(right), low16(bottom)}; }
    int32_t firstColumn() const { return left - origin.x; }
    const uint8_t* row(int32_t y) const {
        return glyph.bits + (y - origin.y) * ptrdiff_t{rowBytes(glyph)};
    }
};

/// What a glyph is drawn in. Colours of -1 draw nothing.
struct GlyphColors {
    uint32_t fore;
    uint32_t back;

    explicit GlyphColors(const GDrawHandle& handle)
        : fore(handle.penPixel),
          back((handle.textMode & G_TEXT_TRANSPARENT) == 0 ? handle.backPixel : G_NO_COLOR) {}
};

void drawByKernel(const Canvas& canvas, const VisibleGlyph& visible, const GlyphColors& colors) {
    const kernel::Kernels& kernels = *canvas.kernels;
    const kernel::GlyphBits bits{visible.row(visible.top), rowBytes(visible.glyph),
                                 visible.glyph.bitsPerPixel, visible.firstColumn()};
    const bool opaque = colors.back != G_NO_COLOR;
    uint8_t* const at = canvas.addressOf(visible.left, visible.top);
    const ptrdiff_t stride = canvas.surface.bytesPerLine;
    const int32_t width = visible.right - visible.left + 1;
    const int32_t height = visible.bottom - visible.top + 1;
    uint8_t* const end =
        opaque
            ? kernels.opaqueGlyph(at, stride, bits, width, height, colors.fore, colors.back)
            : kernels.transparentGlyph(at, stride, bits, width, height, colors.fore, colors.back);
    if (end != nullptr) {
        canvas.leaveCell(colors.fore, end);
    } else if (opaque) {
        canvas.leaveCell(colors.back,
                         canvas.addressOf(visible.right, visible.bottom) + kernels.bytesPerPixel);
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
    const int32_t bits = visible.glyph.bitsPerPixel;
    for (int32_t y = visible.top; y <= visible.bottom; ++y) {
        const uint8_t* const row = visible.row(y);
        int32_t bit = visible.firstColumn() * bits;
        for (int32_t x = visible.left; x <= visible.right; ++x, bit += bits) {
            const uint32_t byte = row[bit >> 3];
            const uint32_t value = byte >> (8 - (bit & 7) - bits) & ((1U << bits) - 1);
            if (value != 0) {
                plot(canvas, x, y, pixel, bits, value);
            }
        }
    }
}

/// Set pixels over the background, one way or the other.
void draw(const Canvas& canvas, const VisibleGlyph& visible) {
    const GlyphColors colors(canvas.handle);
    const bool hasPixels = colors.fore != G_NO_COLOR && visible.glyph.bits != nullptr;
    if (hasPixels && canvas.kernels != nullptr) {
        drawByKernel(canvas, visible, colors);
        return;
    }
    fillRect(canvas, visible.area(), colors.back, canvas.handle.drawingMode);
    if (hasPixels) {
        blitBySlots(canvas, visible, colors.fore);
    }
}

/// Takes the pen on by a glyph's width, by way of the surface. Where the glyph begins there.
GPoint advancePen(GDrawHandle& handle, int32_t width) {
    if (!isVirtual(handle)) {
        // There and back is a move of x alone. A pen that is written in halves and read whole for
        // the next glyph would wait for both to leave the processor's store buffer.
        const int32_t x = handle.penPos.x;
        const int32_t y = handle.penPos.y;
        handle.penPos.x = low16(x + width);
        return {low16(x - handle.localOrigin.x), low16(y - handle.localOrigin.y)};
    }
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
    const VisibleGlyph visible(glyph, origin, canvas.area);
    if (!visible.isEmpty()) {
        draw(canvas, visible);
    }
}

} // namespace quarlo
