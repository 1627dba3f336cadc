// Straight figures: each pixel is painted once by a fill, by an edge and by a join, and again only
// where these meet.
#include "raster/overdraw.h"

#include "geometry/geometry.h"

#include <quarlo/poly.h>
#include <quarlo/rect.h>

#include <algorithm>
#include <array>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// Where a curve has come to after step 1 to 63, by the rule that its weights are made of.
GPoint bezierPoint(const std::vector<GPoint>& points, int64_t step) {
    const int64_t rest = 63 - step;
    const int64_t shares[] = {rest * rest * rest, 3 * step * rest * rest, 3 * step * step * rest,
                              step * step * step};
    int64_t x = 32768;
    int64_t y = 32768;
    for (size_t k = 0; k < 4; ++k) {
        const bool isOneMore = (step == 26 && k == 1) || (step == 37 && k == 2);
        const int64_t weight =
            isOneMore ? 27987 : std::min<int64_t>(shares[k] * 65536 / (63 * 63 * 63), 65535);
        x += points[k].x * weight;
        y += points[k].y * weight;
    }
    return {static_cast<int16_t>(x >> 16), static_cast<int16_t>(y >> 16)};
}

void drawPixel(GDrawHandle* handle, const Figure& figure) {
    GDSetPixel(handle, figure.points[0].x, figure.points[0].y);
}

void layPixel(Layers& layers, const Figure& figure) {
    const GPoint& point = figure.points[0];
    if (figure.style.outlined) {
        layers.addRun(point.x, point.x, point.y);
    }
}

void drawLineOf(GDrawHandle* handle, const Figure& figure) {
    GLine line = figure.line(0, 1);
    GDDrawLine(handle, &line);
}

void layLine(Layers& layers, const Figure& figure) {
    layers.addLine(figure.line(0, 1));
}

void drawPolyline(GDrawHandle* handle, const Figure& figure) {
    GDMoveTo(handle, figure.points[0].x, figure.points[0].y);
    for (const GPoint& point : figure.points) {
        GDLineTo(handle, point.x, point.y);
    }
}

void layPolyline(Layers& layers, const Figure& figure) {
    for (size_t i = 0; figure.style.outlined && i < figure.points.size(); ++i) {
        layers.addLine(figure.line(i == 0 ? 0 : i - 1, i));
        layers.handle()->dashPhase = 0;
    }
}

void drawBezier(GDrawHandle* handle, const Figure& figure) {
    std::vector<GPoint> points = figure.points;
    const GPoly poly{4, points.data(), {}};
    GDDrawBezier(handle, &poly);
}

void layBezier(Layers& layers, const Figure& figure) {
    GPoint last = figure.points[0];
    for (int32_t step = 1; figure.style.outlined && step <= 63; ++step) {
        const GPoint next = bezierPoint(figure.points, step);
        if (next.x != last.x || next.y != last.y) {
            layers.addLine({last.x, last.y, next.x, next.y});
            last = next;
        }
    }
}

void drawBox(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    GDDrawRect(handle, &box);
}

void layBox(Layers& layers, const Figure& figure) {
    const GRect box = figure.box();
    if (areDisjoint(box, figure.style.clip)) {
        return;
    }
    layers.addFill([&](GDrawHandle* handle) { GDDrawRect(handle, &box); });
    if (!figure.style.outlined) {
        return;
    }
    layers.addLine({box.left, box.top, box.right, box.top});
    layers.addLine({box.right, box.top, box.right, box.bottom});
    layers.addLine({box.right, box.bottom, box.left, box.bottom});
    layers.addLine({box.left, box.bottom, box.left, box.top});
    if (contains(figure.style.clip, box.left, box.top)) {
        layers.closeFrame({box.left, box.top, box.right, box.top});
    }
}

void drawPolygon(GDrawHandle* handle, const Figure& figure) {
    std::vector<GPoint> points = figure.points;
    GPoly poly{low16(static_cast<int32_t>(points.size())), points.data(), {}};
    GDDrawPoly(handle, &poly);
}

bool fillsPolygons(const PaintStyle& style) {
    return style.fill != G_FILL_NONE && style.fill != G_FILL_GRADATION;
}

void layPolygon(Layers& layers, const Figure& figure) {
    const size_t count = figure.points.size();
    if (count >= 3 && fillsPolygons(figure.style)) {
        layers.addPolygon(figure.points);
    }
    if (!figure.style.outlined) {
        return;
    }
    for (size_t i = 0; i < count; ++i) {
        layers.addLine(figure.line(i, (i + 1) % count));
    }
    if (count > 1) {
        layers.closeFrame(figure.line(0, 1));
    }
}

/// A polygon whose first edge follows a table, in one block with it.
struct TablePolygon {
    std::array<GPoint, 12> points{};
    std::array<int16_t, 96> columns{};
    int16_t count;
    bool bottomUp;

    explicit TablePolygon(const Figure& figure)
        : count(low16(static_cast<int32_t>(figure.points.size() + 2))),
          bottomUp(figure.first % 2 != 0) {
        points[0] = figure.points[0];
        std::copy(figure.points.begin() + 1, figure.points.end(), points.begin() + 3);
        Random random(static_cast<uint64_t>(figure.second));
        for (int16_t& column : columns) {
            column = low16(random.between(-5, kCountedWidth + 5));
        }
    }

    ModelEdge edge() const {
        const auto [top, bottom] = std::minmax(points[0].y, points[3].y);
        const int32_t lines = bottom - top + 1;
        std::vector<int16_t> table(columns.begin(), columns.begin() + lines);
        if (bottomUp) {
            std::reverse(table.begin(), table.end());
        }
        return {top, lines, 0, 0, table};
    }
};

void drawTablePolygon(GDrawHandle* handle, const Figure& figure) {
    TablePolygon table(figure);
    ASSERT_EQ(GDSetTableEdge(table.points.data(), table.columns.data(), table.bottomUp), 1);
    GPoly poly{table.count, table.points.data(), {}};
    GDSetPenColor(handle, G_NO_COLOR);
    GDDrawPoly(handle, &poly);
}

void layTablePolygon(Layers& layers, const Figure& figure) {
    std::vector<ModelEdge> edges = {TablePolygon(figure).edge()};
    for (size_t i = 1; i < figure.points.size(); ++i) {
        const GPoint& from = figure.points[i];
        const GPoint& to = figure.points[(i + 1) % figure.points.size()];
        if (from.y != to.y) {
            edges.push_back(straightEdge(from, to));
        }
    }
    if (fillsPolygons(figure.style)) {
        layers.addPolygon(edges);
    }
}

/// A triangle has one run a row, and so no pixel of its fill is painted twice.
void layTriangle(Layers& layers, const Figure& figure) {
    layers.addFill([&](GDrawHandle* handle) { drawPolygon(handle, figure); });
    Figure unfilled = figure;
    unfilled.style.fill = G_FILL_NONE;
    layPolygon(layers, unfilled);
}

GBorderStyle borderOf(const Figure& figure) {
    return {1, 0x111111, 0x333333, figure.style.outlined ? 0x555555 : G_NO_COLOR, figure.first % 9};
}

void drawBorder(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    const GBorderStyle border = borderOf(figure);
    GDDrawRectBorder(handle, &box, nullptr, &border, static_cast<uint16_t>(figure.second % 3));
}

/// Four polygons with a thin frame; the style of neither look leaves the fill to the handle.
void layBorder(Layers& layers, const Figure& figure) {
    const GRect o = figure.box();
    const int32_t width = borderOf(figure).width;
    if (width < 1) {
        return;
    }
    GRect i = o;
    GRResizeRect(&i, low16(1 - width), low16(1 - width));
    const int32_t e = figure.style.outlined ? 0 : 1;
    const int16_t below = low16(o.bottom + e);
    Figure band = figure;
    band.style.fill = figure.second % 3 == 2 ? figure.style.fill : int16_t{G_FILL_FORE};
    GDSetPenSize(layers.handle(), 1, 1);
    GDSetPenDash(layers.handle(), 0);
    const std::vector<GPoint> bands[] = {
        {{o.left, o.top}, {o.left, below}, {i.left, low16(i.bottom + e)}, {i.left, i.top}},
        {{o.left, o.top},
         {o.right, o.top},
         {i.right, low16(i.top + e)},
         {i.left, low16(i.top + e)}},
        {{o.right, below}, {o.right, o.top}, {i.right, i.top}, {i.right, low16(i.bottom + e)}},
        {{o.right, below}, {o.left, below}, {i.left, i.bottom}, {i.right, i.bottom}}};
    for (const auto& points : bands) {
        band.points = points;
        layPolygon(layers, band);
    }
}

const LayeredShape kShapes[] = {
    {"Pixel", 1, 1, drawPixel, layPixel},
    {"Line", 2, 2, drawLineOf, layLine},
    {"Polyline", 2, 7, drawPolyline, layPolyline},
    {"Bezier", 4, 4, drawBezier, layBezier},
    {"Rect", 2, 2, drawBox, layBox},
    {"RectBorder", 2, 2, drawBorder, layBorder},
    {"Polygon", 1, 9, drawPolygon, layPolygon},
    {"Triangle", 3, 3, drawPolygon, layTriangle},
    {"TablePolygon", 3, 8, drawTablePolygon, layTablePolygon},
};

class Overdraw : public RasterTest, public testing::WithParamInterface<LayeredShape> {};

TEST_P(Overdraw, IsThatOfItsLayers) {
    expectPaintedInLayers(platform, GetParam(), 200);
}

INSTANTIATE_TEST_SUITE_P(Straight, Overdraw, testing::ValuesIn(kShapes),
                         [](const auto& shape) { return shape.param.name; });

} // namespace
