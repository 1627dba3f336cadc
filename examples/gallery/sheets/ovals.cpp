#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

namespace gallery {
namespace {

constexpr int kCheckered = 16;

struct Style {
    const char* caption;
    int fill;
    int penWidth; ///< 0 for none
    int penHeight;
};

constexpr Style kStyles[] = {
    {"Pen only", G_FILL_NONE, 1, 1}, {"Back colour", G_FILL_BACK, 1, 1},
    {"Pattern", kCheckered, 1, 1},   {"No pen", G_FILL_FORE, 0, 0},
    {"Pen 2", G_FILL_BACK, 2, 2},    {"Pen 5", G_FILL_BACK, 5, 5},
    {"Pen 12", G_FILL_BACK, 12, 12}, {"Pen 9 x 2", G_FILL_BACK, 9, 2},
};

void drawStyled(GDrawHandle* handle, const GRect& figure, const Style& style) {
    GDSetFillAttribute(handle, style.fill, kBlue, kSand);
    if (style.penWidth == 0) {
        noPen(handle);
    } else {
        setPen(handle, kInk);
        GDSetPenSize(handle, static_cast<int16_t>(style.penWidth),
                     static_cast<int16_t>(style.penHeight));
    }
    const GRect rect = inset(figure, style.penWidth / 2);
    GDDrawOval(handle, &rect);
}

/// From one pixel on, thin and filled: the smallest circles are the hardest.
void sizes(GDrawHandle* handle, const GRect& figure) {
    int left = figure.left;
    int top = figure.top;
    for (int size = 1; top + size <= figure.bottom; ++size) {
        GDSetFillAttribute(handle, G_FILL_FORE, size % 2 == 0 ? kGold : kSand, kSand);
        setPen(handle, kInk);
        const GRect rect = box(left, top, size, size);
        GDDrawOval(handle, &rect);
        left += size + 2;
        if (left + size + 1 > figure.right) {
            left = figure.left;
            top += size + 2;
        }
    }
}

void flattened(GDrawHandle* handle, const GRect& figure) {
    GRect rect = figure;
    for (bool red = true; heightOf(rect) > 0; red = !red) {
        setPen(handle, red ? kRed : kInk);
        GDDrawOval(handle, &rect);
        rect = edges(rect.left, rect.top + 5, rect.right, rect.bottom - 5);
    }
}

void nested(GDrawHandle* handle, const GRect& figure) {
    GRect rect = squareIn(figure);
    for (int pen = 1; heightOf(rect) > 4; ++pen) {
        setPen(handle, pen % 2 == 0 ? kBlue : kGreen, pen);
        rect = inset(rect, pen / 2);
        GDDrawOval(handle, &rect);
        rect = inset(rect, pen / 2 + 2);
    }
}

/// Rings that take each other's colours away where they cross.
void crossing(GDrawHandle* handle, const GRect& figure) {
    GDSetDrawingMode(handle, G_MODE_XOR);
    setPen(handle, kPaper ^ kRed, 9);
    const GRect square = inset(squareIn(figure), 6);
    for (int i = 0; i < 3; ++i) {
        const GRect rect =
            edges(square.left + i * 14, square.top, square.right + i * 14, square.bottom);
        GDDrawOval(handle, &rect);
    }
}

} // namespace

void drawOvalFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    int place = 0;
    for (const Style& style : kStyles) {
        drawFigure(handle, grid.figure(place++), style.caption,
                   [&](GDrawHandle* to, const GRect& figure) { drawStyled(to, figure, style); });
    }
    drawFigure(handle, grid.figure(place++), "From one pixel", sizes);
    drawFigure(handle, grid.figure(place++), "Flattened", flattened);
    drawFigure(handle, grid.figure(place++), "Pens from 1", nested);
    drawFigure(handle, grid.figure(place++), "Exclusive or", crossing);
}

} // namespace gallery
