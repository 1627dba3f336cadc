#include "image/grf_test.h"

#include "raster/pixel_ops.h"

using namespace quarlo::test;

namespace {

class Grf : public RasterTest {
  protected:
    Grf() { platform.recordOperations(false); }

    static int32_t draw(GDrawHandle* handle, const GGrfImage& image,
                        const std::vector<uint8_t>& bytes, int16_t x, int16_t y, int16_t width = 0,
                        int16_t height = 0) {
        const ExactStream stream(bytes);
        return GDDrawGrf(handle, &image, stream.data(), x, y, width, height);
    }

    static GGrfImage imageOf(int16_t width, int16_t height, int16_t bits = 8) {
        return {G_GRF_DIRECT, width, height, bits, 0, nullptr, nullptr};
    }
};

constexpr uint8_t kSkip = 0x00;
constexpr uint8_t kLiteral = 0x40;
constexpr uint8_t kNothing = 0x80;
constexpr uint8_t kFill = 0xC0;

TEST_F(Grf, OfNothingButItsEndDrawsNothing) {
    Drawing drawing(4, 2);
    EXPECT_EQ(draw(drawing, imageOf(4, 2), {0}, 0, 0), 1);
    EXPECT_TRUE(shows(*drawing.surface(), {"....", "...."}));
}

TEST_F(Grf, WithoutAStreamGives0) {
    Drawing drawing(4, 2);
    GGrfImage image = imageOf(4, 2);
    GGrfImage* pointer = &image;
    EXPECT_EQ(GDDrawGrf(drawing, &image, nullptr, 0, 0, 0, 0), 0);
    EXPECT_EQ(GDDrawGrfZoom(drawing, &image, nullptr, 0, 0, 4, 4), 0);
    EXPECT_EQ(GDDrawGrfZoom(drawing, &image, nullptr, 0, 0, 0, 0), 0);
    EXPECT_EQ(GDDrawImage(drawing, &pointer, 0, 0, 0, 0), 0);
    pointer = nullptr;
    EXPECT_EQ(GDDrawImage(drawing, &pointer, 0, 0, 0, 0), 0);
    EXPECT_EQ(GDDrawImage(drawing, nullptr, 0, 0, 0, 0), 0);
}

TEST_F(Grf, RunsGoOnInTheNextRow) {
    Drawing drawing(5, 3);
    // A fill run up to the right edge, one over it, a skip with any byte, nothing, a literal run.
    draw(drawing, imageOf(3, 3),
         {kFill | 3, 1, kFill | 2, 2, kSkip | 2, 0x55, kNothing | 9, kLiteral | 2, 3, 4, 0}, 1, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {".aaa.", ".bb..", "..cd."},
                      {{'.', 0}, {'a', 1}, {'b', 2}, {'c', 3}, {'d', 4}}));
}

TEST_F(Grf, OfRunsWithoutPixelsReadsOn) {
    Drawing drawing(4, 1);
    draw(drawing, imageOf(4, 1), {kLiteral, kFill, 9, kLiteral | 2, 1, 2, 0}, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"ab.."}, {{'.', 0}, {'a', 1}, {'b', 2}}));
}

TEST_F(Grf, EndsBehindItsLastRow) {
    Drawing drawing(4, 3);
    // The stream has no end, but more pixels than the image: it must not be read further.
    draw(drawing, imageOf(2, 2), {kFill | 3, 1, kLiteral | 63, 2}, 0, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"##..", "##..", "...."}));
}

TEST_F(Grf, IsCroppedAndNeverStretched) {
    Drawing drawing(20, 20);
    const std::vector<uint8_t> stream = {kFill | 63, 1, kFill | 63, 1, kFill | 63, 1, kFill | 63, 1,
                                         kFill | 63, 1, kFill | 63, 1, kFill | 22, 1, 0};
    draw(drawing, imageOf(20, 20), stream, 0, 0, 10, 10);
    EXPECT_EQ(pixelAt(*drawing.surface(), 9, 9), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 10, 9), 0U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 9, 10), 0U);
    Drawing larger(30, 30);
    draw(larger, imageOf(20, 20), stream, 2, 3, 25, 25);
    EXPECT_EQ(pixelAt(*larger.surface(), 21, 22), 1U);
    EXPECT_EQ(pixelAt(*larger.surface(), 22, 22), 0U);
    EXPECT_EQ(pixelAt(*larger.surface(), 21, 23), 0U);
}

TEST_F(Grf, IsMappedByItsCorner) {
    Drawing drawing(20, 20);
    const GPoint origin{100, 200};
    GDSetLocalOrigin(drawing, &origin);
    draw(drawing, imageOf(1, 1), {kFill | 1, 7, 0}, 103, 204);
    EXPECT_EQ(pixelAt(*drawing.surface(), 3, 4), 7U);
}

TEST_F(Grf, WithoutAPaletteIsDirectWhateverItsType) {
    Drawing drawing(2, 1);
    GGrfImage image = imageOf(2, 1);
    image.type = G_GRF_PALETTE;
    draw(drawing, image, {kFill | 2, 9, 0}, 0, 0);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 9U);
}

TEST_F(Grf, FillsWholeImagesBySpansAndClippedOnesByPixels) {
    platform.recordOperations(true);
    DeviceDrawing drawing(10, 4);
    platform.forget();
    draw(drawing, imageOf(4, 2), {kFill | 6, 1, kLiteral | 2, 2, 3, 0}, 0, 0);
    EXPECT_EQ(platform.count(6), 2U);
    EXPECT_EQ(platform.count(5), 2U);
    platform.forget();
    draw(drawing, imageOf(4, 2), {kFill | 6, 1, 0}, 0, 0, 7, 3); // a box that leaves room
    EXPECT_EQ(platform.count(6), 2U);
    EXPECT_EQ(platform.count(5), 0U);
    platform.forget();
    draw(drawing, imageOf(4, 2), {kFill | 6, 1, 0}, 8, 0);
    EXPECT_EQ(platform.count(6), 0U);
    EXPECT_EQ(platform.count(5), 4U);
}

GrfCase randomGrf(Random& random) {
    GrfCase call;
    call.type = static_cast<uint16_t>(random.between(0, 3));
    call.palette = random.oneIn(2);
    call.bits = static_cast<int16_t>(random.between(1, 32));
    call.width = static_cast<int16_t>(random.between(1, 30));
    call.height = static_cast<int16_t>(random.between(1, 12));
    call.stream = randomStream(random, call.width * call.height, (call.bits + 7) / 8);
    call.x = static_cast<int16_t>(random.between(-12, 40));
    call.y = static_cast<int16_t>(random.between(-8, 30));
    call.boxWidth = static_cast<int16_t>(random.oneIn(2) ? 0 : random.between(-1, 40));
    call.boxHeight = static_cast<int16_t>(random.between(-1, 20));
    call.mode = random.between(0, 3);
    return call;
}

TEST_F(Grf, IsDrawnAsByAPlainModel) {
    for (const int16_t depth : kDepths) {
        for (const GrfThrough through :
             {GrfThrough::Kernels, GrfThrough::CopiedOps, GrfThrough::Device}) {
            forRandomCalls(500, 1, randomGrf, [&](const auto& calls) -> std::string {
                return calls.empty()
                           ? ""
                           : grfDifference(calls[0], through, depth, GDDrawGrf, drawGrfByModel);
            });
        }
    }
}

int32_t drawImage(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream, int16_t x,
                  int16_t y, int16_t width, int16_t height) {
    GGrfImage withStream = *image;
    withStream.data = stream;
    GGrfImage* pointer = &withStream;
    return GDDrawImage(handle, &pointer, x, y, width, height);
}

TEST_F(Grf, PaintsEachPixelOnce) {
    platform.countPaint();
    for (const auto draw : {GDDrawGrf, drawImage}) {
        forRandomCalls(500, 1, randomGrf, [&](auto calls) -> std::string {
            if (calls.empty()) {
                return "";
            }
            calls[0].mode = kCountingMode;
            return grfDifference(calls[0], GrfThrough::Device, 8, draw, drawGrfByModel);
        });
    }
}

TEST_F(Grf, LeavesTheSameCellsByKernelsAndBySlots) {
    forRandomCalls(300, 1, randomGrf, [&](const auto& calls) -> std::string {
        if (calls.empty()) {
            return "";
        }
        uint32_t colors[2];
        ptrdiff_t cursors[2];
        for (const bool copied : {false, true}) {
            quarlo::pixelCells[1] = {};
            Drawing drawing(kGrfWidth, kGrfHeight, 16);
            CopiedOps ops;
            if (copied) {
                ops.attach(drawing);
            }
            const GrfCase& call = calls[0];
            draw(drawing, imageOf(call.width, call.height, call.bits), call.stream, call.x, call.y);
            const quarlo::PixelCell& cell = quarlo::pixelCells[1];
            colors[copied] = cell.color;
            cursors[copied] =
                cell.cursor == nullptr ? -1 : cell.cursor - drawing.surface().memory().data();
        }
        return colors[0] == colors[1] && cursors[0] == cursors[1] ? "" : "cells differ";
    });
}

TEST_F(Grf, OfNoSizeOrUnknownDepthDrawsNothing) {
    Drawing drawing(4, 4);
    const auto& colors = grfPalette();
    const GGrfPalette palette{0, colors.data()};
    const GGrfPalette empty{0, nullptr};
    const GGrfImage images[] = {
        {1, 0, 4, 8, 0, nullptr, nullptr},   {1, -5, 4, 8, 0, nullptr, nullptr},
        {1, 4, -1, 8, 0, nullptr, nullptr},  {1, 4, 4, 0, 0, nullptr, nullptr},
        {1, 4, 4, 33, 0, nullptr, nullptr},  {1, 4, 4, -8, 0, nullptr, nullptr},
        {2, 4, 4, 17, 0, nullptr, &palette}, {2, 4, 4, 8, 0, nullptr, &empty},
    };
    for (const GGrfImage& image : images) {
        EXPECT_EQ(draw(drawing, image, {kFill | 9, 1, 1, 1, 1, 1, 0}, 0, 0), 1);
        const ExactStream stream({kFill | 9, 1, 0});
        EXPECT_EQ(GDDrawGrfZoom(drawing, &image, stream.data(), 0, 0, 0, 0), 1);
    }
    EXPECT_TRUE(shows(*drawing.surface(), {"....", "....", "....", "...."}));
}

} // namespace
