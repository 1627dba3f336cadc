#include "raster/drawing.h"
#include "raster/ellipse.h"

#include "support/random_calls.h"

#include <cmath>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class WideLine : public RasterTest {
  protected:
    static int32_t painted(GuardedSurface& surface) {
        int32_t count = 0;
        for (int y = 0; y < surface->height; ++y) {
            for (int x = 0; x < surface->width; ++x) {
                count += pixelAt(*surface, x, y) != 0 ? 1 : 0;
            }
        }
        return count;
    }
};

TEST_F(WideLine, AcrossCoversThePenExactly) {
    Drawing drawing(8, 7);
    GDSetPenSize(drawing, 9, 4);
    drawLine(drawing, 2, 3, 5, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {"........", //
                                           "..####..", //
                                           "..####..", //
                                           "..####..", //
                                           "..####..", //
                                           "........", //
                                           "........"}));
}

TEST_F(WideLine, DownCoversThePenExactlyInBothDirections) {
    for (const bool down : {true, false}) {
        Drawing drawing(7, 6);
        GDSetPenSize(drawing, 3, 9);
        drawLine(drawing, 3, down ? 1 : 4, 3, down ? 4 : 1);
        EXPECT_TRUE(shows(*drawing.surface(), {".......", //
                                               "..###..", //
                                               "..###..", //
                                               "..###..", //
                                               "..###..", //
                                               "......."}));
    }
}

TEST_F(WideLine, WithoutLengthDrawsNothing) {
    Drawing drawing(9, 9);
    GDSetPenSize(drawing, 5, 5);
    drawLine(drawing, 4, 4, 4, 4);
    EXPECT_EQ(painted(drawing.surface()), 0);
}

TEST_F(WideLine, IsAsThickAtEveryAngleWithinOnePixel) {
    for (const int16_t pen : std::initializer_list<int16_t>{2, 3, 4, 5, 8, 15}) {
        for (int degrees = 0; degrees < 360; degrees += 7) {
            const double angle = degrees * 3.14159265358979 / 180;
            const auto dx = static_cast<int16_t>(std::lround(80 * std::cos(angle)));
            const auto dy = static_cast<int16_t>(std::lround(80 * std::sin(angle)));
            Drawing drawing(240, 240);
            GDSetPenSize(drawing, pen, pen);
            drawLine(drawing, static_cast<int16_t>(120 - dx), static_cast<int16_t>(120 - dy),
                     static_cast<int16_t>(120 + dx), static_cast<int16_t>(120 + dy));
            const double thickness = painted(drawing.surface()) / std::hypot(2.0 * dx, 2.0 * dy);
            EXPECT_NEAR(thickness, pen, 1.1) << "pen " << pen << " at " << degrees << " degrees";
        }
    }
}

TEST_F(WideLine, PaintsNoPixelTwice) {
    Drawing drawing(100, 100);
    GDSetPenSize(drawing, 7, 7);
    drawLine(drawing, 10, 20, 80, 60);
    const int32_t once = painted(drawing.surface());
    Drawing exclusive(100, 100);
    GDSetPenSize(exclusive, 7, 7);
    GDSetDrawingMode(exclusive, 3);
    drawLine(exclusive, 10, 20, 80, 60);
    EXPECT_EQ(painted(exclusive.surface()), once);
}

TEST_F(WideLine, OutsideTheClipIsInvisible) {
    Drawing drawing(20, 20);
    GDSetPenSize(drawing, 9, 9);
    GLine line{0, -2, 19, -2};
    EXPECT_EQ(GDDrawLine(drawing, &line), 0);
    EXPECT_EQ(painted(drawing.surface()), 0);
}

/// Pixels that a join adds to two lines that meet.
int32_t joinPixels(uint16_t join, bool meet, int32_t (*painted)(GuardedSurface&)) {
    int32_t counts[2];
    for (const uint16_t kind : {uint16_t{0}, join}) {
        Drawing drawing(60, 60);
        GDSetPenSize(drawing, 9, 9);
        GDSetPenJoin(drawing, kind);
        drawLine(drawing, 10, 10, 40, 10);
        drawLine(drawing, 40, static_cast<int16_t>(meet ? 10 : 12), 40, 50);
        counts[kind == 0 ? 0 : 1] = painted(drawing.surface());
    }
    return counts[1] - counts[0];
}

TEST_F(WideLine, IsJoinedWhereItStartsAtTheEndOfTheOneBefore) {
    EXPECT_GT(joinPixels(1, true, painted), 0);
    EXPECT_EQ(joinPixels(1, false, painted), 0);
    EXPECT_EQ(joinPixels(3, true, painted), 0);
}

TEST_F(WideLine, HasNoJoinAtTheOriginBeforeAnyOtherLine) {
    Drawing plain(30, 30);
    GDSetPenSize(plain, 7, 7);
    drawLine(plain, 0, 0, 20, 12);
    Drawing joined(30, 30);
    GDSetPenSize(joined, 7, 7);
    GDSetPenJoin(joined, 1);
    drawLine(joined, 0, 0, 20, 12);
    EXPECT_TRUE(samePicture(pictureOf(*joined.surface()), pictureOf(*plain.surface())));
}

TEST_F(WideLine, ClosesABevelledFrameAtEveryCorner) {
    Drawing drawing(30, 24);
    GDSetPenSize(drawing, 5, 5);
    GDSetPenJoin(drawing, 1);
    drawRect(drawing, 5, 5, 24, 18);
    // Just outside the corner of the edges' ends, where only a join paints.
    EXPECT_NE(pixelAt(*drawing.surface(), 4, 4), 0U);
    EXPECT_NE(pixelAt(*drawing.surface(), 25, 4), 0U);
    EXPECT_NE(pixelAt(*drawing.surface(), 4, 19), 0U);
    EXPECT_NE(pixelAt(*drawing.surface(), 25, 19), 0U);
}

TEST_F(WideLine, IsRoundedOffByAnEllipseOfThePensSize) {
    for (const int16_t pen : {int16_t{5}, int16_t{8}, int16_t{13}}) {
        const auto lines = [pen](GDrawHandle* handle, uint16_t join) {
            GDSetPenSize(handle, pen, pen);
            GDSetPenJoin(handle, join);
            GDMoveTo(handle, 10, 40);
            GDLineTo(handle, 30, 10);
            GDLineTo(handle, 50, 40);
        };
        Drawing rounded(60, 50);
        lines(rounded, G_JOIN_ROUND);
        Drawing expected(60, 50);
        lines(expected, 0);
        const GRect box{static_cast<int16_t>(30 - pen / 2), static_cast<int16_t>(10 - pen / 2),
                        static_cast<int16_t>(30 + (pen - 1) / 2),
                        static_cast<int16_t>(10 + (pen - 1) / 2)};
        // An even pen's radii are half of it, not of the box.
        fillEllipse(Canvas(*expected.operator->()), {box, pen / 2, pen / 2}, Paint::solid(1),
                    G_MODE_COPY);
        EXPECT_TRUE(samePicture(pictureOf(*rounded.surface()), pictureOf(*expected.surface())));
    }
}

TEST_F(WideLine, ClosesARoundedFrameAtEveryCorner) {
    Drawing drawing(30, 24);
    GDSetPenSize(drawing, 7, 7);
    GDSetPenJoin(drawing, G_JOIN_ROUND);
    drawRect(drawing, 8, 6, 22, 18);
    for (const GPoint& corner : {GPoint{6, 4}, GPoint{24, 4}, GPoint{24, 20}, GPoint{6, 20}}) {
        EXPECT_NE(pixelAt(*drawing.surface(), corner.x, corner.y), 0U);
    }
    EXPECT_EQ(pixelAt(*drawing.surface(), 5, 3), 0U);
}

TEST_F(WideLine, OfAnySizeAndPlaceStaysInsideTheClip) {
    Random random(testSeed());
    for (const Against side : {Against::Start, Against::End}) {
        Drawing drawing(40, 30, 24, side);
        setClip(drawing, 3, 4, 33, 25);
        for (int round = 0; round < 2000; ++round) {
            GDSetPenSize(drawing, random.coordinate(1, 60), random.coordinate(1, 60));
            GDSetPenJoin(drawing, random.between(0, 2));
            GDSetPenDash(drawing, random.oneIn(4) ? random.between(0, 9) : 0);
            GLine line{random.coordinate(-50, 90), random.coordinate(-50, 90),
                       random.coordinate(-50, 90), random.coordinate(-50, 90)};
            GDDrawLine(drawing, &line);
        }
        EXPECT_TRUE(drawing.surface().memory().intact());
        for (int x = 0; x < 40; ++x) {
            EXPECT_EQ(pixelAt(*drawing.surface(), x, 3), 0U);
            EXPECT_EQ(pixelAt(*drawing.surface(), x, 26), 0U);
        }
    }
}

} // namespace
