// Records that look the same on every machine: they hold no pointer.
#include <assert.h>
#include <quarlo/quarlo.h>
#include <stddef.h>

static_assert(sizeof(GWord) == sizeof(void*), "a GWord carries a pointer");
static_assert(sizeof(char16_t) == 2, "text is made of 16-bit units");

static_assert(sizeof(GPoint) == 4, "GPoint");
static_assert(offsetof(GPoint, x) == 0, "GPoint");
static_assert(offsetof(GPoint, y) == 2, "GPoint");

static_assert(sizeof(GRect) == 8, "GRect");
static_assert(offsetof(GRect, left) == 0, "GRect");
static_assert(offsetof(GRect, top) == 2, "GRect");
static_assert(offsetof(GRect, right) == 4, "GRect");
static_assert(offsetof(GRect, bottom) == 6, "GRect");

static_assert(sizeof(GLine) == 8, "GLine");
static_assert(offsetof(GLine, x1) == 0, "GLine");
static_assert(offsetof(GLine, y1) == 2, "GLine");
static_assert(offsetof(GLine, x2) == 4, "GLine");
static_assert(offsetof(GLine, y2) == 6, "GLine");

static_assert(sizeof(GSize) == 4, "GSize");
static_assert(offsetof(GSize, width) == 0, "GSize");
static_assert(offsetof(GSize, height) == 2, "GSize");

static_assert(sizeof(GBrush) == 12, "GBrush");
static_assert(offsetof(GBrush, pattern) == 0, "GBrush");
static_assert(offsetof(GBrush, fore) == 4, "GBrush");
static_assert(offsetof(GBrush, back) == 8, "GBrush");

static_assert(sizeof(GGradationInfo) == 16, "GGradationInfo");
static_assert(offsetof(GGradationInfo, direction) == 0, "GGradationInfo");
static_assert(offsetof(GGradationInfo, startColor) == 4, "GGradationInfo");
static_assert(offsetof(GGradationInfo, endColor) == 8, "GGradationInfo");
static_assert(offsetof(GGradationInfo, lead) == 12, "GGradationInfo");
static_assert(offsetof(GGradationInfo, steps) == 14, "GGradationInfo");

static_assert(sizeof(GWideLineState) == 28, "GWideLineState");
static_assert(offsetof(GWideLineState, corners) == 0, "GWideLineState");
static_assert(offsetof(GWideLineState, end) == 16, "GWideLineState");
static_assert(offsetof(GWideLineState, previous) == 20, "GWideLineState");

static_assert(sizeof(GArcState) == 12, "GArcState");
static_assert(offsetof(GArcState, start) == 0, "GArcState");
static_assert(offsetof(GArcState, end) == 4, "GArcState");
static_assert(offsetof(GArcState, inverseSlope) == 8, "GArcState");

static_assert(sizeof(GBorderStyle) == 20, "GBorderStyle");
static_assert(offsetof(GBorderStyle, enabled) == 0, "GBorderStyle");
static_assert(offsetof(GBorderStyle, colorA) == 4, "GBorderStyle");
static_assert(offsetof(GBorderStyle, colorB) == 8, "GBorderStyle");
static_assert(offsetof(GBorderStyle, frameColor) == 12, "GBorderStyle");
static_assert(offsetof(GBorderStyle, width) == 16, "GBorderStyle");

static_assert(sizeof(GDirtyRectList) == 100, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, rects) == 0, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, areas) == 48, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, count) == 72, "GDirtyRectList");
static_assert(offsetof(GDirtyRectList, drawForce) == 76, "GDirtyRectList");

static_assert(sizeof(GFontScale) == 18, "GFontScale");
static_assert(offsetof(GFontScale, reserved) == 0, "GFontScale");
static_assert(offsetof(GFontScale, magnifyX) == 16, "GFontScale");
static_assert(offsetof(GFontScale, magnifyY) == 17, "GFontScale");

static_assert(sizeof(GFontAttribute) == 20, "GFontAttribute");
static_assert(offsetof(GFontAttribute, height) == 0, "GFontAttribute");
static_assert(offsetof(GFontAttribute, wideWidth) == 2, "GFontAttribute");
static_assert(offsetof(GFontAttribute, bitsPerPixel) == 4, "GFontAttribute");
static_assert(offsetof(GFontAttribute, bold) == 6, "GFontAttribute");
static_assert(offsetof(GFontAttribute, reserved1) == 8, "GFontAttribute");
static_assert(offsetof(GFontAttribute, magnification) == 16, "GFontAttribute");
static_assert(offsetof(GFontAttribute, reserved2) == 18, "GFontAttribute");

static_assert(sizeof(GSimpleFont) == 72, "GSimpleFont");
static_assert(offsetof(GSimpleFont, face) == 0, "GSimpleFont");
static_assert(offsetof(GSimpleFont, size) == 66, "GSimpleFont");
static_assert(offsetof(GSimpleFont, magnifyX) == 67, "GSimpleFont");
static_assert(offsetof(GSimpleFont, magnifyY) == 68, "GSimpleFont");
static_assert(offsetof(GSimpleFont, bitsPerPixel) == 69, "GSimpleFont");
static_assert(offsetof(GSimpleFont, flags) == 70, "GSimpleFont");

static_assert(sizeof(GFontInformation) == 84, "GFontInformation");
static_assert(offsetof(GFontInformation, face) == 0, "GFontInformation");
static_assert(offsetof(GFontInformation, flags) == 66, "GFontInformation");
static_assert(offsetof(GFontInformation, width) == 68, "GFontInformation");
static_assert(offsetof(GFontInformation, height) == 70, "GFontInformation");
static_assert(offsetof(GFontInformation, ascent) == 72, "GFontInformation");
static_assert(offsetof(GFontInformation, bitsPerPixel) == 74, "GFontInformation");
static_assert(offsetof(GFontInformation, cachedGlyphs) == 76, "GFontInformation");
static_assert(offsetof(GFontInformation, cachedBytes) == 80, "GFontInformation");

static_assert(sizeof(GCaptionAttr) == 16, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, color) == 0, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, horizontal) == 4, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, vertical) == 5, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, leftMargin) == 6, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, rightMargin) == 8, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, topMargin) == 10, "GCaptionAttr");
static_assert(offsetof(GCaptionAttr, bottomMargin) == 12, "GCaptionAttr");

static_assert(sizeof(GCaptionCursor) == 8, "GCaptionCursor");
static_assert(offsetof(GCaptionCursor, style) == 0, "GCaptionCursor");
static_assert(offsetof(GCaptionCursor, color) == 4, "GCaptionCursor");

static_assert(sizeof(GCaptionSelect) == 12, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, shown) == 0, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, first) == 2, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, last) == 4, "GCaptionSelect");
static_assert(offsetof(GCaptionSelect, color) == 8, "GCaptionSelect");

static_assert(sizeof(GEventMsg) == 24, "GEventMsg");
static_assert(offsetof(GEventMsg, type) == 0, "GEventMsg");
static_assert(offsetof(GEventMsg, target) == 4, "GEventMsg");
static_assert(offsetof(GEventMsg, param1) == 8, "GEventMsg");
static_assert(offsetof(GEventMsg, param2) == 12, "GEventMsg");
static_assert(offsetof(GEventMsg, reserved) == 16, "GEventMsg");

static_assert(sizeof(GSystemTime) == 8, "GSystemTime");
static_assert(offsetof(GSystemTime, low) == 0, "GSystemTime");
static_assert(offsetof(GSystemTime, high) == 4, "GSystemTime");

static_assert(sizeof(GBrokenDownTime) == 28, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, second) == 0, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, minute) == 4, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, hour) == 8, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, day) == 12, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, month) == 16, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, year) == 20, "GBrokenDownTime");
static_assert(offsetof(GBrokenDownTime, weekday) == 24, "GBrokenDownTime");

static_assert(sizeof(GDirectoryEntry) == 524, "GDirectoryEntry");
static_assert(offsetof(GDirectoryEntry, name) == 0, "GDirectoryEntry");
static_assert(offsetof(GDirectoryEntry, size) == 512, "GDirectoryEntry");
static_assert(offsetof(GDirectoryEntry, attributes) == 516, "GDirectoryEntry");
static_assert(offsetof(GDirectoryEntry, time) == 520, "GDirectoryEntry");

static_assert(sizeof(GJpegInfo) == 12, "GJpegInfo");
static_assert(offsetof(GJpegInfo, width) == 0, "GJpegInfo");
static_assert(offsetof(GJpegInfo, height) == 4, "GJpegInfo");
static_assert(offsetof(GJpegInfo, components) == 8, "GJpegInfo");

static_assert(sizeof(GNetUrl) == 6152, "GNetUrl");
static_assert(offsetof(GNetUrl, protocol) == 0, "GNetUrl");
static_assert(offsetof(GNetUrl, port) == 4, "GNetUrl");
static_assert(offsetof(GNetUrl, user) == 8, "GNetUrl");
static_assert(offsetof(GNetUrl, password) == 520, "GNetUrl");
static_assert(offsetof(GNetUrl, host) == 1032, "GNetUrl");
static_assert(offsetof(GNetUrl, path) == 1544, "GNetUrl");
static_assert(offsetof(GNetUrl, extra) == 5640, "GNetUrl");

static_assert(sizeof(GNetFileInfo) == 528, "GNetFileInfo");
static_assert(offsetof(GNetFileInfo, name) == 0, "GNetFileInfo");
static_assert(offsetof(GNetFileInfo, sizeLow) == 512, "GNetFileInfo");
static_assert(offsetof(GNetFileInfo, sizeHigh) == 516, "GNetFileInfo");
static_assert(offsetof(GNetFileInfo, attributes) == 520, "GNetFileInfo");
static_assert(offsetof(GNetFileInfo, time) == 524, "GNetFileInfo");
