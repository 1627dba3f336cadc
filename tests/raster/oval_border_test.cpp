#include "raster/curve_test.h"

#include <quarlo/draw.h>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class OvalBorder : public RasterTest {};

constexpr GRect kBox = {5, 5, 54, 40};

void expectRect(const GRect& actual, const GRect& expected) {
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    EXPECT_EQ(actual.right, expected.right);
    EXPECT_EQ(actual.bottom, expected.bottom);
}

GRect shrunk(int32_t by) {
    const auto low = [](int32_t value) { return static_cast<int16_t>(value); };
    return {low(kBox.left + by), low(kBox.top + by), low(kBox.right - by), low(kBox.bottom - by)};
}

TEST_F(OvalBorder, NotEnabledOnlyCopiesTheRectangle) {
    Drawing drawing(60, 48);
    const GBorderStyle border{0, 1, 2, 3, 5};
    GRect inner{};
    GDDrawOvalBorder(drawing, &kBox, &inner, &border, 0);
    expectRect(inner, kBox);
    EXPECT_TRUE(pixelsOf(*drawing.surface()).empty());
    EXPECT_EQ(drawing->penPixel, 1U);
}

TEST_F(OvalBorder, ReadsAllOfEnabled) {
    Drawing drawing(60, 48);
    const GBorderStyle border{0x100, 1, 2, 3, 5};
    GDDrawOvalBorder(drawing, &kBox, nullptr, &border, 0);
    EXPECT_FALSE(pixelsOf(*drawing.surface()).empty());
}

TEST_F(OvalBorder, LeavesARectangleInside) {
    GRect inner{};
    const auto innerOf = [&inner](const GBorderStyle& border) {
        GDDrawOvalBorder(nullptr, &kBox, &inner, &border, 0);
        return inner;
    };
    expectRect(innerOf({1, 1, 2, 3, 3}), shrunk(3));
    expectRect(innerOf({1, 1, 2, G_NO_COLOR, 3}), shrunk(3));
    expectRect(innerOf({1, 1, 2, 3, 0}), shrunk(1));
    expectRect(innerOf({1, 1, 2, G_NO_COLOR, 0}), kBox);
    expectRect(innerOf({1, 1, 2, 0x80000000, -4}), kBox);
    GDDrawOvalBorder(nullptr, nullptr, &inner, nullptr, 0);
}

TEST_F(OvalBorder, DrawsTwoHalvesOnAFrame) {
    Drawing drawing(60, 48);
    const GBorderStyle border{1, 1, 2, 3, 5};
    GDDrawOvalBorder(drawing, &kBox, nullptr, &border, 0);
    const GVram& surface = *drawing.surface();
    EXPECT_EQ(pixelAt(surface, 5, 22), 3U);
    EXPECT_EQ(pixelAt(surface, 7, 22), 1U);
    EXPECT_EQ(pixelAt(surface, 9, 22), 3U);
    EXPECT_EQ(pixelAt(surface, 30, 7), 1U);
    EXPECT_EQ(pixelAt(surface, 52, 22), 2U);
    EXPECT_EQ(pixelAt(surface, 30, 38), 2U);
    EXPECT_EQ(pixelAt(surface, 30, 22), 0U);
    GDDrawOvalBorder(drawing, &kBox, nullptr, &border, 1);
    EXPECT_EQ(pixelAt(surface, 7, 22), 2U);
    EXPECT_EQ(pixelAt(surface, 52, 22), 1U);
}

TEST_F(OvalBorder, CoversItsFrameExceptForItsEdges) {
    // Without a frame colour the two halves are the whole ring that a frame would be.
    for (int32_t width = 1; width < 14; ++width) {
        Drawing halves(60, 48);
        const GBorderStyle border{1, 1, 2, G_NO_COLOR, width};
        GDDrawOvalBorder(halves, &kBox, nullptr, &border, 0);
        Drawing whole(60, 48);
        GRect ring = shrunk((width - 1) >> 1);
        GDSetPenSize(whole, static_cast<int16_t>(width), static_cast<int16_t>(width));
        GDDrawOval(whole, &ring);
        EXPECT_EQ(difference(pixelsOf(*halves.surface()), pixelsOf(*whole.surface())), "") << width;
    }
}

TEST_F(OvalBorder, LeavesThePenAsItNeededIt) {
    Drawing drawing(60, 48);
    GDSetPenDash(drawing, 3);
    GDSetFillPattern(drawing, 7);
    const GBorderStyle border{1, 1, 2, 3, 7};
    GDDrawOvalBorder(drawing, &kBox, nullptr, &border, 0);
    EXPECT_EQ(drawing->penDash, 0);
    EXPECT_EQ(drawing->penWidth, 5);
    EXPECT_EQ(drawing->penHeight, 5);
    EXPECT_EQ(drawing->penPixel, 2U);
    EXPECT_EQ(drawing->fillPattern, G_FILL_NONE);
}

TEST_F(OvalBorder, WiderThanItsRectangleIsCalm) {
    for (const int32_t width : {60, 1000, 32767, -32768, 65536 + 3}) {
        Drawing drawing(60, 48);
        const GBorderStyle border{1, 1, 2, 3, width};
        GRect inner{};
        GDDrawOvalBorder(drawing, &kBox, &inner, &border, 0);
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
}

} // namespace
