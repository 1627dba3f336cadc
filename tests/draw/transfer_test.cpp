// Block transfers: what is copied, how pixels are converted, what is refused.
#include "draw/draw_test.h"

#include "support/picture.h"

#include <quarlo/rect.h>
#include <quarlo/transfer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <string>
#include <vector>

using namespace quarlo::test;

namespace {

class Transfer : public HandleTest {
  protected:
    Transfer() { platform.forget(); }

    void copy(const GVram* from, int16_t sourceX, int16_t sourceY, int16_t width, int16_t height,
              GVram* to, int16_t x, int16_t y, int32_t mode = G_MODE_COPY) {
        GDBitBlt(handle.get(), from, sourceX, sourceY, width, height, to, x, y, mode);
    }

    /// The bytes that a pixel of one surface becomes on another.
    std::vector<uint8_t> converted(GuardedSurface& from, GuardedSurface& to, uint32_t pixel) {
        setPixelAt(*from, 0, 0, pixel);
        copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0);
        return {to->pixels, to->pixels + to->bitsPerPixel / 8};
    }
};

using Bytes = std::vector<uint8_t>;

/// Letters 1 to 9 in a surface, by pixel value.
const Letters kDigits = {{'.', 0}, {'1', 1}, {'2', 2}, {'3', 3}, {'4', 4},
                         {'5', 5}, {'6', 6}, {'7', 7}, {'8', 8}, {'9', 9}};

void paint(GuardedSurface& surface, const std::vector<std::string>& rows) {
    for (int y = 0; y < surface->height; ++y) {
        for (int x = 0; x < surface->width; ++x) {
            setPixelAt(*surface, x, y,
                       kDigits.at(rows.at(static_cast<size_t>(y)).at(static_cast<size_t>(x))));
        }
    }
}

TEST_F(Transfer, CopiesARectangle) {
    for (const int16_t bits : kDepths) {
        GuardedSurface from(4, 3, bits);
        GuardedSurface to(5, 4, bits);
        paint(from, {"1234", "5678", "9123"});
        copy(from.get(), 1, 0, 3, 2, to.get(), 2, 1);
        EXPECT_TRUE(shows(*to, {".....", "..234", "..678", "....."}, kDigits));
    }
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, CutsToTheSource) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(7, 5, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), -2, -1, 7, 5, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".......", "..123..", "..456..", "..789..", "......."}, kDigits));
}

TEST_F(Transfer, CutsToTheDestination) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(2, 2, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), -1, -1);
    EXPECT_TRUE(shows(*to, {"56", "89"}, kDigits));
    copy(from.get(), 0, 0, 3, 3, to.get(), 1, 1);
    EXPECT_TRUE(shows(*to, {"56", "81"}, kDigits));
}

TEST_F(Transfer, CutsToTheClipOfTheDestination) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    GRect clip = {1, 0, 1, 1};
    to->drawable = &clip;
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".2.", ".5.", "..."}, kDigits));
}

TEST_F(Transfer, CutsToTheBoundsOfTheSourceNotToItsClip) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    GRect clip = {0, 0, 0, 0};
    from->drawable = &clip;
    from->bounds = {1, 1, 2, 2};
    paint(from, {"123", "456", "789"});
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"...", ".56", ".89"}, kDigits));
}

TEST_F(Transfer, NarrowingTheClipOfAMemorySurfaceNarrowsWhatIsRead) {
    GVram* const from = attach(handle, makeSurface(3, 1, 8));
    GuardedSurface to(3, 1, 8);
    std::fill_n(from->pixels, 3, uint8_t{7});
    const GRect clip = {1, 0, 1, 0};
    GDSetClipRect(handle.get(), &clip);
    copy(from, 0, 0, 3, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".7."}, kDigits));
}

TEST_F(Transfer, NothingInCommonCopiesNothing) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 3, 0, 3, 3, to.get(), 0, 0);
    copy(from.get(), 0, 0, 3, 3, to.get(), 0, 3);
    copy(from.get(), -3, 0, 3, 3, to.get(), 0, 0);
    copy(from.get(), -2, -2, 3, 3, to.get(), -2, -2);
    EXPECT_TRUE(shows(*to, {"1..", "...", "..."}, kDigits)) << "of the last, one pixel";
}

TEST_F(Transfer, OfNoSizeCopiesNothing) {
    GuardedSurface from(3, 1, 8);
    GuardedSurface to(3, 1, 8);
    paint(from, {"123"});
    for (const int16_t size : std::initializer_list<int16_t>{0, -1, -32768}) {
        copy(from.get(), 0, 0, size, 1, to.get(), 0, 0);
        copy(from.get(), 0, 0, 3, size, to.get(), 0, 0);
        copy(from.get(), 2, 0, size, 1, to.get(), 2, 0);
        copy(from.get(), 0, 0, size, 1, display.get(), 0, 0);
    }
    EXPECT_TRUE(shows(*to, {"..."}));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, CombinesByteByByte) {
    struct Result {
        int32_t mode;
        Bytes bytes;
    };
    for (const auto& [mode, bytes] :
         {Result{G_MODE_COPY, {0xFC, 0xF0, 0xAA}}, Result{G_MODE_AND, {0x0C, 0xF0, 0x00}},
          Result{G_MODE_OR, {0xFF, 0xFF, 0xFF}}, Result{G_MODE_XOR, {0xF3, 0x0F, 0xFF}}}) {
        GuardedSurface from(1, 1, 24);
        GuardedSurface to(1, 1, 24);
        setPixelAt(*from, 0, 0, 0xAAF0FC);
        setPixelAt(*to, 0, 0, 0x55FF0F);
        copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, mode);
        EXPECT_EQ(Bytes(to->pixels, to->pixels + 3), bytes) << "mode " << mode;
    }
}

TEST_F(Transfer, CombinesWhatWasConverted) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    setPixelAt(*to, 0, 0, 0x0F0F0F);
    setPixelAt(*from, 0, 0, 0x7C00);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_XOR);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0F0FF0U);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_AND);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0000F0U);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0, G_MODE_OR);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x0000FFU);
}

TEST_F(Transfer, AWildModeWritesNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface same(2, 1, 16);
    GuardedSurface other(2, 1, 24);
    paint(from, {"12"});
    for (const int32_t mode : {-1, 4, 5, 32, 64, 0x10000, -0x7FFFFFFF - 1, 0x7FFFFFFF}) {
        copy(from.get(), 0, 0, 2, 1, same.get(), 0, 0, mode);
        copy(from.get(), 0, 0, 2, 1, other.get(), 0, 0, mode);
        copy(from.get(), 0, 0, 1, 1, from.get(), 1, 0, mode);
    }
    EXPECT_TRUE(shows(*same, {".."}));
    EXPECT_TRUE(shows(*other, {".."}));
    EXPECT_TRUE(shows(*from, {"12"}, kDigits));
}

// Within one surface.

/// Sixteen bits a pixel, in which steps of a pixel are not steps of a byte.
class Within : public Transfer {
  protected:
    Within() { paint(surface, {"12345", "67891", "23456", "78912"}); }

    void move(int16_t sourceX, int16_t sourceY, int16_t width, int16_t height, int16_t x, int16_t y,
              int32_t mode = G_MODE_COPY) {
        copy(surface.get(), sourceX, sourceY, width, height, surface.get(), x, y, mode);
    }

    GuardedSurface surface{5, 4, 16};
};

TEST_F(Within, OneRowDownIsLikeThroughABuffer) {
    move(0, 0, 5, 3, 0, 1);
    EXPECT_TRUE(shows(*surface, {"12345", "12345", "67891", "23456"}, kDigits));
}

TEST_F(Within, OneRowUp) {
    move(0, 1, 5, 3, 0, 0);
    EXPECT_TRUE(shows(*surface, {"67891", "23456", "78912", "78912"}, kDigits));
}

TEST_F(Within, OneColumnRight) {
    move(0, 0, 4, 4, 1, 0);
    EXPECT_TRUE(shows(*surface, {"11234", "66789", "22345", "77891"}, kDigits));
}

TEST_F(Within, OneColumnLeft) {
    move(1, 0, 4, 4, 0, 0);
    EXPECT_TRUE(shows(*surface, {"23455", "78911", "34566", "89122"}, kDigits));
}

TEST_F(Within, AcrossBothWays) {
    move(0, 0, 3, 3, 1, 1);
    EXPECT_TRUE(shows(*surface, {"12345", "61231", "26786", "72342"}, kDigits));
}

TEST_F(Within, TheSamePlaceCopiesNothingInAnyMode) {
    for (const int32_t mode : {G_MODE_COPY, G_MODE_AND, G_MODE_OR, G_MODE_XOR}) {
        move(1, 1, 3, 2, 1, 1, mode);
    }
    EXPECT_TRUE(shows(*surface, {"12345", "67891", "23456", "78912"}, kDigits));
}

TEST_F(Within, CombiningReadsWhatWasThereBefore) {
    const std::vector<std::string> rows = {"12412", "21142", "11111", "4...."};
    paint(surface, rows);
    move(0, 0, 4, 1, 1, 0, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"13653", "21142", "11111", "4...."}, kDigits)) << "right";
    paint(surface, rows);
    move(1, 0, 4, 1, 0, 0, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"36532", "21142", "11111", "4...."}, kDigits)) << "left";
    paint(surface, rows);
    move(0, 0, 5, 3, 0, 1, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"12412", "3355.", "3..53", "51111"}, kDigits)) << "down";
}

// Conversion.

TEST_F(Transfer, FiveBitsOfOnesBecomeEight) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    EXPECT_EQ(converted(from, to, 0x7FFF), (Bytes{0xFF, 0xFF, 0xFF}));
}

TEST_F(Transfer, AChannelWhoseLowestBitIsClearStaysAsItIs) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    EXPECT_EQ(converted(from, to, 0x4210), (Bytes{0x80, 0x80, 0x80}));
}

TEST_F(Transfer, AChannelIsWidenedByItsLowestBit) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    EXPECT_EQ(converted(from, to, 0x1F << 10 | 0x01 << 5 | 0x1E), (Bytes{0xFF, 0x0F, 0xF0}));
}

TEST_F(Transfer, TheTopBitOfFivesOfBitsIsNotRead) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    EXPECT_EQ(converted(from, to, 0x8000), (Bytes{0, 0, 0}));
}

TEST_F(Transfer, EightBitsAreCutToFive) {
    GuardedSurface from(1, 1, 24);
    GuardedSurface to(1, 1, 16);
    // Red 0xFF, green 0x87, blue 0x08.
    EXPECT_EQ(converted(from, to, 0x0887FF), (Bytes{0x01, 0x7E}));
}

TEST_F(Transfer, FivesAndSixesOfBits) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 16);
    to->redMask = 0xF800;
    to->greenMask = 0x07E0;
    // Green 10001 widens to 0x8F, of which six bits are 100011.
    EXPECT_EQ(converted(from, to, 0x11 << 5), (Bytes{0x60, 0x04}));
    EXPECT_EQ(converted(from, to, 0x7FFF), (Bytes{0xFF, 0xFF}));
}

TEST_F(Transfer, ThreeThreeTwoWidens) {
    GuardedSurface from(1, 1, 8);
    GuardedSurface to(1, 1, 24);
    EXPECT_EQ(converted(from, to, 0xFF), (Bytes{0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(converted(from, to, 0x25), (Bytes{0x3F, 0x3F, 0x7F}));
    EXPECT_EQ(converted(from, to, 0xC0), (Bytes{0xC0, 0x00, 0x00}));
}

TEST_F(Transfer, BytesInTheOtherOrder) {
    GuardedSurface from(1, 1, 24);
    GuardedSurface to(1, 1, 24);
    to->redMask = 0xFF0000;
    to->blueMask = 0xFF;
    EXPECT_EQ(converted(from, to, 0x030201), (Bytes{0x03, 0x02, 0x01}));
}

TEST_F(Transfer, TenBitsLoseTheirLowTwo) {
    GuardedSurface from(1, 1, 24);
    GuardedSurface to(1, 1, 24);
    from->redMask = 0x3FF;
    from->greenMask = 0;
    from->blueMask = 0;
    EXPECT_EQ(converted(from, to, 0x3FF), (Bytes{0xFF, 0, 0}));
    EXPECT_EQ(converted(from, to, 0x203), (Bytes{0x80, 0, 0}));
    EXPECT_EQ(converted(from, to, 0x004), (Bytes{0x01, 0, 0}));
}

TEST_F(Transfer, AMaskWithHolesWidensByItsLowestBit) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    from->redMask = 0x9000; // bits 15 and 12: 0x90 once moved
    EXPECT_EQ(converted(from, to, 0x1000), (Bytes{0x1F, 0, 0}));
    EXPECT_EQ(converted(from, to, 0xF000), (Bytes{0x9F, 0, 0}));
    EXPECT_EQ(converted(from, to, 0xE000), (Bytes{0x80, 0, 0}));
}

TEST_F(Transfer, APaletteIsLookedUp) {
    GuardedSurface from(3, 1, {0x000000, 0xFF8040, 0x010203});
    GuardedSurface to(3, 1, 24);
    paint(from, {"12."});
    copy(from.get(), 0, 0, 3, 1, to.get(), 0, 0);
    EXPECT_EQ(Bytes(to->pixels, to->pixels + 9),
              (Bytes{0xFF, 0x80, 0x40, 0x01, 0x02, 0x03, 0, 0, 0}));
}

TEST_F(Transfer, AnIndexPastThePaletteReadsAsZero) {
    GuardedSurface from(2, 1, {0xFFFFFF, 0xFFFFFF, 0xFFFFFF});
    GuardedSurface to(2, 1, 16);
    setPixelAt(*from, 0, 0, 2);
    setPixelAt(*from, 1, 0, 3);
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0x7FFFU);
    EXPECT_EQ(pixelAt(*to, 1, 0), 0U);
}

TEST_F(Transfer, APaletteSurfaceWithoutAPaletteReadsAsZero) {
    GuardedSurface from(1, 1, std::vector<uint32_t>{0xFFFFFF});
    GuardedSurface to(1, 1, 24);
    from->palette = nullptr;
    setPixelAt(*from, 0, 0, 0xFF);
    setPixelAt(*to, 0, 0, 0x123456);
    copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0);
    EXPECT_EQ(pixelAt(*to, 0, 0), 0U);
}

TEST_F(Transfer, PaletteEntriesAreReadByTheSourcesMasks) {
    GuardedSurface from(1, 1, std::vector<uint32_t>{0x7C00});
    GuardedSurface to(1, 1, 24);
    from->redMask = 0x7C00;
    from->greenMask = 0x3E0;
    from->blueMask = 0x1F;
    EXPECT_EQ(converted(from, to, 0), (Bytes{0xFF, 0, 0}));
}

TEST_F(Transfer, AWidePalettePixelIsIndexedByItsFirstByte) {
    GuardedSurface from(1, 1, 16);
    GuardedSurface to(1, 1, 24);
    uint32_t palette[2] = {0, 0x445566};
    from->colorType = G_COLOR_PALETTE;
    from->redMask = 0xFF0000;
    from->greenMask = 0xFF00;
    from->blueMask = 0xFF;
    from->palette = palette;
    from->paletteCount = 2;
    EXPECT_EQ(converted(from, to, 0xFF01), (Bytes{0x44, 0x55, 0x66}));
}

TEST_F(Transfer, EqualFormatsCopyRawValuesFromAPaletteToo) {
    GuardedSurface from(2, 1, {0, 0xFFFFFF});
    GuardedSurface to(2, 1, {0xFFFFFF, 0});
    paint(from, {"15"});
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"15"}, kDigits));
    GuardedSurface direct(2, 1, 8);
    direct->redMask = from->redMask;
    direct->greenMask = from->greenMask;
    direct->blueMask = from->blueMask;
    copy(from.get(), 0, 0, 2, 1, direct.get(), 0, 0);
    EXPECT_TRUE(shows(*direct, {"15"}, kDigits));
}

TEST_F(Transfer, ChannelsOntoAPaletteAreRefused) {
    GuardedSurface palette(1, 1, {0, 0xFFFFFF});
    for (const int16_t bits : kDepths) {
        GuardedSurface from(1, 1, bits);
        setPixelAt(*from, 0, 0, 0xFFFFFF);
        copy(from.get(), 0, 0, 1, 1, palette.get(), 0, 0);
        EXPECT_EQ(pixelAt(*palette, 0, 0), 0U) << bits;
    }
    GuardedSurface same(1, 1, 8);
    same->redMask = palette->redMask;
    same->greenMask = palette->greenMask;
    same->blueMask = palette->blueMask;
    setPixelAt(*same, 0, 0, 1);
    copy(same.get(), 0, 0, 1, 1, palette.get(), 0, 0);
    EXPECT_EQ(pixelAt(*palette, 0, 0), 0U) << "of equal masks too";
}

TEST_F(Transfer, OneOtherMaskIsAnotherFormat) {
    for (uint32_t GVram::*mask : {&GVram::redMask, &GVram::greenMask, &GVram::blueMask}) {
        GuardedSurface from(1, 1, 16);
        GuardedSurface to(1, 1, 16);
        (*to).*mask = 0;
        setPixelAt(*from, 0, 0, 0xFFFF);
        copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0);
        EXPECT_EQ(pixelAt(*to, 0, 0), 0x7FFFU & ~((*from).*mask));
    }
}

// Through the platform.

TEST_F(Transfer, OntoTheDisplayIsThePlatforms) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 1, 2, 5, 4, display.get(), 100, 200, G_MODE_OR);
    EXPECT_EQ(platform.calls, std::vector{call(8, handle.get(), from.get(), 1, 2, 5, 4,
                                               display.get(), 100, 200, G_MODE_OR)});
}

TEST_F(Transfer, ThePlatformGetsWhatIsLeftAfterCutting) {
    GuardedSurface from(10, 8, 24);
    GRect clip = {102, 0, 639, 479};
    display->drawable = &clip;
    copy(from.get(), -3, 5, 100, 100, display.get(), 100, 200);
    EXPECT_EQ(platform.calls, std::vector{call(8, handle.get(), from.get(), 0, 5, 10, 3,
                                               display.get(), 103, 200, G_MODE_COPY)});
}

TEST_F(Transfer, ThePlatformGetsAWildModeAsItIs) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 0, 0, 1, 1, display.get(), 0, 0, 77);
    ASSERT_EQ(platform.count(8), 1U);
    EXPECT_EQ(platform.calls.back().arguments.back(), 77);
}

TEST_F(Transfer, WithinTheDisplayIsThePlatformsToo) {
    copy(display.get(), 0, 0, 10, 10, display.get(), 0, 0);
    EXPECT_EQ(platform.count(8), 1U);
}

TEST_F(Transfer, ThePlatformIsNotAskedForNothing) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 10, 0, 5, 5, display.get(), 0, 0);
    copy(from.get(), 0, 0, 5, 5, display.get(), 640, 0);
    display->colorType = G_COLOR_PALETTE;
    copy(from.get(), 0, 0, 5, 5, display.get(), 0, 0);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, OntoAnotherDeviceSurfaceIsTheLibrarys) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface second(2, 1, 16);
    second->id = 1;
    paint(from, {"12"});
    copy(from.get(), 0, 0, 2, 1, second.get(), 0, 0);
    EXPECT_TRUE(shows(*second, {"12"}, kDigits));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, FromTheDisplayIsTheLibrarys) {
    GuardedSurface to(2, 1, 16);
    setPixelAt(*display, 5, 7, 3);
    copy(display.get(), 5, 7, 2, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"3."}, kDigits));
}

TEST_F(Transfer, WithoutThePlatformsTransferNothingIsCopied) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    platform.remove({8});
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, display.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(platform.requests.empty());
}

TEST_F(Transfer, NeedsAHandleAndBothSurfaces) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    GDBitBlt(nullptr, from.get(), 0, 0, 2, 1, to.get(), 0, 0, G_MODE_COPY);
    GDBitBlt(nullptr, from.get(), 0, 0, 2, 1, display.get(), 0, 0, G_MODE_COPY);
    copy(nullptr, 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, nullptr, 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
    EXPECT_TRUE(platform.calls.empty());
}

// Mapping.

TEST_F(Transfer, APlacePastTheLastCoordinateCopiesNothing) {
    GuardedSurface from(3, 3, 8);
    GuardedSurface to(3, 3, 8);
    paint(from, {"123", "456", "789"});
    copy(from.get(), 1, 0, 32767, 3, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"23.", "56.", "89."}, kDigits)) << "up to column 32767";
    paint(to, {"...", "...", "..."});
    copy(from.get(), 2, 0, 32767, 3, to.get(), 0, 0);
    copy(from.get(), 0, 2, 3, 32767, to.get(), 0, -2);
    copy(from.get(), 0, 0, 32767, 3, to.get(), 2, 0);
    copy(from.get(), 0, -2, 3, 32767, to.get(), 0, 2);
    EXPECT_TRUE(shows(*to, {"...", "...", "..."}));
}

TEST_F(Transfer, BothPlacesAreMappedByTheOrigin) {
    GuardedSurface from(3, 1, 8);
    GuardedSurface to(3, 1, 8);
    paint(from, {"123"});
    handle->localOrigin = {100, 50};
    copy(from.get(), 101, 50, 2, 1, to.get(), 100, 50);
    EXPECT_TRUE(shows(*to, {"23."}, kDigits));
}

TEST_F(Transfer, TheSmallerOfTwoMappedSizesCounts) {
    // 0 to 3 of 10 columns map to 0 to 1 of 5, 1 to 4 map to 0 to 2.
    GuardedSurface from(5, 1, 8);
    GuardedSurface to(5, 1, 8);
    paint(from, {"12345"});
    handle->virtualRect = {0, 0, 9, 0};
    GDSetVirtualMode(handle.get());
    GRect narrow = {0, 0, 3, 0};
    GRect wide = {1, 0, 4, 0};
    const Handle other = openHandle();
    attach(other, makeSurface(5, 1, 8)); // makes the physical rectangle
    GRMapToScreenRect(handle.get(), &narrow);
    GRMapToScreenRect(handle.get(), &wide);
    ASSERT_EQ(narrow, (GRect{0, 0, 1, 0}));
    ASSERT_EQ(wide, (GRect{0, 0, 2, 0}));
    copy(from.get(), 1, 0, 4, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"12..."}, kDigits));
    copy(from.get(), 0, 0, 4, 1, to.get(), 1, 0);
    EXPECT_TRUE(shows(*to, {"12..."}, kDigits));
}

// Records that are not what they should be.

TEST_F(Transfer, OtherDepthsCopyNothing) {
    GuardedSurface good(4, 2, 24);
    GuardedSurface bad(4, 2, 24);
    std::memset(good.memory().data(), 0x11, good.memory().size());
    for (const int16_t bits : std::initializer_list<int16_t>{-8, 0, 1, 4, 15, 23, 32, 264}) {
        bad->bitsPerPixel = bits;
        copy(good.get(), 0, 0, 4, 2, bad.get(), 0, 0);
        copy(bad.get(), 0, 0, 4, 2, good.get(), 0, 0);
        copy(bad.get(), 0, 0, 2, 2, bad.get(), 1, 0);
    }
    const auto is = [](uint8_t byte) { return [=](uint8_t other) { return other == byte; }; };
    const auto holds = [&](GuardedSurface& surface, uint8_t byte) {
        const uint8_t* const bytes = surface.memory().data();
        return std::all_of(bytes, bytes + surface.memory().size(), is(byte));
    };
    EXPECT_TRUE(holds(good, 0x11));
    EXPECT_TRUE(holds(bad, 0));
}

TEST_F(Transfer, SurfacesWithoutPixelsCopyNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    paint(to, {"34"});
    GVram hollow = *from;
    hollow.pixels = nullptr;
    hollow.drawable = &hollow.bounds;
    copy(&hollow, 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, &hollow, 0, 0);
    EXPECT_TRUE(shows(*to, {"34"}, kDigits));
}

TEST_F(Transfer, ADestinationWithoutAClipGetsNothing) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    to->drawable = nullptr;
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
}

TEST_F(Transfer, WildBoundsAndClipsDoNotReachOutsideTheMemory) {
    for (const Against side : {Against::End, Against::Start}) {
        for (const int16_t bits : kDepths) {
            GuardedSurface from(3, 2, 16, side);
            GuardedSurface to(4, 3, bits, side);
            GRect everything = {-32768, -32768, 32767, 32767};
            from->bounds = everything;
            to->drawable = &everything;
            copy(from.get(), -100, -100, 32767, 32767, to.get(), -100, -100);
            copy(from.get(), -32768, -32768, 32767, 32767, to.get(), -32768, -32768);
            copy(from.get(), 32767, 32767, 1, 1, to.get(), 32767, 32767);
            EXPECT_TRUE(to.memory().intact());
        }
    }
}

TEST_F(Transfer, RowsTooShortForTheirPixelsEndWhereTheyEnd) {
    GuardedSurface from(4, 3, 8);
    GuardedSurface to(4, 3, 8, Against::End, -2);
    paint(from, {"1234", "5678", "9123"});
    copy(from.get(), 0, 0, 4, 3, to.get(), 0, 0);
    EXPECT_EQ(Bytes(to->pixels, to->pixels + 6), (Bytes{1, 2, 5, 6, 9, 1}));
}

TEST_F(Transfer, PaddingIsNeitherReadNorWritten) {
    GuardedSurface from(2, 2, 16, Against::End, 3);
    GuardedSurface to(2, 2, 16, Against::End, 1);
    std::memset(from.memory().data(), 0x77, from.memory().size());
    paint(from, {"12", "34"});
    copy(from.get(), 0, 0, 2, 2, to.get(), 0, 0);
    EXPECT_EQ(Bytes(to->pixels, to->pixels + 10), (Bytes{1, 0, 2, 0, 0, 3, 0, 4, 0, 0}));
}

} // namespace
