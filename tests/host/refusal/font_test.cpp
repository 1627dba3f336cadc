// Fonts that there are not, and what a font cannot be.
#include "refusing.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

/// A platform with one font in use.
class FontsRefuse : public testing::Test {
  protected:
    FontsRefuse() : font_(refuser<GPILoadFont>(13)(u"TORVANDELL CNC Gothic")) {
        service<GPISetFontSize>(14)(font_, 8, 16);
    }
    void SetUp() override { ASSERT_NE(font_, nullptr); }

    const StartedPlatform platform_;
    GFontRecord* const font_;
    GFontScale scale_{};
    GFontRecord foreign_{0, 0, &scale_};
};

TEST_F(FontsRefuse, FacesThatThereAreNot) {
    const auto load = refuser<GPILoadFont>(GPI_SERVICE_LOAD_FONT);
    const std::u16string endless(G_FACE_SIZE, u'a');
    EXPECT_EQ(load(nullptr), nullptr);
    EXPECT_EQ(load(u""), nullptr);
    EXPECT_EQ(load(endless.c_str()), nullptr);
}

TEST_F(FontsRefuse, FontsThatAreNotInUse) {
    int16_t extent = 7;
    GFontAttribute attribute{};
    GFontUserAttribute user{};
    GFontInformation information{};
    GGlyphRequest request{};
    request.text = u"A";
    service<GPIReleaseFont>(21)(font_);
    refuser<GPIReleaseFont>(21)(font_); // once more, and nothing happens
    refuser<GPIReleaseFont>(21)(&foreign_);
    for (GFontRecord* const wrong : {static_cast<GFontRecord*>(nullptr), &foreign_, font_}) {
        EXPECT_EQ(refuser<GPISetFontSize>(14)(wrong, 8, 16), 0);
        EXPECT_EQ(refuser<GPIGetFontSize>(15)(wrong, &extent, &extent), 0);
        EXPECT_EQ(refuser<GPISetFontAttribute>(16)(wrong, &attribute), 0);
        EXPECT_EQ(refuser<GPIGetFontAttribute>(17)(wrong, &attribute), 0);
        EXPECT_EQ(refuser<GPISetFontUserAttribute>(18)(wrong, &user), 0);
        EXPECT_EQ(refuser<GPIGetFontUserAttribute>(19)(wrong, &user), 0);
        EXPECT_EQ(refuser<GPIGlyph>(20)(wrong, &request), 0);
        EXPECT_EQ(refuser<GPIGetFontInformation>(25)(wrong, &information), 0);
    }
    EXPECT_EQ(extent, 7);
    EXPECT_EQ(request.next, nullptr);
}

TEST_F(FontsRefuse, RecordsThatThereAreNot) {
    int16_t extent = 7;
    GGlyphRequest request{};
    EXPECT_EQ(refuser<GPIGetFontSize>(15)(font_, nullptr, &extent), 0);
    EXPECT_EQ(refuser<GPIGetFontSize>(15)(font_, &extent, nullptr), 0);
    EXPECT_EQ(extent, 7);
    EXPECT_EQ(refuser<GPISetFontAttribute>(16)(font_, nullptr), 0);
    EXPECT_EQ(refuser<GPIGetFontAttribute>(17)(font_, nullptr), 0);
    EXPECT_EQ(refuser<GPISetFontUserAttribute>(18)(font_, nullptr), 0);
    EXPECT_EQ(refuser<GPIGetFontUserAttribute>(19)(font_, nullptr), 0);
    EXPECT_EQ(refuser<GPIGlyph>(20)(font_, nullptr), 0);
    EXPECT_EQ(refuser<GPIGlyph>(20)(font_, &request), 0);
    EXPECT_EQ(refuser<GPIGetFontInformation>(25)(font_, nullptr), 0);
}

TEST_F(FontsRefuse, WhatAFontCannotBe) {
    constexpr int16_t kExtents[] = {INT16_MIN, -1, 0, INT16_MAX};
    for (const int16_t extent : kExtents) {
        EXPECT_EQ(refuser<GPISetFontSize>(14)(font_, extent, 16), 0) << extent;
        EXPECT_EQ(refuser<GPISetFontSize>(14)(font_, 8, extent), 0) << extent;
    }
    GFontAttribute usual{};
    ASSERT_EQ(service<GPIGetFontAttribute>(17)(font_, &usual), 1);
    constexpr uint16_t kDepths[] = {3, 5, 9, UINT16_MAX};
    for (const uint16_t bits : kDepths) {
        GFontAttribute attribute = usual;
        attribute.bitsPerPixel = bits;
        EXPECT_EQ(refuser<GPISetFontAttribute>(16)(font_, &attribute), 0) << bits;
    }
    constexpr uint16_t kMagnifications[] = {0x0109, 0x0901, 0xFF01, UINT16_MAX};
    for (const uint16_t magnification : kMagnifications) {
        GFontAttribute attribute = usual;
        attribute.magnification = magnification;
        EXPECT_EQ(refuser<GPISetFontAttribute>(16)(font_, &attribute), 0) << magnification;
    }
    for (const int32_t flag : {INT32_MIN, -1, 2, INT32_MAX}) {
        EXPECT_EQ(refuser<GPISetGBFontFlag>(207)(flag), 0) << flag;
    }
    int16_t width = 0;
    int16_t height = 0;
    EXPECT_EQ(service<GPIGetFontSize>(15)(font_, &width, &height), 1);
    EXPECT_EQ(width, 8);
    EXPECT_EQ(height, 16);
}

TEST_F(FontsRefuse, ToDrawTextWithoutAHandleATextOrAFont) {
    GDrawHandle handle{};
    const GRect all{0, 0, 99, 99};
    for (const int32_t number : {GPI_SERVICE_DRAW_STRING, GPI_SERVICE_DRAW_CAPTION_LINE}) {
        const auto draw = refuser<GPIDrawString>(number);
        handle.target = handle.display = StartedPlatform::surface();
        handle.font = font_;
        EXPECT_EQ(draw(nullptr, u"A", 0, 0, &all), 0) << number;
        EXPECT_EQ(draw(&handle, nullptr, 0, 0, &all), 0) << number;
        handle.font = &foreign_;
        EXPECT_EQ(draw(&handle, u"A", 0, 0, &all), 0) << number;
        handle.font = nullptr;
        EXPECT_EQ(draw(&handle, u"A", 0, 0, &all), 0) << number;
        handle.font = font_;
        handle.target = nullptr;
        EXPECT_EQ(draw(&handle, u"A", 0, 0, &all), 0) << number;
    }
}

} // namespace
