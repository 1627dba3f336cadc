#include "raster/random_drawing.h"

using namespace quarlo::test;

namespace {

using Rect = RasterTest;

const Letters kLetters = {{'.', 0}, {'p', 1}, {'f', 2}, {'b', 3}};

/// Pen 1, fore colour 2, back colour 3.
void setUp(GDrawHandle* handle, int32_t style) {
    GDSetPenColor(handle, 1);
    GDSetFillAttribute(handle, style, 2, 3);
}

std::vector<std::string> blank(size_t width, size_t height) {
    return std::vector(height, std::string(width, '.'));
}

TEST_F(Rect, HollowHasItsFrameOnly) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_NONE);
    drawRect(drawing, 1, 1, 4, 3);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"......", //
                       ".pppp.", //
                       ".p..p.", //
                       ".pppp.", //
                       "......"},
                      kLetters));
}

TEST_F(Rect, IsFilledInTheForeColour) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_FORE);
    drawRect(drawing, 1, 1, 4, 3);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"......", //
                       ".pppp.", //
                       ".pffp.", //
                       ".pppp.", //
                       "......"},
                      kLetters));
}

TEST_F(Rect, IsFilledInTheBackColour) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_BACK);
    drawRect(drawing, 1, 1, 4, 3);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"......", //
                       ".pppp.", //
                       ".pbbp.", //
                       ".pppp.", //
                       "......"},
                      kLetters));
}

TEST_F(Rect, WithoutPenColourIsFilledToItsEdges) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_FORE);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 1, 1, 4, 3);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"......", //
                       ".ffff.", //
                       ".ffff.", //
                       ".ffff.", //
                       "......"},
                      kLetters));
}

TEST_F(Rect, InNoColourIsNotFilled) {
    for (const int32_t style : {G_FILL_FORE, G_FILL_BACK}) {
        Drawing drawing(4, 3);
        GDSetFillAttribute(drawing, style, G_NO_COLOR, G_NO_COLOR);
        drawRect(drawing, 0, 0, 3, 2);
        EXPECT_TRUE(shows(*drawing.surface(), {"pppp", "p..p", "pppp"}, kLetters));
    }
}

TEST_F(Rect, IsFilledWithAPatternInBothColours) {
    Drawing drawing(10, 4);
    setUp(drawing, 9);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 1, 1, 9, 3);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"..........", //
                       ".fbbbbbbbf", //
                       ".bfbbbbbbb", //
                       ".bbfbbbbbb"},
                      kLetters));
}

TEST_F(Rect, PatternsOfNeighboursAreContinuous) {
    Drawing drawing(12, 2);
    setUp(drawing, 10);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 0, 0, 4, 1);
    drawRect(drawing, 5, 0, 11, 1);
    EXPECT_TRUE(shows(*drawing.surface(), {"fbfbfbfbfbfb", "fbfbfbfbfbfb"}, kLetters));
}

TEST_F(Rect, PatternsFollowTheSurfaceWhateverTheOrigin) {
    Drawing drawing(12, 1);
    setUp(drawing, 12);
    GDSetPenColor(drawing, G_NO_COLOR);
    const GPoint origin{-3, 0};
    GDSetLocalOrigin(drawing, &origin);
    drawRect(drawing, 0, 0, 8, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"...bfbbbfbbb"}, kLetters));
}

TEST_F(Rect, PatternFortyIsPatternTwo) {
    Drawing first(8, 8);
    Drawing second(8, 8);
    setUp(first, 40);
    setUp(second, 2);
    EXPECT_EQ(first->fillPattern, 2);
    drawRect(first, 0, 0, 7, 7);
    drawRect(second, 0, 0, 7, 7);
    EXPECT_TRUE(
        samePicture(pictureOf(*first.surface(), kLetters), pictureOf(*second.surface(), kLetters)));
}

TEST_F(Rect, ADefinedPatternIsTaken) {
    Drawing drawing(8, 1);
    setUp(drawing, 37);
    GDSetPenColor(drawing, G_NO_COLOR);
    const uint8_t rows[8] = {0x35};
    GDDefineFillPattern(drawing, 37, rows);
    drawRect(drawing, 0, 0, 7, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"bbffbfbf"}, kLetters));
}

TEST_F(Rect, OfAWildStyleHasItsFrameOnly) {
    for (const int16_t style : std::initializer_list<int16_t>{-5, -100, -32768, 38, 1000, 32767}) {
        Drawing drawing(4, 3);
        setUp(drawing, G_FILL_NONE);
        drawing->fillPattern = style;
        drawRect(drawing, 0, 0, 3, 2);
        EXPECT_TRUE(shows(*drawing.surface(), {"pppp", "p..p", "pppp"}, kLetters)) << style;
        EXPECT_EQ(platform.count(69), 0U);
    }
}

TEST_F(Rect, ANegativeStyleIsStoredAsItIs) {
    Drawing drawing(4, 3);
    GDSetFillPattern(drawing, -5);
    EXPECT_EQ(drawing->fillPattern, -5);
}

TEST_F(Rect, IsMappedByTheOrigin) {
    Drawing drawing(5, 4);
    setUp(drawing, G_FILL_FORE);
    const GPoint origin{100, -50};
    GDSetLocalOrigin(drawing, &origin);
    drawRect(drawing, 101, -49, 103, -47);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {".....", //
                       ".ppp.", //
                       ".pfp.", //
                       ".ppp."},
                      kLetters));
}

TEST_F(Rect, IsMappedFromTheVirtualRectangle) {
    Drawing drawing(10, 5);
    setUp(drawing, G_FILL_FORE);
    GDSetPenColor(drawing, G_NO_COLOR);
    const GRect frame{0, 0, 90, 40};
    GDSetVirtualRect(drawing, &frame);
    GDSetVirtualMode(drawing);
    drawRect(drawing, 20, 10, 66, 34);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"..........", //
                       "..ffffff..", //
                       "..ffffff..", //
                       "..ffffff..", //
                       ".........."},
                      kLetters));
}

TEST_F(Rect, TheCallersRecordStays) {
    Drawing drawing(5, 4);
    const GPoint origin{1, 1};
    GDSetLocalOrigin(drawing, &origin);
    GRect rect{-3, -3, 90, 90};
    GDDrawRect(drawing, &rect);
    EXPECT_EQ(rect.left, -3);
    EXPECT_EQ(rect.bottom, 90);
}

TEST_F(Rect, IsClipped) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_FORE);
    setClip(drawing, 1, 1, 3, 4);
    drawRect(drawing, 0, 2, 9, 9);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"......", //
                       "......", //
                       ".ppp..", //
                       ".fff..", //
                       ".fff.."},
                      kLetters));
}

TEST_F(Rect, OutsideHasNeitherFillNorFrame) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_FORE);
    GDSetPenDash(drawing, 1);
    GDSetPenSize(drawing, 9, 9);
    drawing->dashPhase = 7;
    drawRect(drawing, 6, 0, 9, 4);
    drawRect(drawing, -9, 0, -1, 4);
    drawRect(drawing, 0, 5, 5, 5);
    EXPECT_TRUE(shows(*drawing.surface(), blank(6, 5), kLetters));
    EXPECT_EQ(drawing->dashPhase, 7);
}

TEST_F(Rect, WithoutPixelsDrawsNothing) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_FORE);
    drawRect(drawing, 4, 1, 1, 3);
    drawRect(drawing, 1, 3, 4, 1);
    EXPECT_TRUE(shows(*drawing.surface(), blank(6, 5), kLetters));
}

TEST_F(Rect, OfOneRowIsFramedTwice) {
    Drawing drawing(5, 1);
    setUp(drawing, G_FILL_FORE);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawRect(drawing, 1, 0, 3, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".fff."}, kLetters));
}

TEST_F(Rect, OfOnePixelHasNoFrame) {
    Drawing drawing(3, 1);
    setUp(drawing, G_FILL_FORE);
    drawRect(drawing, 1, 0, 1, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".f."}, kLetters));
}

TEST_F(Rect, EveryEdgeHasBothCorners) {
    Drawing drawing(4, 4);
    setUp(drawing, G_FILL_NONE);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawRect(drawing, 0, 0, 3, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {".pp.", "p..p", "p..p", ".pp."}, kLetters));
}

TEST_F(Rect, TheFrameIsDashedClockwiseFromTheTopLeftCorner) {
    Drawing drawing(6, 5);
    setUp(drawing, G_FILL_NONE);
    const uint8_t steps[8] = {0x0F, 0x0F, 0x0F, 0x0F, 0x0F, 0x0F, 0x0F, 0x0F};
    GDDefinePenDash(drawing, 1, steps);
    GDSetPenDash(drawing, 1);
    drawRect(drawing, 0, 0, 5, 4);
    // Steps 1 to 6 on top, 7 to 11 down, 12 to 17 back, 18 to 22 up; of eight the first four draw.
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"ppp...", //
                       ".....p", //
                       ".....p", //
                       "p....p", //
                       "pp...p"},
                      kLetters));
    EXPECT_EQ(drawing->dashPhase, 0);
}

TEST_F(Rect, TheFrameStartsWhereTheLastLineLeftTheDash) {
    Drawing drawing(6, 1);
    setUp(drawing, G_FILL_NONE);
    GDSetPenDash(drawing, 1);
    drawing->dashPhase = 28;
    drawRect(drawing, 0, 0, 5, 9);
    EXPECT_TRUE(shows(*drawing.surface(), {"ppp..."}, kLetters));
}

TEST_F(Rect, WithoutFrameTheDashPhaseStays) {
    Drawing drawing(6, 6);
    setUp(drawing, G_FILL_FORE);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawing->dashPhase = 28;
    drawRect(drawing, 0, 0, 5, 5);
    EXPECT_EQ(drawing->dashPhase, 28);
}

TEST_F(Rect, ASolidFrameResetsTheDashPhase) {
    Drawing drawing(6, 6);
    drawing->dashPhase = 28;
    drawRect(drawing, 0, 0, 5, 5);
    EXPECT_EQ(drawing->dashPhase, 0);
}

TEST_F(Rect, ThePenPositionStays) {
    Drawing drawing(6, 6);
    GDMoveTo(drawing, 3, 2);
    drawRect(drawing, 0, 0, 5, 5);
    EXPECT_EQ(drawing->penPos.x, 3);
    EXPECT_EQ(drawing->penPos.y, 2);
}

TEST_F(Rect, ExclusiveOrTwiceRestores) {
    for (const int16_t bits : kDepths) {
        for (const int32_t style :
             std::initializer_list<int32_t>{G_FILL_FORE, G_FILL_BACK, G_FILL_GRADATION, 5}) {
            Drawing drawing(30, 20, bits);
            const GGradationInfo info{G_GRADATION_DOWN, 0x102030, 0xF0E0D0, 10, 5};
            GDSetGradationInfo(drawing, &info);
            GDSetFillAttribute(drawing, style, 0x5A3CC3, 0x123456);
            GDSetPenColor(drawing, 0x778899);
            GDSetDrawingMode(drawing, G_MODE_XOR);
            drawRect(drawing, -4, 3, 21, 17);
            EXPECT_NE(pixelAt(*drawing.surface(), 5, 5), 0U);
            drawRect(drawing, -4, 3, 21, 17);
            EXPECT_TRUE(shows(*drawing.surface(), blank(30, 20))) << bits << ' ' << style;
        }
    }
}

TEST_F(Rect, LikeModel) {
    expectLikeModel({{DrawCall::PenColor, DrawCall::FillColor, DrawCall::FillPattern,
                      DrawCall::DefinePattern, DrawCall::Dash, DrawCall::DashPhase},
                     {DrawCall::DrawRect}});
}

} // namespace
