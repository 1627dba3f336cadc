// The pen: size, dash, join, position.
#include "draw/draw_test.h"

#include <quarlo/draw.h>

#include <gtest/gtest.h>

#include <algorithm>

using namespace quarlo::test;

namespace {

constexpr uint8_t kSteps[8] = {0x81, 2, 3, 4, 5, 6, 7, 0x18};

class Pen : public HandleTest {
  protected:
    /// Which row of dashes, or of fill patterns behind them, a dash number defines; -1 for none.
    int rowDefinedBy(int32_t number) {
        const Handle fresh = openHandle();
        GDDefinePenDash(fresh.get(), number, kSteps);
        int found = -1;
        for (int row = 0; row < G_DASH_COUNT + G_FILL_PATTERN_COUNT; ++row) {
            const uint8_t* const bytes = rowOf(*fresh, row);
            if (std::equal(bytes, bytes + 8, kSteps)) {
                EXPECT_EQ(found, -1) << "one row only";
                found = row;
            } else {
                EXPECT_TRUE(std::equal(bytes, bytes + 8, rowOf(*handle, row)));
            }
        }
        return found;
    }

  private:
    static const uint8_t* rowOf(const GDrawHandle& handle, int row) {
        return row < G_DASH_COUNT ? handle.dashes[row] : handle.fillPatterns[row - G_DASH_COUNT];
    }
};

TEST_F(Pen, ASizeBelowOneIsOne) {
    GDSetPenSize(handle.get(), 0, -3);
    EXPECT_EQ(handle->penWidth, 1);
    EXPECT_EQ(handle->penHeight, 1);
    GDSetPenSize(handle.get(), -32768, 1);
    EXPECT_EQ(handle->penWidth, 1);
    EXPECT_EQ(handle->penHeight, 1);
}

TEST_F(Pen, AnyOtherSizeIsKept) {
    GDSetPenSize(handle.get(), 2, 32767);
    EXPECT_EQ(handle->penWidth, 2);
    EXPECT_EQ(handle->penHeight, 32767);
}

TEST_F(Pen, DashNumbersAreCutTo16BitsAndNotChecked) {
    for (const int32_t number : {0, 8, 9, -1, 0x12345, 0x8000, -32769}) {
        GDSetPenDash(handle.get(), number);
        EXPECT_EQ(handle->penDash, static_cast<int16_t>(number)) << number;
    }
}

TEST_F(Pen, ChoosingADashLeavesThePhase) {
    handle->dashPhase = 17;
    GDSetPenDash(handle.get(), 3);
    EXPECT_EQ(handle->dashPhase, 17);
}

TEST_F(Pen, JoinsAreCutTo16BitsAndNotChecked) {
    for (const int32_t join : {0, 1, 2, 99, -1, 0x12345}) {
        GDSetPenJoin(handle.get(), join);
        EXPECT_EQ(handle->penJoin, static_cast<uint16_t>(join)) << join;
    }
}

TEST_F(Pen, DashesOneToEightAreDefinedInOrder) {
    for (int32_t number = 1; number <= 8; ++number) {
        EXPECT_EQ(rowDefinedBy(number), number - 1);
    }
}

TEST_F(Pen, DashNineDefinesTheFirstFillPattern) {
    EXPECT_EQ(rowDefinedBy(9), G_DASH_COUNT);
}

TEST_F(Pen, FurtherDashesCountModuloNine) {
    EXPECT_EQ(rowDefinedBy(10), 0);
    EXPECT_EQ(rowDefinedBy(17), 7);
    EXPECT_EQ(rowDefinedBy(18), G_DASH_COUNT);
    EXPECT_EQ(rowDefinedBy(0x7FFFFFFF), (0x7FFFFFFF - 1) % 9);
}

TEST_F(Pen, ADashBelowOneDefinesNothing) {
    EXPECT_EQ(rowDefinedBy(0), -1);
    EXPECT_EQ(rowDefinedBy(-1), -1);
    EXPECT_EQ(rowDefinedBy(-9), -1);
    EXPECT_EQ(rowDefinedBy(-0x7FFFFFFF - 1), -1);
}

TEST_F(Pen, MovesToAnyPlace) {
    GDMoveTo(handle.get(), -32768, 32767);
    EXPECT_EQ(handle->penPos, (GPoint{-32768, 32767}));
    GDMoveTo(handle.get(), 3, 4);
    EXPECT_EQ(handle->penPos, (GPoint{3, 4}));
}

} // namespace
