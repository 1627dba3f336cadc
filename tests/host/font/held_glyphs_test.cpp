// Glyphs that are held ready, as programs notice it.
#include "asked_font.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace gpi::test;

TEST(Fonts, HoldGlyphsReady) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    GGlyphRequest request{};
    request.text = u"A";
    ASSERT_EQ(findGlyph(font, &request), 1);
    const uint8_t* const bits = request.bits;
    ask(font, u"B");
    GFontInformation told{};
    information(font, &told);
    EXPECT_EQ(told.cachedGlyphs, 2U);
    EXPECT_EQ(told.cachedBytes, 2U * (24 + 16));
    ASSERT_EQ(findGlyph(font, &request), 1);
    EXPECT_EQ(request.bits, bits);
    // Another font of the same face and style shares them; one of another style does not.
    GFontRecord* const twin = load(kPanel);
    ASSERT_EQ(findGlyph(twin, &request), 1);
    EXPECT_EQ(request.bits, bits);
    setDepth(twin, 2);
    information(twin, &told);
    EXPECT_EQ(told.cachedGlyphs, 0U);
}

TEST(Fonts, HoldNoMoreGlyphsThanTheyMay) {
    StartedPlatform platform{{"QUARLO_GLYPH_CACHE", "16"}};
    GFontRecord* const font = load(kPanel);
    const Answer first = ask(font, u"一");
    uint32_t most = 0;
    for (char16_t unit = 0x4E00; unit < 0x6E00; ++unit) {
        const char16_t text[] = {unit, 0};
        ask(font, text);
        if (unit % 256 == 0) {
            GFontInformation told{};
            information(font, &told);
            EXPECT_LE(told.cachedBytes, 16U * 1024);
            most = std::max(most, told.cachedBytes);
        }
    }
    EXPECT_GT(most, 12U * 1024);
    EXPECT_EQ(ask(font, u"一"), first);
    setSize(font, 200, 200); // a glyph that does not fit at all
    EXPECT_EQ(ask(font, u"一").width, 400);
    EXPECT_EQ(ask(font, u"一").levels().size(), 2U);
}

} // namespace
