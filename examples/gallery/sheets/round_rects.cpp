#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr int kCheckered = 16;

void drawRounded(GDrawHandle* handle, const GRect& rect, int rx, int ry) {
    GDDrawRRect(handle, &rect, static_cast<int16_t>(rx), static_cast<int16_t>(ry));
}

/// A figure of one rectangle with these radii.
auto radii(int rx, int ry) {
    return [rx, ry](GDrawHandle* handle, const GRect& figure) {
        GDSetFillAttribute(handle, G_FILL_BACK, kBlue, kSand);
        setPen(handle, kInk);
        drawRounded(handle, figure, rx, ry);
    };
}

/// With this pen and fill.
auto styled(int pen, int fill) {
    return [pen, fill](GDrawHandle* handle, const GRect& figure) {
        GDSetFillAttribute(handle, fill, kBlue, kSand);
        setPen(handle, kInk, pen);
        drawRounded(handle, inset(figure, pen / 2), 20, 20);
    };
}

/// What such rectangles are for.
void keys(GDrawHandle* handle, const GRect& figure) {
    constexpr int kColumns = 3;
    constexpr int kRows = 3;
    constexpr int kGap = 6;
    const int width = (widthOf(figure) + kGap) / kColumns - kGap;
    const int height = (heightOf(figure) + kGap) / kRows - kGap;
    for (int i = 0; i < kColumns * kRows; ++i) {
        const GRect key = box(figure.left + i % kColumns * (width + kGap),
                              figure.top + i / kColumns * (height + kGap), width, height);
        GDSetFillAttribute(handle, G_FILL_FORE, i == 4 ? kGold : kSand, kSand);
        setPen(handle, kInk, 2);
        drawRounded(handle, key, 7, 7);
        const std::string name = std::to_string(i + 1);
        const GPoint centre = centreOf(key);
        drawCentredLabel(handle, centre, name, kInk);
    }
}

void nested(GDrawHandle* handle, const GRect& figure) {
    GRect rect = figure;
    for (int radius = 30; radius > 0 && heightOf(rect) > 0; radius -= 4) {
        setPen(handle, radius % 8 == 2 ? kRed : kInk);
        drawRounded(handle, rect, radius, radius);
        rect = inset(rect, 4);
    }
}

} // namespace

void drawRoundRectFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "Radius 0", radii(0, 0));
    drawFigure(handle, grid.figure(1), "Radius 3", radii(3, 3));
    drawFigure(handle, grid.figure(2), "Radius 12", radii(12, 12));
    drawFigure(handle, grid.figure(3), "Radii 40 and 10", radii(40, 10));
    drawFigure(handle, grid.figure(4), "Half the size", radii(1000, 1000));
    drawFigure(handle, grid.figure(5), "Pen 2", styled(2, G_FILL_BACK));
    drawFigure(handle, grid.figure(6), "Pen 7", styled(7, G_FILL_NONE));
    drawFigure(handle, grid.figure(7), "Pen 14", styled(14, G_FILL_BACK));
    drawFigure(handle, grid.figure(8), "Fore colour", styled(1, G_FILL_FORE));
    drawFigure(handle, grid.figure(9), "Pattern", styled(1, kCheckered));
    drawFigure(handle, grid.figure(10), "Keys", keys);
    drawFigure(handle, grid.figure(11), "Nested", nested);
}

} // namespace gallery
