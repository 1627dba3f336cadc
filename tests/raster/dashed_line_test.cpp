#include "raster/random_drawing.h"

#include <algorithm>
#include <string>

using namespace quarlo::test;

namespace {

using DashedLine = RasterTest;

/// The only row of a surface that is one pixel high.
std::string rowOf(Drawing& drawing) {
    return pictureOf(*drawing.surface()).rows.front();
}

std::string drawn(size_t count) {
    return std::string(count, '#');
}

std::string gap(size_t count) {
    return std::string(count, '.');
}

TEST_F(DashedLine, AdvancesBeforeItsFirstPixel) {
    Drawing drawing(96, 1);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, 0, 0, 95, 0);
    EXPECT_EQ(rowOf(drawing), drawn(31) + gap(32) + drawn(32) + gap(1));
    EXPECT_EQ(drawing->dashPhase, 32);
}

TEST_F(DashedLine, StartsAtItsFirstEnd) {
    Drawing drawing(96, 1);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, 95, 0, 0, 0);
    EXPECT_EQ(rowOf(drawing), gap(1) + drawn(32) + gap(32) + drawn(31));
}

TEST_F(DashedLine, ReadsStepsFromTheLowestBitOfTheFirstByte) {
    Drawing drawing(64, 1);
    const uint8_t steps[8] = {0x02, 0x80, 0, 0, 0, 0, 0, 0x01};
    GDDefinePenDash(drawing, 3, steps);
    GDSetPenDash(drawing, 3);
    drawLine(drawing, 0, 0, 63, 0);
    // Steps 1, 15 and 56; the first pixel is at step 1.
    EXPECT_EQ(rowOf(drawing), drawn(1) + gap(13) + drawn(1) + gap(40) + drawn(1) + gap(8));
}

TEST_F(DashedLine, ContinuesFromTheLastOne) {
    Drawing drawing(128, 1);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, 0, 0, 39, 0);
    EXPECT_EQ(drawing->dashPhase, 40);
    drawLine(drawing, 40, 0, 127, 0);
    EXPECT_EQ(rowOf(drawing), drawn(31) + gap(32) + drawn(32) + gap(32) + drawn(1));
}

TEST_F(DashedLine, RestartsWithEachLineTo) {
    Drawing drawing(82, 1);
    GDSetPenDash(drawing, 1);
    GDLineTo(drawing, 40, 0);
    EXPECT_EQ(drawing->dashPhase, 0);
    GDMoveTo(drawing, 41, 0);
    GDLineTo(drawing, 81, 0);
    EXPECT_EQ(rowOf(drawing), drawn(31) + gap(10) + drawn(31) + gap(10));
}

TEST_F(DashedLine, IsMeasuredAlongTheLine) {
    // 40 across, 30 down: 50 steps of the pattern for 40 pixels, 1.25 a pixel. Of each eight steps
    // dash 4 draws the last four.
    Drawing drawing(41, 31);
    GDSetPenDash(drawing, 4);
    drawLine(drawing, 0, 0, 40, 30);
    std::string columns(41, '.');
    for (int y = 0; y < 31; ++y) {
        for (int x = 0; x < 41; ++x) {
            if (pixelAt(*drawing.surface(), x, y) != 0) {
                columns[static_cast<size_t>(x)] = '#';
            }
        }
    }
    EXPECT_EQ(columns, "...###...###...####...###...###....###...");
    EXPECT_EQ(drawing->dashPhase, 51);
}

TEST_F(DashedLine, TakesThePixelsOfTheThinLine) {
    Drawing solid(40, 30);
    Drawing dashed(40, 30);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(dashed, 1, steps);
    GDSetPenDash(dashed, 1);
    for (const auto& [x, y] : {std::pair<int16_t, int16_t>{39, 11}, {21, 29}, {29, 29}, {0, 29}}) {
        drawLine(solid, 0, 0, x, y);
        drawLine(dashed, 0, 0, x, y);
    }
    EXPECT_TRUE(samePicture(pictureOf(*dashed.surface()), pictureOf(*solid.surface())));
}

TEST_F(DashedLine, WithoutLengthDrawsNothingAndKeepsThePhase) {
    Drawing drawing(3, 3);
    GDSetPenDash(drawing, 1);
    drawing->dashPhase = 17;
    GLine line{1, 1, 1, 1};
    EXPECT_EQ(GDDrawLine(drawing, &line), 1);
    EXPECT_TRUE(shows(*drawing.surface(), {"...", "...", "..."}));
    EXPECT_EQ(drawing->dashPhase, 17);
}

TEST_F(DashedLine, OutsideIsWalkedAll) {
    for (const int16_t size : std::initializer_list<int16_t>{1, 5}) {
        Drawing drawing(10, 10);
        GDSetPenDash(drawing, 2);
        GDSetPenSize(drawing, size, size);
        GLine line{100, 100, 119, 100};
        EXPECT_EQ(GDDrawLine(drawing, &line), 1);
        EXPECT_EQ(drawing->dashPhase, 20);
        EXPECT_TRUE(shows(*drawing.surface(), std::vector(10, gap(10))));
    }
}

TEST_F(DashedLine, ShowsTheSameDashesWhereverItIsClipped) {
    Drawing whole(60, 40);
    Drawing clipped(60, 40);
    setClip(clipped, 20, 5, 50, 30);
    for (GDrawHandle* const handle : {(GDrawHandle*)whole, (GDrawHandle*)clipped}) {
        GDSetPenDash(handle, 3);
        drawLine(handle, -7, -3, 59, 39);
        drawLine(handle, 59, 2, 0, 33);
    }
    Picture expected = pictureOf(*whole.surface());
    for (size_t y = 0; y < 40; ++y) {
        for (size_t x = 0; x < 60; ++x) {
            if (x < 20 || x > 50 || y < 5 || y > 30) {
                expected.rows[y][x] = '.';
            }
        }
    }
    EXPECT_TRUE(samePicture(pictureOf(*clipped.surface()), expected));
    EXPECT_EQ(clipped->dashPhase, whole->dashPhase);
}

TEST_F(DashedLine, ThePhaseCountsModuloSixtyFour) {
    Drawing drawing(40, 1);
    GDSetPenDash(drawing, 1);
    drawing->dashPhase = 64 + 20;
    drawLine(drawing, 0, 0, 39, 0);
    EXPECT_EQ(rowOf(drawing), drawn(11) + gap(29));
    EXPECT_EQ(drawing->dashPhase, 60);
}

TEST_F(DashedLine, NineReadsFillPatternZero) {
    Drawing drawing(20, 1);
    const uint8_t steps[8] = {0x0F, 0, 0xFF, 0, 0, 0, 0, 0};
    GDDefinePenDash(drawing, 9, steps);
    EXPECT_EQ(drawing->fillPatterns[0][2], 0xFF);
    GDSetPenDash(drawing, 9);
    drawLine(drawing, 0, 0, 19, 0);
    EXPECT_EQ(rowOf(drawing), drawn(3) + gap(12) + drawn(5));
}

TEST_F(DashedLine, OfAnyOtherNumberDrawsNothing) {
    for (const int32_t number : {10, 11, 100, -1, -8, 32767, -32768}) {
        Drawing drawing(20, 1);
        GDSetPenDash(drawing, number);
        drawing->dashPhase = 3;
        drawLine(drawing, 0, 0, 19, 0);
        EXPECT_EQ(rowOf(drawing), gap(20)) << number;
        EXPECT_EQ(drawing->dashPhase, 3) << number;
    }
}

TEST_F(DashedLine, OnAFlatLineIsAsThickAsThePenIsHigh) {
    // For even heights the half pixel more lies above.
    Drawing drawing(8, 6);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 7, 2);
    drawLine(drawing, 1, 3, 2, 3);
    GDSetPenSize(drawing, 1, 3);
    drawLine(drawing, 3, 3, 4, 3);
    GDSetPenSize(drawing, 2, 4);
    drawLine(drawing, 5, 3, 6, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {"........", //
                                           ".....##.", //
                                           ".######.", //
                                           ".######.", //
                                           "...####.", //
                                           "........"}));
}

TEST_F(DashedLine, OnASteepLineIsAsThickAsThePenIsWide) {
    // For even widths the half pixel more lies on the right.
    Drawing drawing(6, 8);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 2, 7);
    drawLine(drawing, 2, 1, 2, 2);
    GDSetPenSize(drawing, 3, 1);
    drawLine(drawing, 2, 3, 2, 4);
    GDSetPenSize(drawing, 4, 2);
    drawLine(drawing, 2, 5, 2, 6);
    EXPECT_TRUE(shows(*drawing.surface(), {"......", //
                                           "..##..", //
                                           "..##..", //
                                           ".###..", //
                                           ".###..", //
                                           ".####.", //
                                           ".####.", //
                                           "......"}));
}

TEST_F(DashedLine, OfFortyFiveDegreesCountsAsFlat) {
    Drawing drawing(5, 6);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 1, 3);
    drawLine(drawing, 1, 1, 3, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {".#...", //
                                           ".##..", //
                                           ".###.", //
                                           "..##.", //
                                           "...#.", //
                                           "....."}));
}

TEST_F(DashedLine, ThickIsSeenWhereOnlyItsSideIs) {
    Drawing drawing(6, 3);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 5, 5);
    drawLine(drawing, 1, 4, 4, 4);
    EXPECT_TRUE(shows(*drawing.surface(), {"......", //
                                           "......", //
                                           ".####."}));
}

TEST_F(DashedLine, ThickTakesEachPixelOnce) {
    Drawing drawing(40, 40);
    const uint8_t steps[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 5, 4);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawLine(drawing, 5, 5, 35, 20);
    const Picture picture = pictureOf(*drawing.surface());
    size_t pixels = 0;
    for (const std::string& row : picture.rows) {
        pixels += static_cast<size_t>(std::count(row.begin(), row.end(), '#'));
    }
    EXPECT_EQ(pixels, 31U * 4U);
}

TEST_F(DashedLine, OfTheGreatestLengthKeepsItsMeasure) {
    // 92680 steps for 65535 pixels: 92681 / 65536 a pixel, so 92681 after all 65536 pixels.
    Drawing drawing(1, 1);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, -32768, -32768, 32767, 32767);
    EXPECT_EQ(drawing->dashPhase, 92681 % 64);
}

TEST_F(DashedLine, TakesColourAndModeFromTheHandle) {
    Drawing drawing(4, 1, 16);
    setPixelAt(*drawing.surface(), 1, 0, 0x0F0F);
    GDSetPenColor(drawing, 0x3C3C);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, 0, 0, 2, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"axa."}, {{'a', 0x3C3C}, {'x', 0x3333}, {'.', 0}}));
}

TEST_F(DashedLine, WithoutPenColourKeepsThePhase) {
    Drawing drawing(20, 1);
    GDSetPenDash(drawing, 1);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawing->dashPhase = 5;
    GLine line{0, 0, 19, 0};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    EXPECT_EQ(drawing->dashPhase, 5);
    EXPECT_EQ(rowOf(drawing), gap(20));
}

TEST_F(DashedLine, IsSetPixelByPixelOnADevice) {
    DeviceDrawing drawing(20, 10);
    GDSetPenColor(drawing, 9);
    GDSetPenDash(drawing, 4);
    drawLine(drawing, 7, 1, 0, 1);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(5, handle, surface, 4, 1, 9, 0), call(5, handle, surface, 3, 1, 9, 0),
                     call(5, handle, surface, 2, 1, 9, 0), call(5, handle, surface, 1, 1, 9, 0)}));
}

TEST_F(DashedLine, ThickIsSetPixelByPixelOnADevice) {
    DeviceDrawing drawing(20, 10);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 1, 3);
    drawLine(drawing, 4, 0, 5, 0);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(5, handle, surface, 4, 0, 1, 0), call(5, handle, surface, 4, 1, 1, 0),
                     call(5, handle, surface, 5, 0, 1, 0), call(5, handle, surface, 5, 1, 1, 0)}));
}

TEST_F(DashedLine, WithoutTheOperationIsWalkedOnADevice) {
    platform.remove({5});
    DeviceDrawing drawing(20, 10);
    GDSetPenDash(drawing, 1);
    drawLine(drawing, 0, 0, 19, 0);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(drawing->dashPhase, 20);
}

TEST_F(DashedLine, LikeModel) {
    expectLikeModel({{DrawCall::PenColor, DrawCall::Dash, DrawCall::Dash, DrawCall::DashPhase,
                      DrawCall::DefineDash},
                     {DrawCall::DrawLine}});
}

} // namespace
