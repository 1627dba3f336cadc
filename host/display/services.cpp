#include "display/services.h"

#include "font/cell.h"
#include "guard.h"
#include "platform.h"

#include <quarlo/handle.h>

namespace gpi {
namespace {

/// Runs an action on the display of a started platform; 0 when it is not started.
template <typename Action>
int32_t onDisplay(const Action& action) {
    return guarded(0, [&] { return screen() != nullptr && action(screen()->display) ? 1 : 0; });
}

/// Draws on a started platform; 0 when it is not started.
template <typename Action>
int32_t drawing(const Action& action) {
    return guarded(0, [&] { return screen() != nullptr && action(screen()->drawing) ? 1 : 0; });
}

/// The page that a handle draws on: its target, if that is a page, else page 0.
Page* targetOf(Display& display, const GDrawHandle* handle) {
    Page* const page = handle != nullptr ? display.pageOf(handle->target) : nullptr;
    return page != nullptr ? page : display.page(0);
}

/// Bits a pixel of the glyphs that a handle's font gives; 4 for a font of another platform's.
int glyphDepth(const GDrawHandle* handle) {
    const FontStore* const fonts = platform().fonts.get();
    Font* const font = fonts != nullptr && handle != nullptr ? fonts->find(handle->font) : nullptr;
    return font != nullptr ? font->style().bits : 4;
}

} // namespace

GVram* getSurface(GDrawHandle* /*handle*/, int32_t number) {
    return guarded<GVram*>(nullptr, [&]() -> GVram* {
        Page* const page = screen() != nullptr ? screen()->display.page(number) : nullptr;
        return page != nullptr ? &page->record() : nullptr;
    });
}

int32_t releaseSurface(GDrawHandle* /*handle*/, GVram* surface) {
    // Pages keep their picture until the platform stops: another handle may ask for them again.
    return onDisplay([&](Display& display) { return display.pageOf(surface) != nullptr; });
}

int32_t countSurfaces() {
    return screen() != nullptr ? kPageCount : 0;
}

int32_t setPixel(GDrawHandle* /*handle*/, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                 int32_t mode) {
    return drawing([&](DeviceDrawing& draw) { return draw.setPixel(surface, x, y, pixel, mode); });
}

int32_t span(GDrawHandle* /*handle*/, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
             int32_t mode, int16_t count) {
    return drawing(
        [&](DeviceDrawing& draw) { return draw.span(surface, x, y, pixel, mode, count); });
}

int32_t nextPixel() {
    return drawing([](DeviceDrawing& draw) { return draw.nextPixel(); });
}

int32_t coveragePixel(GDrawHandle* handle, GVram* surface, int16_t x, int16_t y, uint32_t pixel,
                      int32_t mode, int32_t level) {
    return drawing([&](DeviceDrawing& draw) {
        const int32_t share = fifteenths(level, glyphDepth(handle));
        return draw.coveragePixel(surface, x, y, pixel, mode, share);
    });
}

int32_t fillRect(GDrawHandle* /*handle*/, GVram* surface, const GRect* rect, uint32_t pixel,
                 int32_t mode) {
    return drawing([&](DeviceDrawing& draw) {
        return rect != nullptr && draw.fillRect(surface, *rect, pixel, mode);
    });
}

int32_t patternRect(GDrawHandle* /*handle*/, GVram* surface, const GRect* rect, uint32_t fore,
                    uint32_t back, int32_t mode, const uint8_t pattern[8]) {
    return drawing([&](DeviceDrawing& draw) {
        return rect != nullptr && draw.patternRect(surface, *rect, fore, back, mode, pattern);
    });
}

int32_t fillPatternNotice(GDrawHandle* /*handle*/, GVram* surface, uint32_t fore, uint32_t back,
                          const uint8_t pattern[8]) {
    return drawing(
        [&](DeviceDrawing& draw) { return draw.preparePattern(surface, fore, back, pattern); });
}

int32_t blockTransfer(GDrawHandle* /*handle*/, const GVram* source, int16_t sourceX,
                      int16_t sourceY, int16_t width, int16_t height, GVram* destination,
                      int16_t destinationX, int16_t destinationY, int32_t mode) {
    return drawing([&](DeviceDrawing& draw) {
        return draw.transfer(source, sourceX, sourceY, width, height, destination, destinationX,
                             destinationY, mode);
    });
}

namespace {

int32_t flushArea(int16_t left, int16_t top, int16_t width, int16_t height, bool now) {
    return onDisplay([&](Display& display) {
        const GRect whole = display.page(0)->whole();
        return display.flush(clipped(whole, left, top, width, height), now);
    });
}

} // namespace

int32_t flush(GDrawHandle* /*handle*/, int16_t left, int16_t top, int16_t width, int16_t height) {
    return flushArea(left, top, width, height, false);
}

int32_t flushForce(GDrawHandle* /*handle*/, int16_t left, int16_t top, int16_t width,
                   int16_t height) {
    return flushArea(left, top, width, height, true);
}

GWord setPalette(GDrawHandle* /*handle*/, int32_t first, int32_t count, const uint32_t* colors) {
    const bool valid = colors != nullptr && count > 0;
    return static_cast<GWord>(onDisplay([&](Display& display) {
        return valid && display.setPalette(first, {colors, static_cast<size_t>(count)});
    }));
}

GWord getPalette(GDrawHandle* /*handle*/, int32_t first, int32_t count, uint32_t* colors) {
    const bool valid = colors != nullptr && count > 0;
    return static_cast<GWord>(onDisplay([&](Display& display) {
        return valid && display.getPalette(first, {colors, static_cast<size_t>(count)});
    }));
}

int32_t setDrawableRegion(GDrawHandle* handle, const GRect* region) {
    return onDisplay([&](Display& display) {
        return region != nullptr && targetOf(display, handle)->addRegion(*region);
    });
}

int32_t removeDrawableRegion(GDrawHandle* handle, const GRect* region) {
    return onDisplay([&](Display& display) {
        return region != nullptr && targetOf(display, handle)->removeRegion(*region);
    });
}

GWord setZoomScale(GDrawHandle* /*handle*/, int32_t x, int32_t y) {
    return static_cast<GWord>(onDisplay([&](Display& display) { return display.setZoom(x, y); }));
}

GWord setScrollPos(GDrawHandle* /*handle*/, int32_t x, int32_t y) {
    return static_cast<GWord>(onDisplay([&](Display& display) { return display.setScroll(x, y); }));
}

GWord changeVirtualSurface(GWord number, GWord /*reserved*/) {
    return static_cast<GWord>(onDisplay([&](Display& display) {
        return number < GWord{kPageCount} && display.showPage(static_cast<int32_t>(number));
    }));
}

} // namespace gpi
