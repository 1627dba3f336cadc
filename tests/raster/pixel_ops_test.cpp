#include "raster/pixel_ops.h"

#include "raster/drawing.h"

#include <set>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

using PixelOps = RasterTest;
using Bytes = std::vector<uint8_t>;

Bytes bytesOf(Drawing& drawing) {
    const GuardedMemory& memory = drawing.surface().memory();
    return {memory.data(), memory.data() + memory.size()};
}

void fillBytes(Drawing& drawing, uint8_t byte) {
    GuardedMemory& memory = drawing.surface().memory();
    std::fill_n(memory.data(), memory.size(), byte);
}

int32_t set(Drawing& drawing, int16_t x, int16_t y, uint32_t pixel) {
    return drawing->pixelOps->setPixel(drawing, drawing.surface().get(), x, y, pixel,
                                       drawing->drawingMode);
}

int32_t span(Drawing& drawing, int16_t x, int16_t y, uint32_t pixel, int16_t count) {
    return drawing->pixelOps->span(drawing, drawing.surface().get(), x, y, pixel,
                                   drawing->drawingMode, count);
}

void next(Drawing& drawing) {
    drawing->pixelOps->nextPixel();
}

bool isEmpty(const GPixelOps& ops) {
    return ops.setPixel == nullptr && ops.span == nullptr && ops.nextPixel == nullptr &&
           ops.unused == nullptr && ops.readPixel == nullptr && ops.coveragePixel == nullptr &&
           ops.drawRect == nullptr && ops.fillRect == nullptr && ops.patternRect == nullptr;
}

TEST_F(PixelOps, EveryFormatAndModeHasAnEntry) {
    std::set<const GPixelOps*> entries;
    for (const int16_t bits : kDepths) {
        Drawing drawing(2, 2, bits);
        for (int mode = 0; mode < 4; ++mode) {
            GDSetDrawingMode(drawing, mode);
            entries.insert(drawing->pixelOps);
        }
    }
    EXPECT_EQ(entries.size(), 12U);
}

TEST_F(PixelOps, HandlesOfOneFormatAndModeShareTheEntry) {
    Drawing first(2, 2, 16);
    Drawing second(9, 9, 16);
    EXPECT_EQ(first->pixelOps, second->pixelOps);
}

TEST_F(PixelOps, MemoryEntriesSetSpanContinueAndReadButLeaveRectanglesToOthers) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(2, 2, bits);
        for (int mode = 0; mode < 4; ++mode) {
            GDSetDrawingMode(drawing, mode);
            const GPixelOps& ops = *drawing->pixelOps;
            EXPECT_TRUE(ops.setPixel && ops.span && ops.nextPixel && ops.readPixel);
            EXPECT_FALSE(ops.unused || ops.coveragePixel || ops.drawRect || ops.fillRect ||
                         ops.patternRect);
        }
    }
}

TEST_F(PixelOps, SixteenBitsStandLowByteFirst) {
    Drawing drawing(2, 1, 16);
    set(drawing, 1, 0, 0x7C00);
    EXPECT_EQ(bytesOf(drawing), (Bytes{0, 0, 0x00, 0x7C}));
}

TEST_F(PixelOps, TwentyFourBitsStandLowByteFirst) {
    Drawing drawing(1, 1, 24);
    set(drawing, 0, 0, 0x4080FF);
    EXPECT_EQ(bytesOf(drawing), (Bytes{0xFF, 0x80, 0x40}));
}

TEST_F(PixelOps, EightBitsKeepTheLowByte) {
    Drawing drawing(3, 1, 8);
    set(drawing, 2, 0, 0x123456);
    EXPECT_EQ(bytesOf(drawing), (Bytes{0, 0, 0x56}));
}

TEST_F(PixelOps, RowsLieBytesPerLineApart) {
    Drawing drawing(2, 2, 16, Against::End, 3);
    set(drawing, 1, 1, 0xBBAA);
    EXPECT_EQ(bytesOf(drawing), (Bytes{0, 0, 0, 0, 0, 0, 0, 0, 0, 0xAA, 0xBB, 0, 0, 0}));
}

TEST_F(PixelOps, CoordinatesAreSigned) {
    Drawing drawing(3, 2, 8);
    set(drawing, -1, 1, 7);
    EXPECT_EQ(bytesOf(drawing), (Bytes{0, 0, 7, 0, 0, 0}));
}

TEST_F(PixelOps, ModesCombineByteByByte) {
    constexpr uint8_t kOld = 0x0F;
    constexpr uint32_t kColor = 0x3C55AA;
    constexpr uint8_t kExpected[4][3] = {
        {0xAA, 0x55, 0x3C},
        {kOld & 0xAA, kOld & 0x55, kOld & 0x3C},
        {kOld | 0xAA, kOld | 0x55, kOld | 0x3C},
        {kOld ^ 0xAA, kOld ^ 0x55, kOld ^ 0x3C},
    };
    for (const int16_t bits : kDepths) {
        Drawing drawing(1, 1, bits);
        for (int mode = 0; mode < 4; ++mode) {
            GDSetDrawingMode(drawing, mode);
            const Bytes expected(kExpected[mode], kExpected[mode] + bits / 8);
            fillBytes(drawing, kOld);
            set(drawing, 0, 0, kColor);
            EXPECT_EQ(bytesOf(drawing), expected) << bits << " bits, mode " << mode;
            fillBytes(drawing, kOld);
            span(drawing, 0, 0, kColor, 1);
            EXPECT_EQ(bytesOf(drawing), expected) << bits << " bits, mode " << mode;
        }
    }
}

TEST_F(PixelOps, AnEntryCombinesByItsOwnMode) {
    Drawing drawing(1, 1, 8);
    fillBytes(drawing, 0x0F);
    drawing->pixelOps->setPixel(drawing, drawing.surface().get(), 0, 0, 0x3C, G_MODE_XOR);
    EXPECT_EQ(bytesOf(drawing), Bytes{0x3C});
}

TEST_F(PixelOps, ExclusiveOrTwiceRestores) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(40, 1, bits);
        fillBytes(drawing, 0x6B);
        const Bytes before = bytesOf(drawing);
        GDSetDrawingMode(drawing, G_MODE_XOR);
        for (int times = 0; times < 2; ++times) {
            set(drawing, 3, 0, 0x81F3C2);
            span(drawing, 1, 0, 0x9A4D07, 37);
        }
        EXPECT_EQ(bytesOf(drawing), before) << bits;
    }
}

TEST_F(PixelOps, ASpanRunsOnIntoTheNextRow) {
    Drawing drawing(3, 2, 8);
    span(drawing, 2, 0, 9, 3);
    EXPECT_TRUE(shows(*drawing.surface(), {"..#", //
                                           "##."}));
}

TEST_F(PixelOps, ASpanOfNoPixelsMovesTheCursorToItsStart) {
    for (const int16_t bits : kDepths) {
        for (const int16_t count : std::initializer_list<int16_t>{0, -1, -32768}) {
            Drawing drawing(4, 1, bits);
            span(drawing, 2, 0, 5, count);
            EXPECT_TRUE(shows(*drawing.surface(), {"...."})) << count;
            next(drawing);
            EXPECT_TRUE(shows(*drawing.surface(), {"..#."})) << count;
            EXPECT_EQ(pixelAt(*drawing.surface(), 2, 0), 5U);
        }
    }
}

TEST_F(PixelOps, NextPixelContinuesBehindThePixelWrittenLast) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(8, 1, bits);
        set(drawing, 1, 0, 0x11);
        next(drawing);
        next(drawing);
        EXPECT_TRUE(shows(*drawing.surface(), {".###...."}));
        span(drawing, 4, 0, 0x22, 2);
        next(drawing);
        EXPECT_TRUE(shows(*drawing.surface(), {".aaabbb."}, {{'.', 0}, {'a', 0x11}, {'b', 0x22}}));
    }
}

TEST_F(PixelOps, NextPixelCombinesByTheModeOfItsEntry) {
    for (const int16_t bits : std::initializer_list<int16_t>{8, 16}) {
        Drawing drawing(2, 1, bits);
        for (const auto& [mode, expected] : {std::pair{G_MODE_COPY, 0x3CU},
                                             {G_MODE_AND, 0x0CU},
                                             {G_MODE_OR, 0x3FU},
                                             {G_MODE_XOR, 0x33U}}) {
            setPixelAt(*drawing.surface(), 1, 0, 0x0F);
            GDSetDrawingMode(drawing, mode);
            set(drawing, 0, 0, 0x3C);
            next(drawing);
            EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), expected) << bits << ' ' << mode;
        }
    }
}

TEST_F(PixelOps, NextPixelOfTwentyFourBitsAndIsTheOneOfCopy) {
    Drawing drawing(2, 1, 24);
    const auto copyNext = drawing->pixelOps->nextPixel;
    setPixelAt(*drawing.surface(), 0, 0, 0x0F0F0F);
    setPixelAt(*drawing.surface(), 1, 0, 0x0F0F0F);
    GDSetDrawingMode(drawing, G_MODE_AND);
    EXPECT_EQ(drawing->pixelOps->nextPixel, copyNext);
    set(drawing, 0, 0, 0x3C3C3C);
    next(drawing);
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 0x0C0C0CU);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 0x3C3C3CU);
}

TEST_F(PixelOps, NextPixelOfTwentyFourBitsOrAndXorCombine) {
    Drawing drawing(2, 1, 24);
    for (const auto& [mode, expected] :
         {std::pair{G_MODE_OR, 0x3F3F3FU}, {G_MODE_XOR, 0x333333U}}) {
        setPixelAt(*drawing.surface(), 1, 0, 0x0F0F0F);
        GDSetDrawingMode(drawing, mode);
        set(drawing, 0, 0, 0x3C3C3C);
        next(drawing);
        EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), expected) << mode;
    }
}

TEST_F(PixelOps, NextPixelBeforeAnyOtherDrawsNothing) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(2, 1, bits);
        pixelCells[bits / 8 - 1] = {};
        for (int mode = 0; mode < 4; ++mode) {
            GDSetDrawingMode(drawing, mode);
            EXPECT_EQ(drawing->pixelOps->nextPixel(), 0);
        }
    }
}

TEST_F(PixelOps, ColourAndCursorBelongToTheFormat) {
    Drawing narrow(4, 1, 8);
    Drawing middle(4, 1, 16);
    Drawing wide(4, 1, 24);
    set(narrow, 0, 0, 1);
    set(middle, 0, 0, 2);
    set(wide, 0, 0, 3);
    next(narrow);
    next(middle);
    next(wide);
    EXPECT_TRUE(shows(*narrow.surface(), {"11.."}, {{'.', 0}, {'1', 1}}));
    EXPECT_TRUE(shows(*middle.surface(), {"22.."}, {{'.', 0}, {'2', 2}}));
    EXPECT_TRUE(shows(*wide.surface(), {"33.."}, {{'.', 0}, {'3', 3}}));
}

TEST_F(PixelOps, ColourAndCursorAreSharedByTheModesOfAFormat) {
    Drawing drawing(3, 1, 16);
    setPixelAt(*drawing.surface(), 1, 0, 0x0F0F);
    set(drawing, 0, 0, 0x3C3C);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    next(drawing);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 0), 0x3333U);
}

TEST_F(PixelOps, ReadPixelGivesThePixelValue) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(3, 2, bits);
        const uint32_t pixel = 0xA1B2C3U & ((uint32_t{1} << bits) - 1);
        setPixelAt(*drawing.surface(), 2, 1, pixel);
        const GPixelOps& ops = *drawing->pixelOps;
        EXPECT_EQ(ops.readPixel(drawing, drawing.surface().get(), 2, 1), pixel);
        EXPECT_EQ(ops.readPixel(drawing, drawing.surface().get(), 1, 1), 0U);
    }
}

TEST_F(PixelOps, AWildModeReachesAnEmptyEntry) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(2, 2, bits);
        for (const int32_t mode : {-1, 4, 5, 7, 28, 31, 36, 100, -5, -100, 255, 0x7FFF, 0x8000}) {
            GDSetDrawingMode(drawing, mode);
            EXPECT_TRUE(isEmpty(*drawing->pixelOps)) << bits << ' ' << mode;
        }
    }
}

TEST_F(PixelOps, AWildModeMayReachTheEntryOfAnotherFormat) {
    Drawing narrow(2, 2, 8);
    Drawing middle(2, 2, 16);
    Drawing wide(2, 2, 24);
    const GPixelOps* const narrowCopy = narrow->pixelOps;
    const GPixelOps* const middleCopy = middle->pixelOps;
    const GPixelOps* const wideCopy = wide->pixelOps;
    GDSetDrawingMode(narrow, 32);
    EXPECT_EQ(narrow->pixelOps, middleCopy);
    GDSetDrawingMode(narrow, 64);
    EXPECT_EQ(narrow->pixelOps, wideCopy);
    GDSetDrawingMode(middle, -32);
    EXPECT_EQ(middle->pixelOps, narrowCopy);
    GDSetDrawingMode(wide, -64);
    EXPECT_EQ(wide->pixelOps, narrowCopy);
    GDSetDrawingMode(wide, -29);
    GDSetDrawingMode(middle, G_MODE_XOR);
    EXPECT_EQ(wide->pixelOps, middle->pixelOps);
}

TEST_F(PixelOps, AWildModeNeverReachesTheDeviceEntryFromAMemorySurface) {
    DeviceDrawing device(2, 2);
    for (const int16_t bits : kDepths) {
        Drawing drawing(2, 2, bits);
        GDSetDrawingMode(drawing, -4 * bits);
        EXPECT_TRUE(isEmpty(*drawing->pixelOps)) << bits;
    }
}

TEST_F(PixelOps, TheModeIsTakenFromSixteenBits) {
    Drawing drawing(2, 2, 8);
    GDSetDrawingMode(drawing, 0x10000 + G_MODE_OR);
    const GPixelOps* const entry = drawing->pixelOps;
    GDSetDrawingMode(drawing, G_MODE_OR);
    EXPECT_EQ(drawing->pixelOps, entry);
}

TEST_F(PixelOps, SettingAModeConvertsTheColoursAnewInColourMode) {
    Drawing drawing(2, 2, 16);
    drawing.surface()->redMask = 0xF800;
    GDSetDrawingMode(drawing, G_MODE_OR);
    GDSetPenColor(drawing, 0xFF0000);
    EXPECT_EQ(drawing->penPixel, 0xFF0000U);
    GDSetColorMode(drawing, 1, 0xF800, 0x07E0, 0x001F);
    EXPECT_EQ(drawing->penPixel, 0xF800U);
    drawing.surface()->redMask = 0xC000;
    GDSetDrawingMode(drawing, G_MODE_COPY);
    EXPECT_EQ(drawing->penPixel, 0xC000U);
}

TEST_F(PixelOps, TheDeviceEntryIsFilledFromThePlatform) {
    DeviceDrawing drawing(8, 8);
    const GPixelOps& ops = *drawing->pixelOps;
    EXPECT_TRUE(ops.setPixel && ops.span && ops.nextPixel && ops.coveragePixel && ops.drawRect &&
                ops.fillRect && ops.patternRect);
    EXPECT_FALSE(ops.unused || ops.readPixel);

    GVram* const surface = drawing.surface().get();
    const GRect rect{0, 0, 1, 1};
    const uint8_t rows[8] = {};
    GDrawHandle* const handle = drawing;
    ops.setPixel(handle, surface, 0, 1, 2, 3);
    ops.span(handle, surface, 0, 1, 2, 3, 2);
    ops.nextPixel();
    ops.coveragePixel(handle, surface, 0, 1, 2, 3, 4);
    ops.drawRect(handle, surface, &rect, 2, 3);
    ops.fillRect(handle, surface, &rect, 2, 3);
    ops.patternRect(handle, surface, &rect, 1, 2, 3, rows);
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(5, handle, surface, 0, 1, 2, 3), call(6, handle, surface, 0, 1, 2, 3, 2),
                     call(7), call(43, handle, surface, 0, 1, 2, 3, 4),
                     call(67, handle, surface, &rect, 2, 3), call(68, handle, surface, &rect, 2, 3),
                     call(70, handle, surface, &rect, 1, 2, 3, rows)}));
}

TEST_F(PixelOps, TheDeviceEntryIsSharedWhateverTheMode) {
    DeviceDrawing first(2, 2, 8);
    DeviceDrawing second(2, 2, 16, Against::End, 0, 2);
    GDSetDrawingMode(second, G_MODE_XOR);
    EXPECT_EQ(first->pixelOps, second->pixelOps);
    GDSetDrawingMode(second, 1000);
    EXPECT_EQ(first->pixelOps, second->pixelOps);
}

TEST_F(PixelOps, TheDeviceEntryIsFilledAnewWhenAModeIsSet) {
    DeviceDrawing drawing(2, 2);
    platform.remove({5, 67});
    EXPECT_NE(drawing->pixelOps->setPixel, nullptr);
    GDSetDrawingMode(drawing, G_MODE_OR);
    EXPECT_EQ(drawing->pixelOps->setPixel, nullptr);
    EXPECT_EQ(drawing->pixelOps->drawRect, nullptr);
    EXPECT_NE(drawing->pixelOps->span, nullptr);
}

TEST_F(PixelOps, OnlyTheLibrarysOwnMemoryEntriesHaveKernels) {
    Drawing drawing(2, 2, 8);
    DeviceDrawing device(2, 2, 8);
    const GPixelOps* const own = drawing->pixelOps;
    CopiedOps copy;
    EXPECT_NE(kernelsOf(own), nullptr);
    copy.attach(drawing);
    EXPECT_EQ(kernelsOf(drawing->pixelOps), nullptr);
    EXPECT_EQ(kernelsOf(device->pixelOps), nullptr);
    drawing->pixelOps = own;
    GDSetDrawingMode(drawing, 4);
    EXPECT_EQ(kernelsOf(drawing->pixelOps), nullptr);
}

} // namespace
