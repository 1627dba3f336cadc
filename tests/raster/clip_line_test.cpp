#include "raster/clip_line.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <vector>

using namespace quarlo::test;

namespace {

/// x1, y1, x2, y2.
using Ends = std::vector<int>;

constexpr GRect kTen = {0, 0, 9, 9};

std::optional<Ends> clipped(int16_t x1, int16_t y1, int16_t x2, int16_t y2,
                            const GRect& rect = kTen) {
    GLine line{x1, y1, x2, y2};
    if (!quarlo::GDClipLine(line, rect)) {
        return std::nullopt;
    }
    return Ends{line.x1, line.y1, line.x2, line.y2};
}

TEST(ClipLine, InsideStaysAsItIs) {
    EXPECT_EQ(clipped(1, 2, 8, 3), (Ends{1, 2, 8, 3}));
    EXPECT_EQ(clipped(0, 9, 9, 0), (Ends{0, 9, 9, 0}));
}

TEST(ClipLine, APointIsVisibleOrNot) {
    EXPECT_EQ(clipped(9, 9, 9, 9), (Ends{9, 9, 9, 9}));
    EXPECT_EQ(clipped(10, 9, 10, 9), std::nullopt);
}

TEST(ClipLine, BeyondOneEdgeIsInvisible) {
    EXPECT_EQ(clipped(-1, 3, -5, 8), std::nullopt);
    EXPECT_EQ(clipped(3, -1, 8, -4), std::nullopt);
    EXPECT_EQ(clipped(10, 0, 12, 9), std::nullopt);
    EXPECT_EQ(clipped(0, 10, 9, 30), std::nullopt);
}

TEST(ClipLine, IsCutAtEachEdge) {
    EXPECT_EQ(clipped(-4, 5, 6, 5), (Ends{0, 5, 6, 5}));
    EXPECT_EQ(clipped(4, 5, 16, 5), (Ends{4, 5, 9, 5}));
    EXPECT_EQ(clipped(5, -4, 5, 6), (Ends{5, 0, 5, 6}));
    EXPECT_EQ(clipped(5, 4, 5, 16), (Ends{5, 4, 5, 9}));
    EXPECT_EQ(clipped(-3, -3, 30, 30), (Ends{0, 0, 9, 9}));
}

TEST(ClipLine, KeepsItsDirection) {
    EXPECT_EQ(clipped(6, 5, -4, 5), (Ends{6, 5, 0, 5}));
    EXPECT_EQ(clipped(16, 5, -4, 5), (Ends{9, 5, 0, 5}));
    EXPECT_EQ(clipped(30, 30, -3, -3), (Ends{9, 9, 0, 0}));
    EXPECT_EQ(clipped(5, 16, 5, 4), (Ends{5, 9, 5, 4}));
}

TEST(ClipLine, MultipliesFirstThenTruncates) {
    // Left at 0 + 7 x 10 / 20 = 3; then, ends swapped, right at 7 + (3 - 7) x (9 - 10) / (0 - 10),
    // of which the quotient 4 / -10 is 0.
    EXPECT_EQ(clipped(-10, 0, 10, 7), (Ends{0, 3, 9, 7}));
}

TEST(ClipLine, TruncatesTowardsZeroUpwardsToo) {
    // 0 + (-7) x 1 / 10, not -1 as rounding down would have it.
    EXPECT_EQ(clipped(-1, 0, 9, -7, {0, -20, 20, 20}), (Ends{0, 0, 9, -7}));
}

TEST(ClipLine, CutsTheSecondEndByTheFirstAsItIsThen) {
    // Left at y = 4 x 4 / 9 = 1; then below at x = 5 + (0 - 5) x (3 - 4) / (1 - 4) = 4.
    EXPECT_EQ(clipped(-4, 0, 5, 4, {0, 0, 9, 3}), (Ends{0, 1, 4, 3}));
}

TEST(ClipLine, MayPassACornerOutside) {
    EXPECT_EQ(clipped(-5, 4, 4, -5), std::nullopt);
    EXPECT_EQ(clipped(5, 14, 14, 5), std::nullopt);
}

TEST(ClipLine, ReachesARectangleOfOnePixel) {
    EXPECT_EQ(clipped(0, 0, 10, 10, {5, 5, 5, 5}), (Ends{5, 5, 5, 5}));
    EXPECT_EQ(clipped(0, 0, 10, 10, {5, 6, 5, 6}), std::nullopt);
}

TEST(ClipLine, HoldsAtTheLimitsOfCoordinates) {
    const GRect screen{0, 0, 99, 99};
    EXPECT_EQ(clipped(-32768, -32768, 32767, 32767, screen), (Ends{0, 0, 99, 99}));
    EXPECT_EQ(clipped(32767, 32767, -32768, -32768, screen), (Ends{99, 99, 0, 0}));
    EXPECT_EQ(clipped(-32768, 50, 32767, 50, screen), (Ends{0, 50, 99, 50}));
    const GRect everything{-32768, -32768, 32767, 32767};
    EXPECT_EQ(clipped(-32768, 32767, 32767, -32768, everything),
              (Ends{-32768, 32767, 32767, -32768}));
}

struct Cut {
    GLine line;
    GRect rect;
};

std::ostream& operator<<(std::ostream& out, const Cut& cut) {
    const auto& [line, rect] = cut;
    return out << '(' << line.x1 << ", " << line.y1 << ")-(" << line.x2 << ", " << line.y2
               << ") to (" << rect.left << ", " << rect.top << ", " << rect.right << ", "
               << rect.bottom << ')';
}

Cut makeCut(Random& random) {
    const int16_t left = random.coordinate(-20, 20);
    const int16_t top = random.coordinate(-20, 20);
    const auto right = static_cast<int16_t>(std::min(left + random.between(0, 60), 32767));
    const auto bottom = static_cast<int16_t>(std::min(top + random.between(0, 60), 32767));
    return {{random.coordinate(-50, 100), random.coordinate(-50, 100), random.coordinate(-50, 100),
             random.coordinate(-50, 100)},
            {left, top, right, bottom}};
}

bool holds(const GRect& rect, int x, int y) {
    return rect.left <= x && x <= rect.right && rect.top <= y && y <= rect.bottom;
}

/// Whether a point lies less than `pixels` from a line, measured along the shorter axis.
bool isOnLine(const GLine& line, int x, int y, int pixels) {
    const int64_t dx = line.x2 - line.x1;
    const int64_t dy = line.y2 - line.y1;
    const int64_t area = dx * (y - line.y1) - dy * (x - line.x1);
    return std::abs(area) <= pixels * std::max(std::abs(dx), std::abs(dy));
}

/// Both ends are cut at most twice, and each cut moves the line by less than a pixel.
std::string checkVisible(const Cut& cut, const GLine& result) {
    const GLine& line = cut.line;
    if (!holds(cut.rect, result.x1, result.y1) || !holds(cut.rect, result.x2, result.y2)) {
        return "an end lies outside";
    }
    if (!isOnLine(line, result.x1, result.y1, 4) || !isOnLine(line, result.x2, result.y2, 4)) {
        return "an end lies off the line";
    }
    const int64_t along = int64_t{line.x2 - line.x1} * (result.x2 - result.x1) +
                          int64_t{line.y2 - line.y1} * (result.y2 - result.y1);
    return along < 0 ? "the direction is turned" : "";
}

/// A line that crosses the middle of a rectangle of nine pixels or more a side must be seen.
std::string checkInvisible(const Cut& cut) {
    const auto& [line, rect] = cut;
    const bool large = rect.right - rect.left >= 8 && rect.bottom - rect.top >= 8;
    const int x = (rect.left + rect.right) / 2;
    const int y = (rect.top + rect.bottom) / 2;
    const bool spans = std::min(line.x1, line.x2) <= x && x <= std::max(line.x1, line.x2) &&
                       std::min(line.y1, line.y2) <= y && y <= std::max(line.y1, line.y2);
    return large && spans && isOnLine(line, x, y, 0) ? "a line through the middle is not seen" : "";
}

std::string checkCuts(const std::vector<Cut>& cuts) {
    for (const Cut& cut : cuts) {
        GLine result = cut.line;
        const std::string wrong =
            quarlo::GDClipLine(result, cut.rect) ? checkVisible(cut, result) : checkInvisible(cut);
        if (!wrong.empty()) {
            return wrong;
        }
    }
    return {};
}

TEST(ClipLine, LeavesAPartOfTheLineWithinTheRectangle) {
    forRandomCalls(2000, 20, makeCut, checkCuts);
}

} // namespace
