// What GDSetTableEdge() puts between the two ordinary points of a run.
#include <quarlo/draw.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

struct Shape {
    GPoint run[4];
    int16_t columns[5];
};

const int16_t* tableOf(const GPoint& reference) {
    if constexpr (sizeof(void*) == 4) {
        uintptr_t address = 0;
        std::memcpy(&address, &reference, sizeof reference);
        return reinterpret_cast<const int16_t*>(address);
    }
    int32_t distance = 0;
    std::memcpy(&distance, &reference, sizeof reference);
    const auto* place = reinterpret_cast<const unsigned char*>(&reference) + distance;
    return reinterpret_cast<const int16_t*>(place);
}

TEST(TableEdge, LeavesTheOrdinaryPointsAndMarksTheRun) {
    Shape shape = {{{7, 10}, {1, 1}, {1, 1}, {9, 14}}, {}};
    ASSERT_EQ(GDSetTableEdge(shape.run, shape.columns, 0), 1);
    EXPECT_EQ(shape.run[0].x, 7);
    EXPECT_EQ(shape.run[0].y, 10);
    EXPECT_EQ(shape.run[1].x, G_TABLE_EDGE);
    EXPECT_EQ(shape.run[3].x, 9);
    EXPECT_EQ(shape.run[3].y, 14);
    EXPECT_EQ(tableOf(shape.run[2]), shape.columns);
}

TEST(TableEdge, NamesTheRowThatTheTableStartsWith) {
    Shape down = {{{0, 10}, {}, {}, {0, 14}}, {}};
    GDSetTableEdge(down.run, down.columns, 0);
    EXPECT_EQ(down.run[1].y, 10);
    GDSetTableEdge(down.run, down.columns, 1);
    EXPECT_EQ(down.run[1].y, 14);

    Shape up = {{{0, 14}, {}, {}, {0, 10}}, {}};
    GDSetTableEdge(up.run, up.columns, 0);
    EXPECT_EQ(up.run[1].y, 10);
    GDSetTableEdge(up.run, up.columns, 1);
    EXPECT_EQ(up.run[1].y, 14);
}

TEST(TableEdge, ReachesATableBeforeTheRun) {
    struct {
        int16_t columns[5];
        GPoint run[4];
    } shape = {{}, {{0, 0}, {}, {}, {0, 4}}};
    ASSERT_EQ(GDSetTableEdge(shape.run, shape.columns, 0), 1);
    EXPECT_EQ(tableOf(shape.run[2]), shape.columns);
}

#if UINTPTR_MAX > UINT32_MAX
TEST(TableEdge, RefusesATableThatLiesTooFarAway) {
    Shape shape = {{{0, 0}, {3, 4}, {5, 6}, {0, 4}}, {}};
    const uintptr_t place = reinterpret_cast<uintptr_t>(&shape.run[2]);
    const uintptr_t twoGigabytes = uintptr_t{1} << 31;
    const auto at = [](uintptr_t address) { return reinterpret_cast<const int16_t*>(address); };
    EXPECT_EQ(GDSetTableEdge(shape.run, at(place + twoGigabytes), 0), 0);
    EXPECT_EQ(GDSetTableEdge(shape.run, at(place - twoGigabytes - 2), 0), 0);
    EXPECT_EQ(shape.run[1].x, 3);
    EXPECT_EQ(shape.run[2].x, 5);
    EXPECT_EQ(GDSetTableEdge(shape.run, at(place + twoGigabytes - 2), 0), 1);
    EXPECT_EQ(GDSetTableEdge(shape.run, at(place - twoGigabytes), 0), 1);
}
#endif

} // namespace
