// Grey glyphs are the same on every processor: their levels as one number.
#include "support/started_platform.h"

#include <quarlo/font.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace gpi::test;

const auto load = service<GPILoadFont>(GPI_SERVICE_LOAD_FONT);
const auto release = service<GPIReleaseFont>(GPI_SERVICE_RELEASE_FONT);
const auto setSize = service<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE);
const auto setAttribute = service<GPISetFontAttribute>(GPI_SERVICE_SET_FONT_ATTRIBUTE);
const auto getAttribute = service<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE);
const auto findGlyph = service<GPIGlyph>(GPI_SERVICE_GLYPH);

/// FNV-1a of the bits of a font's glyphs.
uint64_t checksumOf(GFontRecord* font, const std::u16string& text, uint64_t sum) {
    for (const char16_t unit : text) {
        GGlyphRequest request{};
        request.text = &unit;
        EXPECT_EQ(findGlyph(font, &request) & 0xFFFF, 1) << int{unit};
        const int bytes = (request.width * request.bitsPerPixel + 7) / 8 * request.height;
        for (int at = 0; at < bytes; ++at) {
            sum = (sum ^ request.bits[at]) * 0x100000001B3;
        }
    }
    return sum;
}

TEST(GreyGlyphs, AreTheSameOnEveryProcessor) {
    StartedPlatform platform;
    GFontRecord* const font = load(u"TORVANDELL CNC Gothic");
    ASSERT_NE(font, nullptr);
    GFontAttribute attribute{};
    ASSERT_EQ(getAttribute(font, &attribute), 1);
    attribute.bitsPerPixel = 4;
    ASSERT_EQ(setAttribute(font, &attribute), 1);

    std::u16string text;
    for (char16_t unit = u'!'; unit <= u'~'; ++unit) {
        text += unit;
    }
    for (char16_t unit = 0x4E00; unit < 0x4F00; ++unit) {
        text += unit;
    }
    uint64_t sum = 0xCBF29CE484222325;
    for (const int16_t height : {int16_t{16}, int16_t{24}, int16_t{31}, int16_t{48}}) {
        ASSERT_EQ(setSize(font, static_cast<int16_t>(height / 2), height), 1);
        sum = checksumOf(font, text, sum);
    }
    EXPECT_EQ(sum, 0x1831CC6270FA5907U);
    release(font);
}

} // namespace
