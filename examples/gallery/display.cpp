#include "display.h"

#include "page.h"
#include "sheet.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <cstring>

namespace gallery {
namespace {

/// A memory surface of a page's size: of the display's format, or of the display's depth with
/// channels in the pixel where the display has a palette and `indexed` is false.
GVram* makePage(const GVram& display, bool indexed) {
    if (display.colorType == G_COLOR_PALETTE && !indexed) {
        return GDCreateVVram(kPageWidth, kPageHeight, display.bitsPerPixel);
    }
    GVram descriptor = display;
    descriptor.width = kPageWidth;
    descriptor.height = kPageHeight;
    return GDCreateVram(&descriptor);
}

GDrawHandle* openOn(GVram* surface) {
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    if (handle == nullptr || GDSetVram(handle, G_MEMORY_SURFACE, surface) == 0) {
        GDDeleteVram(surface);
        GDCloseDrawHandle(handle);
        return nullptr;
    }
    GDSetColorMode(handle, 1, surface->redMask, surface->greenMask, surface->blueMask);
    return handle;
}

/// A handle does not delete the surface that it is closed with.
void closeWithSurface(GDrawHandle* handle) {
    GVram* const surface = GDGetVram(handle);
    GDCloseDrawHandle(handle);
    GDDeleteVram(surface);
}

} // namespace

Display::Display() {
    GetGPIFunction();
    started_ = GDInitPlatform(0) != 0;
    screen_ = started_ ? GDOpenDrawHandle(0, 0) : nullptr;
    if (screen_ == nullptr) {
        return;
    }
    const GVram& display = *GDGetVram(screen_);
    if (display.colorType == G_COLOR_PALETTE) {
        indexed_ = makePage(display, true);
    }
    if (display.colorType != G_COLOR_PALETTE || indexed_ != nullptr) {
        page_ = openOn(makePage(display, false));
    }
}

Display::~Display() {
    closeWithSurface(page_);
    GDDeleteVram(indexed_);
    GDCloseDrawHandle(screen_);
    if (started_) {
        GDQuitPlatform();
    }
}

void Display::show(size_t sheet) {
    drawSheet(page_, sheet);
    transfer();
    GDFlushScreenForce(screen_, 0, 0, kPageWidth, kPageHeight);
}

/// A display's palette is at first that of a surface of 8 bits a pixel: the index spells the
/// colour. So the page's pixels are indexes as they are.
void Display::transfer() {
    const GVram* source = GDGetVram(page_);
    if (indexed_ != nullptr) {
        std::memcpy(indexed_->pixels, source->pixels, size_t{kPageWidth} * kPageHeight);
        source = indexed_;
    }
    GDBitBlt(screen_, source, 0, 0, kPageWidth, kPageHeight, GDGetVram(screen_), 0, 0, G_MODE_COPY);
}

bool Display::write(const std::string& path) const {
    return GPIHostWritePng(path.c_str()) != 0;
}

} // namespace gallery
