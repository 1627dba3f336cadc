// Records that look the same on every machine: they hold no pointer.
#include <assert.h>
#include <quarlo/quarlo.h>
#include <stddef.h>

static_assert(sizeof(GWord) == sizeof(void*), "a GWord carries a pointer");
static_assert(sizeof(char16_t) == 2, "text is made of 16-bit units");

static_assert(sizeof(GPoint) == 4, "GPoint");
static_assert(sizeof(GRect) == 8, "GRect");
static_assert(offsetof(GRect, top) == 2 && offsetof(GRect, right) == 4, "GRect");
static_assert(sizeof(GLine) == 8, "GLine");
static_assert(offsetof(GLine, y1) == 2 && offsetof(GLine, x2) == 4, "GLine");
static_assert(sizeof(GSize) == 4, "GSize");

static_assert(sizeof(GBrush) == 12, "GBrush");
static_assert(sizeof(GGradationInfo) == 16, "GGradationInfo");
static_assert(offsetof(GGradationInfo, startColor) == 4, "GGradationInfo");
static_assert(offsetof(GGradationInfo, endColor) == 8, "GGradationInfo");
static_assert(offsetof(GGradationInfo, lead) == 12, "GGradationInfo");
static_assert(offsetof(GGradationInfo, steps) == 14, "GGradationInfo");
static_assert(sizeof(GBorderStyle) == 20, "GBorderStyle");
static_assert(offsetof(GBorderStyle, frameColor) == 12, "GBorderStyle");
static_assert(offsetof(GBorderStyle, width) == 16, "GBorderStyle");

static_assert(sizeof(GDirtyRectList) == 100, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, rects) == 0, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, areas) == 48, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, count) == 72, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, drawForce) == 76, "GDirtyRectList");

static_assert(sizeof(GFontAttribute) == 20, "GFontAttribute");
static_assert(offsetof(GFontAttribute, wideWidth) == 2, "GFontAttribute");
static_assert(offsetof(GFontAttribute, bitsPerPixel) == 4, "GFontAttribute");
static_assert(offsetof(GFontAttribute, bold) == 6, "GFontAttribute");
static_assert(offsetof(GFontAttribute, magnification) == 16, "GFontAttribute");
static_assert(offsetof(GSimpleFont, face) == 0, "GSimpleFont");
static_assert(offsetof(GSimpleFont, size) == 66, "GSimpleFont");
static_assert(offsetof(GSimpleFont, magnifyX) == 67, "GSimpleFont");
static_assert(offsetof(GSimpleFont, magnifyY) == 68, "GSimpleFont");
static_assert(offsetof(GSimpleFont, bitsPerPixel) == 69, "GSimpleFont");
static_assert(offsetof(GSimpleFont, flags) == 70, "GSimpleFont");
static_assert(offsetof(GFontRecord, kind) == 2, "GFontRecord");
static_assert(offsetof(GFontScale, magnifyX) == 16, "GFontScale");
static_assert(offsetof(GFontScale, magnifyY) == 17, "GFontScale");

static_assert(sizeof(GCaptionAttr) == 16, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, horizontal) == 4, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, vertical) == 5, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, leftMargin) == 6, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, rightMargin) == 8, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, topMargin) == 10, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, bottomMargin) == 12, "GCaptionAttr");
static_assert(sizeof(GCaptionCursor) == 8, "GCaptionCursor");
static_assert(offsetof(GCaptionCursor, color) == 4, "GCaptionCursor");
static_assert(sizeof(GCaptionSelect) == 12, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, first) == 2, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, last) == 4, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, color) == 8, "GCaptionSelect");

static_assert(offsetof(GGrfImage, width) == 2, "GGrfImage");
static_assert(offsetof(GGrfImage, height) == 4, "GGrfImage");
static_assert(offsetof(GGrfImage, bits) == 6, "GGrfImage");
static_assert(offsetof(GGrfImage, size) == 8, "GGrfImage");

static_assert(sizeof(GEventMsg) == 24, "GEventMsg");
static_assert(offsetof(GEventMsg, target) == 4, "GEventMsg");
static_assert(offsetof(GEventMsg, param1) == 8, "GEventMsg");
static_assert(offsetof(GEventMsg, param2) == 12, "GEventMsg");
static_assert(offsetof(GEventMsg, reserved) == 16, "GEventMsg");
static_assert(sizeof(GSystemTime) == 8, "GSystemTime");
static_assert(offsetof(GSystemTime, high) == 4, "GSystemTime");
static_assert(sizeof(GBrokenDownTime) == 28, "GBrokenDownTime");
