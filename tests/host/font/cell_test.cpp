#include "font/cell.h"

#include <gtest/gtest.h>

namespace {

using gpi::Cell;
using Rows = std::vector<uint8_t>;

Cell ramp() {
    Cell cell(9, 2);
    for (int x = 0; x < 9; ++x) {
        cell.at(x, 0) = static_cast<uint8_t>(x * 31);
        cell.at(x, 1) = x % 2 != 0 ? 255 : 0;
    }
    return cell;
}

TEST(Cell, PacksRowsOfWholeBytes) {
    EXPECT_EQ(ramp().packed(1), (Rows{0x07, 0x80, 0x55, 0x00}));
    // 0 31 62 93 | 124 155 186 217 | 248 in thirds
    EXPECT_EQ(ramp().packed(2), (Rows{0x05, 0x6B, 0xC0, 0x33, 0x33, 0x00}));
    EXPECT_EQ(ramp().packed(4), (Rows{0x02, 0x45, 0x79, 0xBD, 0xF0, 0x0F, 0x0F, 0x0F, 0x0F, 0x00}));
}

TEST(Cell, EmboldensToTheRight) {
    Cell cell(4, 1);
    cell.at(1, 0) = 200;
    cell.at(3, 0) = 90;
    cell.embolden();
    EXPECT_EQ(cell.at(0, 0), 0);
    EXPECT_EQ(cell.at(1, 0), 200);
    EXPECT_EQ(cell.at(2, 0), 200);
    EXPECT_EQ(cell.at(3, 0), 90);
}

TEST(Cell, LevelsBecomeFifteenths) {
    EXPECT_EQ(gpi::fifteenths(1, 1), 15);
    EXPECT_EQ(gpi::fifteenths(1, 2), 5);
    EXPECT_EQ(gpi::fifteenths(3, 2), 15);
    EXPECT_EQ(gpi::fifteenths(7, 4), 7);
}

} // namespace
