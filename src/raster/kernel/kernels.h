// The kernels: what primitives do to memory, one set for each pixel format and drawing mode.
//
// Kernels know nothing of surfaces or clipping. They are given addresses and counts that lie inside
// pixel memory, write there and nowhere else, and return the cursor: the address behind the pixel
// that was written last.
#pragma once

#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// A walk along a line's major axis (midpoint algorithm): `count` pixels, each `major` bytes from
/// the one before, and `minor` bytes further whenever the error reaches zero.
struct LineSteps {
    int32_t count;
    ptrdiff_t major;
    ptrdiff_t minor;
    int32_t error;
    int32_t grow;   ///< added to the error at each pixel
    int32_t shrink; ///< taken from it at each minor step
};

/// A dash pattern on its way along a line.
struct DashSteps {
    uint64_t pattern; ///< step k is bit k; a set bit draws
    uint32_t phase;   ///< 16.16 fixed point, before the first pixel
    uint32_t step;    ///< 16.16 fixed point, added before each pixel

    bool drawsAt(uint32_t at) const { return (pattern >> (at >> 16 & 63) & 1) != 0; }
};

/// A run of pixels on one row, both ends included.
struct Span {
    int16_t left;
    int16_t right;
    int16_t y;
};

/// The visible part of a glyph's bitmap. Pixels stand in the highest bits first, and none straddles
/// two bytes.
struct GlyphBits {
    const uint8_t* bits; ///< the first visible row
    ptrdiff_t stride;
    int32_t bitsPerPixel; ///< 1, 2, 4 or 8
    int32_t firstPixel;   ///< the first visible pixel of a row
};

/// An image of runs and its visible part, in pixels of the image, both ends included.
struct RunImage {
    const uint8_t* stream;
    int32_t width; ///< of the whole image
    int32_t left;
    int32_t top;
    int32_t right;
    int32_t bottom;
};

/// The pixel that was written last, and the cursor; null when none was.
struct LastPixel {
    uint32_t pixel;
    uint8_t* cursor;
};

#ifdef QUARLO_SMALL_KERNELS

/// One format and mode for loops that serve them all. Each member does what the kernel of its name
/// below does; a caller need not know which of the two it calls.
struct Kernels {
    int32_t bytesPerPixel;
    int32_t mode;

    uint8_t* fill(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height,
                  uint32_t pixel) const;
    uint8_t* fillPattern(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height,
                         uint32_t fore, uint32_t back, const uint8_t rows[8], int32_t x,
                         int32_t y) const;
    uint8_t* fillSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                       uint32_t pixel) const;
    uint8_t* fillPatternSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                              uint32_t fore, uint32_t back, const uint8_t rows[8]) const;
    uint8_t* line(uint8_t* at, const LineSteps& steps, uint32_t pixel) const;
    uint8_t* dashedLine(uint8_t* at, const LineSteps& steps, const DashSteps& dash,
                        uint32_t pixel) const;
    uint8_t* transparentGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                              int32_t height, uint32_t fore, uint32_t back) const;
    uint8_t* opaqueGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                         int32_t height, uint32_t fore, uint32_t back) const;
    LastPixel runs(uint8_t* at, ptrdiff_t stride, const RunImage& image) const;
    uint8_t* bytes(uint8_t* at, const uint8_t* values, int32_t count) const;
    void putPixel(uint8_t* at, uint32_t pixel) const;
};

#else

/// All kernels of one format and mode. Counts are at least 1.
struct Kernels {
    int32_t bytesPerPixel;

    /// A solid rectangle; a span is one of height 1.
    uint8_t* (*fill)(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height, uint32_t pixel);

    /// A rectangle in an 8 x 8 pattern. (x, y) is where `at` lies in the frame that the pattern is
    /// anchored to; bit 7 of a row is its leftmost pixel.
    uint8_t* (*fillPattern)(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height,
                            uint32_t fore, uint32_t back, const uint8_t rows[8], int32_t x,
                            int32_t y);

    /// Runs in one colour, or in one 8 x 8 pattern anchored to the first pixel of the memory.
    uint8_t* (*fillSpans)(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                          uint32_t pixel);
    uint8_t* (*fillPatternSpans)(uint8_t* pixels, ptrdiff_t stride, const Span* spans,
                                 int32_t count, uint32_t fore, uint32_t back,
                                 const uint8_t rows[8]);

    uint8_t* (*line)(uint8_t* at, const LineSteps& steps, uint32_t pixel);

    /// Null when every step fell into a gap.
    uint8_t* (*dashedLine)(uint8_t* at, const LineSteps& steps, const DashSteps& dash,
                           uint32_t pixel);

    /// The pixels of a glyph that have any bit set in the fore colour: over what is there, or over
    /// the back colour in all of its pixels. Null when none has a bit set.
    using Glyph = uint8_t* (*)(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                               int32_t height, uint32_t fore, uint32_t back);
    Glyph transparentGlyph;
    Glyph opaqueGlyph;

    /// The visible part of an image whose values have the size of pixels; `at` is its upper left
    /// pixel. The stream is read to the last visible row.
    LastPixel (*runs)(uint8_t* at, ptrdiff_t stride, const RunImage& image);

    /// Pixels side by side whose values are bytes.
    uint8_t* (*bytes)(uint8_t* at, const uint8_t* values, int32_t count);

    void (*putPixel)(uint8_t* at, uint32_t pixel);
};

#endif

/// By bytes a pixel less one, then by drawing mode.
extern const Kernels kernelTable[3][4];

/// The kernels for 8, 16 or 24 bits a pixel and drawing mode 0 to 3; null for anything else.
inline const Kernels* kernelsFor(int32_t bitsPerPixel, int32_t mode) {
    const bool known = bitsPerPixel == 8 || bitsPerPixel == 16 || bitsPerPixel == 24;
    return known && mode >= 0 && mode <= 3 ? &kernelTable[bitsPerPixel / 8 - 1][mode] : nullptr;
}

/// Reads the pixel value at an address; 8, 16 or 24 bits a pixel.
uint32_t readPixel(const uint8_t* at, int32_t bitsPerPixel);

} // namespace quarlo::kernel
