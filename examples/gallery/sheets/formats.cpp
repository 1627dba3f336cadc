#include "draw.h"
#include "page.h"
#include "scratch.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <array>

namespace gallery {
namespace {

/// Red, green, blue and grey from dark to light, as far as the format can tell them apart.
void ramps(GDrawHandle* handle, const GRect& whole) {
    constexpr uint32_t kChannels[] = {0x010000, 0x000100, 0x000001, 0x010101};
    for (int row = 0; row < 4; ++row) {
        const int top = heightOf(whole) * row / 4;
        const int bottom = heightOf(whole) * (row + 1) / 4 - 1;
        for (int x = 0; x < widthOf(whole); ++x) {
            const auto level = static_cast<uint32_t>(255 * x / (widthOf(whole) - 1));
            setPen(handle, kChannels[row] * level);
            drawLine(handle, x, top, x, bottom);
        }
    }
}

/// What a landscape is painted with; in a palette format these are indexes.
struct Colors {
    std::array<uint32_t, 6> sky;
    uint32_t sun;
    uint32_t far;
    uint32_t near;
    uint32_t water;
    uint32_t light;
};

constexpr Colors kEvening = {{0x34406A, 0x5A4F7C, 0x8C5F84, 0xC07480, 0xE69A78, 0xF6C88A},
                             0xFFF2C0,
                             0x6C4A6E,
                             0x33294A,
                             0x4C4A78,
                             0xF0B888};

void landscape(GDrawHandle* handle, const GRect& whole, const Colors& colors) {
    const int right = whole.right;
    const int horizon = 66;
    noPen(handle);
    for (size_t i = 0; i < colors.sky.size(); ++i) {
        fillBox(handle, box(0, static_cast<int>(i) * 11, widthOf(whole), 11), colors.sky[i]);
    }
    GDSetFillAttribute(handle, G_FILL_FORE, colors.sun, colors.sun);
    drawPolygon(handle, starPoints(point(82, 44), 11, 24));
    GDSetFillAttribute(handle, G_FILL_FORE, colors.far, colors.far);
    drawPolygon(handle, {point(0, 52), point(22, 34), point(40, 48), point(60, 28), point(96, 58),
                         point(right, 46), point(right, horizon), point(0, horizon)});
    GDSetFillAttribute(handle, G_FILL_FORE, colors.near, colors.near);
    drawPolygon(handle, {point(0, 44), point(26, 64), point(58, 54), point(80, horizon),
                         point(0, horizon)});
    fillBox(handle, edges(0, horizon, right, whole.bottom), colors.water);
    setPen(handle, colors.light);
    for (int row = 0; row < 5; ++row) {
        const int half = 14 - 2 * row;
        drawLine(handle, 82 - half, horizon + 3 + row * 6, 82 + half, horizon + 3 + row * 6);
    }
}

/// The same indexes in a landscape of any palette, in the order of Colors.
constexpr Colors kIndexes = {{0, 1, 2, 3, 4, 5}, 6, 7, 8, 9, 10};

using PaletteColors = std::vector<uint32_t>;

PaletteColors paletteOf(const Colors& colors) {
    PaletteColors palette(colors.sky.begin(), colors.sky.end());
    palette.insert(palette.end(),
                   {colors.sun, colors.far, colors.near, colors.water, colors.light});
    return palette;
}

constexpr Colors kDay = {{0x5E9BD0, 0x78ADD9, 0x94BFE1, 0xB0D1E9, 0xCCE2F0, 0xE6F1F6},
                         0xFFFDE8,
                         0x7FA27C,
                         0x3F6B45,
                         0x3F7FA8,
                         0xDDEBF2};

constexpr Colors kNight = {{0x101A34, 0x162444, 0x1E3054, 0x283E66, 0x344E78, 0x42608A},
                           0xF0F0E0,
                           0x18233A,
                           0x0A0F1C,
                           0x141E38,
                           0x8C98B8};

constexpr Colors kPrint = {{0xF4EFE0, 0xF0E8D2, 0xEBE0C4, 0xE6D8B6, 0xE1D0A8, 0xDCC89A},
                           0xC8452C,
                           0x9AA89A,
                           0x22262E,
                           0x5E7E8E,
                           0xF8F6F0};

} // namespace

void drawFormatFigures(GDrawHandle* handle) {
    struct Format {
        const char* name;
        GVram format;
    };
    const Format formats[] = {{"24 bits", format24()},
                              {"16 bits, 5-6-5", format565()},
                              {"16 bits, 5-5-5", format555()},
                              {"8 bits, 3-3-2", format8()}};
    PaletteColors palettes[] = {paletteOf(kEvening), paletteOf(kDay), paletteOf(kNight),
                                paletteOf(kPrint)};
    constexpr const char* kPaletteNames[] = {"Palette: evening", "Palette: day", "Palette: night",
                                             "Palette: print"};
    const auto evening = [](GDrawHandle* to, const GRect& whole) {
        landscape(to, whole, kEvening);
    };
    const auto indexes = [](GDrawHandle* to, const GRect& whole) {
        landscape(to, whole, kIndexes);
    };
    const Grid grid(4, 3);
    for (int i = 0; i < 4; ++i) {
        const auto& [name, format] = formats[i];
        drawFigure(handle, grid.figure(i), name, on(format, ramps));
        drawFigure(handle, grid.figure(4 + i), name, on(format, evening));
        drawFigure(handle, grid.figure(8 + i), kPaletteNames[i],
                   on(paletteFormat(palettes[i]), indexes));
    }
}

} // namespace gallery
