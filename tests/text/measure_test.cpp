#include "text/text_test.h"

#include <cstring>

using namespace quarlo::test;

namespace {

class Measure : public TextTest {
  protected:
    Measure() { GDSetFont(drawing, font.get()); }

    int32_t widthOf(const std::u16string& text) const { return font.glyphOf(text.c_str()).width; }
    GSize sizeOf(const std::u16string& text) {
        GSize size{-1, -1};
        EXPECT_EQ(GDGetStringSize(&size, drawing, text.c_str()), &size);
        return size;
    }

    ScriptedFont font{platform};
    Drawing drawing{4, 4};
};

TEST_F(Measure, OneCharacter) {
    EXPECT_EQ(GDGetCharWidth(drawing, u'Q'), widthOf(u"Q"));
    EXPECT_EQ(GDGetCharHeight(drawing, u'Q'), 9);
    EXPECT_EQ(GDGetCharWidth(drawing, 0xE001), 0);
    EXPECT_EQ(GDGetCharHeight(drawing, 0xE001), 0);
    EXPECT_EQ(font.takeFlags(), std::vector<uint16_t>(4, 1));
}

TEST_F(Measure, AStringsWidthIsThatOfAllItsLinesTogether) {
    EXPECT_EQ(GDGetStringWidth(drawing, u"AB\nZ"), widthOf(u"A") + widthOf(u"B") + widthOf(u"Z"));
    EXPECT_EQ(GDGetStringWidth(drawing, u""), 0);
    EXPECT_EQ(GDGetStringWidth(drawing, u"A\uE005Z"), widthOf(u"A") + widthOf(u"Z"));
    EXPECT_EQ(GDGetStringWidth(drawing, u"\U00020BB7"), widthOf(u"\U00020BB7"));
}

TEST_F(Measure, AStringsSizeIsThatOfItsWidestLineAndAllLines) {
    const int32_t a = widthOf(u"A");
    const int32_t b = widthOf(u"B");
    EXPECT_EQ(sizeOf(u"").width, 0);
    EXPECT_EQ(sizeOf(u"").height, 9);
    EXPECT_EQ(sizeOf(u"AB\nA").width, a + b);
    EXPECT_EQ(sizeOf(u"AB\nA").height, 18);
    EXPECT_EQ(sizeOf(u"A\nAB").width, a + b);
    EXPECT_EQ(sizeOf(u"AB\n").height, 18);
    EXPECT_EQ(sizeOf(u"\n\n").height, 27);
}

TEST_F(Measure, TheSizeNeedNotBeAligned) {
    char bytes[1 + sizeof(GSize)] = {};
    GDGetStringSize(reinterpret_cast<GSize*>(bytes + 1), drawing, u"A");
    GSize size;
    std::memcpy(&size, bytes + 1, sizeof size);
    EXPECT_EQ(size.width, widthOf(u"A"));
}

TEST_F(Measure, SumsWrapAround16Bits) {
    const std::u16string text(5000, u'P'); // 15 pixels each
    ASSERT_EQ(widthOf(u"P"), 15);
    EXPECT_EQ(GDGetStringWidth(drawing, text.c_str()), static_cast<int16_t>(75'000));
    EXPECT_EQ(sizeOf(text).width, static_cast<int16_t>(75'000));
}

TEST_F(Measure, WithoutAGlyphServiceEverythingMeasures0) {
    platform.remove({20});
    EXPECT_EQ(GDGetCharWidth(drawing, u'A'), 0);
    EXPECT_EQ(GDGetStringWidth(drawing, u"ABC"), 0);
    EXPECT_EQ(sizeOf(u"A\nB").width, 0);
    EXPECT_EQ(sizeOf(u"A\nB").height, 0);
}

TEST_F(Measure, AlwaysEndsWhateverThePlatformAnswers) {
    const std::u16string text(1000, u'A');
    const char16_t* const begin = text.c_str();
    const char16_t* const answers[] = {nullptr, begin, begin + 5'000'000};
    for (const char16_t* const next : answers) {
        int calls = 0;
        platform.serve<20>([&](GFontRecord*, GGlyphRequest* request) {
            ++calls;
            request->next = next;
            request->width = -3;
            return 1;
        });
        EXPECT_EQ(GDGetStringWidth(drawing, begin), next > begin ? -3 : -3000);
        EXPECT_EQ(calls, next > begin ? 1 : 1000);
    }
}

TEST_F(Measure, AMillionUnitsTakeAMillionQuestions) {
    int calls = 0;
    platform.serve<20>([&](GFontRecord*, GGlyphRequest* request) {
        ++calls;
        request->next = request->text + 1;
        request->width = 1;
        return 1;
    });
    const std::u16string text(1'000'000, u'A');
    EXPECT_EQ(GDGetStringWidth(drawing, text.c_str()), static_cast<int16_t>(1'000'000));
    EXPECT_EQ(calls, 1'000'000);
}

} // namespace
