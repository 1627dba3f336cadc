#include "raster/canvas.h"
#include "raster/random_drawing.h"

#include <algorithm>

using namespace quarlo;
using namespace quarlo::test;

namespace {

using Fill = RasterTest;

/// Rows that look like nothing mirrored or turned.
constexpr uint8_t kRows[8] = {0x80, 0xC0, 0x01, 0xF0, 0x00, 0x22, 0xFF, 0x0D};

void fillSolid(Drawing& drawing, const GRect& rect, uint32_t pixel) {
    fillRect(Canvas(*drawing), rect, pixel, drawing->drawingMode);
}

void fillPattern(Drawing& drawing, const GRect& rect, uint32_t fore, uint32_t back) {
    fillPatternRect(Canvas(*drawing), rect, fore, back, drawing->drawingMode, kRows);
}

TEST_F(Fill, SolidCoversBothEdges) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(6, 4, bits);
        fillSolid(drawing, {1, 1, 4, 2}, 0x67);
        EXPECT_TRUE(shows(*drawing.surface(),
                          {"......", //
                           ".aaaa.", //
                           ".aaaa.", //
                           "......"},
                          {{'.', 0}, {'a', 0x67}}));
    }
}

TEST_F(Fill, SolidOfNoColourDrawsNothing) {
    Drawing drawing(3, 1);
    fillSolid(drawing, {0, 0, 2, 0}, G_NO_COLOR);
    EXPECT_TRUE(shows(*drawing.surface(), {"..."}));
}

TEST_F(Fill, SolidTakesTheWholeWidthOfPaddedRowsAndNoByteMore) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(5, 3, bits, Against::End, 2);
        fillSolid(drawing, {0, 0, 4, 2}, 0xFFFFFE);
        EXPECT_TRUE(shows(*drawing.surface(), {"#####", "#####", "#####"}));
        const GVram& surface = *drawing.surface();
        for (int y = 0; y < 3; ++y) {
            const uint8_t* const padding = surface.pixels + y * surface.bytesPerLine + 5 * bits / 8;
            EXPECT_EQ(padding[0], 0);
            EXPECT_EQ(padding[1], 0);
        }
    }
}

TEST_F(Fill, SolidGoesToTheDevicesRectangleFill) {
    DeviceDrawing drawing(9, 9);
    const Canvas canvas(*drawing);
    const GRect rect{1, 2, 5, 6};
    fillRect(canvas, rect, 0x33, G_MODE_AND);
    GDrawHandle* const handle = drawing;
    ASSERT_EQ(platform.calls.size(), 1U);
    EXPECT_EQ(platform.calls[0],
              call(68, handle, drawing.surface().get(), &rect, 0x33, G_MODE_AND));
}

TEST_F(Fill, SolidFallsBackToSpansFromTopToBottom) {
    platform.remove({68});
    DeviceDrawing drawing(9, 9);
    fillRect(Canvas(*drawing), {1, 2, 5, 4}, 0x33, G_MODE_AND);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(6, handle, surface, 1, 2, 0x33, G_MODE_AND, 5),
                                           call(6, handle, surface, 1, 3, 0x33, G_MODE_AND, 5),
                                           call(6, handle, surface, 1, 4, 0x33, G_MODE_AND, 5)}));
}

TEST_F(Fill, SolidWithoutSpansDrawsNothing) {
    platform.remove({6, 68});
    DeviceDrawing drawing(9, 9);
    fillRect(Canvas(*drawing), {1, 2, 5, 4}, 0x33, G_MODE_COPY);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Fill, PatternHasItsLeftmostPixelInBitSeven) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(10, 8, bits);
        fillPattern(drawing, {0, 0, 9, 7}, 0x7F, 0x21);
        EXPECT_TRUE(shows(*drawing.surface(),
                          {"#.......#.", //
                           "##......##", //
                           ".......#..", //
                           "####....##", //
                           "..........", //
                           "..#...#...", //
                           "##########", //
                           "....##.#.."},
                          {{'#', 0x7F}, {'.', 0x21}}));
    }
}

TEST_F(Fill, PatternIsAnchoredToTheSurface) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(13, 11, bits);
        fillPattern(drawing, {3, 5, 11, 9}, 0x7F, 0x21);
        EXPECT_TRUE(shows(*drawing.surface(),
                          {"             ", //
                           "             ", //
                           "             ", //
                           "             ", //
                           "             ", //
                           "   ...#...#. ", //
                           "   ######### ", //
                           "   .##.#.... ", //
                           "   .....#... ", //
                           "   .....##.. ", //
                           "             "},
                          {{' ', 0}, {'#', 0x7F}, {'.', 0x21}}));
    }
}

TEST_F(Fill, PatternsJoinWithoutASeam) {
    for (const int16_t bits : kDepths) {
        Drawing whole(30, 20, bits);
        Drawing pieces(30, 20, bits);
        fillPattern(whole, {0, 0, 29, 19}, 0x7F, 0x21);
        fillPattern(pieces, {0, 0, 12, 6}, 0x7F, 0x21);
        fillPattern(pieces, {13, 0, 29, 6}, 0x7F, 0x21);
        fillPattern(pieces, {0, 7, 4, 19}, 0x7F, 0x21);
        fillPattern(pieces, {5, 7, 29, 19}, 0x7F, 0x21);
        EXPECT_TRUE(samePicture(pictureOf(*pieces.surface()), pictureOf(*whole.surface())));
    }
}

TEST_F(Fill, PatternWritesColoursOfMinusOneLikeAnyOther) {
    for (const int16_t bits : kDepths) {
        const uint32_t all = (uint32_t{1} << bits) - 1;
        Drawing drawing(8, 1, bits);
        fillPattern(drawing, {0, 0, 7, 0}, 5, G_NO_COLOR);
        EXPECT_TRUE(shows(*drawing.surface(), {"5aaaaaaa"}, {{'5', 5}, {'a', all}}));
        fillPattern(drawing, {0, 0, 7, 0}, G_NO_COLOR, 5);
        EXPECT_TRUE(shows(*drawing.surface(), {"a5555555"}, {{'5', 5}, {'a', all}}));
    }
}

TEST_F(Fill, PatternIsCombinedByTheMode) {
    Drawing drawing(8, 1);
    std::fill_n(drawing.surface().memory().data(), 8, uint8_t{0x0F});
    GDSetDrawingMode(drawing, G_MODE_XOR);
    fillPattern(drawing, {0, 0, 7, 0}, 0x3C, 0x0F);
    EXPECT_TRUE(shows(*drawing.surface(), {"#......."}, {{'#', 0x33}, {'.', 0}}));
}

TEST_F(Fill, PatternGoesToTheDevicesPatternFill) {
    DeviceDrawing drawing(9, 9);
    const GRect rect{1, 2, 5, 6};
    fillPatternRect(Canvas(*drawing), rect, 7, 8, G_MODE_OR, kRows);
    GDrawHandle* const handle = drawing;
    EXPECT_EQ(platform.calls, std::vector{call(70, handle, drawing.surface().get(), &rect, 7, 8,
                                               G_MODE_OR, kRows)});
}

TEST_F(Fill, PatternFallsBackToPixelsRowByRow) {
    platform.remove({70});
    DeviceDrawing drawing(9, 9);
    fillPatternRect(Canvas(*drawing), {6, 1, 8, 2}, 7, 8, G_MODE_OR, kRows);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(5, handle, surface, 6, 1, 8, G_MODE_OR),
                                           call(5, handle, surface, 7, 1, 8, G_MODE_OR),
                                           call(5, handle, surface, 8, 1, 7, G_MODE_OR),
                                           call(5, handle, surface, 6, 2, 8, G_MODE_OR),
                                           call(5, handle, surface, 7, 2, 7, G_MODE_OR),
                                           call(5, handle, surface, 8, 2, 8, G_MODE_OR)}));
}

TEST_F(Fill, PatternWithoutPixelsDrawsNothing) {
    platform.remove({5, 70});
    DeviceDrawing drawing(9, 9);
    fillPatternRect(Canvas(*drawing), {1, 2, 5, 4}, 7, 8, G_MODE_COPY, kRows);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Fill, LeavesTheLastPixelToNextPixel) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(8, 3, bits);
        fillSolid(drawing, {1, 0, 3, 1}, 0x11);
        drawing->pixelOps->nextPixel();
        EXPECT_TRUE(shows(*drawing.surface(), {".###....", //
                                               ".####...", //
                                               "........"}));
        fillPattern(drawing, {1, 1, 3, 2}, 0x22, 0x33);
        drawing->pixelOps->nextPixel();
        EXPECT_EQ(pixelAt(*drawing.surface(), 4, 2), 0x33U);
        fillPattern(drawing, {0, 0, 0, 0}, 0x22, 0x33);
        drawing->pixelOps->nextPixel();
        EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 0x22U);
    }
}

TEST_F(Fill, ThroughAnEmptyEntryDrawsNothing) {
    Drawing drawing(8, 1);
    GDSetDrawingMode(drawing, 4);
    fillSolid(drawing, {0, 0, 7, 0}, 1);
    fillPattern(drawing, {0, 0, 7, 0}, 1, 2);
    EXPECT_TRUE(shows(*drawing.surface(), {"........"}));
}

} // namespace
