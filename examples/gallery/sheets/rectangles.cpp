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
    int pen; ///< 0 for none
    int dash;
    int join;
};

constexpr Style kStyles[] = {
    {"Pen only", G_FILL_NONE, 1, 0, G_JOIN_NONE},
    {"Back colour", G_FILL_BACK, 1, 0, G_JOIN_NONE},
    {"Fore colour", G_FILL_FORE, 1, 0, G_JOIN_NONE},
    {"Pattern", kCheckered, 1, 0, G_JOIN_NONE},
    {"No pen", G_FILL_FORE, 0, 0, G_JOIN_NONE},
    {"Pen 3", G_FILL_BACK, 3, 0, G_JOIN_NONE},
    {"Pen 9, bevel", G_FILL_BACK, 9, 0, G_JOIN_BEVEL},
    {"Pen 9, round", G_FILL_BACK, 9, 0, G_JOIN_ROUND},
    {"Dash 3", G_FILL_NONE, 1, 3, G_JOIN_NONE},
    {"Dash 2, pen 5", G_FILL_BACK, 5, 2, G_JOIN_NONE},
};

void drawStyled(GDrawHandle* handle, const GRect& figure, const Style& style) {
    GDSetFillAttribute(handle, style.fill, kBlue, kSand);
    if (style.pen == 0) {
        noPen(handle);
    } else {
        setPen(handle, kInk, style.pen, style.dash, style.join);
    }
    const GRect rect = inset(figure, style.pen / 2);
    GDDrawRect(handle, &rect);
}

void nested(GDrawHandle* handle, const GRect& figure) {
    GRect rect = figure;
    for (int gap = 2; heightOf(rect) > 0; gap += 1) {
        GDDrawRect(handle, &rect);
        rect = inset(rect, gap);
    }
}

/// Sides in the steps of Fibonacci.
void sizes(GDrawHandle* handle, const GRect& figure) {
    constexpr int kSides[] = {1, 2, 3, 5, 8, 13, 21, 34};
    constexpr int kGap = 5;
    GDSetFillAttribute(handle, G_FILL_FORE, kRed, kRed);
    noPen(handle);
    int left = figure.left;
    for (const int side : kSides) {
        const GRect square = box(left, figure.bottom - side + 1, side, side);
        GDDrawRect(handle, &square);
        left += side + kGap;
    }
}

} // namespace

void drawRectangleFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    int place = 0;
    for (const Style& style : kStyles) {
        drawFigure(handle, grid.figure(place++), style.caption,
                   [&](GDrawHandle* to, const GRect& figure) { drawStyled(to, figure, style); });
    }
    drawFigure(handle, grid.figure(place++), "Nested", nested);
    drawFigure(handle, grid.figure(place++), "From one pixel", sizes);
}

} // namespace gallery
