// Faces of bitmaps: their pixels reach programs as they stand in the file.
#include "font/face.h"
#include "font/sized_face.h"

#include <gtest/gtest.h>

#include FT_FREETYPE_H

namespace {

using gpi::Cell;

constexpr const char* kUnifont = "/usr/share/fonts/X11/misc/unifont.pcf.gz";
constexpr const char* kTerminus = "/usr/share/fonts/truetype/terminus/TerminusTTF-4.46.0.ttf";

class BitmapFace : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(FT_Init_FreeType(&library_), 0); }
    void TearDown() override { FT_Done_FreeType(library_); }

    /// What the file says of a character's pixel in a cell of 16 rows whose base line is row 14.
    static bool pixel(FT_Face face, int x, int y) {
        const FT_GlyphSlot slot = face->glyph;
        const int column = x - slot->bitmap_left;
        const int row = y - 14 + slot->bitmap_top;
        const FT_Bitmap& bitmap = slot->bitmap;
        if (column < 0 || row < 0 || column >= static_cast<int>(bitmap.width) ||
            row >= static_cast<int>(bitmap.rows)) {
            return false;
        }
        return (bitmap.buffer[row * bitmap.pitch + column / 8] >> (7 - column % 8) & 1) != 0;
    }

    FT_Library library_ = nullptr;
};

TEST_F(BitmapFace, GivesItsOwnPixelsAtAnyDepth) {
    const auto face = gpi::Face::open(library_, {kUnifont, 0});
    ASSERT_NE(face, nullptr);
    FT_Face file = nullptr;
    ASSERT_EQ(FT_New_Face(library_, kUnifont, 0, &file), 0);
    const gpi::SizedFace oneBit(*face, {8, 16, 16}, gpi::Pitch::Fixed, false);
    const gpi::SizedFace grey(*face, {8, 16, 16}, gpi::Pitch::Fixed, true);
    EXPECT_TRUE(oneBit.hasBitmaps());
    EXPECT_EQ(oneBit.ascent(), 14);
    for (const uint32_t character : {U'A', U'g', U'Ж', U'ア', U'軸', U'轴', U'ｱ'}) {
        ASSERT_EQ(FT_Load_Char(file, character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO), 0);
        for (const gpi::SizedFace* sized : {&oneBit, &grey}) {
            const auto cell = sized->render(character);
            ASSERT_TRUE(cell);
            EXPECT_EQ(cell->width(), file->glyph->advance.x / 64);
            for (int y = 0; y < 16; ++y) {
                for (int x = 0; x < cell->width(); ++x) {
                    ASSERT_EQ(cell->at(x, y), pixel(file, x, y) ? 255 : 0)
                        << character << " at " << x << ", " << y;
                }
            }
        }
    }
    FT_Done_Face(file);
}

TEST_F(BitmapFace, IsTakenWhereAnOutlineHasBitmapsOfTheSize) {
    const auto face = gpi::Face::open(library_, {kTerminus, 0});
    ASSERT_NE(face, nullptr);
    const gpi::SizedFace exact(*face, {8, 16, 16}, gpi::Pitch::Fixed, false);
    EXPECT_TRUE(exact.hasBitmaps());
    EXPECT_FALSE(exact.render(U'軸'));
    const gpi::SizedFace other(*face, {8, 16, 17}, gpi::Pitch::Fixed, true);
    EXPECT_FALSE(other.hasBitmaps());
    const auto levels = other.render(U'S');
    ASSERT_TRUE(levels);
    bool between = false;
    for (int at = 0; at < 8 * 17; ++at) {
        const uint8_t level = levels->at(at % 8, at / 8);
        between = between || (level > 0 && level < 255);
    }
    EXPECT_TRUE(between);
}

TEST_F(BitmapFace, OfAnotherSizeIsCutToTheCell) {
    const auto face = gpi::Face::open(library_, {kUnifont, 0});
    ASSERT_NE(face, nullptr);
    const gpi::SizedFace small(*face, {3, 6, 5}, gpi::Pitch::Fixed, false);
    const auto cell = small.render(U'軸');
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->width(), 6);
    EXPECT_EQ(cell->height(), 5);
}

TEST_F(BitmapFace, NeedsAFontFile) {
    EXPECT_EQ(gpi::Face::open(library_, {"", 0}), nullptr);
    EXPECT_EQ(gpi::Face::open(library_, {"/dev/null", 0}), nullptr);
    EXPECT_EQ(gpi::Face::open(library_, {"/nowhere", 0}), nullptr);
    EXPECT_EQ(gpi::Face::open(library_, {kUnifont, 5}), nullptr);
}

} // namespace
