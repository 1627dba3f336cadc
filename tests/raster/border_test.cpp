#include "raster/drawing.h"

using namespace quarlo::test;

namespace {

using Border = RasterTest;

constexpr uint32_t kLight = 1;
constexpr uint32_t kDark = 2;
constexpr uint32_t kFrame = 3;
const Letters kLetters = {{'.', 0}, {'l', kLight}, {'d', kDark}, {'f', kFrame}};

GBorderStyle style(uint32_t frame, int32_t width) {
    return {1, kLight, kDark, frame, width};
}

void expectRect(const GRect& rect, int left, int top, int right, int bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}

TEST_F(Border, RaisedIsLightOnTopAndLeft) {
    Drawing drawing(7, 6);
    const GRect rect{0, 0, 6, 5};
    const GBorderStyle border = style(G_NO_COLOR, 2);
    GRect inner;
    GDDrawRectBorder(drawing, &rect, &inner, &border, 0);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"lllllld", //
                       "llllldd", //
                       "ll...dd", //
                       "ll...dd", //
                       "ldddddd", //
                       "ldddddd"},
                      kLetters));
    expectRect(inner, 2, 2, 4, 3);
}

TEST_F(Border, SunkenIsDarkOnTopAndLeft) {
    Drawing drawing(7, 6);
    const GRect rect{0, 0, 6, 5};
    const GBorderStyle border = style(G_NO_COLOR, 1);
    GDDrawRectBorder(drawing, &rect, nullptr, &border, 1);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"ddddddl", //
                       "d.....l", //
                       "d.....l", //
                       "d.....l", //
                       "d.....l", //
                       "lllllll"},
                      kLetters));
}

TEST_F(Border, OfOnePixelWithAFrameIsAllFrame) {
    Drawing drawing(7, 5);
    const GRect rect{0, 0, 6, 4};
    const GBorderStyle border = style(kFrame, 1);
    GRect inner;
    GDDrawRectBorder(drawing, &rect, &inner, &border, 0);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"fffffff", //
                       "f.....f", //
                       "f.....f", //
                       "f.....f", //
                       "fffffff"},
                      kLetters));
    expectRect(inner, 1, 1, 5, 3);
}

TEST_F(Border, WithoutWidthOrFrameReturnsTheRectangleAndDrawsNothing) {
    Drawing drawing(7, 5);
    const GRect rect{0, 0, 6, 4};
    const GBorderStyle border = style(G_NO_COLOR, 0);
    GRect inner;
    GDDrawRectBorder(drawing, &rect, &inner, &border, 0);
    expectRect(inner, 0, 0, 6, 4);
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 0U);
}

TEST_F(Border, NeedsNoHandleToBeComputed) {
    const GRect rect{0, 0, 20, 20};
    const GBorderStyle border = style(kFrame, 3);
    GRect inner;
    GDDrawRectBorder(nullptr, &rect, &inner, &border, 0);
    expectRect(inner, 3, 3, 17, 17);
}

TEST_F(Border, IsSwitchedByTheLowByteAlone) {
    const GRect rect{0, 0, 20, 20};
    GBorderStyle border = style(kFrame, 3);
    border.enabled = 0x100;
    GRect inner;
    GRect outer;
    GDDrawRectBorder(nullptr, &rect, &inner, &border, 0);
    expectRect(inner, 0, 0, 20, 20);
    GDCalcBorderRect(&rect, &inner, &outer, &border);
    expectRect(inner, 0, 0, 20, 20);
    expectRect(outer, 0, 0, 20, 20);
}

TEST_F(Border, IsComputedOnePixelSmallerThanItIsDrawn) {
    const GRect rect{0, 0, 20, 20};
    const GBorderStyle border = style(kFrame, 3);
    GRect inner;
    GRect outer;
    GDCalcBorderRect(&rect, &inner, &outer, &border);
    expectRect(inner, 4, 4, 16, 16);
    expectRect(outer, 0, 0, 20, 20);
    outer = {7, 7, 7, 7};
    GDCalcBorderRect(&rect, nullptr, &outer, &border);
    expectRect(outer, 0, 0, 20, 20);
}

TEST_F(Border, WithoutAFrameIsComputedWithoutItsInside) {
    const GRect rect{0, 0, 20, 20};
    const GBorderStyle border = style(G_NO_COLOR, 3);
    GRect inner{7, 7, 7, 7};
    GDCalcBorderRect(&rect, &inner, nullptr, &border);
    expectRect(inner, 7, 7, 7, 7);
}

TEST_F(Border, KeepsRoomForABlackFrame) {
    const GRect rect{0, 0, 20, 20};
    for (const uint32_t frame : {0U, kFrame}) {
        const GBorderStyle border = style(frame, 3);
        GRect inner{7, 7, 7, 7};
        GDCalcBorderRect(&rect, &inner, nullptr, &border);
        expectRect(inner, 4, 4, 16, 16);
    }
}

TEST_F(Border, WithANegativeFrameColourIsFramedButKeepsNoRoomForIt) {
    Drawing drawing(7, 5);
    const GRect rect{0, 0, 6, 4};
    const GBorderStyle border = style(0x80000003, 0);
    GRect inner;
    GDDrawRectBorder(drawing, &rect, &inner, &border, 0);
    expectRect(inner, 0, 0, 6, 4);
}

TEST_F(Border, DoesNothingForANullRectangle) {
    const GBorderStyle border = style(kFrame, 3);
    GRect inner{7, 7, 7, 7};
    GDDrawRectBorder(nullptr, nullptr, &inner, &border, 0);
    GDCalcBorderRect(nullptr, &inner, &inner, &border);
    expectRect(inner, 7, 7, 7, 7);
}

TEST_F(Border, LeavesItsPenAndFillInTheHandle) {
    Drawing drawing(20, 20);
    GDSetPenSize(drawing, 5, 5);
    GDSetPenDash(drawing, 3);
    const GRect rect{0, 0, 19, 19};
    const GBorderStyle border = style(kFrame, 3);
    GDDrawRectBorder(drawing, &rect, nullptr, &border, 0);
    EXPECT_EQ(drawing->penColor, kFrame);
    EXPECT_EQ(drawing->penWidth, 1);
    EXPECT_EQ(drawing->penDash, 0);
    EXPECT_EQ(drawing->foreColor, kLight);
    EXPECT_EQ(drawing->backColor, kDark);
    EXPECT_EQ(drawing->fillPattern, G_FILL_BACK);
}

TEST_F(Border, WiderThanItsRectangleStaysInsideTheSurface) {
    Drawing drawing(20, 20, 16);
    const GRect rect{5, 5, 10, 10};
    for (const int32_t width : {7, 100, 32767, 40000}) {
        const GBorderStyle border = style(kFrame, width);
        GDDrawRectBorder(drawing, &rect, nullptr, &border, 0);
    }
    EXPECT_TRUE(drawing.surface().memory().intact());
}

TEST_F(Border, FarLeftMarksNoTableEdge) {
    Drawing drawing(6, 5);
    const GRect rect{INT16_MIN, 0, 4, 4};
    const GBorderStyle border = style(G_NO_COLOR, 1);
    GDDrawRectBorder(drawing, &rect, nullptr, &border, 0);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"lllld.", //
                       "....d.", //
                       "....d.", //
                       "....d.", //
                       "ddddd."},
                      kLetters));
}

} // namespace
