#include "raster/random_drawing.h"

using namespace quarlo::test;

namespace {

using Line = RasterTest;

TEST_F(Line, MoveToSetsThePenPosition) {
    Drawing drawing(4, 4);
    GDMoveTo(drawing, -7, 30000);
    EXPECT_EQ(drawing->penPos.x, -7);
    EXPECT_EQ(drawing->penPos.y, 30000);
}

TEST_F(Line, LineToDrawsFromThePenAndMovesIt) {
    Drawing drawing(5, 3);
    GDMoveTo(drawing, 1, 0);
    GDLineTo(drawing, 3, 2);
    GDLineTo(drawing, 3, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".#.#.", //
                                           "..##.", //
                                           "...#."}));
    EXPECT_EQ(drawing->penPos.x, 3);
    EXPECT_EQ(drawing->penPos.y, 0);
}

TEST_F(Line, LineToThePenPositionDrawsNothingAndRestartsTheDash) {
    Drawing drawing(3, 3);
    GDMoveTo(drawing, 1, 1);
    drawing->dashPhase = 12;
    GDLineTo(drawing, 1, 1);
    EXPECT_TRUE(shows(*drawing.surface(), {"...", "...", "..."}));
    EXPECT_EQ(drawing->penPos.x, 1);
    EXPECT_EQ(drawing->penPos.y, 1);
    EXPECT_EQ(drawing->dashPhase, 0);
}

TEST_F(Line, LineToWithoutPenColourDoesNothingAtAll) {
    Drawing drawing(3, 3);
    GDMoveTo(drawing, 1, 1);
    drawing->dashPhase = 12;
    GDSetPenColor(drawing, G_NO_COLOR);
    GDLineTo(drawing, 2, 2);
    EXPECT_TRUE(shows(*drawing.surface(), {"...", "...", "..."}));
    EXPECT_EQ(drawing->penPos.x, 1);
    EXPECT_EQ(drawing->penPos.y, 1);
    EXPECT_EQ(drawing->dashPhase, 12);
}

TEST_F(Line, LineToMovesThePenWhereNothingIsVisible) {
    Drawing drawing(3, 3);
    GDMoveTo(drawing, 50, 50);
    GDLineTo(drawing, 60, 50);
    EXPECT_EQ(drawing->penPos.x, 60);
    EXPECT_EQ(drawing->penPos.y, 50);
}

TEST_F(Line, LineToKeepsThePenInApplicationCoordinates) {
    Drawing drawing(5, 3);
    const GPoint origin{100, 200};
    GDSetLocalOrigin(drawing, &origin);
    GDMoveTo(drawing, 101, 201);
    GDLineTo(drawing, 103, 201);
    EXPECT_TRUE(shows(*drawing.surface(), {".....", //
                                           ".###.", //
                                           "....."}));
    EXPECT_EQ(drawing->penPos.x, 103);
    EXPECT_EQ(drawing->penPos.y, 201);
}

TEST_F(Line, DrawLineLeavesThePen) {
    Drawing drawing(5, 3);
    GDMoveTo(drawing, 2, 1);
    drawLine(drawing, 0, 0, 4, 2);
    EXPECT_EQ(drawing->penPos.x, 2);
    EXPECT_EQ(drawing->penPos.y, 1);
}

TEST_F(Line, DrawLineMapsTheCallersRecordByTheOrigin) {
    Drawing drawing(5, 3);
    const GPoint origin{-2, 7};
    GDSetLocalOrigin(drawing, &origin);
    GLine line{-1, 8, 1, 8};
    EXPECT_EQ(GDDrawLine(drawing, &line), 1);
    EXPECT_EQ(line.x1, 1);
    EXPECT_EQ(line.y1, 1);
    EXPECT_EQ(line.x2, 3);
    EXPECT_EQ(line.y2, 1);
    EXPECT_TRUE(shows(*drawing.surface(), {".....", //
                                           ".###.", //
                                           "....."}));
}

TEST_F(Line, DrawLineMapsTheCallersRecordFromTheVirtualRectangle) {
    Drawing drawing(64, 48);
    const GRect frame{0, 0, 99, 99};
    GDSetVirtualRect(drawing, &frame);
    GDSetVirtualMode(drawing);
    GLine line{0, 99, 50, -1};
    GDDrawLine(drawing, &line);
    // Onto 63 and 47: 50 x 63 + 49 over 99 is 32; -1 x 47 + 49 over 99 is 0.
    EXPECT_EQ(line.x1, 0);
    EXPECT_EQ(line.y1, 47);
    EXPECT_EQ(line.x2, 32);
    EXPECT_EQ(line.y2, 0);
    EXPECT_EQ(pixelAt(*drawing.surface(), 32, 0), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 47), 1U);
}

TEST_F(Line, DrawLineMapsTheRecordWithoutPenColourToo) {
    Drawing drawing(5, 3);
    const GPoint origin{1, 1};
    GDSetLocalOrigin(drawing, &origin);
    GDSetPenColor(drawing, G_NO_COLOR);
    GLine line{1, 1, 4, 3};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    EXPECT_EQ(line.x1, 0);
    EXPECT_EQ(line.y2, 2);
    EXPECT_TRUE(shows(*drawing.surface(), {".....", ".....", "....."}));
}

TEST_F(Line, DrawLineTellsWhetherAnyOfItIsVisible) {
    Drawing drawing(10, 10);
    const auto visible = [&](GLine line) { return GDDrawLine(drawing, &line); };
    EXPECT_EQ(visible({-5, 5, 5, 5}), 1);
    EXPECT_EQ(visible({0, 0, 9, 9}), 1);
    EXPECT_EQ(visible({-5, 0, -1, 9}), 0);
    EXPECT_EQ(visible({0, 10, 9, 12}), 0);
    EXPECT_EQ(visible({-5, 4, 4, -5}), 0);
}

TEST_F(Line, SolidAndOutsideIsNotDrawnHoweverWideThePen) {
    Drawing drawing(10, 10);
    GDSetPenSize(drawing, 9, 9);
    GLine line{-3, -3, 12, -3};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    EXPECT_TRUE(shows(*drawing.surface(), std::vector(10, std::string(10, '.'))));
}

TEST_F(Line, DashedAndOutsideIsWalked) {
    Drawing drawing(10, 10);
    GDSetPenDash(drawing, 1);
    GLine line{-5, 0, -1, 9};
    EXPECT_EQ(GDDrawLine(drawing, &line), 1);
    EXPECT_NE(drawing->dashPhase, 0);
}

TEST_F(Line, WithoutAClipRectangleIsNotDrawn) {
    DeviceDrawing drawing(10, 10);
    drawing.surface()->drawable = nullptr;
    GLine line{0, 0, 9, 5};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    GDSetPenDash(drawing, 1);
    GLine dashed{0, 0, 9, 5};
    EXPECT_EQ(GDDrawLine(drawing, &dashed), 1);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Line, WithinAnInvertedClipRectangleIsNotDrawn) {
    Drawing drawing(10, 10);
    drawing.surface()->bounds = {6, 0, 3, 9};
    GLine line{0, 0, 9, 5};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    EXPECT_TRUE(shows(*drawing.surface(), std::vector(10, std::string(10, '.'))));
}

TEST_F(Line, ThroughAnEmptyEntryDrawsNothing) {
    Drawing drawing(10, 10);
    GDSetDrawingMode(drawing, 4);
    for (const int32_t dash : {0, 1}) {
        GDSetPenDash(drawing, dash);
        GLine line{0, 0, 9, 5};
        EXPECT_EQ(GDDrawLine(drawing, &line), 1);
        drawLine(drawing, 0, 3, 9, 3);
    }
    EXPECT_TRUE(shows(*drawing.surface(), std::vector(10, std::string(10, '.'))));
}

TEST_F(Line, ExclusiveOrTwiceRestores) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(30, 20, bits);
        GDSetDrawingMode(drawing, G_MODE_XOR);
        GDSetPenColor(drawing, 0x5A3CC3);
        for (int times = 0; times < 2; ++times) {
            GDSetPenDash(drawing, 0);
            drawLine(drawing, -5, 3, 40, 17);
            drawLine(drawing, 3, -5, 17, 40);
            drawLine(drawing, 0, 7, 29, 7);
            GDSetPenDash(drawing, 2);
            drawing->dashPhase = 0;
            drawLine(drawing, 29, 0, 0, 19);
        }
        EXPECT_TRUE(shows(*drawing.surface(), std::vector(20, std::string(30, '.')))) << bits;
    }
}

TEST_F(Line, ToLikeModel) {
    expectLikeModel({{DrawCall::PenColor, DrawCall::Dash, DrawCall::DashPhase},
                     {DrawCall::LineTo, DrawCall::LineTo, DrawCall::MoveTo, DrawCall::DrawLine}});
}

} // namespace
