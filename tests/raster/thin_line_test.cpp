#include "raster/random_drawing.h"

#include <cstdlib>

using namespace quarlo::test;

namespace {

using ThinLine = RasterTest;

TEST_F(ThinLine, StepsAtAnExactTie) {
    Drawing drawing(6, 4);
    drawLine(drawing, 0, 0, 4, 2);
    EXPECT_TRUE(shows(*drawing.surface(), {"#.....", //
                                           ".##...", //
                                           "...##.", //
                                           "......"}));
}

TEST_F(ThinLine, StepsAtAnExactTieDownwards) {
    Drawing drawing(4, 6);
    drawLine(drawing, 0, 0, 2, 4);
    EXPECT_TRUE(shows(*drawing.surface(), {"#...", //
                                           ".#..", //
                                           ".#..", //
                                           "..#.", //
                                           "..#.", //
                                           "...."}));
}

TEST_F(ThinLine, RunsFromLeftToRightWhicheverEndComesFirst) {
    Drawing drawing(6, 4);
    drawLine(drawing, 4, 2, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"#.....", //
                                           ".##...", //
                                           "...##.", //
                                           "......"}));
}

TEST_F(ThinLine, RunsFromTopToBottomWhicheverEndComesFirst) {
    Drawing drawing(4, 6);
    drawLine(drawing, 2, 4, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"#...", //
                                           ".#..", //
                                           ".#..", //
                                           "..#.", //
                                           "..#.", //
                                           "...."}));
}

TEST_F(ThinLine, RisesToTheRight) {
    Drawing drawing(7, 3);
    drawLine(drawing, 0, 2, 6, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".....##", //
                                           "..###..", //
                                           "##....."}));
}

TEST_F(ThinLine, FallsSteeplyToTheLeft) {
    Drawing drawing(3, 7);
    drawLine(drawing, 2, 0, 0, 6);
    EXPECT_TRUE(shows(*drawing.surface(), {"..#", //
                                           "..#", //
                                           ".#.", //
                                           ".#.", //
                                           ".#.", //
                                           "#..", //
                                           "#.."}));
}

TEST_F(ThinLine, OfFortyFiveDegreesTakesTheDiagonal) {
    Drawing drawing(4, 4);
    drawLine(drawing, 3, 0, 0, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {"...#", //
                                           "..#.", //
                                           ".#..", //
                                           "#..."}));
}

TEST_F(ThinLine, AlongAnAxisHasBothEnds) {
    Drawing drawing(5, 4);
    drawLine(drawing, 3, 0, 1, 0);
    drawLine(drawing, 4, 3, 4, 1);
    EXPECT_TRUE(shows(*drawing.surface(), {".###.", //
                                           "....#", //
                                           "....#", //
                                           "....#"}));
}

TEST_F(ThinLine, WithoutLengthDrawsNothing) {
    Drawing drawing(3, 3);
    GLine line{1, 1, 1, 1};
    EXPECT_EQ(GDDrawLine(drawing, &line), 1);
    EXPECT_TRUE(shows(*drawing.surface(), {"...", "...", "..."}));
}

TEST_F(ThinLine, CutToOnePixelDrawsNothing) {
    Drawing drawing(3, 3);
    drawLine(drawing, 2, 1, 9, 1);
    drawLine(drawing, -1, 3, 3, -1);
    setClip(drawing, 1, 1, 1, 1);
    drawLine(drawing, 0, 0, 2, 2);
    EXPECT_TRUE(shows(*drawing.surface(), {"..#", //
                                           ".#.", //
                                           "#.."}));
}

TEST_F(ThinLine, IsDrawnBetweenTheEndsThatClippingLeft) {
    // (-10, 0)-(10, 7) is cut to (0, 3)-(9, 7).
    Drawing drawing(10, 10);
    drawLine(drawing, -10, 0, 10, 7);
    EXPECT_TRUE(shows(*drawing.surface(), {"..........", //
                                           "..........", //
                                           "..........", //
                                           "##........", //
                                           "..##......", //
                                           "....##....", //
                                           "......##..", //
                                           "........##", //
                                           "..........", //
                                           ".........."}));
}

TEST_F(ThinLine, StaysInsideTheClipRectangle) {
    Drawing drawing(6, 6);
    setClip(drawing, 1, 2, 4, 3);
    for (int16_t y = -6; y < 12; ++y) {
        drawLine(drawing, -3, y, 8, 5);
        drawLine(drawing, -3, y, 8, y);
    }
    for (int16_t x = -6; x < 12; ++x) {
        drawLine(drawing, x, -3, 3, 8);
    }
    EXPECT_TRUE(shows(*drawing.surface(), {"......", //
                                           "......", //
                                           ".####.", //
                                           ".####.", //
                                           "......", //
                                           "......"}));
}

TEST_F(ThinLine, TakesEachStepOnce) {
    Drawing drawing(64, 64);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    for (int16_t x = 0; x < 64; x = static_cast<int16_t>(x + 3)) {
        for (int16_t y = 0; y < 64; y = static_cast<int16_t>(y + 5)) {
            drawLine(drawing, 31, 31, x, y);
            int pixels = 0;
            for (int row = 0; row < 64; ++row) {
                for (int column = 0; column < 64; ++column) {
                    pixels += pixelAt(*drawing.surface(), column, row) != 0;
                }
            }
            EXPECT_EQ(pixels, std::max(std::abs(x - 31), std::abs(y - 31)) + 1) << x << ", " << y;
            drawLine(drawing, 31, 31, x, y);
        }
    }
    EXPECT_TRUE(shows(*drawing.surface(), std::vector(64, std::string(64, '.'))));
}

TEST_F(ThinLine, IsDrawnInEveryFormat) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(3, 3, bits);
        const uint32_t pixel = 0xA1B2C3U & ((uint32_t{1} << bits) - 1);
        GDSetPenColor(drawing, 0xA1B2C3);
        drawLine(drawing, 0, 0, 2, 1);
        EXPECT_TRUE(shows(*drawing.surface(),
                          {"a..", //
                           ".aa", //
                           "..."},
                          {{'.', 0}, {'a', pixel}}));
    }
}

TEST_F(ThinLine, AlongARowIsOneSpanOfADevice) {
    DeviceDrawing drawing(20, 10);
    GDSetPenColor(drawing, 0x55);
    GDSetDrawingMode(drawing, G_MODE_OR);
    drawLine(drawing, 12, 3, 4, 3);
    GDrawHandle* const handle = drawing;
    EXPECT_EQ(platform.calls,
              std::vector{call(6, handle, drawing.surface().get(), 4, 3, 0x55, G_MODE_OR, 9)});
}

TEST_F(ThinLine, AlongAColumnIsSetFromTopToBottomOnADevice) {
    DeviceDrawing drawing(20, 10);
    drawLine(drawing, 7, 5, 7, 3);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(5, handle, surface, 7, 3, 1, 0),
                                           call(5, handle, surface, 7, 4, 1, 0),
                                           call(5, handle, surface, 7, 5, 1, 0)}));
}

TEST_F(ThinLine, OfAnyDirectionIsSetAlongItsLongerAxisOnADevice) {
    DeviceDrawing drawing(20, 10);
    drawLine(drawing, 4, 2, 0, 0);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(5, handle, surface, 0, 0, 1, 0), call(5, handle, surface, 1, 1, 1, 0),
                     call(5, handle, surface, 2, 1, 1, 0), call(5, handle, surface, 3, 2, 1, 0),
                     call(5, handle, surface, 4, 2, 1, 0)}));
}

TEST_F(ThinLine, WithoutTheOperationDrawsNothingOnADevice) {
    platform.remove({5, 6});
    DeviceDrawing drawing(8, 8);
    drawLine(drawing, 0, 0, 7, 0);
    drawLine(drawing, 0, 0, 0, 7);
    drawLine(drawing, 0, 0, 7, 5);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(ThinLine, LeavesThePixelDrawnLastToNextPixel) {
    Drawing drawing(6, 3);
    drawLine(drawing, 3, 2, 0, 0);
    drawing->pixelOps->nextPixel();
    EXPECT_TRUE(shows(*drawing.surface(), {"#.....", //
                                           ".##...", //
                                           "...##."}));
    drawLine(drawing, 4, 0, 2, 0);
    drawing->pixelOps->nextPixel();
    EXPECT_TRUE(shows(*drawing.surface(), {"#.####", //
                                           ".##...", //
                                           "...##."}));
}

TEST_F(ThinLine, LikeModel) {
    expectLikeModel({{DrawCall::PenColor}, {DrawCall::DrawLine}});
}

} // namespace
