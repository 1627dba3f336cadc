#include "raster/drawing.h"

#include <quarlo/convert.h>
#include <quarlo/font.h>
#include <quarlo/platform.h>

#include <cstring>

using namespace quarlo::test;

namespace {

class Font : public RasterTest {
  protected:
    GFontScale scale_{};
    GFontRecord record_{0, 0, &scale_};
    GFontRecord* font = &record_;
};

TEST_F(Font, CallsGoToThePlatform) {
    GFontAttribute attribute{};
    GFontUserAttribute user{};
    GFontInformation information{};
    int16_t width = 0;
    int16_t height = 0;
    platform.answer(13, asWord(font));
    platform.forget();
    EXPECT_EQ(GFLoadFont(u"Face"), font);
    EXPECT_EQ(GFSetSize(font, 8, 16), 1);
    EXPECT_EQ(GFGetSize(font, &width, &height), 1);
    EXPECT_EQ(GFSetFontAttribute(font, &attribute), 1);
    EXPECT_EQ(GFGetFontAttribute(font, &attribute), 1);
    EXPECT_EQ(GFSetFontUserAttribute(font, &user), 1);
    EXPECT_EQ(GFGetFontUserAttribute(font, &user), 1);
    EXPECT_EQ(GFGetFontInformation(font, &information), 1);
    EXPECT_EQ(GFSetGBFontFlag(7), 1);
    GFReleaseFont(font);
    platform.answer(kFontCount, 5);
    EXPECT_EQ(GFGetFontCount(), 5);
    const int services[] = {13, 14, 15, 16, 17, 18, 19, 25, 207, 21, kFontCount};
    ASSERT_EQ(platform.calls.size(), std::size(services));
    for (size_t i = 0; i < std::size(services); ++i) {
        EXPECT_EQ(platform.calls[i].service, services[i]);
    }
    EXPECT_EQ(platform.calls[1], call(14, font, 8, 16));
    EXPECT_EQ(platform.calls[2], call(15, font, &width, &height));
    EXPECT_EQ(platform.calls[8], call(207, 7));
}

TEST_F(Font, CallsGive0WithoutTheirService) {
    platform.remove({13, 14, 15, 16, 17, 18, 19, 21, 25, 207});
    GetGPIFunction();
    platform.forget();
    GFontAttribute attribute{};
    EXPECT_EQ(GFLoadFont(u"Face"), nullptr);
    EXPECT_EQ(GFSetSize(font, 8, 16), 0);
    EXPECT_EQ(GFGetSize(font, nullptr, nullptr), 0);
    EXPECT_EQ(GFSetFontAttribute(font, &attribute), 0);
    EXPECT_EQ(GFGetFontAttribute(font, &attribute), 0);
    EXPECT_EQ(GFSetFontUserAttribute(font, nullptr), 0);
    EXPECT_EQ(GFGetFontUserAttribute(font, nullptr), 0);
    EXPECT_EQ(GFGetFontInformation(font, nullptr), 0);
    EXPECT_EQ(GFSetGBFontFlag(1), 0);
    GFReleaseFont(font);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Font, ReleasingNoneIsHarmless) {
    platform.forget();
    GFReleaseFont(nullptr);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Font, IsSetOnAHandle) {
    Drawing drawing(4, 4);
    EXPECT_EQ(GDSetFont(drawing, font), 1);
    EXPECT_EQ(drawing->font, font);
    EXPECT_EQ(GDSetFont(drawing, nullptr), 1);
    EXPECT_EQ(drawing->font, nullptr);
    EXPECT_EQ(GDSetFont(nullptr, font), 0);
}

/// A descriptor at an odd address.
struct Unaligned {
    char before;
    GSimpleFont descriptor;
} __attribute__((packed));

TEST_F(Font, IsMadeFromADescriptorThatNeedNotBeAligned) {
    Drawing drawing(4, 4);
    const GSimpleFont simple{u"Face", 24, 2, 3, 4, 0xFF};
    Unaligned unaligned{};
    std::memcpy(&unaligned.descriptor, &simple, sizeof simple);
    const auto* const descriptor =
        reinterpret_cast<const GSimpleFont*>(reinterpret_cast<const char*>(&unaligned) + 1);
    platform.answer(13, asWord(font));
    GFontAttribute given{};
    platform.serve<16>([&given](GFontRecord*, const GFontAttribute* attribute) {
        given = *attribute;
        return 1;
    });
    EXPECT_EQ(GDSetSimpleFont(drawing, descriptor), font);
    EXPECT_EQ(platform.callsOf(13)[0], call(13, descriptor));
    EXPECT_EQ(platform.callsOf(16)[0].arguments[0], asWord(font));
    EXPECT_EQ(drawing->font, font);
    const GFontAttribute expected{24, 24, 4, 1, {}, 0x0302, 0};
    EXPECT_EQ(std::memcmp(&given, &expected, sizeof given), 0);
}

TEST_F(Font, ThatCannotBeLoadedLeavesTheHandleWithout) {
    Drawing drawing(4, 4);
    GDSetFont(drawing, font);
    const GSimpleFont simple{u"None", 24, 1, 1, 1, 0};
    platform.answer(13, 0);
    EXPECT_EQ(GDSetSimpleFont(drawing, &simple), nullptr);
    EXPECT_EQ(drawing->font, nullptr);
    EXPECT_EQ(platform.count(16), 0U);
}

TEST_F(Font, TextAlignmentChangesNothing) {
    Drawing drawing(4, 4);
    const GDrawHandle before = *drawing.operator->();
    GDSetTextAlign(drawing, 2);
    EXPECT_EQ(std::memcmp(&before, drawing.operator->(), sizeof before), 0);
}

TEST_F(Font, ConversionsGoToThePlatform) {
    const char16_t text[] = u"ab";
    char bytes[4];
    char16_t units[4];
    uint32_t character = 0;
    platform.answer(37, asWord(text));
    platform.answer(38, asWord(text + 1));
    platform.forget();
    EXPECT_EQ(GDGetStringLength(text, -1), 1);
    EXPECT_EQ(GDGetPrevChar(text, text + 1, &character), text);
    EXPECT_EQ(GDGetNextChar(text, nullptr, &character), text + 1);
    EXPECT_EQ(GRCUnicodeToMultiByte(text, 2, bytes, 4), 1);
    EXPECT_EQ(GRCMultiByteToUnicode("ab", 2, units, 4), 1);
    EXPECT_EQ(GRCIsLeadByte(0x81, 932), 1);
    const int services[] = {36, 37, 38, 61, 62, 79};
    ASSERT_EQ(platform.calls.size(), std::size(services));
    for (size_t i = 0; i < std::size(services); ++i) {
        EXPECT_EQ(platform.calls[i].service, services[i]);
    }
    EXPECT_EQ(platform.calls[1], call(37, text, text + 1, &character));
    EXPECT_EQ(platform.calls[5], call(79, 0x81, 932));
}

} // namespace
