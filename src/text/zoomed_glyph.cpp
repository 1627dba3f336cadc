// Magnified glyphs.
#include "geometry/map.h"
#include "text/glyph.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>

namespace quarlo {
namespace {

/// Colours and fill style as they are, put back field by field: a colour kept for conversion
/// belongs to its pixel value.
class SavedStyle {
  public:
    explicit SavedStyle(GDrawHandle& handle)
        : handle_(handle),
          penColor_(handle.penColor),
          penPixel_(handle.penPixel),
          backColor_(handle.backColor),
          backPixel_(handle.backPixel),
          fillPattern_(handle.fillPattern) {}
    ~SavedStyle() {
        handle_.penColor = penColor_;
        handle_.penPixel = penPixel_;
        handle_.backColor = backColor_;
        handle_.backPixel = backPixel_;
        handle_.fillPattern = fillPattern_;
    }
    SavedStyle(const SavedStyle&) = delete;
    SavedStyle& operator=(const SavedStyle&) = delete;

    uint32_t penPixel() const { return penPixel_; }

  private:
    GDrawHandle& handle_;
    const uint32_t penColor_;
    const uint32_t penPixel_;
    const uint32_t backColor_;
    const uint32_t backPixel_;
    const int16_t fillPattern_;
};

bool isSet(const GGlyphRequest& glyph, int32_t row, int32_t column) {
    const int32_t bits = glyph.bitsPerPixel;
    const int32_t bit = column * bits;
    const uint32_t byte = glyph.bits[row * rowBytes(glyph) + (bit >> 3)];
    return (byte >> (8 - (bit & 7) - bits) & ((1U << bits) - 1)) != 0;
}

/// Blocks of glyph pixels, in application coordinates.
class BlockGrid {
  public:
    BlockGrid(const GPoint& origin, const Magnification& scale) : origin_(origin), scale_(scale) {}

    GRect block(int32_t column, int32_t row, int32_t columns, int32_t rows) const {
        return {low16(origin_.x + column * scale_.x), low16(origin_.y + row * scale_.y),
                low16(origin_.x + (column + columns) * scale_.x - 1),
                low16(origin_.y + (row + rows) * scale_.y - 1)};
    }

  private:
    GPoint origin_;
    Magnification scale_;
};

} // namespace

void drawGlyphZoomed(GDrawHandle* handle, const GGlyphRequest& glyph, const Magnification& scale) {
    const GPoint origin = handle->penPos;
    if (hasBitmap(glyph)) {
        const SavedStyle saved(*handle);
        const BlockGrid grid(origin, scale);
        GDSetFillPattern(handle, G_FILL_BACK);
        GDSetPenColor(handle, G_NO_COLOR);
        if ((handle->textMode & G_TEXT_TRANSPARENT) == 0 && handle->backPixel != G_NO_COLOR) {
            const GRect box = grid.block(0, 0, glyph.width, glyph.height);
            GDDrawRect(handle, &box);
        }
        handle->backPixel = saved.penPixel();
        const bool visible = glyph.bits != nullptr && saved.penPixel() != G_NO_COLOR;
        for (int32_t row = 0; visible && row < glyph.height; ++row) {
            for (int32_t column = 0; column < glyph.width; ++column) {
                if (isSet(glyph, row, column)) {
                    const GRect pixel = grid.block(column, row, 1, 1);
                    GDDrawRect(handle, &pixel);
                }
            }
        }
    }
    GDMoveTo(handle, low16(origin.x + glyph.width * scale.x), origin.y);
}

} // namespace quarlo
