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
    {"PEN ONLY", G_FILL_NONE, 1, 0, G_JOIN_NONE},
    {"BACK COLOUR", G_FILL_BACK, 1, 0, G_JOIN_NONE},
    {"FORE COLOUR", G_FILL_FORE, 1, 0, G_JOIN_NONE},
    {"PATTERN", kCheckered, 1, 0, G_JOIN_NONE},
    {"NO PEN", G_FILL_FORE, 0, 0, G_JOIN_NONE},
    {"PEN 3", G_FILL_BACK, 3, 0, G_JOIN_NONE},
    {"PEN 9, BEVEL", G_FILL_BACK, 9, 0, G_JOIN_BEVEL},
    {"PEN 9, ROUND", G_FILL_BACK, 9, 0, G_JOIN_ROUND},
    {"DASH 3", G_FILL_NONE, 1, 3, G_JOIN_NONE},
    {"DASH 2, PEN 5", G_FILL_BACK, 5, 2, G_JOIN_NONE},
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
    drawFigure(handle, grid.figure(place++), "NESTED", nested);
    drawFigure(handle, grid.figure(place++), "FROM ONE PIXEL", sizes);
}

} // namespace gallery
