#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr uint32_t kFace = kSand;
constexpr uint32_t kLight = 0xFFFFFF;
constexpr uint32_t kDark = 0x8C8870;
constexpr int kPatternedStyle = 2;

constexpr GBorderStyle borderOf(int width, uint32_t frame = G_NO_COLOR) {
    return {1, kLight, kDark, frame, width};
}

/// The figure as a panel, and the place for a plate on it.
GRect panel(GDrawHandle* handle, const GRect& figure) {
    constexpr int kMargin = 10;
    fillBox(handle, figure, kFace);
    return inset(figure, kMargin);
}

/// A border on a panel.
void drawPlate(GDrawHandle* handle, const GRect& rect, const GBorderStyle& border, int style) {
    GDDrawRectBorder(handle, &rect, nullptr, &border, static_cast<uint16_t>(style));
}

/// Borders in each other, each in what the last one left.
void nested(GDrawHandle* handle, const GRect& figure) {
    const GBorderStyle border = borderOf(3);
    GRect rect = panel(handle, figure);
    for (int i = 0; i < 5; ++i) {
        GRect inner;
        GDDrawRectBorder(handle, &rect, &inner, &border,
                         i % 2 == 0 ? G_BORDER_RAISED : G_BORDER_SUNKEN);
        rect = inset(inner, 3);
    }
}

/// A frame of each of the four kinds that keys have.
void keys(GDrawHandle* handle, const GRect& figure) {
    constexpr int kColumns = 4;
    constexpr int kRows = 3;
    constexpr int kGap = 4;
    const GBorderStyle border = borderOf(4, kInk);
    const GRect area = inset(panel(handle, figure), -4);
    const int width = (widthOf(area) + kGap) / kColumns - kGap;
    const int height = (heightOf(area) + kGap) / kRows - kGap;
    for (int i = 0; i < kColumns * kRows; ++i) {
        const GRect key = box(area.left + i % kColumns * (width + kGap),
                              area.top + i / kColumns * (height + kGap), width, height);
        const bool pressed = i == 5;
        drawPlate(handle, key, border, pressed ? G_BORDER_SUNKEN : G_BORDER_RAISED);
        const std::string name(1, static_cast<char>('A' + i));
        const GPoint centre = centreOf(key);
        const int shift = pressed ? 1 : 0;
        drawCentredLabel(handle, point(centre.x + shift, centre.y + shift), name, kInk);
    }
}

void patterned(GDrawHandle* handle, const GRect& figure) {
    GDSetFillPattern(handle, 16);
    drawPlate(handle, panel(handle, figure), borderOf(8), kPatternedStyle);
}

} // namespace

void drawBorderFigures(GDrawHandle* handle) {
    constexpr int kWidths[] = {1, 2, 4, 8};
    const Grid grid(4, 3);
    const auto plate = [](const GBorderStyle& border, int style) {
        return [=](GDrawHandle* to, const GRect& figure) {
            drawPlate(to, panel(to, figure), border, style);
        };
    };
    for (int i = 0; i < 4; ++i) {
        const std::string width = std::to_string(kWidths[i]);
        drawFigure(handle, grid.figure(i), "Raised " + width,
                   plate(borderOf(kWidths[i]), G_BORDER_RAISED));
        drawFigure(handle, grid.figure(4 + i), "Sunken " + width,
                   plate(borderOf(kWidths[i]), G_BORDER_SUNKEN));
    }
    drawFigure(handle, grid.figure(8), "With a frame", plate(borderOf(6, kInk), G_BORDER_RAISED));
    drawFigure(handle, grid.figure(9), "Nested", nested);
    drawFigure(handle, grid.figure(10), "Keys", keys);
    drawFigure(handle, grid.figure(11), "Patterned", patterned);
}

} // namespace gallery
