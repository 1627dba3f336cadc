// The display as a picture file, pixel by pixel, in every format.
#include "support/png_reader.h"
#include "support/random_calls.h"
#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

using namespace gpi::test;
using quarlo::test::Random;
using quarlo::test::testSeed;

/// Widens a channel of 5 or 6 bits by arithmetic instead of shifts: full stays full, and every
/// value is the nearest to its share of 255 that repeating the bits can give.
uint32_t widened(uint32_t value, uint32_t bits) {
    return bits == 5 ? value * 8 + value / 4 : value * 4 + value / 16;
}

uint32_t rgb(const std::string& format, uint32_t pixel) {
    if (format == "555") {
        return widened(pixel / 1024 % 32, 5) << 16 | widened(pixel / 32 % 32, 5) << 8 |
               widened(pixel % 32, 5);
    }
    if (format == "565") {
        return widened(pixel / 2048, 5) << 16 | widened(pixel / 32 % 64, 6) << 8 |
               widened(pixel % 32, 5);
    }
    return pixel % 256 << 16 | (pixel & 0xFF00) | pixel / 65536;
}

class PngFile : public testing::TestWithParam<const char*> {
  protected:
    Environment::Values format() const {
        return {{"QUARLO_DISPLAY", "png"},
                {"QUARLO_PNG", folder_.path("display.png")},
                {"QUARLO_FORMAT", GetParam()},
                {"QUARLO_WIDTH", "301"},
                {"QUARLO_HEIGHT", "219"}};
    }

    TemporaryFolder folder_;
};

TEST_P(PngFile, HoldsEveryPixelOfTheDisplay) {
    StartedPlatform platform(format());
    GVram* const surface = platform.surface();
    Random random(testSeed());
    for (int at = 0; at < surface->height * surface->bytesPerLine; ++at) {
        surface->pixels[at] = static_cast<uint8_t>(random.bits());
    }
    std::vector<uint32_t> expected;
    for (int y = 0; y < surface->height; ++y) {
        for (int x = 0; x < surface->width; ++x) {
            expected.push_back(platform.pixel(*surface, x, y));
        }
    }
    ASSERT_EQ(platform.flushAll(), 1);
    EXPECT_FALSE(std::filesystem::exists(folder_.path("display.png")));
    testing::internal::CaptureStderr();
    EXPECT_EQ(platform.stop(), 1U);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "gpi: the display was written to " + folder_.path("display.png") + "\n");
    const PngPicture picture = readPng(folder_.path("display.png"));
    ASSERT_EQ(picture.width, 301);
    ASSERT_EQ(picture.height, 219);
    const bool indexed = std::strcmp(GetParam(), "8") == 0;
    EXPECT_EQ(picture.palette, indexed);
    for (size_t at = 0; at < expected.size(); ++at) {
        ASSERT_EQ(picture.pixels[at], indexed ? expected[at] : rgb(GetParam(), expected[at]))
            << "pixel " << at << ", value " << expected[at] << ", seed " << testSeed();
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, PngFile, testing::Values("8", "555", "565", "24"));

TEST(PngFile, IsReplacedAsAWhole) {
    const TemporaryFolder folder;
    const std::string path = folder.path("shown.png");
    folder.write("shown.png", "something else");
    const StartedPlatform platform;
    EXPECT_EQ(GPIHostWritePng(path.c_str()), 1);
    EXPECT_EQ(GPIHostWritePng(path.c_str()), 1);
    EXPECT_EQ(readPng(path).width, 800);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(PngFile, ThatCannotBeWrittenIsReportedInOneLine) {
    StartedPlatform platform{{"QUARLO_DISPLAY", "png"}, {"QUARLO_PNG", "/nonexistent/display.png"}};
    EXPECT_EQ(platform.started(), 1U);
    testing::internal::CaptureStderr();
    EXPECT_EQ(GPIHostWritePng("/nonexistent/shown.png"), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "gpi: cannot write the picture /nonexistent/shown.png: No such file or directory\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(platform.stop(), 0U);
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(),
        "gpi: cannot write the picture /nonexistent/display.png: No such file or directory\n");
}

TEST(PngFile, ThatDoesNotFitLeavesTheOldOneAsItWas) {
    const TemporaryFolder folder;
    const std::string path = folder.path("shown.png");
    folder.write("shown.png", "the old one");
    // A small file overflows when it is closed, a large one on the way.
    const auto overflow = [&](bool noisy) {
        const StartedPlatform platform;
        GVram* const surface = platform.surface();
        Random random(testSeed());
        for (int at = 0; noisy && at < surface->height * surface->bytesPerLine; ++at) {
            surface->pixels[at] = static_cast<uint8_t>(random.bits());
        }
        platform.flushAll();
        const rlimit tooShort{600, 600};
        setrlimit(RLIMIT_FSIZE, &tooShort);
        std::signal(SIGXFSZ, SIG_IGN);
        std::exit(GPIHostWritePng(path.c_str()));
    };
    const char* const said = "^gpi: cannot write the picture .*shown.png: File too large\n$";
    EXPECT_EXIT(overflow(false), testing::ExitedWithCode(0), said);
    EXPECT_EXIT(overflow(true), testing::ExitedWithCode(0), said);
    std::ifstream file(path);
    std::string text;
    std::getline(file, text);
    EXPECT_EQ(text, "the old one");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(FrameChecksum, IsThatOfTheColours) {
    const StartedPlatform platform{
        {"QUARLO_FORMAT", "24"}, {"QUARLO_WIDTH", "3"}, {"QUARLO_HEIGHT", "1"}};
    EXPECT_EQ(GPIHostFrameChecksum(), 0xE60914AEU) << "nine zeros";
    std::memcpy(platform.surface()->pixels, "123456789", 9); // in memory, too, red is first
    platform.flushAll();
    EXPECT_EQ(GPIHostFrameChecksum(), 0xCBF43926U) << "the check value of CRC-32";
}

TEST(PngFile, NeedsAPlatformAndAName) {
    EXPECT_EQ(GPIHostWritePng("x.png"), 0);
    EXPECT_EQ(GPIHostFrameChecksum(), 0U);
    const StartedPlatform platform;
    EXPECT_EQ(GPIHostWritePng(nullptr), 0);
}

} // namespace
