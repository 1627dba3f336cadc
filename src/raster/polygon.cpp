// Polygons, filled and framed.
#include "raster/polygon.h"

#include "geometry/view.h"
#include "raster/edge_table.h"
#include "raster/fill_notice.h"
#include "raster/line.h"
#include "raster/span_painter.h"
#include "raster/wide_line.h"

#include <quarlo/draw.h>
#include <quarlo/poly.h>

namespace quarlo {
namespace {

using Tables = EdgeTable::Tables;

/// The fill's description stands in the handle while it lasts.
Paint describeFill(GDrawHandle& handle, uint32_t fore, uint32_t back, int32_t pattern,
                   int32_t mode) {
    GPolygonState& state = handle.polygon;
    const int32_t number = pattern < 0 ? pattern : pattern % G_FILL_PATTERN_COUNT;
    state.pattern = low16(number);
    state.mode = static_cast<uint16_t>(mode);
    state.fore = fore;
    state.back = back;
    state.rows = pattern < 0 ? nullptr : handle.fillPatterns[number];
    return {fore, back, state.rows};
}

void fillPolygon(const Canvas& canvas, const GPoly& poly, const Paint& paint, int32_t mode,
                 Tables tables) {
    SpanPainter painter(canvas, paint, mode);
    EdgeTable edges(canvas.handle.polygon, painter.area());
    if (isValid(painter.area()) && edges.build(poly, tables)) {
        edges.paint(painter);
    }
}

void fill(const Canvas& canvas, const GPoly& poly, uint32_t fore, uint32_t back, int32_t pattern,
          int32_t mode, Tables tables) {
    if (poly.count < 3 || pattern < kSolidPattern) {
        return;
    }
    fillPolygon(canvas, poly, describeFill(canvas.handle, fore, back, pattern, mode), mode, tables);
}

bool isVisible(const Canvas& canvas, const GPoly& poly) {
    const auto boxOf = [](const GPoint& point) {
        return GRect{point.x, point.y, point.x, point.y};
    };
    GRect box = boxOf(poly.points[0]);
    for (int32_t i = 1; i < poly.count; ++i) {
        box = unite(box, boxOf(poly.points[i]));
    }
    return isValid(canvas.area) && !areDisjoint(box, canvas.area);
}

void fillByStyle(const Canvas& canvas, const GPoly& poly, Tables tables) {
    GDrawHandle& handle = canvas.handle;
    const int32_t mode = handle.drawingMode;
    const int16_t style = handle.fillPattern;
    if (style == G_FILL_FORE) {
        fill(canvas, poly, handle.forePixel, handle.forePixel, kSolidPattern, mode, tables);
    } else if (style == G_FILL_BACK) {
        fill(canvas, poly, handle.backPixel, handle.backPixel, kSolidPattern, mode, tables);
    } else if (style >= 0) {
        if (isVisible(canvas, poly)) {
            noticeFillPattern(canvas, handle.fillPatterns[style % G_FILL_PATTERN_COUNT]);
        }
        fill(canvas, poly, handle.forePixel, handle.backPixel, style, mode, tables);
    }
}

GLine between(const GPoint& from, const GPoint& to) {
    return {from.x, from.y, to.x, to.y};
}

void frame(const Canvas& canvas, const GPoly& poly) {
    const int32_t last = poly.count - 1;
    for (int32_t i = 0; i < last; ++i) {
        GDRasterLine(canvas, between(poly.points[i], poly.points[i + 1]));
    }
    GDRasterLine(canvas, between(poly.points[last], poly.points[0]));
    if (last > 0) {
        closeFrame(canvas, between(poly.points[0], poly.points[1]));
    }
    canvas.handle.dashPhase = 0;
}

} // namespace

void GDFillPolygon(const Canvas& canvas, const GPoly& poly, uint32_t fore, uint32_t back,
                   int32_t pattern, int32_t mode) {
    fill(canvas, poly, fore, back, pattern, mode, Tables::Read);
}

} // namespace quarlo

using namespace quarlo;

void GDDrawPoly(GDrawHandle* handle, GPoly* poly) {
    if (poly->count <= 0) {
        return;
    }
    // The caller's points are moved to the surface and back rather than copied. What was moved can
    // carry no table edges: a marker would no longer be one.
    const GPoint origin = handle->localOrigin;
    const bool mapped = isVirtual(*handle);
    const bool moved = !mapped && (origin.x != 0 || origin.y != 0);
    if (mapped) {
        GPVirtualToPhysicalPoly(handle, poly);
    } else if (moved) {
        GPOffsetPoly(poly, low16(-origin.x), low16(-origin.y));
    }
    const Canvas canvas(*handle);
    fillByStyle(canvas, *poly, mapped || moved ? Tables::Ignore : Tables::Read);
    if (handle->penPixel != G_NO_COLOR) {
        frame(canvas, *poly);
    }
    if (mapped) {
        GPPhysicalToVirtualPoly(handle, poly);
    } else if (moved) {
        GPOffsetPoly(poly, origin.x, origin.y);
    }
}
