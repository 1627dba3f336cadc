// Block transfers within one surface.
#include "draw/transfer_fixture.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

using namespace quarlo::test;

namespace {

/// Sixteen bits a pixel, in which steps of a pixel are not steps of a byte.
class Within : public Transfer {
  protected:
    Within() { paint(surface, {"12345", "67891", "23456", "78912"}); }

    void move(int16_t sourceX, int16_t sourceY, int16_t width, int16_t height, int16_t x, int16_t y,
              int32_t mode = G_MODE_COPY) {
        copy(surface.get(), sourceX, sourceY, width, height, surface.get(), x, y, mode);
    }

    GuardedSurface surface{5, 4, 16};
};

TEST_F(Within, OneRowDownIsLikeThroughABuffer) {
    move(0, 0, 5, 3, 0, 1);
    EXPECT_TRUE(shows(*surface, {"12345", "12345", "67891", "23456"}, kDigits));
}

TEST_F(Within, OneRowUp) {
    move(0, 1, 5, 3, 0, 0);
    EXPECT_TRUE(shows(*surface, {"67891", "23456", "78912", "78912"}, kDigits));
}

TEST_F(Within, OneColumnRight) {
    move(0, 0, 4, 4, 1, 0);
    EXPECT_TRUE(shows(*surface, {"11234", "66789", "22345", "77891"}, kDigits));
}

TEST_F(Within, OneColumnLeft) {
    move(1, 0, 4, 4, 0, 0);
    EXPECT_TRUE(shows(*surface, {"23455", "78911", "34566", "89122"}, kDigits));
}

TEST_F(Within, AcrossBothWays) {
    move(0, 0, 3, 3, 1, 1);
    EXPECT_TRUE(shows(*surface, {"12345", "61231", "26786", "72342"}, kDigits));
}

TEST_F(Within, TheSamePlaceCopiesNothingInAnyMode) {
    for (const int32_t mode : {G_MODE_COPY, G_MODE_AND, G_MODE_OR, G_MODE_XOR}) {
        move(1, 1, 3, 2, 1, 1, mode);
    }
    EXPECT_TRUE(shows(*surface, {"12345", "67891", "23456", "78912"}, kDigits));
}

TEST_F(Within, CombiningReadsWhatWasThereBefore) {
    const std::vector<std::string> rows = {"12412", "21142", "11111", "4...."};
    paint(surface, rows);
    move(0, 0, 4, 1, 1, 0, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"13653", "21142", "11111", "4...."}, kDigits)) << "right";
    paint(surface, rows);
    move(1, 0, 4, 1, 0, 0, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"36532", "21142", "11111", "4...."}, kDigits)) << "left";
    paint(surface, rows);
    move(0, 0, 5, 3, 0, 1, G_MODE_XOR);
    EXPECT_TRUE(shows(*surface, {"12412", "3355.", "3..53", "51111"}, kDigits)) << "down";
}

} // namespace
