#include "jpeg/picture.h"

#include "file/error.h"
#include "support/guarded_surface.h"
#include "support/started_platform.h"

#include <quarlo/file.h>

#include <gtest/gtest.h>
#include <turbojpeg.h>

#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace gpi::test;
using quarlo::test::GuardedSurface;
using quarlo::test::kDepths;

constexpr int kWidth = 40;
constexpr int kHeight = 24;

/// A JPEG stream of an even colour on the left half, another on the right.
std::string stream(std::vector<uint8_t> left, std::vector<uint8_t> right, int format,
                   int sampling) {
    std::vector<uint8_t> pixels;
    for (int i = 0; i < kWidth * kHeight; ++i) {
        const auto& color = i % kWidth < kWidth / 2 ? left : right;
        pixels.insert(pixels.end(), color.begin(), color.end());
    }
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const tjhandle turbo = tjInitCompress();
    EXPECT_EQ(tjCompress2(turbo, pixels.data(), kWidth, 0, kHeight, format, &bytes, &size, sampling,
                          100, 0),
              0);
    std::string result(reinterpret_cast<char*>(bytes), size);
    tjFree(bytes);
    tjDestroy(turbo);
    return result;
}

std::string colorStream() {
    return stream({248, 0, 0}, {0, 0, 248}, TJPF_RGB, TJSAMP_444);
}

const auto getInfo = service<GPIGetJpegInfo>(GPI_SERVICE_GET_JPEG_INFO);
const auto load = service<GPILoadJpeg>(GPI_SERVICE_LOAD_JPEG);

class Jpeg : public testing::Test {
  protected:
    Jpeg() { folder.write("a.jpg", colorStream()); }

    TemporaryFolder folder;
    StartedPlatform platform{{"QUARLO_FILES", folder.path()}};
};

/// Whether two colours differ by no more than compression may change them.
bool near(uint32_t a, uint32_t b, uint32_t mask) {
    // The channels' top three bits, wherever they are: enough to tell a colour by.
    const uint32_t top = mask & ~(mask >> 3);
    const auto low = static_cast<int64_t>(a & mask);
    const auto other = static_cast<int64_t>(b & mask);
    return std::llabs(low - other) <= static_cast<int64_t>(mask - top);
}

TEST_F(Jpeg, TellsWhatItHolds) {
    GJpegInfo info{};
    for (const int32_t scale : {1, 2, 4, 8}) {
        EXPECT_EQ(getInfo(u"a.jpg", scale, &info), 1);
        EXPECT_EQ(info.width, kWidth / scale);
        EXPECT_EQ(info.height, kHeight / scale);
        EXPECT_EQ(info.components, 3);
    }
    folder.write("grey.jpg", stream({200}, {10}, TJPF_GRAY, TJSAMP_GRAY));
    EXPECT_EQ(getInfo(u"grey.jpg", 1, &info), 1);
    EXPECT_EQ(info.components, 1);
    folder.write("print.jpg", stream({255, 0, 0, 255}, {0, 0, 255, 255}, TJPF_CMYK, TJSAMP_444));
    EXPECT_EQ(getInfo(u"print.jpg", 1, &info), 1);
    EXPECT_EQ(info.components, 4);
}

TEST_F(Jpeg, IsLoadedIntoEveryFormat) {
    for (const int16_t depth : kDepths) {
        GuardedSurface surface(kWidth, kHeight, depth);
        const GVram& record = *surface.get();
        ASSERT_EQ(load(u"a.jpg", 1, surface.get()), 1);
        const uint32_t masks[] = {record.redMask, record.greenMask, record.blueMask};
        const uint32_t left = StartedPlatform::pixel(record, 5, 5);
        const uint32_t right = StartedPlatform::pixel(record, kWidth - 5, kHeight - 5);
        for (const uint32_t mask : masks) {
            EXPECT_TRUE(near(left, record.redMask, mask)) << depth << ' ' << left;
            EXPECT_TRUE(near(right, record.blueMask, mask)) << depth << ' ' << right;
        }
    }
}

TEST_F(Jpeg, TakesThePalettesNearestColors) {
    GuardedSurface surface(kWidth, kHeight, {0x00FF00, 0x202020, 0x0000E0, 0xE01010});
    ASSERT_EQ(load(u"a.jpg", 1, surface.get()), 1);
    for (int y = 0; y < kHeight; ++y) {
        EXPECT_EQ(StartedPlatform::pixel(*surface.get(), 0, y), 3U);
        EXPECT_EQ(StartedPlatform::pixel(*surface.get(), kWidth - 1, y), 2U);
    }
}

TEST_F(Jpeg, LoadsGreyAndPrintColors) {
    GuardedSurface surface(kWidth, kHeight, 24);
    folder.write("grey.jpg", stream({200}, {10}, TJPF_GRAY, TJSAMP_GRAY));
    EXPECT_EQ(load(u"grey.jpg", 1, surface.get()), 1);
    const uint8_t* pixel = surface.get()->pixels;
    for (int channel = 0; channel < 3; ++channel) {
        EXPECT_NEAR(pixel[channel], 200, 3);
    }
    folder.write("print.jpg", stream({255, 0, 128, 128}, {0, 0, 0, 0}, TJPF_CMYK, TJSAMP_444));
    EXPECT_EQ(load(u"print.jpg", 1, surface.get()), 1);
    EXPECT_NEAR(pixel[0], 128, 4);
    EXPECT_NEAR(pixel[1], 0, 4);
    EXPECT_NEAR(pixel[2], 64, 4);
}

TEST_F(Jpeg, LeavesOutWhatDoesNotFit) {
    for (const int16_t depth : kDepths) {
        GuardedSurface small(kWidth / 2, kHeight / 2, depth);
        EXPECT_EQ(load(u"a.jpg", 1, small.get()), 1);
        EXPECT_TRUE(small.memory().intact());
        GuardedSurface clipped(kWidth, kHeight, depth);
        GRect drawable{3, 4, 10, 11};
        clipped.get()->drawable = &drawable;
        EXPECT_EQ(load(u"a.jpg", 1, clipped.get()), 1);
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                const bool inside = x >= 3 && x <= 10 && y >= 4 && y <= 11;
                ASSERT_EQ(StartedPlatform::pixel(*clipped.get(), x, y) != 0, inside);
            }
        }
        drawable = {-5, -5, -1, -1};
        EXPECT_EQ(load(u"a.jpg", 1, clipped.get()), 1);
    }
}

TEST_F(Jpeg, IsMadeSmaller) {
    GuardedSurface surface(kWidth, kHeight, 16);
    EXPECT_EQ(load(u"a.jpg", 8, surface.get()), 1);
    EXPECT_NE(StartedPlatform::pixel(*surface.get(), kWidth / 8 - 1, kHeight / 8 - 1), 0U);
    EXPECT_EQ(StartedPlatform::pixel(*surface.get(), kWidth / 8, 0), 0U);
    EXPECT_EQ(StartedPlatform::pixel(*surface.get(), 0, kHeight / 8), 0U);
}

TEST_F(Jpeg, RefusesBadArguments) {
    GJpegInfo info{};
    GuardedSurface surface(4, 4, 16);
    for (const int32_t scale : {0, 3, 16, -1}) {
        EXPECT_EQ(getInfo(u"a.jpg", scale, &info), G_IO_ARGUMENT);
        EXPECT_EQ(load(u"a.jpg", scale, surface.get()), G_IO_ARGUMENT);
    }
    EXPECT_EQ(getInfo(u"a.jpg", 1, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(getInfo(nullptr, 1, &info), G_IO_ARGUMENT);
    EXPECT_EQ(load(u"a.jpg", 1, nullptr), G_IO_ARGUMENT);
    EXPECT_EQ(load(u"none", 1, surface.get()), G_IO_NOT_FOUND);
    EXPECT_EQ(load(u"../a.jpg", 1, surface.get()), G_IO_DENIED);
    surface.get()->bitsPerPixel = 12;
    EXPECT_EQ(load(u"a.jpg", 1, surface.get()), G_IO_ARGUMENT);
}

TEST_F(Jpeg, RefusesDamagedFiles) {
    GuardedSurface surface(kWidth, kHeight, 16);
    const std::string good = colorStream();
    folder.write("text.jpg", "not a picture");
    folder.write("empty.jpg", "");
    folder.write("header.jpg", good.substr(0, 30));
    folder.write("tables.jpg", std::string("\xFF\xD8\xFF\xD9", 4));
    folder.write("short.jpg", good.substr(0, good.size() - 40));
    GJpegInfo info{};
    EXPECT_EQ(getInfo(u"text.jpg", 1, &info), G_IO_UNSUPPORTED);
    EXPECT_EQ(getInfo(u"empty.jpg", 1, &info), G_IO_UNSUPPORTED);
    EXPECT_EQ(getInfo(u"tables.jpg", 1, &info), G_IO_DAMAGED);
    EXPECT_EQ(load(u"tables.jpg", 1, surface.get()), G_IO_DAMAGED);
    EXPECT_EQ(load(u"header.jpg", 1, surface.get()), G_IO_DAMAGED);
    EXPECT_EQ(StartedPlatform::pixel(*surface.get(), 0, 0), 0U);
    EXPECT_EQ(load(u"short.jpg", 1, surface.get()), G_IO_DAMAGED);
    EXPECT_NE(StartedPlatform::pixel(*surface.get(), 0, 0), 0U);
}

TEST_F(Jpeg, RefusesPicturesTooLargeToDecode) {
    std::string large = colorStream();
    const size_t frame = large.find("\xFF\xC0");
    ASSERT_NE(frame, large.npos);
    large.replace(frame + 5, 4, "\xFF\xDC\xFF\xDC");
    folder.write("large.jpg", large);
    GuardedSurface surface(4, 4, 16);
    EXPECT_EQ(load(u"large.jpg", 1, surface.get()), G_IO_TOO_LARGE);
}

TEST(JpegStream, OfAnyBytesEndsCalmly) {
    const std::string good = colorStream();
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        std::string bytes = good;
        for (int change = 0; change < 4; ++change) {
            bytes[2 + random() % (bytes.size() - 2)] = static_cast<char>(random());
        }
        bytes.resize(2 + random() % bytes.size());
        const std::vector<uint8_t> exact(bytes.begin(), bytes.end());
        try {
            const gpi::Picture picture = gpi::decodeJpeg(exact, 1);
            EXPECT_EQ(picture.pixels.size(),
                      static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height) * 3);
        } catch (const gpi::IoError& error) {
            EXPECT_LT(error.number(), 0);
        }
    }
}

} // namespace
