// Curved figures: each pixel is painted once by a fill and by an outline, and again only where
// these meet.
#include "geometry/geometry.h"
#include "raster/arc.h"
#include "raster/curve_model.h"
#include "raster/outline.h"
#include "raster/overdraw.h"
#include "raster/wide_line.h"

#include <quarlo/rect.h>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// Draws something in the figure's box.
template <typename Draw>
auto inBox(const Figure& figure, Draw draw) {
    return [box = figure.box(), draw](GDrawHandle* handle) { draw(handle, &box); };
}

/// What a call fills, and what it outlines.
template <typename Draw>
void layFillAndOutline(Layers& layers, const Figure& figure, const Draw& draw) {
    layers.addFill(draw);
    if (figure.style.outlined) {
        GDSetFillPattern(layers.handle(), G_FILL_NONE);
        layers.add(draw);
    }
}

void drawOval(GDrawHandle* handle, const Figure& figure) {
    inBox(figure, GDDrawOval)(handle);
}

void layOval(Layers& layers, const Figure& figure) {
    layFillAndOutline(layers, figure, inBox(figure, GDDrawOval));
}

void drawRoundRect(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    GDDrawRRect(handle, &box, low16(figure.first / 100), low16(figure.second / 100));
}

/// The band between the quarters fills their lowest rows again.
void layRoundRect(Layers& layers, const Figure& figure) {
    const GRect box = figure.box();
    const int16_t fill = figure.style.fill;
    if (areDisjoint(box, figure.style.clip)) {
        return;
    }
    const auto model = CurveModel::roundRect(box, figure.first / 100, figure.second / 100);
    if (fill != G_FILL_NONE && fill != G_FILL_GRADATION) {
        for (const CurveModel::Row& row : model.quarterRows()) {
            layers.addRun(row.first, row.last, row.y);
        }
        for (int32_t y = model.top; y <= model.bottom; ++y) {
            layers.addRun(box.left, box.right, y);
        }
    }
    GDSetFillPattern(layers.handle(), G_FILL_NONE);
    layers.add([&](GDrawHandle* handle) { drawRoundRect(handle, figure); });
}

void drawArcOf(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    GDDrawArc(handle, &box, figure.first, figure.second);
}

void layArc(Layers& layers, const Figure& figure) {
    layers.add([&](GDrawHandle* handle) { drawArcOf(handle, figure); });
}

void drawPie(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    GDDrawPie(handle, &box, figure.first, figure.second);
}

/// Arc, radii and their join overlap when they are wide, and are rounded off.
void layWidePie(Layers& layers, const Figure& figure) {
    layArc(layers, figure);
    withArc(*layers.handle(), figure.box(), figure.first, figure.second,
            [&](const Canvas&, const Ellipse& ellipse, const ArcSpan& arc) {
                const GPoint start = arc.start.on(ellipse);
                const GPoint centre = ArcEnd{arc.start.quadrant, 0, 0}.on(ellipse);
                const GPoint end = arc.end.on(ellipse);
                layers.addWideLine({start.x, start.y, centre.x, centre.y});
                layers.addWideLine({centre.x, centre.y, end.x, end.y});
                layers.addPenDot(start);
                layers.addPenDot(end);
            });
}

void layPie(Layers& layers, const Figure& figure) {
    const auto draw = [&](GDrawHandle* handle) { drawPie(handle, figure); };
    if (!figure.style.outlined || !isWide(*layers.handle())) {
        layFillAndOutline(layers, figure, draw);
        return;
    }
    layers.addFill(draw);
    layWidePie(layers, figure);
}

GBorderStyle borderOf(const Figure& figure) {
    return {1, 0x111111, 0x333333, figure.style.outlined ? 0x555555 : G_NO_COLOR,
            figure.first % 12};
}

void drawBorder(GDrawHandle* handle, const Figure& figure) {
    const GRect box = figure.box();
    const GBorderStyle border = borderOf(figure);
    GDDrawOvalBorder(handle, &box, nullptr, &border, low16(figure.second % 2));
}

/// A ring, and on it the two halves of the bevel. Thin halves share the pixels of their ends.
void layBorder(Layers& layers, const Figure& figure) {
    const int32_t width = borderOf(figure).width;
    if (width < 1) {
        return;
    }
    GRect ring = figure.box();
    GRResizeRect(&ring, low16(-((width - 1) >> 1)), low16(-((width - 1) >> 1)));
    GDrawHandle* const handle = layers.handle();
    GDSetPenDash(handle, 0);
    GDSetFillPattern(handle, G_FILL_NONE);
    GDSetPenSize(handle, low16(width), low16(width));
    layers.add([&](GDrawHandle* pen) { GDDrawOval(pen, &ring); });
    GDSetPenColor(handle, 1);
    const int32_t bevel = figure.style.outlined ? width - 2 : width;
    GDSetPenSize(handle, low16(bevel), low16(bevel));
    layers.add([&](GDrawHandle* pen) { GDDrawArc(pen, &ring, 450, 2250); });
    layers.add([&](GDrawHandle* pen) { GDDrawArc(pen, &ring, 2250, 450); });
}

const LayeredShape kShapes[] = {
    {"Oval", 2, 2, drawOval, layOval},
    {"RoundRect", 2, 2, drawRoundRect, layRoundRect},
    {"Arc", 2, 2, drawArcOf, layArc},
    {"Pie", 2, 2, drawPie, layPie},
    {"OvalBorder", 2, 2, drawBorder, layBorder},
};

class CurveOverdraw : public RasterTest, public testing::WithParamInterface<LayeredShape> {};

TEST_P(CurveOverdraw, IsThatOfItsLayers) {
    expectPaintedInLayers(platform, GetParam(), 200);
}

INSTANTIATE_TEST_SUITE_P(Curved, CurveOverdraw, testing::ValuesIn(kShapes),
                         [](const auto& shape) { return shape.param.name; });

} // namespace
