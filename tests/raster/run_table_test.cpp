#include "raster/run_table.h"

#include "raster/drawing.h"
#include "raster/polygon.h"

using namespace quarlo;
using namespace quarlo::test;

namespace {

class RunTableTest : public RasterTest {};

TEST_F(RunTableTest, FillsFourRunsOfARowAndLosesTheFifth) {
    Drawing drawing(12, 3);
    const Canvas canvas(*drawing);
    RunTable table(canvas, 0, 2);
    ASSERT_TRUE(table.isReady());
    for (const int32_t left : {0, 2, 5, 7, 10}) {
        table.add(1, left, left);
    }
    table.add(2, 3, 6);
    table.fill(1, 1, kSolidPattern, G_MODE_COPY);
    EXPECT_TRUE(shows(*drawing.surface(), {"............", //
                                           "#.#..#.#....", //
                                           "...####....."}));
}

TEST_F(RunTableTest, CutsRunsToTheClipRectangle) {
    Drawing drawing(8, 5);
    setClip(drawing, 2, 1, 5, 3);
    const Canvas canvas(*drawing);
    RunTable table(canvas, -7, 20);
    ASSERT_TRUE(table.isReady());
    EXPECT_EQ(table.firstRow(), 1);
    EXPECT_EQ(table.lastRow(), 3);
    EXPECT_FALSE(table.holds(0));
    EXPECT_TRUE(table.holds(1));
    EXPECT_TRUE(table.holds(3));
    EXPECT_FALSE(table.holds(4));
    table.add(1, -1000, 2);
    table.add(1, 5, 1000);
    table.add(2, 6, 9);
    table.add(2, 0, 1);
    table.add(3, 0, 7);
    table.fill(1, 1, kSolidPattern, G_MODE_COPY);
    EXPECT_TRUE(shows(*drawing.surface(), {"........", //
                                           "..#..#..", //
                                           "........", //
                                           "..####..", //
                                           "........"}));
}

TEST_F(RunTableTest, OfRowsOutOfSightTakesNoMemory) {
    Drawing drawing(8, 5);
    const Canvas canvas(*drawing);
    EXPECT_FALSE(RunTable(canvas, 5, 9).isReady());
    EXPECT_FALSE(RunTable(canvas, -9, -1).isReady());
    EXPECT_EQ(platform.count(41), 0U);
}

} // namespace
