#include "draw.h"
#include "page.h"
#include "scratch.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include "bare24.h"
#include "icons24.h"
#include "indexed.h"
#include "packed1.h"
#include "packed2.h"
#include "packed4.h"
#include "packed8.h"
#include "white24.h"
#include "white555.h"
#include "white565.h"
#include "white8.h"

#include <array>

namespace gallery {
namespace {

constexpr uint32_t kWhite = 0xFFFFFF;

/// kPaper as a pixel value of 24 bits.
constexpr uint32_t kPaperValue = 0xF0F6F8;

constexpr int kIcon = 32; ///< pixels a side

/// The width and height with nothing cut off.
constexpr int kWhole = 0;

void put(GDrawHandle* handle, const GGrfImage& image, int left, int top, int width = kWhole,
         int height = kWhole) {
    GDDrawGrf(handle, &image, image.data, static_cast<int16_t>(left), static_cast<int16_t>(top),
              static_cast<int16_t>(width), static_cast<int16_t>(height));
}

void putZoomed(GDrawHandle* handle, const GGrfImage& image, const GRect& at) {
    GDDrawGrfZoom(handle, &image, image.data, at.left, at.top, static_cast<int16_t>(widthOf(at)),
                  static_cast<int16_t>(heightOf(at)));
}

/// Where an icon lies in the middle of a cell, counted row by row.
GPoint inCell(const GRect& whole, int columns, int rows, int index) {
    const int width = widthOf(whole) / columns;
    const int height = heightOf(whole) / rows;
    return point(whole.left + index % columns * width + (width - kIcon) / 2,
                 whole.top + index / columns * height + (height - kIcon) / 2);
}

/// Images of a table in the cells of a grid.
void putAll(GDrawHandle* handle, const GRect& whole, const GGrfImage* images, int columns,
            int rows) {
    for (int i = 0; i < columns * rows; ++i) {
        const GPoint at = inCell(whole, columns, rows, i);
        put(handle, images[i], at.x, at.y);
    }
}

void natural(GDrawHandle* handle, const GRect& whole) {
    fillBox(handle, whole, kPaper);
    putAll(handle, whole, icons24, ICONS24_COUNT / 2, 2);
}

/// Transparent pixels leave what is there.
void transparent(GDrawHandle* handle, const GRect& whole) {
    constexpr int kStripes = 12;
    GDSetFillAttribute(handle, kStripes, kSand, kBlue);
    noPen(handle);
    GDDrawRect(handle, &whole);
    putAll(handle, whole, bare24, 3, 2);
}

/// The upper left of an image, in boxes of which the last are larger than it.
void cropped(GDrawHandle* handle, const GRect& whole) {
    constexpr int kSizes[] = {11, 22, 99};
    fillBox(handle, whole, kPaper);
    for (int i = 0; i < 9; ++i) {
        const GPoint at = inCell(whole, 3, 3, i);
        fillBox(handle, box(at.x, at.y, kIcon, kIcon), kSand);
        put(handle, bare24[BARE24_GRAPHIC], at.x, at.y, kSizes[i % 3], kSizes[i / 3]);
    }
}

void clipped(GDrawHandle* handle, const GRect& whole) {
    constexpr int kSlat = 11;
    fillBox(handle, whole, kPaper);
    for (int left = whole.left; left <= whole.right; left += kSlat) {
        const GRect slat = box(left, whole.top, kSlat - 3, heightOf(whole));
        GDSetClipRect(handle, &slat);
        fillBox(handle, slat, kSand);
        putAll(handle, whole, bare24, 3, 2);
    }
}

/// Columns of three icons.
constexpr int kColumns = 4;

GRect columnOf(const GRect& whole, int column) {
    const int width = widthOf(whole) / kColumns;
    return box(whole.left + column * width, whole.top, width, heightOf(whole));
}

/// A table of icons for each kind of surface.
void formats(GDrawHandle* handle, const GRect& figure) {
    struct Kind {
        GVram format;
        const GGrfImage* images;
    };
    const Kind kinds[kColumns] = {{format24(), white24},
                                  {format565(), white565},
                                  {format555(), white555},
                                  {format8(), white8}};
    for (int column = 0; column < kColumns; ++column) {
        const auto draw = [&](GDrawHandle* to, const GRect& whole) {
            fillBox(to, whole, kWhite);
            putAll(to, whole, kinds[column].images, 1, 3);
        };
        on(kinds[column].format, draw)(handle, columnOf(figure, column));
    }
}

/// The icons' eight colours, and behind them the page's.
constexpr uint32_t kPaperIndex = 8;

std::vector<uint32_t> iconColors() {
    const GGrfPalette& palette = *indexed[0].palette;
    std::vector<uint32_t> colors(palette.colors, palette.colors + palette.count);
    colors.push_back(kPaper);
    return colors;
}

void enlarged(GDrawHandle* handle, const GRect& whole) {
    fillBox(handle, whole, kPaperIndex);
    putZoomed(handle, indexed[INDEXED_CYCLE_START], box(whole.left + 15, whole.top + 6, 96, 96));
}

void resized(GDrawHandle* handle, const GRect& whole) {
    fillBox(handle, whole, kPaperIndex);
    int left = whole.left;
    for (const int side : {12, 16, 24, 48}) {
        putZoomed(handle, indexed[INDEXED_GRAPHIC], box(left, 52 - side, side, side));
        left += side + 8;
    }
    putZoomed(handle, indexed[INDEXED_ALARM], box(whole.left, 62, 124, 40));
}

void packed(GDrawHandle* handle, const GRect& whole) {
    const GGrfImage* const tables[kColumns] = {packed1, packed2, packed4, packed8};
    fillBox(handle, whole, kPaper);
    for (int column = 0; column < kColumns; ++column) {
        putAll(handle, columnOf(whole, column), tables[column], 1, 3);
    }
}

/// A pixel value of 24 bits as three channels, from the lowest.
using Channels = std::array<int, 3>;

Channels channelsOf(uint32_t value) {
    return {static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
            static_cast<int>(value >> 16 & 0xFF)};
}

uint32_t valueOf(const Channels& channels) {
    return static_cast<uint32_t>(channels[0] | channels[1] << 8 | channels[2] << 16);
}

Channels asItIs(Channels color) {
    return color;
}

Channels pale(Channels color) {
    const int gray = (color[0] + 2 * color[1] + color[2]) / 4;
    return {(gray + 248) / 2, (gray + 246) / 2, (gray + 240) / 2};
}

Channels golden(Channels color) {
    return {color[0] * 222 / 255, color[1] * 176 / 255, color[2] * 80 / 255};
}

Channels negative(Channels color) {
    return {255 - color[0], 255 - color[1], 255 - color[2]};
}

/// An image in other colours: nothing but its palette changes.
void putRecolored(GDrawHandle* handle, GGrfImage image, GPoint at, Channels (*recolor)(Channels)) {
    std::array<uint32_t, 16> colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = valueOf(recolor(channelsOf(image.palette->colors[i])));
    }
    const GGrfPalette palette = {image.palette->count, colors.data()};
    image.palette = &palette;
    put(handle, image, at.x, at.y);
}

void palettes(GDrawHandle* handle, const GRect& whole) {
    constexpr Channels (*kRecolors[kColumns])(Channels) = {asItIs, pale, golden, negative};
    for (int i = 0; i < kColumns; ++i) {
        const GRect column = columnOf(whole, i);
        // Colours of handles have red above, these pixel values below.
        const Channels paper = kRecolors[i](channelsOf(kPaperValue));
        fillBox(handle, column, valueOf({paper[2], paper[1], paper[0]}));
        for (int row = 0; row < 3; ++row) {
            putRecolored(handle, packed4[row], inCell(column, 1, 3, row), kRecolors[i]);
        }
    }
}

} // namespace

void drawImageFigures(GDrawHandle* handle) {
    const Grid whole(1, 1, edges(kContent.left, kContent.top, kContent.right, 184));
    drawFigure(handle, whole.figure(0), "24 icons of a panel", on(format24(), natural));

    std::vector<uint32_t> colors = iconColors();
    const Grid grid(4, 2, edges(kContent.left, 204, kContent.right, kContent.bottom));
    drawFigure(handle, grid.figure(0), "Transparent", on(format24(), transparent));
    drawFigure(handle, grid.figure(1), "Cropped", on(format24(), cropped));
    drawFigure(handle, grid.figure(2), "Clipped", on(format24(), clipped));
    drawFigure(handle, grid.figure(3), "24 to 8 bits", formats);
    drawFigure(handle, grid.figure(4), "Enlarged", on(paletteFormat(colors), enlarged));
    drawFigure(handle, grid.figure(5), "Stretched", on(paletteFormat(colors), resized));
    drawFigure(handle, grid.figure(6), "Packed, 1 to 8 bits", on(format24(), packed));
    drawFigure(handle, grid.figure(7), "Four palettes", on(format24(), palettes));
}

} // namespace gallery
