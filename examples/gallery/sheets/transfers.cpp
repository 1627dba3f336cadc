#include "draw.h"
#include "page.h"
#include "scratch.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <string>

namespace gallery {
namespace {

constexpr uint32_t kBlack = 0x000000;
constexpr uint32_t kWhite = 0xFFFFFF;

/// A figure's size, with the figure's upper left corner at (0, 0).
GRect local(const GRect& figure) {
    return box(0, 0, widthOf(figure), heightOf(figure));
}

void copyOnPage(GDrawHandle* handle, const GRect& from, int left, int top) {
    GVram* const page = GDGetVram(handle);
    GDBitBlt(handle, page, from.left, from.top, static_cast<int16_t>(widthOf(from)),
             static_cast<int16_t>(heightOf(from)), page, static_cast<int16_t>(left),
             static_cast<int16_t>(top), G_MODE_COPY);
}

void ground(GDrawHandle* handle, const GRect& figure) {
    constexpr int kDiagonal = 4;
    GDSetFillAttribute(handle, kDiagonal, kGrey, kSand);
    noPen(handle);
    GDDrawRect(handle, &figure);
}

void gem(GDrawHandle* handle, GPoint centre, int radius, uint32_t light, uint32_t dark) {
    const Points corners = starPoints(centre, radius, 8);
    noPen(handle);
    for (size_t i = 0; i < corners.size(); ++i) {
        const uint32_t color = i % 2 == 0 ? light : dark;
        GDSetFillAttribute(handle, G_FILL_FORE, color, color);
        drawPolygon(handle, {centre, corners[i], corners[(i + 1) % corners.size()]});
    }
}

auto combined(int mode) {
    return [mode](GDrawHandle* handle, const GRect& figure) {
        ground(handle, figure);
        const Scratch scratch(widthOf(figure) - 24, heightOf(figure) - 24, format24());
        if (scratch.handle() == nullptr) {
            return;
        }
        const GRect whole = local(inset(figure, 12));
        fillBox(scratch.handle(), whole, kGold);
        gem(scratch.handle(), centreOf(whole), 32, kBlue, kRed);
        scratch.copyTo(handle, figure.left + 12, figure.top + 12, mode);
    };
}

/// A shape without its box: a mask cuts the hole, the picture on black fills it.
void masked(GDrawHandle* handle, const GRect& figure) {
    constexpr int kSide = 61;
    ground(handle, figure);
    const Scratch mask(kSide, kSide, format24());
    const Scratch picture(kSide, kSide, format24());
    if (mask.handle() == nullptr || picture.handle() == nullptr) {
        return;
    }
    const GPoint centre = point(kSide / 2, kSide / 2);
    fillBox(mask.handle(), box(0, 0, kSide, kSide), kWhite);
    gem(mask.handle(), centre, kSide / 2, kBlack, kBlack);
    gem(picture.handle(), centre, kSide / 2, kGold, kRed);
    for (int i = 0; i < 3; ++i) {
        const int left = figure.left + 4 + i * 28;
        const int top = figure.top + 4 + i * 15;
        mask.copyTo(handle, left, top, G_MODE_AND);
        picture.copyTo(handle, left, top, G_MODE_OR);
    }
}

/// One tile, then twice as much with every copy.
void tiled(GDrawHandle* handle, const GRect& figure) {
    constexpr int kTile = 18;
    const GRect tile = box(figure.left, figure.top, kTile, kTile);
    const GRect area = box(figure.left, figure.top, widthOf(figure) / kTile * kTile,
                           heightOf(figure) / kTile * kTile);
    GDSetClipRect(handle, &area);
    fillBox(handle, tile, kSand);
    gem(handle, centreOf(tile), kTile / 2 - 1, kGreen, kBlue);
    for (int width = kTile; width < widthOf(area); width *= 2) {
        copyOnPage(handle, box(area.left, area.top, width, kTile), area.left + width, area.top);
    }
    for (int height = kTile; height < heightOf(area); height *= 2) {
        copyOnPage(handle, box(area.left, area.top, widthOf(area), height), area.left,
                   area.top + height);
    }
}

/// Copies onto itself, each a step further: the parts that overlap stay whole.
void overlapping(GDrawHandle* handle, const GRect& figure) {
    constexpr int kSide = 54;
    GRect at = box(figure.left, figure.top, kSide, kSide);
    fillBox(handle, at, kSand);
    gem(handle, centreOf(at), kSide / 2 - 2, kRed, kGold);
    for (int i = 0; i < 5; ++i) {
        copyOnPage(handle, at, at.left + 14, at.top + 9);
        at = box(at.left + 14, at.top + 9, kSide, kSide);
    }
}

/// A destination cut by its clip rectangle, a source cut by its edge.
void cut(GDrawHandle* handle, const GRect& figure) {
    const Scratch scratch(widthOf(figure), heightOf(figure), format24());
    if (scratch.handle() == nullptr) {
        return;
    }
    fillBox(scratch.handle(), local(figure), kSand);
    gem(scratch.handle(), centreOf(local(figure)), heightOf(figure) / 2, kBlue, kGreen);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 4; ++column) {
            const GRect window = box(figure.left + column * 32, figure.top + row * 34, 30, 31);
            GDSetClipRect(handle, &window);
            scratch.copyTo(handle, figure.left, figure.top);
        }
    }
}

/// The colour `part` of `whole` on the way from one colour to another.
uint32_t between(uint32_t from, uint32_t to, int part, int whole) {
    uint32_t color = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        const int start = static_cast<int>(from >> shift & 0xFF);
        const int end = static_cast<int>(to >> shift & 0xFF);
        color |= static_cast<uint32_t>(start + (end - start) * part / whole) << shift;
    }
    return color;
}

/// Into a format and out again.
auto through(const GVram& format) {
    return [format](GDrawHandle* handle, const GRect& figure) {
        const Scratch first(widthOf(figure), heightOf(figure), format24());
        const Scratch second(widthOf(figure), heightOf(figure), format);
        if (first.handle() == nullptr || second.handle() == nullptr) {
            return;
        }
        for (int x = 0; x < widthOf(figure); ++x) {
            setPen(first.handle(), between(kBlue, kGold, x, widthOf(figure) - 1));
            drawLine(first.handle(), x, 0, x, heightOf(figure) - 1);
        }
        gem(first.handle(), centreOf(local(figure)), heightOf(figure) / 2 - 8, kSand, kRed);
        first.copyTo(second.handle(), 0, 0);
        second.copyTo(handle, figure.left, figure.top);
    };
}

} // namespace

void drawTransferFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "COPY", combined(G_MODE_COPY));
    drawFigure(handle, grid.figure(1), "AND", combined(G_MODE_AND));
    drawFigure(handle, grid.figure(2), "OR", combined(G_MODE_OR));
    drawFigure(handle, grid.figure(3), "XOR", combined(G_MODE_XOR));
    drawFigure(handle, grid.figure(4), "AND a mask, OR a gem", masked);
    drawFigure(handle, grid.figure(5), "Doubled tiles", tiled);
    drawFigure(handle, grid.figure(6), "Overlapping", overlapping);
    drawFigure(handle, grid.figure(7), "Clipped", cut);
    drawFigure(handle, grid.figure(8), "By way of 24 bits", through(format24()));
    drawFigure(handle, grid.figure(9), "By way of 5-6-5", through(format565()));
    drawFigure(handle, grid.figure(10), "By way of 5-5-5", through(format555()));
    drawFigure(handle, grid.figure(11), "By way of 3-3-2", through(format8()));
}

} // namespace gallery
