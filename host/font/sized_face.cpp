#include "font/sized_face.h"

#include "font/script.h"

#include FT_SIZES_H

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <new>

namespace gpi {
namespace {

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

SizedFace::SizedFace(const Face& face, const CellSize& size, Pitch pitch)
    : face_(face), size_(size), pitch_(pitch) {
    if (FT_New_Size(face_.get(), &ftSize_) != 0) {
        throw std::bad_alloc();
    }
    FT_Activate_Size(ftSize_);
    bitmaps_ = selectBitmaps();
    if (!bitmaps_) {
        scale();
    }
}

SizedFace::~SizedFace() {
    FT_Done_Size(ftSize_);
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
    return true;
}

void SizedFace::scale() {
    if (face_.hasIdeographs()) {
        scaleToIdeographs();
    } else {
        scaleToLetters();
    }
}

void SizedFace::scaleToIdeographs() {
    // Ideographs fill their em square, of which an eighth lies below the base line.
    FT_Set_Char_Size(face_.get(), size_.wide * 64, size_.height * 64, 72, 72);
    ascent_ = (size_.height * 7 + 4) / 8;
}

void SizedFace::scaleToLetters() {
    const FT_Face face = face_.get();
    const FT_Long em = face->units_per_EM;
    const FT_Long extent = std::max<FT_Long>(face->ascender - face->descender, 1);
    const FT_Long height = size_.height * 64 * em / extent;
    FT_Long width = height * size_.wide / size_.height;
    if (pitch_ == Pitch::Fixed && FT_Load_Glyph(face, face_.glyphOf('0'), FT_LOAD_NO_SCALE) == 0) {
        width = size_.narrow * 64 * em / std::max<FT_Long>(face->glyph->metrics.horiAdvance, 1);
    }
    FT_Set_Char_Size(face, width, height, 72, 72);
    ascent_ = static_cast<int>((size_.height * FT_Long{face->ascender} + extent / 2) / extent);
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

std::optional<Cell> SizedFace::render(uint32_t character, bool grey) const {
    const FT_UInt glyph = face_.glyphOf(character);
    if (glyph == 0) {
        return std::nullopt;
    }
    const FT_Face face = face_.get();
    FT_Activate_Size(ftSize_);
    if (FT_Load_Glyph(face, glyph, FT_LOAD_RENDER | renderingOf(character, grey)) != 0) {
        return std::nullopt;
    }
    const FT_GlyphSlot slot = face->glyph;
    Cell cell(cellWidth(), size_.height);
    const int left = pitch_ == Pitch::Fixed ? slot->bitmap_left + (cell.width() - advance()) / 2
                                            : std::max(slot->bitmap_left, 0);
    copyInto(cell, slot->bitmap, left, ascent_ - slot->bitmap_top);
    return cell;
}

FT_Int32 SizedFace::renderingOf(uint32_t character, bool grey) const {
    if (bitmaps_) {
        return grey ? FT_LOAD_TARGET_NORMAL : FT_LOAD_TARGET_MONO;
    }
    if (grey) {
        return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_NORMAL;
    }
    // The automatic hinter keeps the stems of letters apart, where the faces' own instructions for
    // small cells let them run together; ideographs it makes too heavy.
    return FT_LOAD_NO_BITMAP | FT_LOAD_TARGET_MONO |
           (isIdeographic(character) ? FT_LOAD_DEFAULT : FT_LOAD_FORCE_AUTOHINT);
}

} // namespace gpi
