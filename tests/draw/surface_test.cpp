// Memory surfaces: made, refused, freed.
#include "draw/draw_test.h"

#include "memory/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr int64_t kRecordSize = sizeof(GVram);

/// A request for `size` bytes of the library's own memory.
ServiceCall request(int64_t size) {
    return call(41, 1, 0, size);
}

ServiceCall giveBack(const void* block) {
    return call(42, 1, 0, block);
}

GVram descriptor(int16_t width, int16_t height, int16_t bitsPerPixel) {
    GVram record{};
    record.width = width;
    record.height = height;
    record.bitsPerPixel = bitsPerPixel;
    record.colorType = G_COLOR_DIRECT;
    return record;
}

GVram paletteDescriptor(std::vector<uint32_t>& palette) {
    GVram record = descriptor(4, 3, 8);
    record.colorType = G_COLOR_PALETTE;
    record.paletteCount = static_cast<uint16_t>(palette.size());
    record.palette = palette.data();
    return record;
}

bool isBlack(const GVram& surface) {
    const int size = surface.height * surface.bytesPerLine;
    return std::all_of(surface.pixels, surface.pixels + size,
                       [](uint8_t byte) { return byte == 0; });
}

class CreateSurface : public testing::Test {
  protected:
    RecordingPlatform platform;
};

/// Both ways to make a surface, which refuse the same sizes and depths.
class EitherWay : public CreateSurface, public testing::WithParamInterface<bool> {
  protected:
    Surface create(int width, int height, int bitsPerPixel) {
        const auto w = static_cast<int16_t>(width);
        const auto h = static_cast<int16_t>(height);
        const auto bits = static_cast<int16_t>(bitsPerPixel);
        const GVram record = descriptor(w, h, bits);
        return Surface(GetParam() ? GDCreateVram(&record) : GDCreateVVram(w, h, bits));
    }

    void expectRefused(int width, int height, int bitsPerPixel) {
        EXPECT_EQ(create(width, height, bitsPerPixel), nullptr)
            << width << " x " << height << " x " << bitsPerPixel;
        EXPECT_EQ(platform.blocksInUse(), 0U);
    }
};

INSTANTIATE_TEST_SUITE_P(CreateSurface, EitherWay, testing::Bool(),
                         [](const auto& way) { return way.param ? "Descriptor" : "Plain"; });

TEST_P(EitherWay, RowsAreNotPadded) {
    const Surface surface = create(100, 10, 24);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->bytesPerLine, 300);
    EXPECT_EQ(platform.calls, (std::vector{request(kRecordSize), request(3000)}));
    EXPECT_TRUE(isBlack(*surface));
}

TEST_P(EitherWay, EveryFieldIsSet) {
    const Surface surface = create(7, 5, 16);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->id, G_MEMORY_SURFACE);
    EXPECT_EQ(surface->width, 7);
    EXPECT_EQ(surface->height, 5);
    EXPECT_EQ(surface->bitsPerPixel, 16);
    EXPECT_EQ(surface->bytesPerLine, 14);
    EXPECT_NE(surface->pixels, nullptr);
    EXPECT_EQ(surface->reserved, 0U);
    EXPECT_EQ(surface->colorType, G_COLOR_DIRECT);
    EXPECT_EQ(surface->paletteCount, 0);
    EXPECT_EQ(surface->palette, nullptr);
    EXPECT_EQ(surface->bounds, (GRect{0, 0, 6, 4}));
    EXPECT_EQ(surface->drawable, &surface->bounds);
}

TEST_P(EitherWay, TheLargestSurfaceIs2560Square) {
    const Surface surface = create(2560, 2560, 8);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(platform.calls.back(), request(2560 * 2560));
    EXPECT_TRUE(isBlack(*surface));
}

TEST_P(EitherWay, TheWidestRowsHave7680Bytes) {
    const Surface surface = create(2560, 1, 24);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->bytesPerLine, 7680);
}

TEST_P(EitherWay, OnePixelMoreIsRefused) {
    expectRefused(2561, 2560, 8);
    expectRefused(2560, 2561, 8);
    expectRefused(32767, 1, 8);
    expectRefused(1, 32767, 8);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_P(EitherWay, NoPixelsAreRefused) {
    expectRefused(0, 10, 8);
    expectRefused(10, 0, 8);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_P(EitherWay, OtherDepthsAreRefused) {
    for (int bits = -32768; bits < 32768; ++bits) {
        if (bits != 8 && bits != 16 && bits != 24) {
            ASSERT_EQ(create(1, 1, bits), nullptr) << bits;
        }
    }
    EXPECT_TRUE(platform.calls.empty());
}

TEST_P(EitherWay, ANegativeExtentPassesTheBoundAndFailsByItsSize) {
    expectRefused(-32768, 10, 8);
    expectRefused(10, -1, 24);
    EXPECT_EQ(platform.callsOf(41), (std::vector{request(kRecordSize), request(-327680),
                                                 request(kRecordSize), request(-30)}));
}

TEST_P(EitherWay, NegativeExtentsWhosePixelsHaveASizeMakeASurface) {
    const Surface surface = create(-2, -3, 16);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->width, -2);
    EXPECT_EQ(surface->height, -3);
    EXPECT_EQ(surface->bytesPerLine, -4);
    EXPECT_EQ(surface->bounds, (GRect{0, 0, -3, -4}));
    EXPECT_EQ(platform.calls.back(), request(12));
}

TEST_P(EitherWay, BytesPerLineAreCutTo16Bits) {
    const Surface surface = create(-21845, 5, 24);
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->bytesPerLine, 1);
    EXPECT_EQ(platform.calls.back(), request(5));
}

TEST_P(EitherWay, ABlockGrantedForNoBytesIsGivenBack) {
    platform.grantEmptyBlocks(true);
    expectRefused(-1, 10, 8);
    EXPECT_EQ(platform.count(41), 2U);
    EXPECT_EQ(platform.count(42), 2U);
}

TEST_P(EitherWay, ASurfaceWithoutMemoryIsNone) {
    failEachAllocation(platform, [&] {
        const Surface surface = create(30, 20, 16);
        EXPECT_EQ(surface == nullptr, platform.allocationFailed());
        EXPECT_EQ(platform.blocksInUse(), surface == nullptr ? 0U : 2U);
    });
}

TEST_P(EitherWay, APlatformWithoutMemoryMakesNone) {
    platform.remove({41});
    expectRefused(1, 1, 8);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(CreateSurface, ThePlainOneHasTheUsualMasks) {
    struct Usual {
        int16_t bitsPerPixel;
        uint32_t red, green, blue;
    };
    for (const auto& [bits, red, green, blue] :
         {Usual{8, 224, 28, 3}, Usual{16, 0x7C00, 0x3E0, 0x1F},
          Usual{24, 0xFF, 0xFF00, 0xFF0000}}) {
        const Surface surface = makeSurface(1, 1, bits);
        ASSERT_NE(surface, nullptr);
        EXPECT_EQ(surface->colorType, G_COLOR_DIRECT);
        EXPECT_EQ(surface->redMask, red) << bits;
        EXPECT_EQ(surface->greenMask, green) << bits;
        EXPECT_EQ(surface->blueMask, blue) << bits;
    }
}

TEST_F(CreateSurface, ADescriptorLendsItsColours) {
    GVram record = descriptor(3, 2, 16);
    record.colorType = 5;
    record.redMask = 0xF800;
    record.greenMask = 0x7E0;
    record.blueMask = 0xFFFFFFFF;
    const Surface surface(GDCreateVram(&record));
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->colorType, 5);
    EXPECT_EQ(surface->redMask, 0xF800U);
    EXPECT_EQ(surface->greenMask, 0x7E0U);
    EXPECT_EQ(surface->blueMask, 0xFFFFFFFFU);
}

TEST_F(CreateSurface, NothingElseOfADescriptorIsRead) {
    GVram record = descriptor(3, 2, 16);
    record.id = 7;
    record.bytesPerLine = 99;
    record.pixels = fromWord<uint8_t*>(1);
    record.reserved = 0xFFFFFFFF;
    record.paletteCount = 3;
    record.palette = fromWord<uint32_t*>(1);
    record.bounds = {9, 9, 9, 9};
    record.drawable = fromWord<GRect*>(1);
    const Surface surface(GDCreateVram(&record));
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->id, G_MEMORY_SURFACE);
    EXPECT_EQ(surface->bytesPerLine, 6);
    EXPECT_EQ(surface->reserved, 0U);
    EXPECT_EQ(surface->paletteCount, 0);
    EXPECT_EQ(surface->palette, nullptr);
    EXPECT_EQ(surface->bounds, (GRect{0, 0, 2, 1}));
    EXPECT_EQ(surface->drawable, &surface->bounds);
    EXPECT_TRUE(isBlack(*surface));
}

TEST_F(CreateSurface, WithoutADescriptorThereIsNone) {
    EXPECT_EQ(GDCreateVram(nullptr), nullptr);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(CreateSurface, APaletteIsCopied) {
    std::vector<uint32_t> palette = {0x112233, 0xFFFFFFFF, 0};
    const GVram record = paletteDescriptor(palette);
    const Surface surface(GDCreateVram(&record));
    ASSERT_NE(surface, nullptr);
    ASSERT_EQ(surface->paletteCount, 3);
    ASSERT_NE(surface->palette, palette.data());
    EXPECT_EQ(platform.calls.back(), request(12));
    const std::vector<uint32_t> given = std::exchange(palette, {9, 9, 9});
    EXPECT_EQ(std::vector<uint32_t>(surface->palette, surface->palette + 3), given);
}

TEST_F(CreateSurface, APaletteHasUpTo65535Entries) {
    std::vector<uint32_t> palette(65535, 0xABCDEF);
    const GVram record = paletteDescriptor(palette);
    const Surface surface(GDCreateVram(&record));
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->paletteCount, 65535);
    EXPECT_EQ(surface->palette[65534], 0xABCDEFU);
    EXPECT_EQ(platform.calls.back(), request(262140));
}

TEST_F(CreateSurface, APaletteSurfaceOfAnyDepthMayHaveOne) {
    std::vector<uint32_t> palette = {1, 2};
    GVram record = paletteDescriptor(palette);
    record.bitsPerPixel = 24;
    const Surface surface(GDCreateVram(&record));
    ASSERT_NE(surface, nullptr);
    EXPECT_EQ(surface->bytesPerLine, 12);
}

TEST_F(CreateSurface, APaletteSurfaceWithoutEntriesIsRefused) {
    std::vector<uint32_t> palette = {1, 2, 3};
    GVram record = paletteDescriptor(palette);
    record.paletteCount = 0;
    EXPECT_EQ(GDCreateVram(&record), nullptr);
    EXPECT_EQ(platform.blocksInUse(), 0U);
}

TEST_F(CreateSurface, APaletteSurfaceWithoutAPaletteIsRefused) {
    std::vector<uint32_t> palette = {1, 2, 3};
    GVram record = paletteDescriptor(palette);
    record.palette = nullptr;
    EXPECT_EQ(GDCreateVram(&record), nullptr);
    EXPECT_EQ(platform.blocksInUse(), 0U);
}

TEST_F(CreateSurface, APaletteSurfaceWithoutMemoryIsNone) {
    std::vector<uint32_t> palette = {1, 2, 3};
    const GVram record = paletteDescriptor(palette);
    failEachAllocation(platform, [&] {
        const Surface surface(GDCreateVram(&record));
        EXPECT_EQ(surface == nullptr, platform.allocationFailed());
        EXPECT_EQ(platform.blocksInUse(), surface == nullptr ? 0U : 3U);
    });
}

class DeleteSurfaceTest : public DrawTest {
  protected:
    /// Frees answer 100, 101 and so on.
    void numberFrees() {
        platform.serve<42>([this](int32_t, uint32_t, void* block) {
            freed_.push_back(block);
            return 99 + static_cast<int32_t>(freed_.size());
        });
    }

    std::vector<void*> freed_;
};

TEST_F(DeleteSurfaceTest, NoSurfaceGivesZero) {
    EXPECT_EQ(GDDeleteVram(nullptr), 0);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(DeleteSurfaceTest, ADeviceSurfaceIsLeftAloneAndItsNumberReturned) {
    EXPECT_EQ(GDDeleteVram(display.get()), 0);
    display->id = 7;
    EXPECT_EQ(GDDeleteVram(display.get()), 7);
    display->id = -2;
    EXPECT_EQ(GDDeleteVram(display.get()), -2);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(DeleteSurfaceTest, PaletteGoesFirstThenPixelsThenTheRecord) {
    std::vector<uint32_t> palette = {1, 2, 3};
    const GVram record = paletteDescriptor(palette);
    GVram* const surface = GDCreateVram(&record);
    ASSERT_NE(surface, nullptr);
    const std::vector expected = {giveBack(surface->palette), giveBack(surface->pixels),
                                  giveBack(surface)};
    platform.forget();
    GDDeleteVram(surface);
    EXPECT_EQ(platform.calls, expected);
}

TEST_F(DeleteSurfaceTest, WhatASurfaceLacksIsNotFreed) {
    GVram* const surface = GDCreateVVram(4, 3, 8);
    ASSERT_NE(surface, nullptr);
    GMMemoryFree(kLibrarySpace, 0, std::exchange(surface->pixels, nullptr));
    platform.forget();
    GDDeleteVram(surface);
    EXPECT_EQ(platform.calls, std::vector{giveBack(surface)});
}

TEST_F(DeleteSurfaceTest, TheLastFreeAnswers) {
    GVram record{};
    uint8_t pixels[1];
    record.id = G_MEMORY_SURFACE;
    record.pixels = pixels;
    numberFrees();
    EXPECT_EQ(GDDeleteVram(&record), 101);
    EXPECT_EQ(freed_, (std::vector<void*>{pixels, &record}));
}

TEST_F(DeleteSurfaceTest, APlatformThatFreesNothingGivesZero) {
    GVram record{};
    record.id = G_MEMORY_SURFACE;
    platform.remove({42});
    EXPECT_EQ(GDDeleteVram(&record), 0);
}

TEST_F(HandleTest, AHandleKnowsItsSurface) {
    EXPECT_EQ(GDGetVram(handle.get()), display.get());
    EXPECT_EQ(GDGetVram(nullptr), nullptr);
}

class ChangeVirtualVram : public CreateSurface {};

TEST_F(ChangeVirtualVram, PassesItsArgumentsOn) {
    platform.answer(119, 77);
    EXPECT_EQ(GDChangeVirtualVram(5, GWord{0} - 1), 77U);
    EXPECT_EQ(platform.calls, std::vector{call(119, 5, GWord{0} - 1)});
}

TEST_F(ChangeVirtualVram, AsksForItsServiceWhileItIsMissing) {
    platform.remove({119});
    EXPECT_EQ(GDChangeVirtualVram(1, 2), 0U);
    EXPECT_EQ(GDChangeVirtualVram(1, 2), 0U);
    EXPECT_EQ(platform.requests, (std::vector{119, 119}));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(ChangeVirtualVram, FindsAServiceThatTurnsUpLate) {
    platform.remove({119});
    GDChangeVirtualVram(1, 2);
    platform.restore(119);
    EXPECT_EQ(GDChangeVirtualVram(3, 4), 1U);
    EXPECT_EQ(GDChangeVirtualVram(5, 6), 1U);
    EXPECT_EQ(platform.requests, (std::vector{119, 119}));
    EXPECT_EQ(platform.calls, (std::vector{call(119, 3, 4), call(119, 5, 6)}));
}

} // namespace
