// Fonts by name, and the glyphs of their faces.
#include "asked_font.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace gpi::test;

TEST(Fonts, AreFoundByName) {
    StartedPlatform platform;
    GFontRecord* const panel = load(kPanel);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->kind, 0);
    ASSERT_NE(panel->scale, nullptr);
    EXPECT_EQ(panel->scale->magnifyX, 1);
    EXPECT_EQ(panel->scale->magnifyY, 1);
    EXPECT_NE(load(u"DejaVu Sans Mono"), nullptr);
    EXPECT_EQ(load(u"No Such Face"), nullptr);
    EXPECT_EQ(load(u"torvandell cnc gothic"), nullptr);
    EXPECT_EQ(load(u""), nullptr);
    EXPECT_EQ(load(nullptr), nullptr);
    EXPECT_EQ(load(u"A name of more than the thirty-two units that fit"), nullptr);
    const char16_t half[] = {0xD800, 0};
    EXPECT_EQ(load(half), nullptr);
}

TEST(Fonts, AreFoundByADescriptorAtAnyAddress) {
    StartedPlatform platform;
    GSimpleFont simple{};
    std::u16string(kPanel).copy(simple.face, G_FACE_SIZE);
    std::vector<char> bytes(sizeof simple + 1);
    std::memcpy(bytes.data() + 1, &simple, sizeof simple);
    EXPECT_NE(load(reinterpret_cast<const char16_t*>(bytes.data() + 1)), nullptr);
}

TEST(Fonts, AreThereOnlyWhileThePlatformRuns) {
    EXPECT_EQ(GPIGetFontCount(), 0);
    EXPECT_EQ(load(kPanel), nullptr);
    EXPECT_EQ(setGb(1), 0);
    StartedPlatform platform;
    EXPECT_GE(GPIGetFontCount(), 2);
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    release(font);
    EXPECT_FALSE(ask(font, u"A").found);
    EXPECT_EQ(setSize(font, 8, 16), 0);
    release(font);
    release(nullptr);
}

TEST(Fonts, WithoutAFileOfTheirOwnAreNone) {
    StartedPlatform platform{{"QUARLO_PANEL_FONT", "/nowhere/font.ttf"}};
    EXPECT_EQ(load(kPanel), nullptr);
    EXPECT_NE(load(u"DejaVu Sans"), nullptr);
}

TEST(PanelFace, HasCellsOfTwoWidths) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    for (const char16_t* narrow : {u"A", u"i", u"0", u"ß", u"Ω", u"Ж", u"ｱ", u" "}) {
        const Answer answer = ask(font, narrow);
        ASSERT_TRUE(answer.found) << std::hex << uint32_t{narrow[0]};
        EXPECT_EQ(answer.units, 1);
        EXPECT_EQ(answer.width, 8) << std::hex << uint32_t{narrow[0]};
        EXPECT_EQ(answer.height, 16);
        EXPECT_EQ(answer.depth, 1);
        EXPECT_EQ(answer.levels().size(), narrow[0] == u' ' ? 1U : 2U);
    }
    for (const char16_t* wide : {u"ア", u"日", u"軸", u"轴", u"简", u"、"}) {
        const Answer answer = ask(font, wide);
        ASSERT_TRUE(answer.found) << std::hex << uint32_t{wide[0]};
        EXPECT_EQ(answer.width, 16) << std::hex << uint32_t{wide[0]};
        EXPECT_EQ(answer.height, 16);
        EXPECT_EQ(answer.levels().size(), 2U);
    }
    const Answer pair = ask(font, u"\U00020BB7");
    EXPECT_TRUE(pair.found);
    EXPECT_EQ(pair.units, 2);
    EXPECT_EQ(pair.width, 16);
}

TEST(PanelFace, HasNoGlyphForWhatIsNoCharacter) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const char16_t half[] = {0xD842, u'A', 0};
    const char16_t otherHalf[] = {0xDFB7, 0};
    EXPECT_FALSE(ask(font, half).found);
    EXPECT_FALSE(ask(font, otherHalf).found);
    EXPECT_FALSE(ask(font, u"\uE123").found);
    EXPECT_FALSE(ask(font, u"\U0010FFFF").found);
    EXPECT_FALSE(ask(font, nullptr).found);
    EXPECT_EQ(findGlyph(font, nullptr), 0);
    EXPECT_FALSE(ask(nullptr, u"A").found);
}

TEST(PanelFace, ShowsTheChosenFormOfASharedIdeograph) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer japanese = ask(font, u"直");
    EXPECT_EQ(setGb(1), 1);
    const Answer chinese = ask(font, u"直");
    EXPECT_TRUE(chinese.found);
    EXPECT_NE(chinese, japanese);
    EXPECT_EQ(setGb(2), 0);
    EXPECT_EQ(setGb(-1), 0);
    EXPECT_EQ(setGb(0), 1);
    EXPECT_EQ(ask(font, u"直"), japanese);
    const Answer letter = ask(font, u"A");
    setGb(1);
    EXPECT_EQ(ask(font, u"A"), letter);
}

TEST(OtherFaces, BorrowIdeographsOnly) {
    StartedPlatform platform;
    GFontRecord* const font = load(u"Terminus (TTF)");
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(ask(font, u"軸").width, 16);
    EXPECT_EQ(ask(font, u"ｱ").width, 8);
    EXPECT_FALSE(ask(font, u"\u0E01").found); // Thai
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(told.flags, G_FONT_FIXED | G_FONT_BITMAP | G_FONT_IDEOGRAPHS);
}

TEST(OtherFaces, MayBeProportional) {
    StartedPlatform platform;
    GFontRecord* const font = load(u"DejaVu Sans");
    ASSERT_NE(font, nullptr);
    EXPECT_LT(ask(font, u"i").width, ask(font, u"n").width);
    EXPECT_LT(ask(font, u"n").width, ask(font, u"W").width);
    EXPECT_EQ(ask(font, u"W").height, 16);
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(told.flags & G_FONT_FIXED, 0);
}

TEST(Fonts, TellOfThemselves) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    GFontInformation told{};
    ASSERT_EQ(information(font, &told), 1);
    EXPECT_EQ(std::u16string(told.face), kPanel);
    EXPECT_EQ(told.flags, G_FONT_FIXED | G_FONT_IDEOGRAPHS);
    EXPECT_EQ(told.width, 8);
    EXPECT_EQ(told.height, 16);
    EXPECT_EQ(told.ascent, 13);
    EXPECT_EQ(told.bitsPerPixel, 1);
    EXPECT_EQ(told.cachedGlyphs, 0U);
    EXPECT_EQ(information(font, nullptr), 0);
    EXPECT_EQ(information(nullptr, &told), 0);
}

} // namespace
