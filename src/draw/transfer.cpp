// Block transfer between surfaces.
#include "raster/kernel/transfer.h"
#include "draw/surface.h"
#include "geometry/view.h"
#include "platform/service_table.h"

#include <quarlo/transfer.h>

#include <algorithm>
#include <type_traits>

namespace quarlo {
namespace {

using DeviceTransfer = Service<std::remove_pointer_t<GPIBlockTransfer>, 8>;

/// Two corresponding rectangles of the same size. What is cut from one is cut from the other.
struct Pair {
    GRect source;
    GRect destination;

    /// False when one of them wrapped around at 16 bits.
    bool isValid() const { return quarlo::isValid(source) && quarlo::isValid(destination); }

    bool cutDestination(const GRect& limit) { return cut(destination, source, limit); }
    bool cutSource(const GRect& limit) { return cut(source, destination, limit); }

  private:
    static bool cut(GRect& rect, GRect& other, const GRect& limit) {
        const GRect whole = rect;
        if (!clipTo(rect, limit)) {
            return false;
        }
        other = {low16(other.left + rect.left - whole.left),
                 low16(other.top + rect.top - whole.top),
                 low16(other.right + rect.right - whole.right),
                 low16(other.bottom + rect.bottom - whole.bottom)};
        return true;
    }
};

GRect anchored(const GRect& corner, int32_t width, int32_t height) {
    return {corner.left, corner.top, low16(corner.left + width - 1),
            low16(corner.top + height - 1)};
}

/// Rounding in virtual mode may leave the two rectangles of different size: the smaller counts.
Pair mappedPair(const GDrawHandle& handle, GRect source, GRect destination) {
    mapToScreen(handle, source);
    mapToScreen(handle, destination);
    const int32_t width = std::min(widthOf(source), widthOf(destination));
    const int32_t height = std::min(heightOf(source), heightOf(destination));
    return {anchored(source, width, height), anchored(destination, width, height)};
}

bool isSameFormat(const GVram& a, const GVram& b) {
    return a.bitsPerPixel == b.bitsPerPixel && a.redMask == b.redMask &&
           a.greenMask == b.greenMask && a.blueMask == b.blueMask;
}

/// What a palette surface without a palette is read by: every index lies past its end.
constexpr uint32_t kEmptyPalette[1] = {};

kernel::PixelLayout layoutOf(const GVram& surface) {
    kernel::PixelLayout layout{surface.bitsPerPixel, surface.redMask, surface.greenMask,
                               surface.blueMask,     nullptr,         0};
    if (surface.colorType == G_COLOR_PALETTE) {
        const bool present = surface.palette != nullptr;
        layout.palette = present ? surface.palette : kEmptyPalette;
        layout.paletteCount = present ? surface.paletteCount : 0;
    }
    return layout;
}

void transferPixels(const GVram& source, const GVram& destination, const Pair& pair, int32_t mode) {
    const GRect& from = pair.source;
    const GRect& to = pair.destination;
    const bool within = &source == &destination;
    if (within && from.left == to.left && from.top == to.top) {
        return;
    }
    kernel::Transfer transfer{addressOf(destination, to.left, to.top),
                              destination.bytesPerLine,
                              addressOf(source, from.left, from.top),
                              source.bytesPerLine,
                              widthOf(to),
                              heightOf(to)};
    if (within && from.top < to.top) {
        transfer.to = addressOf(destination, to.left, to.bottom);
        transfer.from = addressOf(source, from.left, from.bottom);
        transfer.toStride = -transfer.toStride;
        transfer.fromStride = -transfer.fromStride;
    }
    if (isSameFormat(source, destination)) {
        kernel::copyRect(transfer, destination.bitsPerPixel >> 3, mode);
    } else {
        kernel::convertRect(transfer, layoutOf(source), layoutOf(destination), mode);
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDBitBlt(GDrawHandle* handle, const GVram* source, int16_t sourceX, int16_t sourceY,
              int16_t width, int16_t height, GVram* destination, int16_t destinationX,
              int16_t destinationY, int32_t mode) {
    if (handle == nullptr || source == nullptr || destination == nullptr ||
        !DeviceTransfer::bound() || width <= 0 || height <= 0) {
        return;
    }
    Pair pair = mappedPair(*handle, anchored({sourceX, sourceY, 0, 0}, width, height),
                           anchored({destinationX, destinationY, 0, 0}, width, height));
    if (!pair.isValid() || !pair.cutDestination(drawableOf(*destination)) ||
        !pair.cutSource(source->bounds)) {
        return;
    }
    if (source->colorType != G_COLOR_PALETTE && destination->colorType == G_COLOR_PALETTE) {
        return;
    }
    if (destination->id == 0) {
        DeviceTransfer::checked(handle, source, pair.source.left, pair.source.top,
                                low16(widthOf(pair.source)), low16(heightOf(pair.source)),
                                destination, pair.destination.left, pair.destination.top, mode);
        return;
    }
    if (hasPixels(*source) && hasPixels(*destination) &&
        pair.cutDestination(memoryOf(*destination)) && pair.cutSource(memoryOf(*source))) {
        transferPixels(*source, *destination, pair, mode);
    }
}
