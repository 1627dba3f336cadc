// What a program may change of a font, and how glyphs follow.
#include "asked_font.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <set>
#include <utility>

namespace {

using namespace gpi::test;

constexpr const char* kUnifont = "/usr/share/fonts/X11/misc/unifont.pcf.gz";

TEST(Fonts, ChangeTheirSize) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    int16_t width = 0;
    int16_t height = 0;
    EXPECT_EQ(getSize(font, &width, &height), 1);
    EXPECT_EQ(width, 8);
    EXPECT_EQ(height, 16);
    EXPECT_EQ(setSize(font, 12, 24), 1);
    EXPECT_EQ(getSize(font, &width, &height), 1);
    EXPECT_EQ(width, 12);
    EXPECT_EQ(height, 24);
    EXPECT_EQ(ask(font, u"A").width, 12);
    EXPECT_EQ(ask(font, u"日").width, 24);
    EXPECT_EQ(ask(font, u"日").height, 24);
    for (const auto& [w, h] : {std::pair<int16_t, int16_t>{0, 16},
                               {8, 0},
                               {-8, 16},
                               {8, -16},
                               {257, 16},
                               {8, 257},
                               {INT16_MIN, INT16_MAX}}) {
        EXPECT_EQ(setSize(font, w, h), 0);
    }
    EXPECT_EQ(ask(font, u"A").width, 12);
    EXPECT_EQ(setSize(font, 256, 256), 1);
    EXPECT_EQ(ask(font, u"日").width, 512);
    EXPECT_EQ(setSize(font, 1, 1), 1);
    EXPECT_EQ(ask(font, u"A").width, 1);
    EXPECT_EQ(getSize(font, nullptr, &height), 0);
    EXPECT_EQ(getSize(font, &width, nullptr), 0);
    EXPECT_EQ(getSize(nullptr, &width, &height), 0);
}

TEST(Fonts, HaveLevelsOfTheDepth) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    for (const uint16_t bits : std::initializer_list<uint16_t>{1, 2, 4}) {
        ASSERT_TRUE(setDepth(font, bits));
        const Answer answer = ask(font, u"S");
        EXPECT_EQ(answer.depth, bits);
        EXPECT_GE(answer.levels().size(), std::min<size_t>(size_t{1} << bits, 6));
    }
    EXPECT_FALSE(setDepth(font, 3));
    EXPECT_FALSE(setDepth(font, 8));
}

/// The last row of a glyph that has anything in it; -1 for none.
int lastRow(const Answer& answer) {
    for (int at = answer.width * answer.height - 1; at >= 0; --at) {
        if (answer.level(at % answer.width, at / answer.width) != 0) {
            return at / answer.width;
        }
    }
    return -1;
}

TEST(Fonts, ShowDescendersOfSmoothLettersWhole) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    ASSERT_TRUE(setDepth(font, 4));
    for (const int16_t height : std::initializer_list<int16_t>{16, 24, 32, 48}) {
        ASSERT_EQ(setSize(font, static_cast<int16_t>(height / 2), height), 1);
        EXPECT_GE(lastRow(ask(font, u"g")) - lastRow(ask(font, u"x")), height * 3 / 16) << height;
    }
}

TEST(Fonts, OfBitmapsHaveTwoLevelsAtAnyDepth) {
    StartedPlatform platform{{"QUARLO_PANEL_FONT", kUnifont}};
    GFontRecord* const font = load(kPanel);
    ASSERT_NE(font, nullptr);
    ASSERT_TRUE(setDepth(font, 4));
    EXPECT_EQ(ask(font, u"A").levels(), (std::set<int>{0, 15}));
    EXPECT_EQ(ask(font, u"A").width, 8);
    EXPECT_EQ(ask(font, u"日").width, 16);
}

TEST(Fonts, KeepTheirAttributes) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer plain = ask(font, u"l");
    GFontAttribute attribute{};
    attribute.height = 20;
    attribute.wideWidth = 18;
    attribute.bitsPerPixel = 1;
    attribute.bold = 1;
    attribute.magnification = 0x0802;
    EXPECT_EQ(setAttribute(font, &attribute), 1);
    GFontAttribute read{};
    EXPECT_EQ(getAttribute(font, &read), 1);
    EXPECT_EQ(std::memcmp(&read, &attribute, sizeof read), 0);
    EXPECT_EQ(font->scale->magnifyX, 2);
    EXPECT_EQ(font->scale->magnifyY, 8);
    EXPECT_EQ(ask(font, u"A").width, 9);
    EXPECT_EQ(ask(font, u"A").height, 20);

    const GFontAttribute unchanged{0, 0, 0, 0, {}, 0, 0};
    EXPECT_EQ(setAttribute(font, &unchanged), 1);
    EXPECT_EQ(ask(font, u"A").height, 20);
    EXPECT_EQ(font->scale->magnifyX, 1);
    for (const uint16_t factors : std::initializer_list<uint16_t>{0x0009, 0x0900, 0xFFFF}) {
        attribute.magnification = factors;
        EXPECT_EQ(setAttribute(font, &attribute), 0);
    }
    EXPECT_EQ(setAttribute(font, nullptr), 0);
    EXPECT_EQ(getAttribute(font, nullptr), 0);
    EXPECT_EQ(getAttribute(nullptr, &read), 0);

    EXPECT_EQ(setSize(font, 8, 16), 1);
    EXPECT_EQ(ask(font, u"l"), plain);
}

TEST(Fonts, EmboldenStrokes) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const Answer plain = ask(font, u"l");
    GFontAttribute attribute{};
    attribute.bold = 1;
    ASSERT_EQ(setAttribute(font, &attribute), 1);
    const Answer bold = ask(font, u"l");
    int added = 0;
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 8; ++x) {
            const int left = x > 0 ? plain.level(x - 1, y) : 0;
            EXPECT_EQ(bold.level(x, y), plain.level(x, y) | left);
            added += bold.level(x, y) - plain.level(x, y);
        }
    }
    EXPECT_GE(added, 10);
}

TEST(Fonts, ShowASubstitute) {
    StartedPlatform platform;
    GFontRecord* const font = load(kPanel);
    const GFontUserAttribute question{u'?', 0, 77};
    EXPECT_EQ(setUser(font, &question), 1);
    GFontUserAttribute read{};
    EXPECT_EQ(getUser(font, &read), 1);
    EXPECT_EQ(read.substitute, u'?');
    EXPECT_EQ(read.data, GWord{77});
    EXPECT_EQ(ask(font, u"\uE123"), ask(font, u"?"));
    const GFontUserAttribute missing{0xE124, 0, 0};
    EXPECT_EQ(setUser(font, &missing), 1);
    EXPECT_FALSE(ask(font, u"\uE123").found);
    EXPECT_EQ(setUser(font, nullptr), 0);
    EXPECT_EQ(getUser(font, nullptr), 0);
}

} // namespace
