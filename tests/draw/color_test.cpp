// Colours and how they become pixel values.
#include "draw/draw_test.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <utility>

using namespace quarlo;
using namespace quarlo::test;

namespace {

struct Setter {
    void (*set)(GDrawHandle*, uint32_t);
    uint32_t GDrawHandle::*color;
    uint32_t GDrawHandle::*pixel;
};

constexpr Setter kSetters[] = {
    {GDSetForeColor, &GDrawHandle::foreColor, &GDrawHandle::forePixel},
    {GDSetBackColor, &GDrawHandle::backColor, &GDrawHandle::backPixel},
    {GDSetPenColor, &GDrawHandle::penColor, &GDrawHandle::penPixel},
};

constexpr uint32_t kOrange = 0x00FF8040;

class Colors : public HandleTest {
  protected:
    void drawOnPalette() {
        uint32_t palette[1] = {0};
        GVram record{};
        record.width = 4;
        record.height = 4;
        record.bitsPerPixel = 8;
        record.colorType = G_COLOR_PALETTE;
        record.redMask = 0xFF0000;
        record.greenMask = 0xFF00;
        record.blueMask = 0xFF;
        record.paletteCount = 1;
        record.palette = palette;
        attach(handle, Surface(GDCreateVram(&record)));
    }

    /// The pixel value that every setter makes of a colour.
    uint32_t pixelOf(uint32_t color) {
        uint32_t pixel = 0;
        for (const Setter& setter : kSetters) {
            setter.set(handle.get(), color);
            EXPECT_EQ((*handle).*setter.color, color);
            if (&setter == &kSetters[0]) {
                pixel = (*handle).*setter.pixel;
            }
            EXPECT_EQ((*handle).*setter.pixel, pixel);
        }
        return pixel;
    }

    /// Channel shifts of three masks.
    void expectShifts(uint32_t red, uint32_t green, uint32_t blue, int redShift, int greenShift,
                      int blueShift) {
        GDSetColorMode(handle.get(), 0, red, green, blue);
        EXPECT_EQ(handle->redShift, redShift);
        EXPECT_EQ(handle->greenShift, greenShift);
        EXPECT_EQ(handle->blueShift, blueShift);
    }
};

TEST_F(Colors, ShiftsBringTheTopBitOfAChannelToItsMask) {
    expectShifts(0x7C00, 0x3E0, 0x1F, 7, 2, -3);
    expectShifts(0xFF0000, 0xFF00, 0xFF, 16, 8, 0);
    expectShifts(224, 28, 3, 0, -3, -6);
}

TEST_F(Colors, ShiftsOfOneBitAndOfNone) {
    expectShifts(0x80000000, 1, 0, 24, -7, 0);
}

TEST_F(Colors, ShiftsFollowTheHighestBitOnly) {
    expectShifts(0xFFFFFFFF, 0x81, 0x3FF00000, 24, 0, 22);
}

TEST_F(Colors, ASetterWritesItsOwnTwoFields) {
    for (const Setter& setter : kSetters) {
        GDrawHandle expected;
        std::memcpy(&expected, handle.get(), sizeof expected);
        expected.*setter.color = 0x1234;
        expected.*setter.pixel = 0x1234;
        setter.set(handle.get(), 0x1234);
        EXPECT_EQ(bytesOf(*handle), bytesOf(expected));
    }
}

TEST_F(Colors, AreRawPixelValuesOnEverySurfaceUntilColourModeIsOn) {
    EXPECT_EQ(pixelOf(0xFFFF8040), 0xFFFF8040U);
    for (const int16_t bits : kDepths) {
        attach(handle, makeSurface(4, 4, bits));
        EXPECT_EQ(pixelOf(0xFFFF8040), 0xFFFF8040U);
    }
    drawOnPalette();
    EXPECT_EQ(pixelOf(0xFFFF8040), 0xFFFF8040U);
}

TEST_F(Colors, ConvertToFivesOfBits) {
    GDSetColorMode(handle.get(), 1, 0, 0, 0);
    attach(handle, makeSurface(4, 4, 16));
    EXPECT_EQ(pixelOf(kOrange), 0x7E08U);
}

TEST_F(Colors, ConvertTo24Bits) {
    GDSetColorMode(handle.get(), 1, 0, 0, 0);
    attach(handle, makeSurface(4, 4, 24));
    EXPECT_EQ(pixelOf(kOrange), 0x4080FFU);
}

TEST_F(Colors, ConvertTo8Bits) {
    GDSetColorMode(handle.get(), 1, 0, 0, 0);
    attach(handle, makeSurface(4, 4, 8));
    EXPECT_EQ(pixelOf(kOrange), 0xF1U);
}

TEST_F(Colors, TheTopByteOfAColourCountsForNothing) {
    GDSetColorMode(handle.get(), 1, 0, 0, 0);
    attach(handle, makeSurface(4, 4, 24));
    EXPECT_EQ(pixelOf(0xABFF8040), 0x4080FFU);
}

TEST_F(Colors, NoColourStaysNoColour) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    EXPECT_EQ(pixelOf(G_NO_COLOR), G_NO_COLOR);
    attach(handle, makeSurface(4, 4, 16));
    EXPECT_EQ(pixelOf(G_NO_COLOR), G_NO_COLOR);
}

TEST_F(Colors, ConvertByTheModesMasksOnADeviceSurface) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    EXPECT_EQ(pixelOf(kOrange), 0xFC08U);
}

TEST_F(Colors, StayRawOnADeviceSurfaceInAnyOtherMode) {
    for (const uint8_t mode : std::initializer_list<uint8_t>{2, 128, 255}) {
        GDSetColorMode(handle.get(), mode, 0xF800, 0x7E0, 0x1F);
        EXPECT_EQ(pixelOf(kOrange), kOrange);
    }
}

TEST_F(Colors, ConvertOnAMemorySurfaceInAnyModeButZero) {
    attach(handle, makeSurface(4, 4, 16));
    for (const uint8_t mode : std::initializer_list<uint8_t>{1, 2, 255}) {
        GDSetColorMode(handle.get(), mode, 0x7C00, 0x3E0, 0x1F);
        EXPECT_EQ(pixelOf(kOrange), 0x7E08U);
    }
    GDSetColorMode(handle.get(), 0, 0x7C00, 0x3E0, 0x1F);
    EXPECT_EQ(pixelOf(kOrange), kOrange);
}

TEST_F(Colors, StayRawOnAPaletteSurface) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    drawOnPalette();
    EXPECT_EQ(pixelOf(kOrange), kOrange);
}

TEST_F(Colors, TheModesShiftsReplaceThoseOfTheSurface) {
    attach(handle, makeSurface(4, 4, 16));
    GDSetColorMode(handle.get(), 1, 0xFF0000, 0xFF00, 0xFF);
    // Red moves left past the surface's mask, green partly, blue stays.
    EXPECT_EQ(pixelOf(0x00FFFFFF), 0x031FU);
}

TEST_F(Colors, AShiftPastTheWordGivesZero) {
    attach(handle, makeSurface(4, 4, 16));
    GDSetColorMode(handle.get(), 1, 0x7C00, 0x3E0, 0x1F);
    handle->redShift = 32;
    handle->greenShift = -32;
    handle->blueShift = -128;
    EXPECT_EQ(pixelOf(0x00FFFFFF), 0U);
    handle->redShift = 127;
    EXPECT_EQ(pixelOf(0x00FFFFFF), 0U);
}

TEST_F(Colors, AreThreeShiftedAndMaskedChannels) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const auto mask = [&] {
            return random.oneIn(8) ? 0U
                                   : static_cast<uint32_t>(random.bits()) &
                                         (~uint32_t{0} >> random.between(0, 31));
        };
        const uint32_t masks[] = {mask(), mask(), mask()};
        const auto color = static_cast<uint32_t>(random.bits() & 0xFFFFFF);
        GDSetColorMode(handle.get(), 1, masks[0], masks[1], masks[2]);
        uint32_t expected = 0;
        for (int channel = 0; channel < 3; ++channel) {
            int top = 31;
            while (top >= 0 && (masks[channel] >> top & 1) == 0) {
                --top;
            }
            const uint64_t value = color >> (16 - 8 * channel) & 0xFF;
            const uint64_t moved = top < 0 ? value : value << top >> 7;
            expected |= static_cast<uint32_t>(moved) & masks[channel];
        }
        ASSERT_EQ(pixelOf(color), expected)
            << std::hex << color << " by " << masks[0] << ' ' << masks[1] << ' ' << masks[2];
    }
}

TEST_F(Colors, AFillColourIsForeThenBack) {
    GDSetFillColor(handle.get(), 0x11, 0x22);
    EXPECT_EQ(handle->foreColor, 0x11U);
    EXPECT_EQ(handle->forePixel, 0x11U);
    EXPECT_EQ(handle->backColor, 0x22U);
    EXPECT_EQ(handle->backPixel, 0x22U);
    EXPECT_EQ(handle->penColor, 0U);
}

TEST_F(Colors, ColourModeNeedsAHandle) {
    GDSetColorMode(nullptr, 1, 0xF800, 0x7E0, 0x1F);
    EXPECT_EQ(handle->colorMode, 0);
}

TEST_F(Colors, ColourModeKeepsItsFlagAndMasks) {
    GDSetColorMode(handle.get(), 200, 0xF800, 0x7E0, 0x1F);
    EXPECT_EQ(handle->colorMode, 200);
    EXPECT_EQ(handle->modeRedMask, 0xF800U);
    EXPECT_EQ(handle->modeGreenMask, 0x7E0U);
    EXPECT_EQ(handle->modeBlueMask, 0x1FU);
}

TEST_F(Colors, ColourModeConvertsTheColoursThatAreSet) {
    for (const Setter& setter : kSetters) {
        setter.set(handle.get(), kOrange);
    }
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    for (const Setter& setter : kSetters) {
        EXPECT_EQ((*handle).*setter.color, kOrange);
        EXPECT_EQ((*handle).*setter.pixel, 0xFC08U);
    }
    GDSetColorMode(handle.get(), 1, 0xFF, 0xFF00, 0xFF0000);
    for (const Setter& setter : kSetters) {
        EXPECT_EQ((*handle).*setter.pixel, 0x4080FFU);
    }
}

TEST_F(Colors, SwitchingColourModeOffLeavesThePixelValues) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    pixelOf(kOrange);
    GDSetColorMode(handle.get(), 0, 0xFF, 0xFF00, 0xFF0000);
    for (const Setter& setter : kSetters) {
        EXPECT_EQ((*handle).*setter.pixel, 0xFC08U);
    }
    EXPECT_EQ(handle->redShift, 0);
    EXPECT_EQ(handle->greenShift, 8);
    EXPECT_EQ(handle->blueShift, 16);
}

TEST_F(Colors, ChoosingADrawingModeConvertsThemAnew) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    pixelOf(kOrange);
    for (const Setter& setter : kSetters) {
        (*handle).*setter.pixel = 0;
    }
    GDSetDrawingMode(handle.get(), G_MODE_OR);
    for (const Setter& setter : kSetters) {
        EXPECT_EQ((*handle).*setter.pixel, 0xFC08U);
    }
}

} // namespace
