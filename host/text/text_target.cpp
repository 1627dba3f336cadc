#include "text/text_target.h"

#include "draw/surface.h"
#include "font/cell.h"

namespace gpi {
namespace {

int32_t strideOf(const Glyph& glyph) {
    return (glyph.width * glyph.bitsPerPixel + 7) / 8;
}

/// Level of a pixel of a glyph's bitmap.
int levelAt(const Glyph& glyph, int x, int y) {
    const int bits = glyph.bitsPerPixel;
    const int bit = x * bits;
    const uint32_t byte = glyph.bits[y * strideOf(glyph) + bit / 8];
    return static_cast<int>(byte >> (8 - bits - bit % 8) & ((1U << bits) - 1));
}

} // namespace

TextTarget::TextTarget(GDrawHandle& handle, const GRect* clip, Display& display,
                       DeviceDrawing& device)
    : surface_(*handle.target),
      mode_(handle.drawingMode),
      kernels_(quarlo::kernel::kernelsFor(surface_.bitsPerPixel, mode_)),
      area_(clip != nullptr ? *clip : quarlo::drawableOf(surface_)) {
    if (Page* const page = display.pageOf(&surface_)) {
        device_ = &device;
        kernels_ = quarlo::kernel::kernelsFor(page->format().bits, mode_);
        pixels_ = page->at(0, 0);
        stride_ = page->stride();
        area_ = intersection(area_, page->limit());
    } else {
        pixels_ = surface_.pixels;
        stride_ = surface_.bytesPerLine;
        area_ =
            pixels_ != nullptr ? intersection(area_, quarlo::memoryOf(surface_)) : quarlo::kNowhere;
    }
}

uint8_t* TextTarget::addressOf(int x, int y) const {
    return pixels_ + y * stride_ + x * ptrdiff_t{kernels_->bytesPerPixel};
}

void TextTarget::fill(int x, int y, int width, int height, uint32_t pixel) const {
    const GRect box = clipped(area_, x, y, width, height);
    if (kernels_ != nullptr && pixel != G_NO_COLOR && !isEmpty(area_) && !isEmpty(box)) {
        kernels_->fill(addressOf(box.left, box.top), stride_, widthOf(box), heightOf(box), pixel);
    }
}

void TextTarget::blit(const Glyph& glyph, int x, int y, uint32_t pixel) const {
    const GRect box = clipped(area_, x, y, glyph.width, glyph.height);
    if (kernels_ == nullptr || pixel == G_NO_COLOR || isEmpty(area_) || isEmpty(box)) {
        return;
    }
    if (device_ != nullptr && glyph.bitsPerPixel > 1) {
        blitLevels(glyph, x, y, box, pixel);
        return;
    }
    const int32_t stride = strideOf(glyph);
    const quarlo::kernel::GlyphBits bits{glyph.bits + (box.top - y) * ptrdiff_t{stride}, stride,
                                         glyph.bitsPerPixel, box.left - x};
    kernels_->transparentGlyph(addressOf(box.left, box.top), stride_, bits, widthOf(box),
                               heightOf(box), pixel, G_NO_COLOR);
}

void TextTarget::blitLevels(const Glyph& glyph, int x, int y, const GRect& area,
                            uint32_t pixel) const {
    for (int row = area.top; row <= area.bottom; ++row) {
        for (int column = area.left; column <= area.right; ++column) {
            const int level = levelAt(glyph, column - x, row - y);
            if (level != 0) {
                device_->coveragePixel(&surface_, column, row, pixel, mode_,
                                       fifteenths(level, glyph.bitsPerPixel));
            }
        }
    }
}

void TextTarget::blitBlocks(const Glyph& glyph, int x, int y, int blockWidth, int blockHeight,
                            uint32_t pixel) const {
    for (int row = 0; row < glyph.height; ++row) {
        for (int column = 0; column < glyph.width; ++column) {
            if (levelAt(glyph, column, row) != 0) {
                fill(x + column * blockWidth, y + row * blockHeight, blockWidth, blockHeight,
                     pixel);
            }
        }
    }
}

} // namespace gpi
