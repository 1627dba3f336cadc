#include "draw.h"
#include "page.h"
#include "sheets/figures.h"

#include <quarlo/quarlo.h>

#include <array>
#include <cmath>

namespace gallery {
namespace {

constexpr int kDotted = 25;
constexpr int kStriped = 4;

GPoint middle(const GRect& figure) {
    return centreOf(squareIn(figure));
}

int reach(const GRect& figure) {
    return heightOf(figure) / 2;
}

void pentagram(GDrawHandle* handle, const GRect& figure) {
    GDSetFillAttribute(handle, G_FILL_FORE, kGold, kGold);
    drawPolygon(handle, starPoints(middle(figure), reach(figure), 5, 2));
}

void heptagram(GDrawHandle* handle, const GRect& figure) {
    GDSetFillAttribute(handle, kDotted, kInk, kPaper);
    drawPolygon(handle, starPoints(middle(figure), reach(figure), 7, 3));
}

void rosette(GDrawHandle* handle, const GRect& figure) {
    GDSetFillAttribute(handle, G_FILL_FORE, kBlue, kBlue);
    noPen(handle);
    drawPolygon(handle, starPoints(middle(figure), reach(figure), 31, 12));
}

void bowTie(GDrawHandle* handle, const GRect& figure) {
    GDSetFillAttribute(handle, G_FILL_BACK, kRed, kRed);
    drawPolygon(handle, {point(figure.left, figure.top), point(figure.right, figure.bottom),
                         point(figure.right, figure.top), point(figure.left, figure.bottom)});
}

/// A square ring in one outline: there, across, and back.
void ring(GDrawHandle* handle, const GRect& figure) {
    const GRect outer = squareIn(figure);
    const GRect inner = inset(outer, widthOf(outer) / 4);
    GDSetFillAttribute(handle, kStriped, kGreen, kPaper);
    noPen(handle);
    drawPolygon(handle, {point(outer.left, outer.top), point(outer.right, outer.top),
                         point(outer.right, outer.bottom), point(outer.left, outer.bottom),
                         point(outer.left, outer.top), point(inner.left, inner.top),
                         point(inner.right, inner.top), point(inner.right, inner.bottom),
                         point(inner.left, inner.bottom), point(inner.left, inner.top)});
}

void gear(GDrawHandle* handle, const GRect& figure) {
    constexpr int kTeeth = 12;
    const GPoint centre = middle(figure);
    const int tip = reach(figure);
    const int foot = tip * 4 / 5;
    Points points;
    for (int tooth = 0; tooth < kTeeth; ++tooth) {
        const int angle = 900 + tooth * 3600 / kTeeth;
        points.push_back(onCircle(centre, foot, angle - 90));
        points.push_back(onCircle(centre, tip, angle - 45));
        points.push_back(onCircle(centre, tip, angle + 45));
        points.push_back(onCircle(centre, foot, angle + 90));
    }
    GDSetFillAttribute(handle, G_FILL_BACK, kSand, kSand);
    drawPolygon(handle, points);
}

/// The columns of a vase's sides, a row each.
template <size_t kRows>
struct Vase {
    std::array<GPoint, 8> points;
    std::array<int16_t, kRows> left;
    std::array<int16_t, kRows> right;
};

/// Two edges that follow tables, down on the right and up on the left.
void vase(GDrawHandle* handle, const GRect& figure) {
    constexpr int kRows = 96;
    Vase<kRows> record;
    const GPoint centre = middle(figure);
    for (size_t row = 0; row < kRows; ++row) {
        const double t = static_cast<double>(row) / (kRows - 1);
        const double half = 26 + 18 * std::sin(7.5 * t + 1.9) - 6 * t;
        record.left[row] = static_cast<int16_t>(centre.x - std::lround(half));
        record.right[row] = static_cast<int16_t>(centre.x + std::lround(half));
    }
    const int bottom = figure.top + kRows - 1;
    record.points[0] = point(record.right.front(), figure.top);
    record.points[3] = point(record.right.back(), bottom);
    record.points[4] = point(record.left.back(), bottom);
    record.points[7] = point(record.left.front(), figure.top);
    GDSetTableEdge(&record.points[0], record.right.data(), 0);
    GDSetTableEdge(&record.points[4], record.left.data(), 0);

    GDSetFillAttribute(handle, G_FILL_FORE, kRed, kRed);
    noPen(handle);
    GPoly poly = {static_cast<int16_t>(record.points.size()), record.points.data(), {}};
    GDDrawPoly(handle, &poly);
}

void comb(GDrawHandle* handle, const GRect& figure) {
    constexpr int kTeeth = 9;
    Points points = {point(figure.left, figure.top)};
    for (int i = 0; i < kTeeth; ++i) {
        const int left = figure.left + widthOf(figure) * i / kTeeth;
        const int right = figure.left + widthOf(figure) * (i + 1) / kTeeth - 1;
        points.push_back(point((left + right) / 2, figure.bottom));
        points.push_back(point(right, figure.top + heightOf(figure) / 4));
    }
    points.push_back(point(figure.right, figure.top));
    GDSetFillAttribute(handle, G_FILL_FORE, kGreen, kGreen);
    drawPolygon(handle, points);
}

auto framed(int pen, int dash, int join) {
    return [=](GDrawHandle* handle, const GRect& figure) {
        GDSetFillAttribute(handle, G_FILL_BACK, kSand, kSand);
        setPen(handle, kInk, pen, dash, join);
        drawPolygon(handle, starPoints(middle(figure), reach(figure) - pen / 2, 6));
    };
}

} // namespace

void drawPolygonFigures(GDrawHandle* handle) {
    const Grid grid(4, 3);
    drawFigure(handle, grid.figure(0), "5 points, even-odd", pentagram);
    drawFigure(handle, grid.figure(1), "7 points, pattern", heptagram);
    drawFigure(handle, grid.figure(2), "31 points", rosette);
    drawFigure(handle, grid.figure(3), "Crossing", bowTie);
    drawFigure(handle, grid.figure(4), "A ring", ring);
    drawFigure(handle, grid.figure(5), "48 points", gear);
    drawFigure(handle, grid.figure(6), "A comb", comb);
    drawFigure(handle, grid.figure(7), "Table edges", vase);
    drawFigure(handle, grid.figure(8), "Pen 1", framed(1, 0, G_JOIN_NONE));
    drawFigure(handle, grid.figure(9), "Pen 7, bevel", framed(7, 0, G_JOIN_BEVEL));
    drawFigure(handle, grid.figure(10), "Pen 7, round", framed(7, 0, G_JOIN_ROUND));
    drawFigure(handle, grid.figure(11), "Pen 3, dash 3", framed(3, 3, G_JOIN_NONE));
}

} // namespace gallery
