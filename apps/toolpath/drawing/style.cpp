#include "drawing/style.h"

#include <algorithm>

namespace toolpath {
namespace {

// The channels go down by as much each but start a third of a 5-bit step apart: they step in turn,
// which gives three times the bands of channels that step together.
constexpr uint32_t kSkyTop = 0x526885;
constexpr uint32_t kSkyBottom = 0x122845;

// The low byte of a packed band is all that a surface of 8 bits takes of it. Green 8 makes it 32,
// and the top five bits of blue count on from there.
constexpr GGradationInfo kSkyEntries{G_GRADATION_DOWN, 0x000800, 0x0008F8, 0, 32};
constexpr int32_t kFirstSkyEntry = 32;
constexpr int32_t kSkyBands = 32;

constexpr int32_t kFirstInkEntry = kFirstSkyEntry + kSkyBands;

/// The colour `part` of `whole` on the way from one colour to another.
uint32_t mix(uint32_t from, uint32_t to, int part, int whole) {
    uint32_t mixed = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int a = static_cast<int>(from >> shift & 0xFF);
        const int b = static_cast<int>(to >> shift & 0xFF);
        mixed |= static_cast<uint32_t>(a + (b - a) * part / whole) << shift;
    }
    return mixed;
}

std::array<uint32_t, kInkCount> inkColors() {
    std::array<uint32_t, kInkCount> colors{};
    const auto set = [&colors](Ink ink, uint32_t color) {
        colors[static_cast<size_t>(ink)] = color;
    };
    set(Ink::Desk, 0x080810);
    set(Ink::Frame, 0x506070);
    set(Ink::Paper, 0x101820);
    set(Ink::Stock, 0x182838);
    set(Ink::StockMark, 0x203448);
    set(Ink::Grid, 0x1C2834);
    set(Ink::GridStrong, 0x304050);
    set(Ink::FloorGrid, 0x38506C);
    set(Ink::FloorStrong, 0x506C8C);
    set(Ink::FloorEdge, 0x7088A8);
    set(Ink::Edge, 0x708898);
    set(Ink::XAxis, 0xFF6058);
    set(Ink::YAxis, 0x58D878);
    set(Ink::ZAxis, 0x6098FF);
    set(Ink::Rapid, 0xA87C40);
    set(Ink::Point, 0xFF58A8);
    set(Ink::Progress, 0x38D0E8);

    // From the blue of deep water over cyan to white.
    constexpr uint32_t kDeep = 0x4890F8;
    constexpr uint32_t kMiddle = 0x50D8E8;
    constexpr uint32_t kHigh = 0xF8FFFF;
    constexpr int kTurn = kCutInks / 2;
    for (int i = 0; i < kCutInks; ++i) {
        colors[static_cast<size_t>(Ink::CutDeepest) + static_cast<size_t>(i)] =
            i < kTurn ? mix(kDeep, kMiddle, i, kTurn)
                      : mix(kMiddle, kHigh, i - kTurn, kCutInks - 1 - kTurn);
    }
    return colors;
}

Sky skyOfEntries() {
    Sky sky{};
    sky.gradation = kSkyEntries;
    for (int i = 0; i < kSkyBands; ++i) {
        sky.palette[kFirstSkyEntry + static_cast<size_t>(i)] =
            mix(kSkyTop, kSkyBottom, i, kSkyBands - 1);
    }
    return sky;
}

/// Puts the colours into the display's palette and draws with their entries.
Style paletteStyle(GDrawHandle* handle) {
    const std::array<uint32_t, kInkCount> colors = inkColors();
    GDSetPalette(handle, kFirstInkEntry, static_cast<int32_t>(colors.size()), colors.data());

    Style style{};
    for (uint32_t i = 0; i < kInkCount; ++i) {
        style.colors[i] = static_cast<uint32_t>(kFirstInkEntry) + i;
    }
    style.sky = skyOfEntries();
    style.sky.direct = true;
    GDSetPalette(handle, kFirstSkyEntry, kSkyBands, &style.sky.palette[kFirstSkyEntry]);
    return style;
}

} // namespace

Style prepareStyle(GDrawHandle* handle) {
    const GVram* display = GDGetVram(handle);
    if (display->colorType == G_COLOR_PALETTE) {
        return paletteStyle(handle);
    }
    GDSetColorMode(handle, 1, display->redMask, display->greenMask, display->blueMask);
    Style style{};
    style.colors = inkColors();
    style.sky = skyOfEntries();
    if (display->bitsPerPixel == 16 && display->greenMask == 0x3E0) {
        style.sky.gradation = {G_GRADATION_DOWN, kSkyTop, kSkyBottom, 0, 256};
        style.sky.direct = true;
    }
    return style;
}

} // namespace toolpath
