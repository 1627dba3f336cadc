// The pixel operations that a draw handle draws by.
#include "draw/draw_test.h"
#include "draw/pixel_entry.h"

#include "raster/pixel_ops.h"

#include <gtest/gtest.h>

#include <initializer_list>

using namespace quarlo;
using namespace quarlo::test;

namespace {

class SelectOperations : public HandleTest {
  protected:
    GPixelOps* deviceEntry() { return &deviceOps; }
};

TEST_F(SelectOperations, TheDeviceEntryComesFromThePlatform) {
    EXPECT_EQ(handle->pixelOps, deviceEntry());
    const auto slot = [](auto* operation) { return reinterpret_cast<GPIFunction>(operation); };
    EXPECT_EQ(slot(deviceOps.setPixel), GPIGetService(5));
    EXPECT_EQ(slot(deviceOps.span), GPIGetService(6));
    EXPECT_EQ(slot(deviceOps.nextPixel), GPIGetService(7));
    EXPECT_EQ(slot(deviceOps.coveragePixel), GPIGetService(43));
    EXPECT_EQ(slot(deviceOps.drawRect), GPIGetService(67));
    EXPECT_EQ(slot(deviceOps.fillRect), GPIGetService(68));
    EXPECT_EQ(slot(deviceOps.patternRect), GPIGetService(70));
}

TEST_F(SelectOperations, AnOperationThatThePlatformLacksStaysEmpty) {
    platform.remove({6, 43, 67, 70});
    GDSetDrawingMode(handle.get(), G_MODE_COPY);
    EXPECT_NE(deviceOps.setPixel, nullptr);
    EXPECT_EQ(deviceOps.span, nullptr);
    EXPECT_NE(deviceOps.nextPixel, nullptr);
    EXPECT_EQ(deviceOps.coveragePixel, nullptr);
    EXPECT_EQ(deviceOps.drawRect, nullptr);
    EXPECT_NE(deviceOps.fillRect, nullptr);
    EXPECT_EQ(deviceOps.patternRect, nullptr);
}

TEST_F(SelectOperations, TwoSlotsOfTheDeviceEntryAreLeftAsTheyAre) {
    const auto noOperation = [] {};
    const auto read = [](GDrawHandle*, GVram*, int16_t, int16_t) -> uint32_t { return 0; };
    const GPixelOps before = deviceOps;
    deviceOps.unused = noOperation;
    deviceOps.readPixel = read;
    GDSetDrawingMode(handle.get(), G_MODE_OR);
    EXPECT_EQ(deviceOps.unused, +noOperation);
    EXPECT_EQ(deviceOps.readPixel, +read);
    deviceOps = before;
}

TEST_F(SelectOperations, EveryHandleOnADeviceSurfaceSharesItsEntry) {
    GuardedSurface second(20, 10, 24);
    platform.addDisplay(1, second);
    const Handle other = openHandle();
    EXPECT_EQ(GDSetVram(other.get(), 1, nullptr), 1);
    GDSetDrawingMode(other.get(), G_MODE_XOR);
    EXPECT_EQ(other->pixelOps, handle->pixelOps);
}

TEST_F(SelectOperations, EachFormatAndModeHasItsEntry) {
    for (const int16_t bits : kDepths) {
        for (int16_t mode = G_MODE_COPY; mode <= G_MODE_XOR; ++mode) {
            const GPixelOps* const entry = entryFor(bits, mode);
            EXPECT_NE(entry->setPixel, nullptr);
            EXPECT_NE(entry->span, nullptr);
            EXPECT_NE(entry->nextPixel, nullptr);
            EXPECT_EQ(entry->unused, nullptr);
            EXPECT_EQ(entry->coveragePixel, nullptr);
            EXPECT_EQ(entry->drawRect, nullptr);
            EXPECT_EQ(entry->fillRect, nullptr);
            EXPECT_EQ(entry->patternRect, nullptr);
            for (const int16_t otherBits : kDepths) {
                for (int16_t other = G_MODE_COPY; other <= G_MODE_XOR; ++other) {
                    EXPECT_EQ(entryFor(otherBits, other) == entry,
                              otherBits == bits && other == mode);
                }
            }
        }
    }
}

TEST_F(SelectOperations, AWildModeReachesTheEntryThatItsIndexNames) {
    const GPixelOps* const empty = entryFor(8, 4);
    EXPECT_EQ(bytesOf(*empty), bytesOf(GPixelOps{}));
    for (int mode = -32768; mode < 32768; ++mode) {
        const int index = mode + 8 * 4;
        const bool named = index >= 32 && index < 128 && index % 32 < 4;
        const GPixelOps* const expected =
            named ? entryFor(static_cast<int16_t>(index / 32 * 8), static_cast<int16_t>(index % 32))
                  : empty;
        ASSERT_EQ(entryFor(8, static_cast<int16_t>(mode)), expected) << mode;
    }
}

TEST_F(SelectOperations, AWildDepthReachesTheEmptyEntry) {
    const GPixelOps* const empty = entryFor(8, 4);
    for (const int16_t bits :
         std::initializer_list<int16_t>{-32768, -8, 0, 4, 32, 40, 256, 32767}) {
        EXPECT_EQ(entryFor(bits, G_MODE_COPY), empty) << bits;
    }
}

} // namespace
