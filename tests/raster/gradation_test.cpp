#include "raster/random_drawing.h"

#include <algorithm>

using namespace quarlo::test;

namespace {

using Gradation = RasterTest;

/// A handle that fills by a gradation and frames nothing.
void setUp(GDrawHandle* handle, const GGradationInfo& info) {
    GDSetGradationInfo(handle, &info);
    GDSetFillPattern(handle, G_FILL_GRADATION);
    GDSetPenColor(handle, G_NO_COLOR);
}

/// The pixel values of a row, or of a column.
std::vector<uint32_t> rowOf(Drawing& drawing, int y) {
    std::vector<uint32_t> pixels;
    for (int x = 0; x < drawing.surface()->width; ++x) {
        pixels.push_back(pixelAt(*drawing.surface(), x, y));
    }
    return pixels;
}

std::vector<uint32_t> columnOf(Drawing& drawing, int x) {
    std::vector<uint32_t> pixels;
    for (int y = 0; y < drawing.surface()->height; ++y) {
        pixels.push_back(pixelAt(*drawing.surface(), x, y));
    }
    return pixels;
}

using Pixels = std::vector<uint32_t>;

TEST_F(Gradation, RunsDownInBandsOfPackedColour) {
    // 8 lines and one: blue 0, 85, 170 and 255 in bands of two, the last line to the last band.
    Drawing drawing(3, 9, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000000, 0x0000FF, 0, 4});
    drawRect(drawing, 0, 0, 2, 8);
    const Pixels expected = {0, 0, 10, 10, 21, 21, 31, 31, 31};
    EXPECT_EQ(columnOf(drawing, 0), expected);
    EXPECT_EQ(columnOf(drawing, 2), expected);
}

TEST_F(Gradation, RunsAcrossInBandsOfPackedColour) {
    Drawing drawing(9, 3, 16);
    setUp(drawing, {G_GRADATION_ACROSS, 0x000000, 0x0000FF, 0, 4});
    drawRect(drawing, 0, 0, 8, 2);
    const Pixels expected = {0, 0, 10, 10, 21, 21, 31, 31, 31};
    EXPECT_EQ(rowOf(drawing, 0), expected);
    EXPECT_EQ(rowOf(drawing, 2), expected);
}

TEST_F(Gradation, PacksFiveBitsAChannelWhateverTheDepth) {
    // Red 0xFF and green 0x80 above, blue 0x47 below: 0x7E00 and 0x0008.
    for (const int16_t bits : kDepths) {
        const uint32_t all = (uint32_t{1} << bits) - 1;
        Drawing drawing(1, 3, bits);
        setUp(drawing, {G_GRADATION_DOWN, 0xFF8000, 0x000047, 0, 2});
        drawRect(drawing, 0, 0, 0, 2);
        EXPECT_EQ(columnOf(drawing, 0), (Pixels{0x7E00 & all, 0x0008, 0x0008}));
    }
}

TEST_F(Gradation, TruncatesTowardsZeroBetweenItsColours) {
    // Of three bands the middle one: red 255 - 127, green 0 + 127, blue 7 + 0 (1 / 2).
    Drawing drawing(1, 4, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0xFF0007, 0x00FF08, 0, 3});
    drawRect(drawing, 0, 0, 0, 3);
    EXPECT_EQ(columnOf(drawing, 0)[1], (128U & 0xF8) << 7 | (127U & 0xF8) << 2 | 7U >> 3);
}

TEST_F(Gradation, BandsThatDoNotDivideTheExtentAreRoundedDown) {
    // 10 lines over 4 bands begin at 0, 2, 5 and 7.
    Drawing drawing(1, 11, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000000, 0x000018, 0, 4});
    drawRect(drawing, 0, 0, 0, 10);
    EXPECT_EQ(columnOf(drawing, 0), (Pixels{0, 0, 1, 1, 1, 2, 2, 3, 3, 3, 3}));
}

TEST_F(Gradation, DownLeadsWithTheStartColourUnpacked) {
    // A quarter of 10, truncated: 2 lines.
    Drawing drawing(1, 11, 24);
    setUp(drawing, {G_GRADATION_DOWN, 0x123456, 0x000000, 25, 2});
    drawRect(drawing, 0, 0, 0, 10);
    const uint32_t packed = (0x12U & 0xF8) << 7 | (0x34U & 0xF8) << 2 | 0x56U >> 3;
    EXPECT_EQ(columnOf(drawing, 0),
              (Pixels{0x123456, 0x123456, packed, packed, packed, packed, 0, 0, 0, 0, 0}));
}

TEST_F(Gradation, DownLeadsWithAStartColourOfMinusOneLikeAnyOther) {
    Drawing drawing(1, 11, 24);
    setUp(drawing, {G_GRADATION_DOWN, G_NO_COLOR, 0x000000, 20, 2});
    drawRect(drawing, 0, 0, 0, 10);
    EXPECT_EQ(columnOf(drawing, 0)[0], 0xFFFFFFU);
    EXPECT_EQ(columnOf(drawing, 0)[1], 0xFFFFFFU);
    EXPECT_EQ(columnOf(drawing, 0)[2], 0x7FFFU);
}

TEST_F(Gradation, AcrossLeadsWithTheStartColourPacked) {
    Drawing drawing(11, 1, 24);
    setUp(drawing, {G_GRADATION_ACROSS, 0x123456, 0x000000, 25, 2});
    drawRect(drawing, 0, 0, 10, 0);
    const uint32_t packed = (0x12U & 0xF8) << 7 | (0x34U & 0xF8) << 2 | 0x56U >> 3;
    EXPECT_EQ(rowOf(drawing, 0),
              (Pixels{packed, packed, packed, packed, packed, packed, 0, 0, 0, 0, 0}));
}

TEST_F(Gradation, OfMoreBandsThanLinesHasABandALine) {
    Drawing drawing(1, 5, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000000, 0x000018, 0, 200});
    drawRect(drawing, 0, 0, 0, 4);
    EXPECT_EQ(columnOf(drawing, 0), (Pixels{0, 1, 2, 3, 3}));
}

/// The start colour 0x123456 packed, all over.
void expectSolid(const GGradationInfo& info, int16_t width, int16_t height) {
    Drawing drawing(width, height, 16);
    setUp(drawing, info);
    drawRect(drawing, 0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1));
    const uint32_t packed = (0x12U & 0xF8) << 7 | (0x34U & 0xF8) << 2 | 0x56U >> 3;
    for (int x = 0; x < width; ++x) {
        EXPECT_EQ(columnOf(drawing, x), Pixels(static_cast<size_t>(height), packed))
            << "lead " << info.lead << ", steps " << info.steps << ", column " << x;
    }
}

TEST_F(Gradation, OfOneStepOrNoneIsSolid) {
    for (const uint8_t direction : {G_GRADATION_DOWN, G_GRADATION_ACROSS}) {
        for (const uint16_t lead : std::initializer_list<uint16_t>{0, 30}) {
            expectSolid({direction, 0x123456, 0xFFFFFF, lead, 0}, 9, 9);
            expectSolid({direction, 0x123456, 0xFFFFFF, lead, 1}, 9, 9);
        }
    }
}

TEST_F(Gradation, WithNoLineOrOneLeftIsSolid) {
    expectSolid({G_GRADATION_DOWN, 0x123456, 0xFFFFFF, 0, 50}, 4, 1);
    expectSolid({G_GRADATION_DOWN, 0x123456, 0xFFFFFF, 0, 50}, 4, 2);
    expectSolid({G_GRADATION_ACROSS, 0x123456, 0xFFFFFF, 0, 50}, 1, 4);
    expectSolid({G_GRADATION_ACROSS, 0x123456, 0xFFFFFF, 0, 50}, 2, 4);
    expectSolid({G_GRADATION_DOWN, 0x123456, 0xFFFFFF, 100, 50}, 4, 9);
    expectSolid({G_GRADATION_ACROSS, 0x123456, 0xFFFFFF, 90, 50}, 11, 4);
}

TEST_F(Gradation, WithALeadAboveItsExtentIsSolid) {
    for (const uint16_t lead : std::initializer_list<uint16_t>{101, 200, 65535}) {
        expectSolid({G_GRADATION_DOWN, 0x123456, 0xFFFFFF, lead, 50}, 4, 9);
        expectSolid({G_GRADATION_ACROSS, 0x123456, 0xFFFFFF, lead, 50}, 9, 4);
    }
}

TEST_F(Gradation, HasAtMostTwoHundredAndFiftySixBands) {
    const auto drawn = [](uint16_t steps) {
        Drawing drawing(1, 600, 16);
        setUp(drawing, {G_GRADATION_DOWN, 0x000000, 0xFF00FF, 0, steps});
        drawRect(drawing, 0, 0, 0, 599);
        return columnOf(drawing, 0);
    };
    EXPECT_EQ(drawn(257), drawn(256));
    EXPECT_EQ(drawn(65535), drawn(256));
    EXPECT_NE(drawn(255), drawn(256));
    // Band 8 of 256 is the first with a channel of 8; it begins at line 8 x 599 / 256 = 18.
    EXPECT_EQ(drawn(1000)[17], 0U);
    EXPECT_EQ(drawn(1000)[18], 0x0401U);
}

TEST_F(Gradation, ClippedShowsTheSameColoursInTheSamePlaces) {
    for (const uint8_t direction : {G_GRADATION_DOWN, G_GRADATION_ACROSS}) {
        for (const uint16_t lead : std::initializer_list<uint16_t>{0, 35}) {
            const GGradationInfo info{direction, 0x10F080, 0xF01008, lead, 13};
            Drawing whole(40, 30, 16);
            Drawing clipped(40, 30, 16);
            setUp(whole, info);
            setUp(clipped, info);
            drawRect(whole, -6, -9, 45, 33);
            setClip(clipped, 7, 11, 30, 22);
            drawRect(clipped, -6, -9, 45, 33);
            for (int y = 0; y < 30; ++y) {
                for (int x = 0; x < 40; ++x) {
                    const bool inside = x >= 7 && x <= 30 && y >= 11 && y <= 22;
                    EXPECT_EQ(pixelAt(*clipped.surface(), x, y),
                              inside ? pixelAt(*whole.surface(), x, y) : 0U)
                        << x << ", " << y;
                }
            }
        }
    }
}

TEST_F(Gradation, OfAnyOtherDirectionDrawsNothing) {
    for (const uint8_t direction : std::initializer_list<uint8_t>{2, 3, 255}) {
        Drawing drawing(5, 5);
        setUp(drawing, {direction, 0x123456, 0xFFFFFF, 0, 5});
        drawRect(drawing, 0, 0, 4, 4);
        EXPECT_TRUE(shows(*drawing.surface(), std::vector(5, std::string(5, '.'))));
    }
}

TEST_F(Gradation, IsCombinedByTheModeAndTakesNoBackColour) {
    Drawing drawing(1, 5, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000000, 0x000018, 0, 200});
    GDSetFillColor(drawing, G_NO_COLOR, G_NO_COLOR);
    GDSetDrawingMode(drawing, G_MODE_OR);
    for (int y = 0; y < 5; ++y) {
        setPixelAt(*drawing.surface(), 0, y, 0x4002);
    }
    drawRect(drawing, 0, 0, 0, 4);
    EXPECT_EQ(columnOf(drawing, 0), (Pixels{0x4002, 0x4003, 0x4002, 0x4003, 0x4003}));
}

TEST_F(Gradation, DownIsASpanARowOnADevice) {
    DeviceDrawing drawing(9, 9, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000010, 0x000018, 50, 2});
    drawRect(drawing, 1, 2, 5, 6);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(6, handle, surface, 1, 2, 0x10, 0, 5),
                                           call(6, handle, surface, 1, 3, 0x10, 0, 5),
                                           call(6, handle, surface, 1, 4, 2, 0, 5),
                                           call(6, handle, surface, 1, 5, 3, 0, 5),
                                           call(6, handle, surface, 1, 6, 3, 0, 5)}));
}

TEST_F(Gradation, AcrossIsARectangleABandOnADevice) {
    std::vector<std::vector<int>> rects;
    platform.serve<68>([&](GDrawHandle*, GVram*, const GRect* rect, uint32_t pixel, int32_t) {
        rects.push_back({rect->left, rect->top, rect->right, rect->bottom, int(pixel)});
        return 1;
    });
    DeviceDrawing drawing(9, 9, 16);
    setUp(drawing, {G_GRADATION_ACROSS, 0x000010, 0x000018, 50, 2});
    drawRect(drawing, 1, 2, 5, 6);
    EXPECT_EQ(platform.calls.size(), 3U);
    EXPECT_EQ(rects,
              (std::vector<std::vector<int>>{{1, 2, 2, 6, 2}, {3, 2, 3, 6, 2}, {4, 2, 5, 6, 3}}));
}

TEST_F(Gradation, AcrossFallsBackToSpansOnADevice) {
    platform.remove({68});
    DeviceDrawing drawing(9, 9, 16);
    setUp(drawing, {G_GRADATION_ACROSS, 0x000000, 0x000018, 0, 2});
    drawRect(drawing, 1, 2, 5, 3);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(6, handle, surface, 1, 2, 0, 0, 2),
                                           call(6, handle, surface, 1, 3, 0, 0, 2),
                                           call(6, handle, surface, 3, 2, 3, 0, 3),
                                           call(6, handle, surface, 3, 3, 3, 0, 3)}));
}

TEST_F(Gradation, SolidGoesToTheDevicesSecondRectangleOperation) {
    DeviceDrawing drawing(9, 9, 16);
    setUp(drawing, {G_GRADATION_DOWN, 0x000018, 0xFFFFFF, 0, 1});
    drawRect(drawing, 1, 2, 5, 3);
    ASSERT_EQ(platform.calls.size(), 1U);
    EXPECT_EQ(platform.calls[0].service, 68);
    EXPECT_EQ(platform.calls[0].arguments[3], 3);
}

TEST_F(Gradation, AtTheLowestCoordinatesStaysWithinTheSurface) {
    for (const uint8_t direction : {G_GRADATION_DOWN, G_GRADATION_ACROSS}) {
        Drawing drawing(9, 9, 16);
        setUp(drawing, {direction, 0x000018, 0xFFFFFF, 0, 16});
        drawRect(drawing, -32768, -32768, 32767, 32767);
        EXPECT_TRUE(drawing.surface().memory().intact());
        EXPECT_NE(pixelAt(*drawing.surface(), 8, 8), 0U);
    }
}

TEST_F(Gradation, LikeModel) {
    expectLikeModel(
        {{DrawCall::PenColor, DrawCall::FillPattern, DrawCall::Gradation, DrawCall::Gradation},
         {DrawCall::DrawRect}});
}

} // namespace
