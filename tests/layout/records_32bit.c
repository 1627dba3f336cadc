// Records with pointers, byte by byte as a 32-bit target sees them.
#include <assert.h>
#include <quarlo/grf_file.h>
#include <quarlo/quarlo.h>
#include <stddef.h>

#if UINTPTR_MAX == UINT32_MAX

static_assert(sizeof(GPoly) == 16, "GPoly");
static_assert(offsetof(GPoly, count) == 0, "GPoly");
static_assert(offsetof(GPoly, points) == 4, "GPoly");
static_assert(offsetof(GPoly, bounds) == 8, "GPoly");

static_assert(sizeof(GVram) == 56, "GVram");
static_assert(offsetof(GVram, id) == 0, "GVram");
static_assert(offsetof(GVram, width) == 2, "GVram");
static_assert(offsetof(GVram, height) == 4, "GVram");
static_assert(offsetof(GVram, bitsPerPixel) == 6, "GVram");
static_assert(offsetof(GVram, bytesPerLine) == 8, "GVram");
static_assert(offsetof(GVram, pixels) == 12, "GVram");
static_assert(offsetof(GVram, reserved) == 16, "GVram");
static_assert(offsetof(GVram, colorType) == 20, "GVram");
static_assert(offsetof(GVram, redMask) == 24, "GVram");
static_assert(offsetof(GVram, greenMask) == 28, "GVram");
static_assert(offsetof(GVram, blueMask) == 32, "GVram");
static_assert(offsetof(GVram, paletteCount) == 36, "GVram");
static_assert(offsetof(GVram, palette) == 40, "GVram");
static_assert(offsetof(GVram, bounds) == 44, "GVram");
static_assert(offsetof(GVram, drawable) == 52, "GVram");

static_assert(sizeof(GPixelOps) == 36, "GPixelOps");
static_assert(offsetof(GPixelOps, setPixel) == 0, "GPixelOps");
static_assert(offsetof(GPixelOps, span) == 4, "GPixelOps");
static_assert(offsetof(GPixelOps, nextPixel) == 8, "GPixelOps");
static_assert(offsetof(GPixelOps, unused) == 12, "GPixelOps");
static_assert(offsetof(GPixelOps, readPixel) == 16, "GPixelOps");
static_assert(offsetof(GPixelOps, coveragePixel) == 20, "GPixelOps");
static_assert(offsetof(GPixelOps, drawRect) == 24, "GPixelOps");
static_assert(offsetof(GPixelOps, fillRect) == 28, "GPixelOps");
static_assert(offsetof(GPixelOps, patternRect) == 32, "GPixelOps");

static_assert(sizeof(GPolygonState) == 28, "GPolygonState");
static_assert(offsetof(GPolygonState, pending) == 0, "GPolygonState");
static_assert(offsetof(GPolygonState, active) == 4, "GPolygonState");
static_assert(offsetof(GPolygonState, edges) == 8, "GPolygonState");
static_assert(offsetof(GPolygonState, pattern) == 12, "GPolygonState");
static_assert(offsetof(GPolygonState, mode) == 14, "GPolygonState");
static_assert(offsetof(GPolygonState, fore) == 16, "GPolygonState");
static_assert(offsetof(GPolygonState, back) == 20, "GPolygonState");
static_assert(offsetof(GPolygonState, rows) == 24, "GPolygonState");

static_assert(sizeof(GEllipseState) == 24, "GEllipseState");
static_assert(offsetof(GEllipseState, fore) == 0, "GEllipseState");
static_assert(offsetof(GEllipseState, back) == 4, "GEllipseState");
static_assert(offsetof(GEllipseState, mode) == 8, "GEllipseState");
static_assert(offsetof(GEllipseState, rows) == 12, "GEllipseState");
static_assert(offsetof(GEllipseState, leftCentre) == 16, "GEllipseState");
static_assert(offsetof(GEllipseState, rightCentre) == 18, "GEllipseState");
static_assert(offsetof(GEllipseState, topCentre) == 20, "GEllipseState");
static_assert(offsetof(GEllipseState, bottomCentre) == 22, "GEllipseState");

static_assert(sizeof(GDrawHandle) == 592, "GDrawHandle");
static_assert(offsetof(GDrawHandle, view) == 0, "GDrawHandle");
static_assert(offsetof(GDrawHandle, localOrigin) == 8, "GDrawHandle");
static_assert(offsetof(GDrawHandle, virtualRect) == 12, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penPos) == 20, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penPixel) == 24, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penWidth) == 28, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penHeight) == 30, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penJoin) == 32, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penDash) == 34, "GDrawHandle");
static_assert(offsetof(GDrawHandle, dashPhase) == 36, "GDrawHandle");
static_assert(offsetof(GDrawHandle, textMode) == 38, "GDrawHandle");
static_assert(offsetof(GDrawHandle, forePixel) == 40, "GDrawHandle");
static_assert(offsetof(GDrawHandle, backPixel) == 44, "GDrawHandle");
static_assert(offsetof(GDrawHandle, fillPattern) == 48, "GDrawHandle");
static_assert(offsetof(GDrawHandle, modeFlags) == 50, "GDrawHandle");
static_assert(offsetof(GDrawHandle, drawingMode) == 52, "GDrawHandle");
static_assert(offsetof(GDrawHandle, display) == 56, "GDrawHandle");
static_assert(offsetof(GDrawHandle, target) == 60, "GDrawHandle");
static_assert(offsetof(GDrawHandle, font) == 64, "GDrawHandle");
static_assert(offsetof(GDrawHandle, pixelOps) == 68, "GDrawHandle");
static_assert(offsetof(GDrawHandle, dashes) == 72, "GDrawHandle");
static_assert(offsetof(GDrawHandle, fillPatterns) == 136, "GDrawHandle");
static_assert(offsetof(GDrawHandle, polygon) == 440, "GDrawHandle");
static_assert(offsetof(GDrawHandle, wideLine) == 468, "GDrawHandle");
static_assert(offsetof(GDrawHandle, ellipse) == 496, "GDrawHandle");
static_assert(offsetof(GDrawHandle, arc) == 520, "GDrawHandle");
static_assert(offsetof(GDrawHandle, error) == 532, "GDrawHandle");
static_assert(offsetof(GDrawHandle, gradation) == 536, "GDrawHandle");
static_assert(offsetof(GDrawHandle, colorMode) == 552, "GDrawHandle");
static_assert(offsetof(GDrawHandle, modeRedMask) == 556, "GDrawHandle");
static_assert(offsetof(GDrawHandle, modeGreenMask) == 560, "GDrawHandle");
static_assert(offsetof(GDrawHandle, modeBlueMask) == 564, "GDrawHandle");
static_assert(offsetof(GDrawHandle, redShift) == 568, "GDrawHandle");
static_assert(offsetof(GDrawHandle, greenShift) == 569, "GDrawHandle");
static_assert(offsetof(GDrawHandle, blueShift) == 570, "GDrawHandle");
static_assert(offsetof(GDrawHandle, foreColor) == 572, "GDrawHandle");
static_assert(offsetof(GDrawHandle, backColor) == 576, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penColor) == 580, "GDrawHandle");
static_assert(offsetof(GDrawHandle, openArg2) == 584, "GDrawHandle");
static_assert(offsetof(GDrawHandle, openArg1) == 588, "GDrawHandle");

static_assert(sizeof(GFontRecord) == 8, "GFontRecord");
static_assert(offsetof(GFontRecord, reserved) == 0, "GFontRecord");
static_assert(offsetof(GFontRecord, kind) == 2, "GFontRecord");
static_assert(offsetof(GFontRecord, scale) == 4, "GFontRecord");

static_assert(sizeof(GFontUserAttribute) == 8, "GFontUserAttribute");
static_assert(offsetof(GFontUserAttribute, substitute) == 0, "GFontUserAttribute");
static_assert(offsetof(GFontUserAttribute, reserved) == 2, "GFontUserAttribute");
static_assert(offsetof(GFontUserAttribute, data) == 4, "GFontUserAttribute");

static_assert(sizeof(GGlyphRequest) == 24, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, text) == 0, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, next) == 4, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, width) == 8, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, height) == 10, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, bitsPerPixel) == 12, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, bits) == 16, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, metricsOnly) == 20, "GGlyphRequest");

static_assert(sizeof(GGrfPalette) == 8, "GGrfPalette");
static_assert(offsetof(GGrfPalette, count) == 0, "GGrfPalette");
static_assert(offsetof(GGrfPalette, colors) == 4, "GGrfPalette");

static_assert(sizeof(GGrfImage) == 20, "GGrfImage");
static_assert(offsetof(GGrfImage, type) == 0, "GGrfImage");
static_assert(offsetof(GGrfImage, width) == 2, "GGrfImage");
static_assert(offsetof(GGrfImage, height) == 4, "GGrfImage");
static_assert(offsetof(GGrfImage, bits) == 6, "GGrfImage");
static_assert(offsetof(GGrfImage, size) == 8, "GGrfImage");
static_assert(offsetof(GGrfImage, data) == 12, "GGrfImage");
static_assert(offsetof(GGrfImage, palette) == 16, "GGrfImage");

static_assert(sizeof(GGrfRun) == 16, "GGrfRun");
static_assert(offsetof(GGrfRun, kind) == 0, "GGrfRun");
static_assert(offsetof(GGrfRun, count) == 4, "GGrfRun");
static_assert(offsetof(GGrfRun, units) == 8, "GGrfRun");
static_assert(offsetof(GGrfRun, next) == 12, "GGrfRun");

static_assert(sizeof(GGrfFile) == 1064, "GGrfFile");
static_assert(offsetof(GGrfFile, image) == 0, "GGrfFile");
static_assert(offsetof(GGrfFile, palette) == 20, "GGrfFile");
static_assert(offsetof(GGrfFile, redMask) == 28, "GGrfFile");
static_assert(offsetof(GGrfFile, greenMask) == 32, "GGrfFile");
static_assert(offsetof(GGrfFile, blueMask) == 36, "GGrfFile");
static_assert(offsetof(GGrfFile, colors) == 40, "GGrfFile");

static_assert(sizeof(GGrfInspection) == 24, "GGrfInspection");
static_assert(offsetof(GGrfInspection, file) == 0, "GGrfInspection");
static_assert(offsetof(GGrfInspection, bytes) == 4, "GGrfInspection");
static_assert(offsetof(GGrfInspection, size) == 8, "GGrfInspection");
static_assert(offsetof(GGrfInspection, report) == 12, "GGrfInspection");
static_assert(offsetof(GGrfInspection, context) == 16, "GGrfInspection");
static_assert(offsetof(GGrfInspection, faults) == 20, "GGrfInspection");

static_assert(sizeof(GMessage) == 28, "GMessage");
static_assert(offsetof(GMessage, window) == 0, "GMessage");
static_assert(offsetof(GMessage, number) == 4, "GMessage");
static_assert(offsetof(GMessage, param1) == 8, "GMessage");
static_assert(offsetof(GMessage, param2) == 12, "GMessage");
static_assert(offsetof(GMessage, time) == 16, "GMessage");
static_assert(offsetof(GMessage, x) == 20, "GMessage");
static_assert(offsetof(GMessage, y) == 24, "GMessage");

#endif

// C knows no empty translation unit.
typedef int GRecords32Bit;
