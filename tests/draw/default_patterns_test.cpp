// The dashes and fill patterns that a handle starts with.
#include "draw/draw_test.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

using namespace quarlo::test;

namespace {

/// Dashes 1 to 8: 64 steps, the least significant bit of each byte first.
const std::string kDashes[G_DASH_COUNT] = {
    "FF FF FF FF 00 00 00 00", "FF FF 00 00 FF FF 00 00", "FF 00 FF 00 FF 00 FF 00",
    "F0 F0 F0 F0 F0 F0 F0 F0", "CC CC CC CC CC CC CC CC", "AA AA AA AA AA AA AA AA",
    "FF AA FF 00 FF AA FF 00", "FF CC AA 00 AA CC FF 00",
};

/// Fill patterns 0 to 37: eight rows from the top, the most significant bit leftmost.
const std::string kFillPatterns[G_FILL_PATTERN_COUNT] = {
    "00 00 00 00 00 00 00 00", "FF FF FF FF FF FF FF FF", "EE DD BB 77 EE DD BB 77",
    "77 BB DD EE 77 BB DD EE", "38 70 E0 C1 83 07 0E 1C", "1C 0E 07 83 C1 E0 70 38",
    "11 22 44 88 11 22 44 88", "88 44 22 11 88 44 22 11", "01 02 04 08 10 20 40 80",
    "80 40 20 10 08 04 02 01", "AA AA AA AA AA AA AA AA", "FF 00 FF 00 FF 00 FF 00",
    "88 88 88 88 88 88 88 88", "FF 00 00 00 FF 00 00 00", "80 80 80 80 80 80 80 80",
    "FF 00 00 00 00 00 00 00", "AA 55 AA 55 AA 55 AA 55", "55 FF 55 FF 55 FF 55 FF",
    "FF 88 88 88 FF 88 88 88", "FF FF C0 C0 C0 C0 C0 C0", "FF 80 80 80 80 80 80 80",
    "81 42 24 18 18 24 42 81", "CC 00 33 00 CC 00 33 00", "11 11 44 44 11 11 44 44",
    "AA 00 55 00 AA 00 55 00", "AA 00 AA 00 AA 00 AA 00", "88 00 00 00 22 00 00 00",
    "88 00 00 00 88 00 00 00", "80 00 00 00 00 00 00 00", "08 14 22 41 80 00 00 00",
    "B1 30 03 1B D8 C0 0C 8D", "80 10 02 20 01 08 40 04", "FF 01 01 01 FF 10 10 10",
    "08 1C 22 C1 80 01 02 04", "C3 C3 C3 3C 3C 3C 3C C3", "00 08 14 2A 55 2A 14 08",
    "AA 00 80 00 88 00 80 00", "80 80 41 3E 08 08 14 E3",
};

std::string textOf(const uint8_t bytes[8]) {
    std::string text;
    for (int i = 0; i < 8; ++i) {
        char number[4];
        std::snprintf(number, sizeof number, "%s%02X", i == 0 ? "" : " ", bytes[i]);
        text += number;
    }
    return text;
}

using DefaultPatterns = HandleTest;

TEST_F(DefaultPatterns, TheDashesAreThere) {
    for (int row = 0; row < G_DASH_COUNT; ++row) {
        EXPECT_EQ(textOf(handle->dashes[row]), kDashes[row]) << "dash " << row + 1;
    }
}

TEST_F(DefaultPatterns, TheFillPatternsAreThere) {
    for (int row = 0; row < G_FILL_PATTERN_COUNT; ++row) {
        EXPECT_EQ(textOf(handle->fillPatterns[row]), kFillPatterns[row]) << "pattern " << row;
    }
}

TEST_F(DefaultPatterns, EachHandleHasItsOwn) {
    const uint8_t changed[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    GDDefinePenDash(handle.get(), 1, changed);
    GDDefineFillPattern(handle.get(), 5, changed);
    const Handle other = openHandle();
    EXPECT_EQ(textOf(other->dashes[0]), kDashes[0]);
    EXPECT_EQ(textOf(other->fillPatterns[5]), kFillPatterns[5]);
}

} // namespace
