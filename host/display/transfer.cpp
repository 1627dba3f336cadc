// Block transfers onto device surfaces.
#include "display/device_drawing.h"

#include "raster/kernel/transfer.h"

#include <quarlo/pixel_ops.h>

#include <optional>

namespace gpi {
namespace {

using quarlo::kernel::PixelLayout;
using quarlo::kernel::Transfer;

/// What a transfer reads from.
struct Source {
    const uint8_t* pixels;
    ptrdiff_t stride;
    GRect area; ///< all that can be read
    PixelLayout layout;
    bool palette;
};

Source sourceOf(const Page& page) {
    return {page.pixels(), page.stride(), page.whole(), page.layout(), page.format().palette};
}

/// A surface that is not the display's: its record is all that is known of it.
std::optional<Source> sourceOf(const GVram& surface) {
    const int bits = surface.bitsPerPixel;
    const bool readable = surface.pixels != nullptr && surface.width > 0 && surface.height > 0 &&
                          (bits == 8 || bits == 16 || bits == 24) &&
                          surface.bytesPerLine >= surface.width * (bits / 8);
    if (!readable) {
        return std::nullopt;
    }
    const bool palette = surface.colorType == G_COLOR_PALETTE;
    if (palette && surface.palette == nullptr) {
        return std::nullopt;
    }
    const GRect whole = wholeArea(surface.width, surface.height);
    return Source{surface.pixels,
                  surface.bytesPerLine,
                  intersection(whole, surface.bounds),
                  {bits, surface.redMask, surface.greenMask, surface.blueMask,
                   palette ? surface.palette : nullptr,
                   palette ? uint32_t{surface.paletteCount} : 0},
                  palette};
}

bool sameFormat(const PixelLayout& a, const PixelLayout& b) {
    return a.bitsPerPixel == b.bitsPerPixel && a.red == b.red && a.green == b.green &&
           a.blue == b.blue;
}

/// Rows in the order in which none is overwritten before it is read.
Transfer ordered(Transfer transfer, bool downwards) {
    if (downwards) {
        transfer.to += (transfer.height - 1) * transfer.toStride;
        transfer.from += (transfer.height - 1) * transfer.fromStride;
        transfer.toStride = -transfer.toStride;
        transfer.fromStride = -transfer.fromStride;
    }
    return transfer;
}

} // namespace

bool DeviceDrawing::transfer(const GVram* source, int sourceX, int sourceY, int width, int height,
                             const GVram* destination, int x, int y, int32_t mode) {
    Page* const page = display_.pageOf(destination);
    if (page == nullptr || source == nullptr || mode < G_MODE_COPY || mode > G_MODE_XOR) {
        return false;
    }
    const Page* const sourcePage = display_.pageOf(source);
    const auto from = sourcePage != nullptr ? sourceOf(*sourcePage) : sourceOf(*source);
    if (!from || (page->format().palette && !from->palette)) {
        return false;
    }
    if (isEmpty(from->area)) {
        return true;
    }
    // Cut to the source, carry the cut over, cut to the destination.
    const GRect read = clipped(from->area, sourceX, sourceY, width, height);
    if (isEmpty(read)) {
        return true;
    }
    const int64_t offsetX = int64_t{x} - sourceX;
    const int64_t offsetY = int64_t{y} - sourceY;
    const GRect written = clipped(page->limit(), read.left + offsetX, read.top + offsetY,
                                  widthOf(read), heightOf(read));
    if (isEmpty(written)) {
        return true;
    }
    const auto fromX = static_cast<ptrdiff_t>(written.left - offsetX);
    const auto fromY = static_cast<ptrdiff_t>(written.top - offsetY);
    const ptrdiff_t fromBytes = from->layout.bitsPerPixel / 8;
    const Transfer transfer{page->at(written.left, written.top),
                            page->stride(),
                            from->pixels + fromY * from->stride + fromX * fromBytes,
                            from->stride,
                            widthOf(written),
                            heightOf(written)};
    const bool downwards = sourcePage == page && offsetY > 0;
    if (sourcePage == page && offsetX == 0 && offsetY == 0) {
        return true;
    }
    const PixelLayout to = page->layout();
    if (sameFormat(from->layout, to)) {
        copyRect(ordered(transfer, downwards), page->format().bytes(), mode);
    } else {
        convertRect(transfer, from->layout, to, mode);
    }
    return true;
}

} // namespace gpi
