#include "display/area.h"
#include "file/error.h"
#include "jpeg/picture.h"
#include "raster/kernel/transfer.h"

#include <quarlo/pixel_ops.h>

#include <algorithm>
#include <limits>

namespace gpi {
namespace {

using quarlo::kernel::PixelLayout;
using quarlo::kernel::Transfer;

constexpr PixelLayout kPictureLayout = {24, 0x0000FF, 0x00FF00, 0xFF0000, nullptr, 0};

bool canBeDrawnOn(const GVram& surface) {
    const int bits = surface.bitsPerPixel;
    const bool palette = surface.colorType == G_COLOR_PALETTE;
    return surface.pixels != nullptr && surface.width > 0 && surface.height > 0 &&
           (bits == 8 || bits == 16 || bits == 24) &&
           surface.bytesPerLine >= surface.width * (bits / 8) &&
           (!palette || (bits == 8 && surface.palette != nullptr && surface.paletteCount > 0));
}

/// The palette entry nearest to a colour.
uint8_t nearestEntry(const GVram& surface, const uint8_t* color) {
    const auto square = [](int value) { return value * value; };
    int best = std::numeric_limits<int>::max();
    uint8_t nearest = 0;
    const int count = std::min<int>(surface.paletteCount, 256);
    for (int entry = 0; entry < count; ++entry) {
        const uint32_t rgb = surface.palette[entry];
        const int distance = square(static_cast<int>(rgb >> 16 & 0xFF) - color[0]) +
                             square(static_cast<int>(rgb >> 8 & 0xFF) - color[1]) +
                             square(static_cast<int>(rgb & 0xFF) - color[2]);
        if (distance < best) {
            best = distance;
            nearest = static_cast<uint8_t>(entry);
        }
    }
    return nearest;
}

void drawByPalette(const Transfer& transfer, const GVram& surface) {
    for (int y = 0; y < transfer.height; ++y) {
        const uint8_t* from = transfer.from + y * transfer.fromStride;
        uint8_t* const to = transfer.to + y * transfer.toStride;
        for (int x = 0; x < transfer.width; ++x, from += 3) {
            to[x] = nearestEntry(surface, from);
        }
    }
}

} // namespace

void drawPicture(const Picture& picture, const GVram& surface) {
    if (!canBeDrawnOn(surface)) {
        throw IoError(G_IO_ARGUMENT);
    }
    const GRect whole = wholeArea(surface.width, surface.height);
    const GRect drawable =
        surface.drawable != nullptr ? intersection(whole, *surface.drawable) : whole;
    const GRect area = clipped(drawable, 0, 0, picture.width, picture.height);
    if (isEmpty(drawable) || isEmpty(area)) {
        return;
    }
    const int bytes = surface.bitsPerPixel / 8;
    const ptrdiff_t stride = surface.bytesPerLine;
    const ptrdiff_t pictureStride = ptrdiff_t{picture.width} * 3;
    const Transfer transfer{surface.pixels + area.top * stride + ptrdiff_t{area.left} * bytes,
                            stride,
                            picture.pixels.data() + area.top * pictureStride +
                                ptrdiff_t{area.left} * 3,
                            pictureStride,
                            widthOf(area),
                            heightOf(area)};
    if (surface.colorType == G_COLOR_PALETTE) {
        drawByPalette(transfer, surface);
        return;
    }
    const PixelLayout layout{surface.bitsPerPixel, surface.redMask, surface.greenMask,
                             surface.blueMask,     nullptr,         0};
    convertRect(transfer, kPictureLayout, layout, G_MODE_COPY);
}

} // namespace gpi
