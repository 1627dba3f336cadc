// The kernels of a build for size: one loop serves all formats and modes.
#include "raster/kernel/kernels.h"

#include "raster/kernel/glyph_strip.h"
#include "raster/kernel/line.h"
#include "raster/kernel/run_reader.h"
#include "raster/kernel/small/row.h"

#include <algorithm>
#include <bit>

namespace quarlo::kernel {

uint8_t* Kernels::fill(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height,
                       uint32_t pixel) const {
    const Ink ink = inkOf(pixel, mode);
    const RowInk row(ink, ink, 0, bytesPerPixel);
    const auto length = static_cast<size_t>(width * bytesPerPixel);
    for (; height > 1; --height, at += stride) {
        row.fill(at, length);
    }
    row.fill(at, length);
    return at + length;
}

uint8_t* Kernels::fillPattern(uint8_t* at, ptrdiff_t stride, int32_t width, int32_t height,
                              uint32_t fore, uint32_t back, const uint8_t rows[8], int32_t x,
                              int32_t y) const {
    const auto length = static_cast<size_t>(width * bytesPerPixel);
    uint8_t* end = at;
    for (; height > 0; --height, at += stride, ++y) {
        const uint8_t bits = std::rotl(rows[y & 7], x & 7);
        RowInk(inkOf(fore, mode), inkOf(back, mode), bits, bytesPerPixel).fill(at, length);
        end = at + length;
    }
    return end;
}

uint8_t* Kernels::fillSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans, int32_t count,
                            uint32_t pixel) const {
    uint8_t* end = nullptr;
    for (; count > 0; --count, ++spans) {
        end = fill(pixels + spans->y * stride + spans->left * ptrdiff_t{bytesPerPixel}, stride,
                   spans->right - spans->left + 1, 1, pixel);
    }
    return end;
}

uint8_t* Kernels::fillPatternSpans(uint8_t* pixels, ptrdiff_t stride, const Span* spans,
                                   int32_t count, uint32_t fore, uint32_t back,
                                   const uint8_t rows[8]) const {
    uint8_t* end = nullptr;
    for (; count > 0; --count, ++spans) {
        end =
            fillPattern(pixels + spans->y * stride + spans->left * ptrdiff_t{bytesPerPixel}, stride,
                        spans->right - spans->left + 1, 1, fore, back, rows, spans->left, spans->y);
    }
    return end;
}

uint8_t* Kernels::line(uint8_t* at, const LineSteps& steps, uint32_t pixel) const {
    return dashedLine(at, steps, {~uint64_t{0}, 0, 0}, pixel);
}

uint8_t* Kernels::dashedLine(uint8_t* at, const LineSteps& steps, const DashSteps& dash,
                             uint32_t pixel) const {
    const Ink ink = inkOf(pixel, mode);
    LineWalk walk(at, steps);
    uint8_t* cursor = nullptr;
    uint32_t phase = dash.phase;
    for (int32_t left = steps.count;;) {
        phase += dash.step;
        if (dash.drawsAt(phase)) {
            ink.put(walk.at(), bytesPerPixel);
            cursor = walk.at() + bytesPerPixel;
        }
        if (--left == 0) {
            return cursor;
        }
        walk.advance();
    }
}

uint8_t* Kernels::transparentGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph,
                                   int32_t width, int32_t height, uint32_t fore, uint32_t) const {
    const Ink ink = inkOf(fore, mode);
    ptrdiff_t end = 0;
    for (int32_t top = 0; top < height; top += GlyphStrip::kMostRows) {
        for (int32_t left = 0; left < width; left += 8) {
            const GlyphStrip strip(glyph, left, std::min(width - left, 8), top, height);
            for (int32_t y = 0; y < strip.rows(); ++y) {
                ptrdiff_t offset = (top + y) * stride + left * ptrdiff_t{bytesPerPixel};
                for (uint32_t bits = strip.row(y); bits != 0; bits = bits << 1 & 0xFF) {
                    if ((bits & 0x80) != 0) {
                        ink.put(at + offset, bytesPerPixel);
                        end = std::max(end, offset + bytesPerPixel);
                    }
                    offset += bytesPerPixel;
                }
            }
        }
    }
    return end == 0 ? nullptr : at + end;
}

uint8_t* Kernels::opaqueGlyph(uint8_t* at, ptrdiff_t stride, const GlyphBits& glyph, int32_t width,
                              int32_t height, uint32_t fore, uint32_t back) const {
    fill(at, stride, width, height, back);
    return transparentGlyph(at, stride, glyph, width, height, fore, back);
}

LastPixel Kernels::runs(uint8_t* at, ptrdiff_t stride, const RunImage& image) const {
    LastPixel last{};
    RunReader reader(image.stream, image.width, bytesPerPixel);
    RunPiece piece;
    for (int32_t y = 0; y <= image.bottom && reader.next(piece); y = reader.row()) {
        const int32_t behind = std::min(piece.x + piece.count, image.right + 1);
        if (piece.kind == RunPiece::Skip || y < image.top) {
            continue;
        }
        const int32_t step = piece.kind == RunPiece::Literal ? bytesPerPixel : 0;
        for (int32_t x = std::max(piece.x, image.left); x < behind; ++x) {
            const uint32_t pixel = readPixel(piece.units + (x - piece.x) * step, 8 * bytesPerPixel);
            uint8_t* const to =
                at + (y - image.top) * stride + (x - image.left) * ptrdiff_t{bytesPerPixel};
            putPixel(to, pixel);
            last = {pixel, to + bytesPerPixel};
        }
    }
    return last;
}

uint8_t* Kernels::bytes(uint8_t* at, const uint8_t* values, int32_t count) const {
    for (; count > 0; --count, at += bytesPerPixel) {
        putPixel(at, *values++);
    }
    return at;
}

void Kernels::putPixel(uint8_t* at, uint32_t pixel) const {
    inkOf(pixel, mode).put(at, bytesPerPixel);
}

const Kernels kernelTable[3][4] = {
    {{1, 0}, {1, 1}, {1, 2}, {1, 3}},
    {{2, 0}, {2, 1}, {2, 2}, {2, 3}},
    {{3, 0}, {3, 1}, {3, 2}, {3, 3}},
};

uint32_t readPixel(const uint8_t* at, int32_t bitsPerPixel) {
    uint32_t pixel = 0;
    for (int32_t shift = 0; shift < bitsPerPixel; shift += 8) {
        pixel |= uint32_t{*at++} << shift;
    }
    return pixel;
}

} // namespace quarlo::kernel
