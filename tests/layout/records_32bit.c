// Records with pointers, byte by byte as a 32-bit target sees them.
#include <assert.h>
#include <quarlo/quarlo.h>
#include <stddef.h>

#if UINTPTR_MAX == UINT32_MAX

static_assert(sizeof(GPoly) == 16, "GPoly");
static_assert(offsetof(GPoly, points) == 4, "GPoly");
static_assert(offsetof(GPoly, bounds) == 8, "GPoly");

static_assert(sizeof(GVram) == 56, "GVram");
static_assert(offsetof(GVram, bytesPerLine) == 8, "GVram");
static_assert(offsetof(GVram, pixels) == 12, "GVram");
static_assert(offsetof(GVram, reserved) == 16, "GVram");
static_assert(offsetof(GVram, colorType) == 20, "GVram");
static_assert(offsetof(GVram, redMask) == 24, "GVram");
static_assert(offsetof(GVram, paletteCount) == 36, "GVram");
static_assert(offsetof(GVram, palette) == 40, "GVram");
static_assert(offsetof(GVram, bounds) == 44, "GVram");
static_assert(offsetof(GVram, drawable) == 52, "GVram");

static_assert(sizeof(GPixelOps) == 36, "GPixelOps");
static_assert(offsetof(GPixelOps, nextPixel) == 8, "GPixelOps");
static_assert(offsetof(GPixelOps, readPixel) == 16, "GPixelOps");
static_assert(offsetof(GPixelOps, coveragePixel) == 20, "GPixelOps");
static_assert(offsetof(GPixelOps, drawRect) == 24, "GPixelOps");
static_assert(offsetof(GPixelOps, fillRect) == 28, "GPixelOps");
static_assert(offsetof(GPixelOps, patternRect) == 32, "GPixelOps");

static_assert(offsetof(GDrawHandle, localOrigin) == 8, "GDrawHandle");
static_assert(offsetof(GDrawHandle, virtualRect) == 12, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penPos) == 20, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penPixel) == 24, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penWidth) == 28, "GDrawHandle");
static_assert(offsetof(GDrawHandle, penJoin) == 32, "GDrawHandle");
static_assert(offsetof(GDrawHandle, dashPhase) == 36, "GDrawHandle");
static_assert(offsetof(GDrawHandle, forePixel) == 40, "GDrawHandle");
static_assert(offsetof(GDrawHandle, fillPattern) == 48, "GDrawHandle");
static_assert(offsetof(GDrawHandle, drawingMode) == 52, "GDrawHandle");
static_assert(offsetof(GDrawHandle, display) == 56, "GDrawHandle");
static_assert(offsetof(GDrawHandle, target) == 60, "GDrawHandle");
static_assert(offsetof(GDrawHandle, font) == 64, "GDrawHandle");
static_assert(offsetof(GDrawHandle, pixelOps) == 68, "GDrawHandle");
static_assert(offsetof(GDrawHandle, dashes) == 72, "GDrawHandle");
static_assert(offsetof(GDrawHandle, fillPatterns) == 136, "GDrawHandle");
static_assert(offsetof(GDrawHandle, polygon) == 440, "GDrawHandle");

static_assert(sizeof(GFontRecord) == 8, "GFontRecord");
static_assert(offsetof(GFontRecord, scale) == 4, "GFontRecord");

static_assert(sizeof(GGlyphRequest) == 24, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, next) == 4, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, width) == 8, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, height) == 10, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, bitsPerPixel) == 12, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, bits) == 16, "GGlyphRequest");
static_assert(offsetof(GGlyphRequest, metricsOnly) == 20, "GGlyphRequest");

static_assert(sizeof(GGrfImage) == 20, "GGrfImage");
static_assert(offsetof(GGrfImage, data) == 12, "GGrfImage");
static_assert(offsetof(GGrfImage, palette) == 16, "GGrfImage");
static_assert(sizeof(GGrfPalette) == 8, "GGrfPalette");
static_assert(offsetof(GGrfPalette, colors) == 4, "GGrfPalette");

static_assert(sizeof(GMessage) == 28, "GMessage");
static_assert(offsetof(GMessage, time) == 16, "GMessage");

#endif

// C knows no empty translation unit.
typedef int GRecords32Bit;
