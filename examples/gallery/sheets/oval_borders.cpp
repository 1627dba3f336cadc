#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr uint32_t kLight = 0xFFFFFF;
constexpr uint32_t kDark = 0x8C8870;

constexpr GBorderStyle borderOf(int width, uint32_t frame = G_NO_COLOR) {
    return {1, kLight, kDark, frame, width};
}

/// A border on a panel.
auto ring(const GBorderStyle& border, bool pressed) {
    return [border, pressed](GDrawHandle* handle, const GRect& figure) {
        fillBox(handle, figure, kSand);
        const GRect rect = inset(figure, 8);
        GDDrawOvalBorder(handle, &rect, nullptr, &border, pressed ? 1 : 0);
    };
}

/// Borders in each other, each in what the last one left.
void nested(GDrawHandle* handle, const GRect& figure) {
    fillBox(handle, figure, kSand);
    const GBorderStyle border = borderOf(4);
    GRect rect = inset(figure, 4);
    for (int i = 0; i < 4; ++i) {
        GRect inner;
        GDDrawOvalBorder(handle, &rect, &inner, &border, i % 2 == 0 ? 0 : 1);
        rect = inset(inner, 3);
    }
}

/// Push buttons in the inner rectangle of their borders.
void buttons(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kGreen, kGold, kRed};
    fillBox(handle, figure, kSand);
    const GBorderStyle border = borderOf(7, kInk);
    constexpr int kGap = 5;
    const int size = (widthOf(figure) - 4 * kGap) / 3;
    const int top = centreOf(figure).y - size / 2;
    for (int i = 0; i < 3; ++i) {
        const GRect rect = box(figure.left + kGap + i * (size + kGap), top, size, size);
        GRect inner;
        GDDrawOvalBorder(handle, &rect, &inner, &border, i == 1 ? 1 : 0);
        noPen(handle);
        GDSetFillAttribute(handle, G_FILL_FORE, kColors[i], kSand);
        GDDrawOval(handle, &inner);
    }
}

} // namespace

void drawOvalBorderFigures(GDrawHandle* handle) {
    constexpr int kWidths[] = {1, 3, 6, 12};
    const Grid grid(4, 3);
    for (int i = 0; i < 4; ++i) {
        const std::string width = std::to_string(kWidths[i]);
        drawFigure(handle, grid.figure(i), "Raised " + width, ring(borderOf(kWidths[i]), false));
        drawFigure(handle, grid.figure(4 + i), "Pressed " + width,
                   ring(borderOf(kWidths[i]), true));
    }
    drawFigure(handle, grid.figure(8), "With a frame", ring(borderOf(5, kInk), false));
    drawFigure(handle, grid.figure(9), "A wider one", ring(borderOf(14, kInk), false));
    drawFigure(handle, grid.figure(10), "Nested", nested);
    drawFigure(handle, grid.figure(11), "Buttons", buttons);
}

} // namespace gallery
