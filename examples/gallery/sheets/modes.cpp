#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr uint32_t kBlack = 0x000000;
constexpr uint32_t kWhite = 0xFFFFFF;
constexpr uint32_t kRedLight = 0xFF0000;
constexpr uint32_t kGreenLight = 0x00FF00;
constexpr uint32_t kBlueLight = 0x0000FF;

constexpr const char* kModeNames[] = {"COPY", "AND", "OR", "XOR"};

/// Three squares that overlap, each in one channel, half on black and half on white.
void channels(GDrawHandle* handle, const GRect& figure, int mode) {
    fillBox(handle, figure, kBlack);
    const int half = widthOf(figure) / 2;
    fillBox(handle, box(figure.left + half, figure.top, widthOf(figure) - half, heightOf(figure)),
            kWhite);
    constexpr int kSide = 44;
    GDSetDrawingMode(handle, mode);
    fillBox(handle, box(figure.left + 19, figure.top + 8, kSide, kSide), kRedLight);
    fillBox(handle, box(figure.left + 41, figure.top + 28, kSide, kSide), kGreenLight);
    fillBox(handle, box(figure.left + 63, figure.top + 48, kSide, kSide), kBlueLight);
}

void drawBars(GDrawHandle* handle, const GRect& figure) {
    constexpr uint32_t kColors[] = {kWhite, kGold, kRed, kGreen, kBlue, kInk};
    constexpr int kBars = static_cast<int>(std::size(kColors));
    for (int i = 0; i < kBars; ++i) {
        const int left = widthOf(figure) * i / kBars;
        const int right = widthOf(figure) * (i + 1) / kBars;
        fillBox(handle, box(figure.left + left, figure.top, right - left, heightOf(figure)),
                kColors[i]);
    }
}

void pattern(GDrawHandle* handle, const GRect& figure, int mode) {
    constexpr int kDiagonal = 4;
    drawBars(handle, figure);
    GDSetDrawingMode(handle, mode);
    GDSetFillAttribute(handle, kDiagonal, kGold, kBlue);
    noPen(handle);
    const GRect rect = edges(figure.left + widthOf(figure) / 6, figure.top + 16,
                             figure.right - widthOf(figure) / 6, figure.bottom - 16);
    GDDrawRect(handle, &rect);
}

void star(GDrawHandle* handle, const GRect& figure, int mode) {
    drawBars(handle, figure);
    GDSetDrawingMode(handle, mode);
    GDSetFillAttribute(handle, G_FILL_FORE, kGreen, kGreen);
    setPen(handle, kGold);
    drawPolygon(handle, starPoints(centreOf(figure), heightOf(figure) / 2 - 6, 8, 3));
}

} // namespace

void drawModeFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    for (int mode = G_MODE_COPY; mode <= G_MODE_XOR; ++mode) {
        const std::string name = kModeNames[mode];
        const auto in = [mode](void (*draw)(GDrawHandle*, const GRect&, int)) {
            return [=](GDrawHandle* to, const GRect& figure) { draw(to, figure, mode); };
        };
        drawFigure(handle, grid.figure(mode), name, in(channels));
        drawFigure(handle, grid.figure(4 + mode), name + ", pattern", in(pattern));
        drawFigure(handle, grid.figure(8 + mode), name + ", star", in(star));
    }
}

} // namespace gallery
