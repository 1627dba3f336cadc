#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kCheckered = 16;
constexpr uint32_t kColors[] = {kRed, kGold, kGreen, kBlue, kSand};

void drawPie(GDrawHandle* handle, const GRect& rect, int start, int end) {
    GDDrawPie(handle, &rect, static_cast<int16_t>(start), static_cast<int16_t>(end));
}

/// One sector in this style.
auto sector(int start, int end, int fill, int pen) {
    return [=](GDrawHandle* handle, const GRect& figure) {
        GDSetFillAttribute(handle, fill, kBlue, kSand);
        if (pen == 0) {
            noPen(handle);
        } else {
            setPen(handle, kInk, pen, 0, G_JOIN_ROUND);
        }
        drawPie(handle, inset(figure, 6), start, end);
    };
}

/// Sectors side by side, which leave no gap with or without outlines.
auto chart(bool outlined) {
    return [outlined](GDrawHandle* handle, const GRect& figure) {
        constexpr int kEnds[] = {0, 700, 1100, 2000, 2900, 3600};
        for (int i = 0; i < 5; ++i) {
            GDSetFillAttribute(handle, G_FILL_FORE, kColors[i], kSand);
            if (outlined) {
                setPen(handle, kInk);
            } else {
                noPen(handle);
            }
            drawPie(handle, figure, kEnds[i], kEnds[i + 1]);
        }
    };
}

/// One sector drawn out of the others.
void drawnOut(GDrawHandle* handle, const GRect& figure) {
    const GRect rect = inset(figure, 5);
    setPen(handle, kInk);
    GDSetFillAttribute(handle, G_FILL_FORE, kSand, kSand);
    drawPie(handle, rect, 600, 3600);
    GDSetFillAttribute(handle, G_FILL_FORE, kRed, kSand);
    drawPie(handle, edges(rect.left + 6, rect.top - 4, rect.right + 6, rect.bottom - 4), 0, 600);
}

/// Thirty-six sectors by exclusive or: what two of them shared would show.
void fan(GDrawHandle* handle, const GRect& figure) {
    noPen(handle);
    GDSetDrawingMode(handle, G_MODE_XOR);
    for (int i = 0; i < 36; ++i) {
        GDSetFillAttribute(handle, G_FILL_FORE, kPaper ^ kColors[i % 4], kSand);
        drawPie(handle, squareIn(figure), i * 100, i * 100 + 100);
    }
}

} // namespace

void drawPieFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "Pen only", sector(0, 900, G_FILL_NONE, 1));
    drawFigure(handle, grid.figure(1), "Back colour", sector(450, 2250, G_FILL_BACK, 1));
    drawFigure(handle, grid.figure(2), "Pattern", sector(600, 3000, kCheckered, 1));
    drawFigure(handle, grid.figure(3), "No pen", sector(3000, 600, G_FILL_FORE, 0));
    drawFigure(handle, grid.figure(4), "Pen 3", sector(600, 3000, G_FILL_BACK, 3));
    drawFigure(handle, grid.figure(5), "Pen 8", sector(600, 3000, G_FILL_BACK, 8));
    drawFigure(handle, grid.figure(6), "A narrow one", sector(300, 420, G_FILL_BACK, 1));
    drawFigure(handle, grid.figure(7), "Almost all", sector(20, 0, G_FILL_BACK, 1));
    drawFigure(handle, grid.figure(8), "Side by side", chart(false));
    drawFigure(handle, grid.figure(9), "With outlines", chart(true));
    drawFigure(handle, grid.figure(10), "Drawn out", drawnOut);
    drawFigure(handle, grid.figure(11), "36 by exclusive or", fan);
}

} // namespace gallery
