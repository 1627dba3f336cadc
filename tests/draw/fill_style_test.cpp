// Fill styles, patterns and brushes.
#include "draw/draw_test.h"

#include <quarlo/draw.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

using namespace quarlo::test;

namespace {

constexpr uint8_t kRows[8] = {0x81, 2, 3, 4, 5, 6, 7, 0x18};

class FillStyle : public HandleTest {
  protected:
    int patternSetBy(int32_t number) {
        GDSetFillPattern(handle.get(), number);
        return handle->fillPattern;
    }
};

TEST_F(FillStyle, PatternNumbersCountModulo38) {
    EXPECT_EQ(patternSetBy(0), 0);
    EXPECT_EQ(patternSetBy(37), 37);
    EXPECT_EQ(patternSetBy(38), 0);
    EXPECT_EQ(patternSetBy(40), 2);
    EXPECT_EQ(patternSetBy(32767), 32767 % 38);
}

TEST_F(FillStyle, NegativeNumbersAreKept) {
    for (const int32_t number : {-1, -2, -3, -4, -5, -32768}) {
        EXPECT_EQ(patternSetBy(number), number);
    }
}

TEST_F(FillStyle, TheSignIsThatOfTheLow16Bits) {
    EXPECT_EQ(patternSetBy(0xFFFF), -1);
    EXPECT_EQ(patternSetBy(0x8000), -32768);
    EXPECT_EQ(patternSetBy(0x10028), 2);
    EXPECT_EQ(patternSetBy(-0x10000 + 39), 1);
}

TEST_F(FillStyle, AnAttributeIsAPatternAndTwoColours) {
    GDSetFillAttribute(handle.get(), 40, 0x11, 0x22);
    EXPECT_EQ(handle->fillPattern, 2);
    EXPECT_EQ(handle->foreColor, 0x11U);
    EXPECT_EQ(handle->backColor, 0x22U);
}

TEST_F(FillStyle, ABrushIsAnAttributeInOneRecord) {
    const GBrush brush = {-3, 0x33, G_NO_COLOR};
    GDSetBrush(handle.get(), &brush);
    EXPECT_EQ(handle->fillPattern, G_FILL_FORE);
    EXPECT_EQ(handle->forePixel, 0x33U);
    EXPECT_EQ(handle->backPixel, G_NO_COLOR);
}

TEST_F(FillStyle, ABrushConvertsItsColours) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    const GBrush brush = {5, 0xFF8040, 0xFFFFFF};
    GDSetBrush(handle.get(), &brush);
    EXPECT_EQ(handle->forePixel, 0xFC08U);
    EXPECT_EQ(handle->backPixel, 0xFFFFU);
}

TEST_F(FillStyle, APatternIsDefinedInItsRow) {
    for (int16_t number = 0; number < G_FILL_PATTERN_COUNT; ++number) {
        const Handle fresh = openHandle();
        GDrawHandle expected;
        std::memcpy(&expected, fresh.get(), sizeof expected);
        std::copy_n(kRows, 8, expected.fillPatterns[number]);
        GDDefineFillPattern(fresh.get(), number, kRows);
        EXPECT_EQ(bytesOf(*fresh), bytesOf(expected)) << number;
    }
}

TEST_F(FillStyle, NoOtherNumberDefinesAnything) {
    const auto before = bytesOf(*handle);
    for (const int16_t number :
         std::initializer_list<int16_t>{-32768, -9, -1, 38, 39, 1000, 32767}) {
        GDDefineFillPattern(handle.get(), number, kRows);
        EXPECT_EQ(bytesOf(*handle), before) << number;
    }
}

TEST_F(FillStyle, AGradationIsCopied) {
    GGradationInfo info = {G_GRADATION_ACROSS, 0x112233, 0x445566, 30, 64};
    GDSetGradationInfo(handle.get(), &info);
    info = {};
    EXPECT_EQ(handle->gradation.direction, G_GRADATION_ACROSS);
    EXPECT_EQ(handle->gradation.startColor, 0x112233U);
    EXPECT_EQ(handle->gradation.endColor, 0x445566U);
    EXPECT_EQ(handle->gradation.lead, 30);
    EXPECT_EQ(handle->gradation.steps, 64);
}

} // namespace
