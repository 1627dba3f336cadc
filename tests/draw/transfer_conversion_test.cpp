// Block transfers between formats.
#include "draw/transfer_fixture.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

using namespace quarlo::test;

namespace {

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

} // namespace
