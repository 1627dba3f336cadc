// The code of the pages of docs/howto does what they say.
#include "image/grf_file_bytes.h"
#include "support/environment.h"
#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gpi/host.h>
#include <gpi/keys.h>
#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <thread>
#include <vector>

extern "C" {
int32_t fillRect(GDrawHandle* handle, GVram* surface, const GRect* rect, uint32_t pixel,
                 int32_t mode);
GFontRecord* loadIdeographs(GDrawHandle* handle);
uint32_t glyphBytes(GFontRecord* font);
int showImage(GDrawHandle* handle, const uint8_t* bytes, size_t size, int16_t x, int16_t y);
void invertFrame(GDrawHandle* handle, const GRect* rect);
void moveBand(GDrawHandle* handle, GRect* band, const GPoint* anchor, const GPoint* pointer);
uint32_t pixelOf(const GVram* surface, uint32_t color);
void show565(GDrawHandle* handle, const uint16_t* values, int16_t width, int16_t height);
int tellMeasured(uint32_t value);
int waitForMeasured(uint32_t* value);
int pressKey(int32_t key);
int keepPicture(GDrawHandle* handle, const char* path);

int deviceFill(int x, int y, int width, int height, uint32_t pixel);
}

namespace {

using gpi::test::PngPicture;
using gpi::test::StartedPlatform;
using gpi::test::TemporaryFolder;
using Pixels = std::vector<uint32_t>;

constexpr int kWidth = 24;
constexpr int kHeight = 16;

/// What the engine was asked for.
struct Filled {
    int x, y, width, height;
    uint32_t pixel;
    bool operator==(const Filled&) const = default;
};
std::vector<Filled> filled;

/// A small display with a picture that has no two pixels alike.
class Howto : public testing::TestWithParam<const char*> {
  protected:
    explicit Howto(const char* format)
        : platform_({{"QUARLO_WIDTH", std::to_string(kWidth)},
                     {"QUARLO_HEIGHT", std::to_string(kHeight)},
                     {"QUARLO_FORMAT", format}}) {
        GetGPIFunction();
        handle = GDOpenDrawHandle(0, 0);
        surface = GDGetVram(handle);
        GDSetColorMode(handle, 1, surface->redMask, surface->greenMask, surface->blueMask);
        for (int16_t y = 0; y < kHeight; ++y) {
            for (int16_t x = 0; x < kWidth; ++x) {
                dot(x, y, static_cast<uint32_t>(x * 0x0A0301 + y * 0x070B0D));
            }
        }
    }
    Howto() : Howto("24") {}
    ~Howto() override { GDCloseDrawHandle(handle); }

    void dot(int16_t x, int16_t y, uint32_t color) const {
        const GRect place{x, y, x, y};
        GDSetPenColor(handle, G_NO_COLOR);
        GDSetFillAttribute(handle, G_FILL_FORE, color, color);
        GDDrawRect(handle, &place);
    }

    Pixels picture() const {
        Pixels pixels;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                pixels.push_back(StartedPlatform::pixel(*surface, x, y));
            }
        }
        return pixels;
    }

  private:
    StartedPlatform platform_;

  protected:
    GDrawHandle* handle;
    GVram* surface;
};

/// A picture with the outline of a rectangle inverted.
Pixels withFrame(Pixels pixels, const GRect& rect) {
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const bool inside =
                x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
            const bool edge =
                x == rect.left || x == rect.right || y == rect.top || y == rect.bottom;
            if (inside && edge) {
                pixels[static_cast<size_t>(y * kWidth + x)] ^= 0xFFFFFF;
            }
        }
    }
    return pixels;
}

TEST_F(Howto, InvertsAFrameOnceAndBack) {
    const Pixels before = picture();
    EXPECT_EQ(std::set<uint32_t>(before.begin(), before.end()).size(), before.size());
    constexpr GRect kFrames[] = {{3, 2, 17, 11}, {0, 0, kWidth - 1, kHeight - 1},
                                 {5, 5, 7, 7},   {4, 4, 5, 9},
                                 {4, 4, 9, 5},   {6, 3, 6, 12},
                                 {2, 8, 20, 8},  {9, 9, 9, 9}};
    for (const GRect& frame : kFrames) {
        SCOPED_TRACE(testing::Message() << frame.left << ' ' << frame.top << ' ' << frame.right
                                        << ' ' << frame.bottom);
        invertFrame(handle, &frame);
        EXPECT_EQ(picture(), withFrame(before, frame));
        invertFrame(handle, &frame);
        EXPECT_EQ(picture(), before);
    }
}

TEST_F(Howto, MovesABandWithThePointer) {
    const Pixels before = picture();
    GRect band{10, 10, 10, 10};
    const GPoint anchor{10, 10};
    invertFrame(handle, &band);
    for (const GPoint pointer : {GPoint{20, 14}, GPoint{2, 3}, GPoint{10, 1}}) {
        moveBand(handle, &band, &anchor, &pointer);
        GRect expected;
        GRSetRect(&expected, anchor.x, anchor.y, pointer.x, pointer.y);
        EXPECT_EQ(picture(), withFrame(before, expected));
    }
    invertFrame(handle, &band);
    EXPECT_EQ(picture(), before);
}

TEST_F(Howto, LeavesSolidFillsToTheEngine) {
    const Pixels before = picture();
    const GRect rect{3, 2, 8, 4};
    filled.clear();
    EXPECT_EQ(fillRect(handle, surface, &rect, 0x123456, G_MODE_COPY), 1);
    EXPECT_EQ(filled, (std::vector<Filled>{{3, 2, 6, 3, 0x123456}}));
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(fillRect(handle, surface, &rect, 0xFFFFFF, G_MODE_XOR), 1);
    EXPECT_EQ(filled.size(), 1U);
    Pixels expected = before;
    for (int y = rect.top; y <= rect.bottom; ++y) {
        for (int x = rect.left; x <= rect.right; ++x) {
            expected[static_cast<size_t>(y * kWidth + x)] ^= 0xFFFFFF;
        }
    }
    EXPECT_EQ(picture(), expected);
}

TEST_F(Howto, TellsWhatIdeographsCost) {
    GFontRecord* const font = loadIdeographs(handle);
    ASSERT_NE(font, nullptr);
    GFontInformation information;
    ASSERT_EQ(GFGetFontInformation(font, &information), 1);
    EXPECT_EQ(information.bitsPerPixel, 1);
    const uint32_t few = glyphBytes(font);
    const Pixels before = picture();
    GDMoveTo(handle, 0, 0);
    GDSetPenColor(handle, 0xFFFFFF);
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
    GDDrawString(handle, u"旋");
    EXPECT_NE(picture(), before);
    EXPECT_GE(glyphBytes(font), few + 16 * 16 / 8) << "another glyph of 16 x 16 bits";
    GFReleaseFont(font);
}

TEST_F(Howto, TellsFromAnotherThread) {
    GEInitEvent();
    std::thread worker([] { EXPECT_EQ(tellMeasured(42), 1); });
    uint32_t value = 0;
    EXPECT_EQ(waitForMeasured(&value), 1);
    EXPECT_EQ(value, 42U);
    worker.join();
    GEventMsg quit;
    GESetEvent(*GECreateEventMessage(&quit, G_EVENT_QUIT, 1, 0, 0), 0);
    EXPECT_EQ(waitForMeasured(&value), 0);
    GEQuitEvent();
}

TEST_F(Howto, PressesKeysAndKeepsPicturesWithoutAWindow) {
    ASSERT_EQ(pressKey(GPI_KEY_ENTER), 1);
    for (const uint32_t number : {G_MESSAGE_KEY_DOWN, G_MESSAGE_KEY_UP}) {
        GMessage message{};
        ASSERT_EQ(GPIHostWaitMessage(&message, 0), 1);
        EXPECT_EQ(static_cast<uint32_t>(message.number), number);
        EXPECT_EQ(message.param1, GPI_KEY_ENTER);
    }
    const TemporaryFolder folder;
    const std::string path = folder.path("kept.png");
    ASSERT_NE(keepPicture(handle, path.c_str()), 0);
    const PngPicture kept = gpi::test::readPng(path);
    ASSERT_EQ(kept.width, kWidth);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            ASSERT_EQ(pixelOf(surface, kept.at(x, y)), StartedPlatform::pixel(*surface, x, y));
        }
    }
}

/// On displays of 5-5-5.
class HowtoFiveFiveFive : public Howto {
  protected:
    HowtoFiveFiveFive() : Howto("555") {}
};

TEST_F(HowtoFiveFiveFive, ShowsAnImageThatWasMadeForTheSurface) {
    const auto good = quarlo::test::bytesOf(quarlo::test::wideFields());
    const auto other = quarlo::test::bytesOf(quarlo::test::packedFields()); // of 5-6-5
    const Pixels before = picture();
    EXPECT_EQ(showImage(handle, other.data(), other.size(), 4, 3), 0);
    EXPECT_EQ(showImage(handle, good.data(), good.size() - 1, 4, 3), 0) << "cut off";
    EXPECT_EQ(picture(), before);
    EXPECT_NE(showImage(handle, good.data(), good.size(), 4, 3), 0);
    constexpr uint32_t kImage[2][3] = {{0x1234, 0, 0x7FFF}, {0x7FFF, 0x7FFF, 0x7FFF}};
    Pixels expected = before;
    for (size_t y = 0; y < 2; ++y) {
        for (size_t x = 0; x < 3; ++x) {
            expected[(y + 3) * kWidth + x + 4] = kImage[y][x];
        }
    }
    EXPECT_EQ(picture(), expected);
}

/// On displays of each direct format.
class HowtoFormats : public Howto {
  protected:
    HowtoFormats() : Howto(GetParam()) {}
};

TEST_P(HowtoFormats, KnowThePixelOfAColor) {
    EXPECT_EQ(pixelOf(surface, 0xFF0000), surface->redMask);
    EXPECT_EQ(pixelOf(surface, 0x00FF00), surface->greenMask);
    EXPECT_EQ(pixelOf(surface, 0x0000FF), surface->blueMask);
    EXPECT_EQ(pixelOf(surface, 0), 0U);
    for (const uint32_t color : {0x123456U, 0xABCDEFU, 0x808080U}) {
        dot(1, 1, color);
        EXPECT_EQ(StartedPlatform::pixel(*surface, 1, 1), pixelOf(surface, color)) << color;
    }
}

TEST_P(HowtoFormats, TakePixelsOfFiveSixFive) {
    constexpr std::array<uint16_t, 6> kValues{0xF800, 0x07E0, 0x001F, 0xFFFF, 0x0000, 0x8410};
    const Pixels before = picture();
    show565(handle, kValues.data(), 3, 2);
    Pixels expected = before;
    constexpr uint32_t kFive = 0xF8F8F8; // bits of a channel that every format has
    for (size_t i = 0; i < kValues.size(); ++i) {
        const uint32_t value = kValues[i];
        const uint32_t color =
            (value >> 11 & 0x1F) << 19 | (value >> 6 & 0x1F) << 11 | (value & 0x1F) << 3;
        const size_t at = i / 3 * kWidth + i % 3;
        const uint32_t mask = pixelOf(surface, kFive);
        EXPECT_EQ(picture()[at] & mask, pixelOf(surface, color)) << i;
        expected[at] = picture()[at];
    }
    EXPECT_EQ(picture(), expected) << "and nothing beside them";
}

INSTANTIATE_TEST_SUITE_P(All, HowtoFormats, testing::Values("555", "565", "24"));

} // namespace

int deviceFill(int x, int y, int width, int height, uint32_t pixel) {
    filled.push_back({x, y, width, height, pixel});
    return 1;
}
