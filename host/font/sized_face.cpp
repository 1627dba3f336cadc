#include "font/sized_face.h"

#include "font/grey.h"
#include "font/script.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <new>

namespace gpi {
namespace {

constexpr FT_F26Dot6 kPixel = 64;

/// Pixels of FreeType's 26.6 fixed point, rounded.
int pixels(FT_Pos value) {
    return static_cast<int>((value + 32) >> 6);
}

/// Coverage of a pixel of a FreeType bitmap, whatever its kind: a face may ignore what was asked.
uint8_t coverageAt(const FT_Bitmap& bitmap, unsigned x, unsigned y) {
    const unsigned char* const row = bitmap.buffer + static_cast<ptrdiff_t>(y) * bitmap.pitch;
    const auto levels = [&](unsigned bits) {
        const unsigned most = (1U << bits) - 1;
        const unsigned bit = x * bits;
        const unsigned level = row[bit / 8] >> (8 - bits - bit % 8) & most;
        return static_cast<uint8_t>(level * 255 / most);
    };
    switch (bitmap.pixel_mode) {
    case FT_PIXEL_MODE_MONO:
        return levels(1);
    case FT_PIXEL_MODE_GRAY2:
        return levels(2);
    case FT_PIXEL_MODE_GRAY4:
        return levels(4);
    case FT_PIXEL_MODE_GRAY:
        return row[x];
    case FT_PIXEL_MODE_BGRA:
        return row[4 * x + 3];
    default:
        return 0;
    }
}

void copyInto(Cell& cell, const FT_Bitmap& bitmap, int left, int top) {
    for (unsigned y = 0; y < bitmap.rows; ++y) {
        for (unsigned x = 0; x < bitmap.width; ++x) {
            const int toX = left + static_cast<int>(x);
            const int toY = top + static_cast<int>(y);
            if (cell.contains(toX, toY)) {
                cell.at(toX, toY) = coverageAt(bitmap, x, y);
            }
        }
    }
}

} // namespace

SizedFace::SizedFace(const Face& face, const CellSize& size, Pitch pitch, bool grey)
    : face_(face), size_(size), pitch_(pitch), grey_(grey), whole_(newSize()) {
    bitmaps_ = selectBitmaps();
    if (!bitmaps_ && face_.hasIdeographs()) {
        scaleToIdeographs();
    } else if (!bitmaps_) {
        scaleToLetters();
    }
}

SizedFace::Size SizedFace::newSize() const {
    FT_Size size = nullptr;
    if (FT_New_Size(face_.get(), &size) != 0) {
        throw std::bad_alloc();
    }
    FT_Activate_Size(size);
    return Size(size);
}

bool SizedFace::selectBitmaps() {
    const FT_Face face = face_.get();
    int best = -1;
    int bestError = INT_MAX;
    for (int i = 0; i < face->num_fixed_sizes; ++i) {
        const FT_Bitmap_Size& strike = face->available_sizes[i];
        const int error =
            std::abs(strike.height - size_.height) + std::abs(strike.width - size_.narrow);
        if (error < bestError) {
            best = i;
            bestError = error;
        }
    }
    // What cannot be scaled shows what it has; an outline is better than bitmaps of another size.
    if (best < 0 || (face_.isOutline() && bestError != 0) || FT_Select_Size(face, best) != 0) {
        return false;
    }
    const FT_Size_Metrics& metrics = face->size->metrics;
    ascent_ = (size_.height + pixels(metrics.ascender) + pixels(metrics.descender)) / 2;
    letterAscent_ = ascent_;
    return true;
}

void SizedFace::setEm(FT_F26Dot6 width, FT_F26Dot6 height) {
    FT_Set_Char_Size(face_.get(), width, height, 72, 72);
    // Hinting rounds heights up: a little less lets accents and descenders stay in the cell.
    letters_ = newSize();
    FT_Set_Char_Size(face_.get(), width, height * 15 / 16, 72, 72);
}

void SizedFace::scaleToIdeographs() {
    // Ideographs fill their em square, of which about a seventh lies below the base line.
    // Letters reach from 13 sixteenths above their base line to 3 below.
    setEm(size_.wide * kPixel, size_.height * kPixel);
    ascent_ = grey_ ? (size_.height * 6 + 3) / 7 : (size_.height * 5 + 3) / 6;
    letterAscent_ = size_.height * 13 / 16;
}

void SizedFace::scaleToLetters() {
    const FT_Face face = face_.get();
    const FT_Long em = face->units_per_EM;
    const FT_Long extent = std::max<FT_Long>(face->ascender - face->descender, 1);
    const FT_Long height = size_.height * kPixel * em / extent;
    FT_Long width = height * size_.wide / size_.height;
    if (pitch_ == Pitch::Fixed && FT_Load_Glyph(face, face_.glyphOf('0'), FT_LOAD_NO_SCALE) == 0) {
        width = size_.narrow * kPixel * em / std::max<FT_Long>(face->glyph->metrics.horiAdvance, 1);
    }
    setEm(width, height);
    ascent_ = static_cast<int>((size_.height * FT_Long{face->ascender} + extent / 2) / extent);
    letterAscent_ = ascent_;
}

int SizedFace::advance() const {
    // Hinting moves the advance of an outline too: cells are counted by what the face says itself.
    const FT_GlyphSlot slot = face_.get()->glyph;
    return bitmaps_ ? pixels(slot->advance.x)
                    : static_cast<int>((slot->linearHoriAdvance + 0x8000) >> 16);
}

int SizedFace::cellWidth() const {
    if (pitch_ == Pitch::Fixed) {
        return advance() * 2 > size_.narrow + size_.wide ? size_.wide : size_.narrow;
    }
    const FT_GlyphSlot slot = face_.get()->glyph;
    const int ink = slot->bitmap_left + static_cast<int>(slot->bitmap.width);
    return std::max({advance(), ink, 1});
}

std::optional<Cell> SizedFace::render(uint32_t character) const {
    const FT_UInt glyph = face_.glyphOf(character);
    if (glyph == 0) {
        return std::nullopt;
    }
    const FT_Face face = face_.get();
    const bool letter = !isIdeographic(character);
    const FT_Int32 flags = prepare(letter);
    if (FT_Load_Glyph(face, glyph, flags) != 0) {
        return std::nullopt;
    }
    const FT_GlyphSlot slot = face->glyph;
    if ((grey_ ? renderGrey(slot) : FT_Render_Glyph(slot, FT_RENDER_MODE_MONO)) != 0) {
        return std::nullopt;
    }
    Cell cell(cellWidth(), size_.height);
    const int left = pitch_ == Pitch::Fixed ? slot->bitmap_left + (cell.width() - advance()) / 2
                                            : std::max(slot->bitmap_left, 0);
    copyInto(cell, slot->bitmap, left, (letter ? letterAscent_ : ascent_) - slot->bitmap_top);
    return cell;
}

/// Activates the size that a character is rendered at. How to load it.
FT_Int32 SizedFace::prepare(bool letter) const {
    FT_Activate_Size((letter && !bitmaps_ ? letters_ : whole_).get());
    FT_Int32 flags = grey_ ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO;
    if (!bitmaps_) {
        flags |= FT_LOAD_NO_BITMAP;
    }
    if (letter && !grey_) {
        // The automatic hinter keeps the stems of letters apart, where the faces' own instructions
        // for small cells let them run together. Ideographs it makes too heavy.
        flags |= FT_LOAD_FORCE_AUTOHINT;
    }
    return flags;
}

} // namespace gpi
