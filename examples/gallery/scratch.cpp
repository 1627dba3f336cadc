#include "scratch.h"

#include "page.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

GVram directFormat(int16_t bits, uint32_t red, uint32_t green, uint32_t blue) {
    GVram format = {};
    format.bitsPerPixel = bits;
    format.colorType = G_COLOR_DIRECT;
    format.redMask = red;
    format.greenMask = green;
    format.blueMask = blue;
    return format;
}

} // namespace

GVram format8() {
    return directFormat(8, 0xE0, 0x1C, 0x03);
}

GVram format555() {
    return directFormat(16, 0x7C00, 0x03E0, 0x001F);
}

GVram format565() {
    return directFormat(16, 0xF800, 0x07E0, 0x001F);
}

GVram format24() {
    return directFormat(24, 0x0000FF, 0x00FF00, 0xFF0000);
}

GVram paletteFormat(std::vector<uint32_t>& colors) {
    GVram format = directFormat(8, 0xFF0000, 0x00FF00, 0x0000FF);
    format.colorType = G_COLOR_PALETTE;
    format.paletteCount = static_cast<uint16_t>(colors.size());
    format.palette = colors.data();
    return format;
}

Scratch::Scratch(int width, int height, GVram format) : handle_(GDOpenDrawHandle(0, 0)) {
    if (handle_ == nullptr) {
        return;
    }
    format.width = static_cast<int16_t>(width);
    format.height = static_cast<int16_t>(height);
    if (GDSetVram(handle_, G_MEMORY_SURFACE, GDCreateVram(&format)) == 0) {
        GDCloseDrawHandle(handle_);
        handle_ = nullptr;
        return;
    }
    GDSetColorMode(handle_, 1, format.redMask, format.greenMask, format.blueMask);
    resetState(handle_);
}

Scratch::~Scratch() {
    GVram* const surface = GDGetVram(handle_);
    GDCloseDrawHandle(handle_);
    GDDeleteVram(surface);
}

void Scratch::copyTo(GDrawHandle* handle, int left, int top, int mode) const {
    GDSetClipRect(handle_, nullptr); // a transfer reads only inside it
    const GVram* const surface = GDGetVram(handle_);
    GDBitBlt(handle, surface, 0, 0, surface->width, surface->height, GDGetVram(handle),
             static_cast<int16_t>(left), static_cast<int16_t>(top), mode);
}

} // namespace gallery
