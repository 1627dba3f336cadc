#include "draw/color.h"

#include "draw/surface.h"
#include "raster/kernel/transfer.h"

#include <quarlo/handle.h>

using quarlo::kernel::channelShift;
using quarlo::kernel::shiftBy;

namespace quarlo {
namespace {

/// Colour mode 1 converts on device surfaces too; any other mode on memory surfaces only.
constexpr uint8_t kConvertEverywhere = 1;

uint32_t convert(const GDrawHandle& handle, uint32_t color, uint32_t redMask, uint32_t greenMask,
                 uint32_t blueMask) {
    const uint32_t red = color >> 16 & 0xFF;
    const uint32_t green = color >> 8 & 0xFF;
    const uint32_t blue = color & 0xFF;
    return (shiftBy(red, handle.redShift) & redMask) |
           (shiftBy(green, handle.greenShift) & greenMask) |
           (shiftBy(blue, handle.blueShift) & blueMask);
}

uint32_t pixelValue(const GDrawHandle& handle, uint32_t color) {
    if (handle.colorMode == 0 || color == G_NO_COLOR) {
        return color;
    }
    const GVram& target = *handle.target;
    if (!isDeviceSurface(target)) {
        return target.colorType == G_COLOR_DIRECT
                   ? convert(handle, color, target.redMask, target.greenMask, target.blueMask)
                   : color;
    }
    return handle.colorMode == kConvertEverywhere
               ? convert(handle, color, handle.modeRedMask, handle.modeGreenMask,
                         handle.modeBlueMask)
               : color;
}

} // namespace

void setChannelShifts(GDrawHandle& handle, uint32_t red, uint32_t green, uint32_t blue) {
    handle.redShift = static_cast<int8_t>(channelShift(red));
    handle.greenShift = static_cast<int8_t>(channelShift(green));
    handle.blueShift = static_cast<int8_t>(channelShift(blue));
}

void reconvertColors(GDrawHandle& handle) {
    GDSetForeColor(&handle, handle.foreColor);
    GDSetBackColor(&handle, handle.backColor);
    GDSetPenColor(&handle, handle.penColor);
}

} // namespace quarlo

using quarlo::pixelValue;

void GDSetForeColor(GDrawHandle* handle, uint32_t color) {
    handle->foreColor = color;
    handle->forePixel = pixelValue(*handle, color);
}

void GDSetBackColor(GDrawHandle* handle, uint32_t color) {
    handle->backColor = color;
    handle->backPixel = pixelValue(*handle, color);
}

void GDSetPenColor(GDrawHandle* handle, uint32_t color) {
    handle->penColor = color;
    handle->penPixel = pixelValue(*handle, color);
}

void GDSetFillColor(GDrawHandle* handle, uint32_t fore, uint32_t back) {
    GDSetForeColor(handle, fore);
    GDSetBackColor(handle, back);
}

void GDSetColorMode(GDrawHandle* handle, uint8_t enable, uint32_t redMask, uint32_t greenMask,
                    uint32_t blueMask) {
    if (handle == nullptr) {
        return;
    }
    handle->colorMode = enable;
    handle->modeRedMask = redMask;
    handle->modeGreenMask = greenMask;
    handle->modeBlueMask = blueMask;
    quarlo::setChannelShifts(*handle, redMask, greenMask, blueMask);
    if (enable != 0) {
        quarlo::reconvertColors(*handle);
    }
}
