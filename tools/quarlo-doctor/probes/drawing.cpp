// Drawing on device surface 0. Where it has pixel memory, what was drawn is read back.
#include "probe.h"
#include "screen.h"

namespace doctor {
namespace {

constexpr uint32_t kFore = 0x5A;
constexpr uint32_t kBack = 0x21;
constexpr const char* kNoScreen = "has no surface of 16 x 16 pixels to draw on";
constexpr const char* kOtherPixels = "draws other pixels than it was told";

Complaint setsPixel(const Platform& platform) {
    Screen screen(platform);
    const auto set = platform.service<GPISetPixel>(GPI_SERVICE_SET_PIXEL);
    if (!screen.isUsable()) {
        return kNoScreen;
    }
    if (!screen.isReadable()) {
        set(&screen.handle, screen.surface, 3, 4, kFore, G_MODE_COPY);
        return "";
    }
    screen.clear();
    set(&screen.handle, screen.surface, 3, 4, kFore, G_MODE_COPY);
    if (!screen.holdsOnly({3, 4, 3, 4}, kFore)) {
        return kOtherPixels;
    }
    constexpr uint32_t kCombined[] = {kBack, kFore & kBack, kFore | kBack, kFore ^ kBack};
    for (int32_t mode = G_MODE_COPY; mode <= G_MODE_XOR; ++mode) {
        set(&screen.handle, screen.surface, 3, 4, kFore, G_MODE_COPY);
        set(&screen.handle, screen.surface, 3, 4, kBack, mode);
        if (screen.pixel(3, 4) != kCombined[mode]) {
            return "combines wrongly in drawing mode " + std::to_string(mode);
        }
    }
    return "";
}

Complaint drawsSpan(const Platform& platform) {
    Screen screen(platform);
    const auto span = platform.service<GPISpan>(GPI_SERVICE_SPAN);
    if (!screen.isUsable()) {
        return kNoScreen;
    }
    if (!screen.isReadable()) {
        span(&screen.handle, screen.surface, 2, 5, kFore, G_MODE_COPY, 7);
        return "";
    }
    screen.clear();
    span(&screen.handle, screen.surface, 2, 5, kFore, G_MODE_COPY, 0);
    span(&screen.handle, screen.surface, 2, 5, kFore, G_MODE_COPY, -1);
    if (!screen.holdsOnly({0, 0, -1, -1}, kFore)) {
        return "draws runs of no pixels";
    }
    span(&screen.handle, screen.surface, 2, 5, kFore, G_MODE_COPY, 7);
    return screen.holdsOnly({2, 5, 8, 5}, kFore) ? "" : kOtherPixels;
}

Complaint drawsNextPixel(const Platform& platform) {
    Screen screen(platform);
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : kNoScreen;
    }
    screen.clear();
    platform.service<GPISetPixel>(GPI_SERVICE_SET_PIXEL)(&screen.handle, screen.surface, 3, 4,
                                                         kFore, G_MODE_COPY);
    platform.service<GPINextPixel>(GPI_SERVICE_NEXT_PIXEL)();
    return screen.holdsOnly({3, 4, 4, 4}, kFore) ? "" : kOtherPixels;
}

/// Services 67 and 68.
template <int32_t Number>
Complaint fillsRect(const Platform& platform) {
    Screen screen(platform);
    const auto fill = platform.service<GPIFillRect>(Number);
    const GRect rect{2, 3, 9, 12};
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : kNoScreen;
    }
    screen.clear();
    fill(&screen.handle, screen.surface, &rect, kFore, G_MODE_COPY);
    if (!screen.holdsOnly(rect, kFore)) {
        return kOtherPixels;
    }
    fill(&screen.handle, screen.surface, &rect, kFore, G_MODE_XOR);
    return screen.holdsOnly(rect, 0) ? "" : "combines wrongly in drawing mode 3";
}

Complaint fillsPattern(const Platform& platform) {
    Screen screen(platform);
    const auto fill = platform.service<GPIPatternRect>(GPI_SERVICE_PATTERN_RECT);
    const GRect rect{3, 2, 12, 13};
    const uint8_t pattern[8] = {0x80, 0xC1, 0x22, 0x13, 0x54, 0x05, 0xF6, 0x0F};
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : kNoScreen;
    }
    screen.clear();
    fill(&screen.handle, screen.surface, &rect, kFore, kBack, G_MODE_COPY, pattern);
    for (int y = rect.top; y <= rect.bottom; ++y) {
        for (int x = rect.left; x <= rect.right; ++x) {
            const bool set = (pattern[y & 7] << (x & 7) & 0x80) != 0;
            if (screen.pixel(x, y) != (set ? kFore : kBack)) {
                return "does not anchor patterns to the surface's origin";
            }
        }
    }
    return screen.pixel(rect.left - 1, rect.top) == 0 ? "" : kOtherPixels;
}

Complaint takesNotice(const Platform& platform) {
    Screen screen(platform);
    if (!screen.isUsable()) {
        return kNoScreen;
    }
    const uint8_t pattern[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    platform.service<GPIFillPatternNotice>(GPI_SERVICE_FILL_PATTERN_NOTICE)(
        &screen.handle, screen.surface, kFore, kBack, pattern);
    return "";
}

Complaint plotsCoverage(const Platform& platform) {
    Screen screen(platform);
    const auto plot = platform.service<GPICoveragePixel>(GPI_SERVICE_COVERAGE_PIXEL);
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : kNoScreen;
    }
    screen.clear();
    plot(&screen.handle, screen.surface, 6, 6, kFore, G_MODE_COPY, 15);
    const uint32_t drawn = screen.pixel(6, 6);
    return drawn != 0 && screen.holdsOnly({6, 6, 6, 6}, drawn) ? "" : kOtherPixels;
}

/// A memory surface of the display's own format.
GVram sourceLike(const GVram& display, uint8_t* pixels, GRect& drawable) {
    GVram source = display;
    source.id = G_MEMORY_SURFACE;
    source.width = 4;
    source.height = 4;
    source.bytesPerLine = static_cast<int16_t>(4 * (display.bitsPerPixel / 8));
    source.pixels = pixels;
    source.bounds = drawable = {0, 0, 3, 3};
    source.drawable = &drawable;
    return source;
}

Complaint transfers(const Platform& platform) {
    Screen screen(platform);
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : kNoScreen;
    }
    screen.clear();
    uint8_t pixels[4 * 4 * 3];
    std::memset(pixels, kFore, sizeof pixels);
    GRect drawable;
    const GVram source = sourceLike(*screen.surface, pixels, drawable);
    platform.service<GPIBlockTransfer>(GPI_SERVICE_BLOCK_TRANSFER)(
        &screen.handle, &source, 1, 1, 3, 2, screen.surface, 5, 6, G_MODE_COPY);
    const uint32_t value = 0x010101 * kFore & ((1U << screen.surface->bitsPerPixel) - 1);
    return screen.holdsOnly({5, 6, 7, 7}, value) ? "" : "copies other pixels than it was told";
}

} // namespace

std::span<const Probe> drawingProbes() {
    static const std::vector<int32_t> kSurface = {GPI_SERVICE_GET_SURFACE};
    static const Probe kProbes[] = {
        {GPI_SERVICE_SET_PIXEL, setsPixel, kSurface},
        {GPI_SERVICE_SPAN, drawsSpan, kSurface},
        {GPI_SERVICE_NEXT_PIXEL, drawsNextPixel, {GPI_SERVICE_GET_SURFACE, GPI_SERVICE_SET_PIXEL}},
        {GPI_SERVICE_DRAW_RECT, fillsRect<GPI_SERVICE_DRAW_RECT>, kSurface},
        {GPI_SERVICE_FILL_RECT, fillsRect<GPI_SERVICE_FILL_RECT>, kSurface},
        {GPI_SERVICE_PATTERN_RECT, fillsPattern, kSurface},
        {GPI_SERVICE_FILL_PATTERN_NOTICE, takesNotice, kSurface},
        {GPI_SERVICE_COVERAGE_PIXEL, plotsCoverage, kSurface},
        {GPI_SERVICE_BLOCK_TRANSFER, transfers, kSurface},
    };
    return kProbes;
}

} // namespace doctor
