// The smallest platform that the library draws on: memory, one display of a single pixel for
// handles to open on, a block transfer that memory surfaces never reach, and glyphs that are there
// ready.
#include "text.h"

#include <gpi/gpi.h>

#include <cstdint>
#include <cstdlib>

namespace {

void* allocate(int32_t, uint32_t, int32_t size) {
    return size > 0 ? std::malloc(static_cast<size_t>(size)) : nullptr;
}

int32_t release(int32_t, uint32_t, void* block) {
    std::free(block);
    return 1;
}

GVram* displaySurface(GDrawHandle*, int32_t) {
    static uint8_t pixel[1];
    static GVram display = [] {
        GVram made{};
        made.width = 1;
        made.height = 1;
        made.bitsPerPixel = 8;
        made.bytesPerLine = 1;
        made.pixels = pixel;
        made.colorType = G_COLOR_DIRECT;
        return made;
    }();
    display.drawable = &display.bounds;
    return &display;
}

int32_t transferBlock(GDrawHandle*, const GVram*, int16_t, int16_t, int16_t, int16_t, GVram*,
                      int16_t, int16_t, int32_t) {
    return 0;
}

int32_t glyph(GFontRecord*, GGlyphRequest* request) {
    const char16_t unit = *request->text;
    if (unit < bench::kFirstLetter || unit > bench::kLastLetter) {
        return 0;
    }
    request->next = request->text + 1;
    request->width = bench::kGlyphWidth;
    request->height = bench::kGlyphHeight;
    request->bitsPerPixel = 1;
    request->bits = bench::glyphOf(static_cast<char>(unit)).data();
    return 1;
}

template <typename Service>
GPIFunction asFunction(Service* service) {
    return reinterpret_cast<GPIFunction>(service);
}

} // namespace

GPIFunction GPIGetService(int32_t number) {
    switch (number) {
    case GPI_SERVICE_GET_SURFACE:
        return asFunction(displaySurface);
    case GPI_SERVICE_BLOCK_TRANSFER:
        return asFunction(transferBlock);
    case GPI_SERVICE_GLYPH:
        return asFunction(glyph);
    case GPI_SERVICE_MEMORY_ALLOC:
        return asFunction(allocate);
    case GPI_SERVICE_MEMORY_FREE:
        return asFunction(release);
    default:
        return nullptr;
    }
}

int32_t GPIGetFontCount() {
    return 0;
}

void GPIShutdownEvents() {}

void GPITranslateMessage(GMessage*) {}

void GPIDispatchMessage(GMessage*) {}
