// Magnified glyphs.
#include "geometry/view.h"
#include "text/glyph.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>

#include <algorithm>

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

/// Draws a rectangle for each set pixel of a glyph that can show. The others cost nothing, however
/// large a glyph the platform answers.
class BlockPainter {
  public:
    BlockPainter(GDrawHandle& handle, const GGlyphRequest& glyph, const Magnification& scale)
        : handle_(handle),
          glyph_(glyph),
          scale_(scale),
          grid_(handle.penPos, scale),
          area_(Canvas(handle).area) {}

    void draw() const {
        for (int32_t row = nextRow(0); row < glyph_.height; row = nextRow(row + 1)) {
            for (int32_t column = nextColumn(0); column < glyph_.width;
                 column = nextColumn(column + 1)) {
                if (isSet(glyph_, row, column)) {
                    const GRect block = grid_.block(column, row, 1, 1);
                    GDDrawRect(&handle_, &block);
                }
            }
        }
    }

  private:
    /// The first column that shows, from one on.
    int32_t nextColumn(int32_t column) const {
        while (column < glyph_.width) {
            const GRect block = onSurface(grid_.block(column, 0, 1, 1));
            if (std::max(block.left, area_.left) <= std::min(block.right, area_.right)) {
                break;
            }
            column += blocksBetween(block.left, area_.left, scale_.x);
        }
        return column;
    }

    int32_t nextRow(int32_t row) const {
        while (row < glyph_.height) {
            const GRect block = onSurface(grid_.block(0, row, 1, 1));
            if (std::max(block.top, area_.top) <= std::min(block.bottom, area_.bottom)) {
                break;
            }
            row += blocksBetween(block.top, area_.top, scale_.y);
        }
        return row;
    }

    GRect onSurface(GRect block) const {
        mapToScreen(handle_, block);
        return block;
    }

    /// How many blocks further on one may reach the area's first pixel. Coordinates wrap around.
    int32_t blocksBetween(int16_t first, int16_t edge, int32_t scale) const {
        if (isVirtual(handle_)) {
            return 1;
        }
        const int32_t distance = static_cast<uint16_t>(edge - (scale - 1) - first);
        return std::max((distance + scale - 1) / scale, 1);
    }

    GDrawHandle& handle_;
    const GGlyphRequest& glyph_;
    const Magnification& scale_;
    const BlockGrid grid_;
    const GRect area_;
};

/// In virtual mode any number of blocks may fall on one pixel. More than these are no glyph.
bool isReasonable(const GDrawHandle& handle, const GGlyphRequest& glyph) {
    constexpr int32_t kMostPixels = 512 * 512;
    return !isVirtual(handle) || glyph.width * glyph.height <= kMostPixels;
}

} // namespace

void drawGlyphZoomed(GDrawHandle* handle, const GGlyphRequest& glyph, const Magnification& scale) {
    const GPoint origin = handle->penPos;
    if (hasBitmap(glyph)) {
        const SavedStyle saved(*handle);
        GDSetFillPattern(handle, G_FILL_BACK);
        GDSetPenColor(handle, G_NO_COLOR);
        if ((handle->textMode & G_TEXT_TRANSPARENT) == 0 && handle->backPixel != G_NO_COLOR) {
            const GRect box = BlockGrid(origin, scale).block(0, 0, glyph.width, glyph.height);
            GDDrawRect(handle, &box);
        }
        handle->backPixel = saved.penPixel();
        if (glyph.bits != nullptr && saved.penPixel() != G_NO_COLOR &&
            isReasonable(*handle, glyph)) {
            BlockPainter(*handle, glyph, scale).draw();
        }
    }
    GDMoveTo(handle, low16(origin.x + glyph.width * scale.x), origin.y);
}

} // namespace quarlo
