#include "support/records.h"

#include <quarlo/line.h>

#include <gtest/gtest.h>

namespace {

TEST(GLSetLine, KeepsTheOrderOfTheEnds) {
    GLine line{};
    GLSetLine(&line, 10, 5, 0, 0);
    EXPECT_EQ(line, (GLine{10, 5, 0, 0}));
}

TEST(GLGetLine, CopiesTheFieldsOut) {
    const GLine line = {10, 5, -1, -32768};
    GLine out{};
    GLGetLine(&line, &out.x1, &out.y1, &out.x2, &out.y2);
    EXPECT_EQ(out, line);
}

TEST(GLDuplicateLine, CopiesFromFirstToSecond) {
    const GLine source = {10, 5, 0, 0};
    GLine destination = {1, 1, 1, 1};
    GLDuplicateLine(&source, &destination);
    EXPECT_EQ(destination, source);
}

TEST(GLOffsetLine, KeepsTheOrderAndWraps) {
    GLine line = {10, 5, 32767, 0};
    GLOffsetLine(&line, 1, -6);
    EXPECT_EQ(line, (GLine{11, -1, -32768, -6}));
}

TEST(GLMapLine, KeepsTheOrder) {
    const GRect source = {0, 0, 99, 99};
    const GRect destination = {0, 0, 639, 479};
    GLine line = {99, 99, 0, 0};
    GLMapLine(&line, &source, &destination);
    EXPECT_EQ(line, (GLine{639, 479, 0, 0}));
}

} // namespace
