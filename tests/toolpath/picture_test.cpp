#include "drawing/picture.h"

#include "drawing/layout.h"
#include "drawn.h"
#include "traced.h"

#include <algorithm>

#include <fstream>
#include <sstream>

namespace toolpath {
namespace {

constexpr char kPlate[] =
    "G0 X0 Y0 Z5\nG1 Z-2\nX90 Y10\nZ-4\nX100\nG3 X100 Y80 J40\nG1 X0\nY0\nG0 Z5\n"
    "G81 X20 Y40 Z-9 R2\nX80\nG80\nM30\n";

std::string readFile(const char* path) {
    std::ifstream file(path, std::ios::binary);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The inks of the path are all there, each in both views, and the desk is clean.
void expectWholePicture(Drawn& drawn) {
    const Style style = prepareStyle(drawn.handle);
    const Layout layout(*drawn.surface);
    for (const Ink ink : {Ink::Rapid, Ink::Point, Ink::XAxis, Ink::YAxis, Ink::CutDeepest}) {
        EXPECT_GT(drawn.count(layout.plan, drawn.pixelOf(style, ink)), 0);
        EXPECT_GT(drawn.count(layout.isometric, drawn.pixelOf(style, ink)), 0);
    }
    const std::set<uint32_t> desk{drawn.pixelOf(style, Ink::Desk)};
    const auto right = static_cast<int16_t>(drawn.surface->width - 1);
    const auto bottom = static_cast<int16_t>(drawn.surface->height - 1);
    const GRect between{static_cast<int16_t>(layout.planFrame.right + 1), 0,
                        static_cast<int16_t>(layout.isometricFrame.left - 1), bottom};
    const GRect below{0, static_cast<int16_t>(layout.planFrame.bottom + 1), right, bottom};
    EXPECT_EQ(drawn.values(between), desk);
    EXPECT_EQ(drawn.values(below), desk);
}

TEST(Picture, IsWholeOnEveryDepth) {
    for (const int16_t bits : quarlo::test::kDepths) {
        Drawn drawn(640, 480, bits);
        drawPicture(drawn.handle, trace(kPlate).path);
        expectWholePicture(drawn);
    }
}

TEST(Picture, IsWholeOnAPaletteDisplay) {
    Drawn drawn(640, 480);
    std::array<uint32_t, 256> palette{};
    drawn.platform.serve<10>([&](GDrawHandle*, int32_t first, int32_t count, const uint32_t* from) {
        std::copy_n(from, count, palette.begin() + first);
        return GWord{1};
    });
    GetGPIFunction();
    drawPicture(drawn.handle, trace(kPlate).path);
    expectWholePicture(drawn);

    // Every pixel of the gradation is an entry that holds a step of it: growing darker downwards.
    const Layout layout(*drawn.surface);
    uint32_t before = 0xFFFFFF;
    for (int y = layout.isometric.top; y <= layout.isometric.bottom; ++y) {
        const uint32_t entry = drawn.at({layout.isometric.left, static_cast<int16_t>(y)});
        ASSERT_LE(palette[entry] & 0xFF, before & 0xFF) << y;
        before = palette[entry];
    }
    EXPECT_EQ(palette[drawn.at({layout.isometric.left, layout.isometric.top})], 0x526885U);
    EXPECT_EQ(before, 0x122845U);
}

TEST(Picture, DrawsTheGradationItselfWhereTheDisplayTakesItsPixels) {
    Drawn drawn(640, 480, 16);
    drawPicture(drawn.handle, trace(kPlate).path);
    EXPECT_EQ(drawn.platform.count(8), 0U);
    const Layout layout(*drawn.surface);
    EXPECT_EQ(drawn.at({layout.isometric.left, layout.isometric.top}), 0x29B0U);
    EXPECT_EQ(drawn.at({layout.isometric.left, layout.isometric.bottom}), 0x08A8U);
}

TEST(Picture, CopiesTheGradationWhereItsPixelsHaveToBeLookedUp) {
    Drawn drawn(640, 480, 24);
    int copies = 0;
    drawn.platform.serve<8>([&](GDrawHandle*, const GVram* source, int16_t x, int16_t y,
                                int16_t width, int16_t height, GVram* destination, int16_t toX,
                                int16_t toY, int32_t mode) {
        const Layout layout(*destination);
        ++copies;
        EXPECT_EQ(source->colorType, G_COLOR_PALETTE);
        EXPECT_EQ(std::tuple(x, y, mode), std::tuple(0, 0, G_MODE_COPY));
        EXPECT_EQ(std::tuple(toX, toY), std::tuple(layout.isometric.left, layout.isometric.top));
        EXPECT_EQ(std::tuple(width, height), std::tuple(source->width, source->height));
        EXPECT_EQ(source->palette[source->pixels[0]], 0x526885U);
        EXPECT_EQ(source->palette[quarlo::test::pixelAt(*source, 0, height - 1)], 0x122845U);
        return 1;
    });
    GetGPIFunction();
    drawPicture(drawn.handle, trace(kPlate).path);
    EXPECT_EQ(copies, 1);
}

TEST(Picture, GoesWithoutTheGradationWhenMemoryIsShort) {
    Drawn drawn(640, 480, 24);
    const ToolPath path = trace(kPlate).path;
    quarlo::test::failEachAllocation(drawn.platform, [&] {
        drawPicture(drawn.handle, path);
        expectWholePicture(drawn);
    });
}

TEST(Picture, SurvivesEveryDisplaySizeAndPath) {
    for (const char* program : {"", "G0 X5", "G81 X5 Y5 Z-1 R1", "G1 X99999999 Y-99999999",
                                "G20 G91 G0 X99999999\nG1 X.001\nG81 X1 Z-1 R1 L9", kPlate}) {
        for (const GSize& size : {GSize{1, 1}, GSize{9, 9}, GSize{16, 20}, GSize{20, 16},
                                  GSize{33, 33}, GSize{300, 40}}) {
            Drawn drawn(size.width, size.height, 16);
            drawPicture(drawn.handle, trace(program).path);
            EXPECT_GT(drawn.platform.count(9), 0U);
        }
    }
}

TEST(Picture, ShowsASmallPathInOnePiece) {
    Drawn drawn(640, 480, 16);
    drawPicture(drawn.handle, trace(kPlate).path);
    EXPECT_EQ(drawn.platform.count(9), 2U); // the ground, then the whole picture
}

/// The large program, and what drawing it took.
class LargePicture : public testing::Test {
  protected:
    static void SetUpTestSuite() { large = new Traced(trace(readFile(TOOLPATH_LARGE_PROGRAM))); }
    static void TearDownTestSuite() { delete large; }

    static Traced* large;
};
Traced* LargePicture::large = nullptr;

TEST_F(LargePicture, IsDrawnWhole) {
    EXPECT_TRUE(large->remarks.list().empty());
    EXPECT_EQ(large->path.moves.back().line, 99998); // M5 and M30 move nothing
    Drawn drawn(800, 600, 16);
    drawPicture(drawn.handle, large->path);
    expectWholePicture(drawn);
}

TEST_F(LargePicture, ShowsItsProgressInSteps) {
    Drawn drawn(800, 600, 16);
    const Style style = prepareStyle(drawn.handle);
    const uint32_t ink = drawn.pixelOf(style, Ink::Progress);
    const Layout layout(*drawn.surface);
    std::vector<int> lengths;
    drawn.platform.serve<9>([&](GDrawHandle*, int16_t, int16_t, int16_t, int16_t) {
        lengths.push_back(drawn.count(layout.bar, ink) / (layout.bar.bottom - layout.bar.top + 1));
        return 1;
    });
    GetGPIFunction();
    drawPicture(drawn.handle, large->path);

    ASSERT_GE(lengths.size(), 10U);
    EXPECT_LE(lengths.size(), 40U);
    EXPECT_EQ(lengths.front(), 0);
    EXPECT_EQ(lengths.back(), 0);
    const int whole = layout.bar.right - layout.bar.left + 1;
    for (size_t i = 1; i + 2 < lengths.size(); ++i) {
        EXPECT_GT(lengths[i], lengths[i - 1]);
        EXPECT_LE(lengths[i] - lengths[i - 1], whole / 10);
    }
}

TEST_F(LargePicture, TakesFewPixelOperationsForEachMove) {
    Drawn drawn(800, 600, 16);
    size_t operations = 0;
    size_t pixels = 0;
    drawn.platform.serve<5>([&](GDrawHandle*, GVram*, int16_t, int16_t, uint32_t, int32_t) {
        ++operations;
        ++pixels;
        return 1;
    });
    drawn.platform.serve<6>(
        [&](GDrawHandle*, GVram*, int16_t, int16_t, uint32_t, int32_t, int16_t count) {
            ++operations;
            pixels += static_cast<size_t>(count);
            return 1;
        });
    GetGPIFunction();
    GDSetDrawingMode(drawn.handle, G_MODE_COPY); // takes the operations anew
    drawPicture(drawn.handle, large->path);

    // A move is about a pixel long here, in each of two views; the gradation takes 270,000 more.
    const size_t moves = large->path.moves.size();
    EXPECT_GT(moves, 100'000U);
    EXPECT_GT(operations, moves);
    EXPECT_LT(operations, 3 * moves);
    EXPECT_LT(pixels, 7 * moves);
}

} // namespace
} // namespace toolpath
