// Text a second way: pixel by pixel onto a map of pixel values.
#pragma once

#include "support/scripted_font.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/text.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quarlo::test {

/// A handle's state as far as text needs it, on a surface of its own, in surface coordinates.
struct TextModel {
    int32_t width;
    int32_t height;
    uint32_t mask; ///< of a pixel value
    GRect clip;
    int32_t mode = 0; ///< or kCountingMode
    uint32_t pen = 1;
    uint32_t back = 0;
    bool transparent = false;
    int32_t x = 0; ///< pen position
    int32_t y = 0;
    std::vector<uint32_t> pixels;

    explicit TextModel(const GVram& surface)
        : width(surface.width),
          height(surface.height),
          mask(0xFFFFFFU >> (24 - surface.bitsPerPixel)),
          clip(surface.bounds),
          pixels(static_cast<size_t>(width * height)) {}

    void plot(int32_t column, int32_t row, uint32_t color) {
        if (column < clip.left || column > clip.right || row < clip.top || row > clip.bottom) {
            return;
        }
        uint32_t& pixel = pixels[static_cast<size_t>(row * width + column)];
        const uint32_t results[] = {color, pixel & color, pixel | color, pixel ^ color, pixel + 1};
        pixel = results[mode] & mask;
    }

    /// Both edges included.
    void fill(int32_t left, int32_t top, int32_t right, int32_t bottom, uint32_t color) {
        for (int32_t row = top; row <= bottom; ++row) {
            for (int32_t column = left; column <= right; ++column) {
                plot(column, row, color);
            }
        }
    }

    void drawGlyph(const ScriptedFont::Glyph& glyph, int32_t fx, int32_t fy) {
        if (!transparent && back != G_NO_COLOR) {
            fill(x, y, x + glyph.width * fx - 1, y + glyph.height * fy - 1, back);
        }
        for (int32_t row = 0; row < glyph.height && pen != G_NO_COLOR; ++row) {
            for (int32_t column = 0; column < glyph.width; ++column) {
                if (glyph.levels[static_cast<size_t>(row)][static_cast<size_t>(column)] != 0) {
                    fill(x + column * fx, y + row * fy, x + (column + 1) * fx - 1,
                         y + (row + 1) * fy - 1, pen);
                }
            }
        }
        x += glyph.width * fx;
    }

    void drawString(const ScriptedFont& font, const std::u16string& text, int32_t fx, int32_t fy) {
        for (size_t at = 0; at < text.size();) {
            const auto glyph = font.glyphOf(text.c_str() + at);
            if (glyph.width < 0) {
                ++at;
                continue;
            }
            drawGlyph(glyph, fx, fy);
            at += static_cast<size_t>(glyph.units);
        }
    }
};

} // namespace quarlo::test
