// Bevelled borders of rectangles.
#include "geometry/geometry.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/rect.h>

#include <algorithm>

namespace quarlo {
namespace {

/// Styles of a border. Any other leaves the fill style to the handle.
enum { kRaised = 0, kSunken = 1 };

bool isEnabled(const GBorderStyle& border) {
    return (border.enabled & 0xFF) != 0;
}

int16_t widthOf(const GBorderStyle& border) {
    return low16(border.width);
}

/// Drawn is what is not -1; room is kept for what is not negative.
bool hasFrame(const GBorderStyle& border) {
    return static_cast<int32_t>(border.frameColor) >= 0;
}

void shrink(GRect& rect, int32_t by) {
    GRResizeRect(&rect, low16(-by), low16(-by));
}

/// The lowest column would mark a table edge. It is out of sight, and so is the one beside it.
GPoint corner(GPoint point) {
    return {std::max<int16_t>(point.x, G_TABLE_EDGE + 1), point.y};
}

void fillBand(GDrawHandle* handle, GPoint a, GPoint b, GPoint c, GPoint d) {
    GPoint corners[] = {corner(a), corner(b), corner(c), corner(d)};
    GPoly band{4, corners, {}};
    GDDrawPoly(handle, &band);
}

/// Fills the bands that follow in the light colour or in the dark one.
void chooseSide(GDrawHandle* handle, uint16_t style, bool light) {
    if (style == kRaised || style == kSunken) {
        GDSetFillPattern(handle, light == (style == kRaised) ? G_FILL_FORE : G_FILL_BACK);
    }
}

/// Four bands that meet on the diagonals. Without a frame line the lower edges stand one row lower:
/// a polygon leaves its lowest row to its frame.
void drawBands(GDrawHandle* handle, const GRect& outer, const GRect& inner,
               const GBorderStyle& border, uint16_t style) {
    const int32_t extra = border.frameColor == G_NO_COLOR ? 1 : 0;
    const int16_t bottom = low16(outer.bottom + extra);
    const int16_t innerBottom = low16(inner.bottom + extra);
    const int16_t innerTop = low16(inner.top + extra);
    chooseSide(handle, style, true);
    fillBand(handle, {outer.left, outer.top}, {outer.left, bottom}, {inner.left, innerBottom},
             {inner.left, inner.top});
    fillBand(handle, {outer.left, outer.top}, {outer.right, outer.top}, {inner.right, innerTop},
             {inner.left, innerTop});
    chooseSide(handle, style, false);
    fillBand(handle, {outer.right, bottom}, {outer.right, outer.top}, {inner.right, inner.top},
             {inner.right, innerBottom});
    fillBand(handle, {outer.right, bottom}, {outer.left, bottom}, {inner.left, inner.bottom},
             {inner.right, inner.bottom});
}

void draw(GDrawHandle* handle, const GRect& outer, const GRect& inner, const GBorderStyle& border,
          uint16_t style) {
    GDSetPenColor(handle, border.frameColor);
    GDSetPenSize(handle, 1, 1);
    GDSetPenDash(handle, 0);
    GDSetFillColor(handle, border.colorA, border.colorB);
    drawBands(handle, outer, inner, border, style);
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawRectBorder(GDrawHandle* handle, const GRect* rect, GRect* inner,
                      const GBorderStyle* border, uint16_t style) {
    if (rect == nullptr) {
        return;
    }
    const GRect outer = *rect;
    GRect inside = outer;
    if (isEnabled(*border)) {
        const int16_t width = widthOf(*border);
        if (width > 0) {
            shrink(inside, width - 1);
        }
        if (handle != nullptr && width >= 1) {
            draw(handle, outer, inside, *border, style);
        }
        if (hasFrame(*border) || width >= 1) {
            shrink(inside, 1);
        }
    }
    if (inner != nullptr) {
        *inner = inside;
    }
}

void GDCalcBorderRect(const GRect* rect, GRect* inner, GRect* outer, const GBorderStyle* border) {
    if (rect == nullptr) {
        return;
    }
    GRect inside = *rect;
    if (outer != nullptr) {
        *outer = inside;
    }
    if (isEnabled(*border)) {
        shrink(inside, widthOf(*border));
        if (!hasFrame(*border)) {
            return;
        }
        shrink(inside, 1);
    }
    if (inner != nullptr) {
        *inner = inside;
    }
}
