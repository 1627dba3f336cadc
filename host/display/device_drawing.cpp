#include "display/device_drawing.h"

#include "raster/kernel/kernels.h"

#include <quarlo/pixel_ops.h>

#include <algorithm>
#include <bit>

namespace gpi {
namespace {

using quarlo::kernel::Kernels;
using quarlo::kernel::kernelsFor;

const Kernels* kernelsOf(const Page* page, int32_t mode) {
    return page != nullptr ? kernelsFor(page->format().bits, mode) : nullptr;
}

void fillArea(Page& page, const Kernels& kernels, const GRect& area, uint32_t pixel) {
    if (!isEmpty(area)) {
        kernels.fill(page.at(area.left, area.top), page.stride(), widthOf(area), heightOf(area),
                     pixel);
    }
}

/// Moves one channel of `old` towards `pixel` by `level` fifteenths, rounded.
uint32_t mixChannel(uint32_t old, uint32_t pixel, uint32_t mask, int32_t level) {
    const int low = std::countr_zero(mask);
    const auto from = static_cast<int32_t>((old & mask) >> low);
    const auto to = static_cast<int32_t>((pixel & mask) >> low);
    const int32_t mixed = (from * (15 - level) + to * level + 7) / 15;
    return static_cast<uint32_t>(mixed) << low;
}

} // namespace

bool DeviceDrawing::setPixel(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode) {
    return span(surface, x, y, pixel, mode, 1);
}

bool DeviceDrawing::span(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode,
                         int count) {
    Page* const page = display_.pageOf(surface);
    const Kernels* const kernels = kernelsOf(page, mode);
    if (kernels == nullptr) {
        return false;
    }
    fillArea(*page, *kernels, clipped(page->limit(), x, y, count, 1), pixel);
    cursor_ = {page, x + std::max(count, 0), y, pixel, mode};
    return true;
}

bool DeviceDrawing::nextPixel() {
    if (!cursor_) {
        return false;
    }
    const Cursor at = *cursor_;
    return setPixel(&at.page->record(), at.x, at.y, at.pixel, at.mode);
}

bool DeviceDrawing::coveragePixel(const GVram* surface, int x, int y, uint32_t pixel, int32_t mode,
                                  int32_t level) {
    Page* const page = display_.pageOf(surface);
    const Kernels* const kernels = kernelsOf(page, mode);
    if (kernels == nullptr) {
        return false;
    }
    if (!contains(page->limit(), x, y)) {
        return true;
    }
    uint8_t* const at = page->at(x, y);
    const PixelFormat& format = page->format();
    if (format.palette || mode != G_MODE_COPY) {
        if (level >= 8) {
            kernels->putPixel(at, pixel);
        }
        return true;
    }
    const int32_t share = std::clamp(level, 0, 15);
    const uint32_t old = quarlo::kernel::readPixel(at, format.bits);
    kernels->putPixel(at, mixChannel(old, pixel, format.red, share) |
                              mixChannel(old, pixel, format.green, share) |
                              mixChannel(old, pixel, format.blue, share));
    return true;
}

bool DeviceDrawing::fillRect(const GVram* surface, const GRect& rect, uint32_t pixel,
                             int32_t mode) {
    Page* const page = display_.pageOf(surface);
    const Kernels* const kernels = kernelsOf(page, mode);
    if (kernels == nullptr) {
        return false;
    }
    fillArea(*page, *kernels, intersection(rect, page->limit()), pixel);
    return true;
}

bool DeviceDrawing::patternRect(const GVram* surface, const GRect& rect, uint32_t fore,
                                uint32_t back, int32_t mode, const uint8_t* pattern) {
    Page* const page = display_.pageOf(surface);
    const Kernels* const kernels = kernelsOf(page, mode);
    if (kernels == nullptr || (pattern == nullptr && !brush_)) {
        return false;
    }
    const GRect area = intersection(rect, page->limit());
    if (isEmpty(area)) {
        return true;
    }
    if (pattern == nullptr) {
        fore = brush_->fore;
        back = brush_->back;
        pattern = brush_->rows;
    }
    kernels->fillPattern(page->at(area.left, area.top), page->stride(), widthOf(area),
                         heightOf(area), fore, back, pattern, area.left, area.top);
    return true;
}

bool DeviceDrawing::preparePattern(const GVram* surface, uint32_t fore, uint32_t back,
                                   const uint8_t pattern[8]) {
    if (display_.pageOf(surface) == nullptr || pattern == nullptr) {
        return false;
    }
    Brush brush{fore, back, {}};
    std::copy_n(pattern, 8, brush.rows);
    brush_ = brush;
    return true;
}

} // namespace gpi
