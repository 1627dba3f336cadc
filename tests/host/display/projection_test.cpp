#include "display/projection.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace gpi;
using quarlo::test::Random;
using quarlo::test::testSeed;

/// A frame of letters, and a screen as rows of what it shows; '.' is black.
using Rows = std::vector<std::string>;

Rows shown(const Rows& frame, const View& view, Size screen) {
    const Size size{static_cast<int>(frame[0].size()), static_cast<int>(frame.size())};
    std::vector<uint32_t> rgb;
    for (const std::string& row : frame) {
        rgb.insert(rgb.end(), row.begin(), row.end());
    }
    const Projection projection(view, size, screen);
    Rows rows;
    std::vector<uint32_t> words(static_cast<size_t>(screen.width));
    for (int y = 0; y < screen.height; ++y) {
        projection.copyRow(rgb, y, 0, screen.width, words.data());
        std::string row;
        for (const uint32_t word : words) {
            row += word != 0 ? static_cast<char>(word) : '.';
        }
        rows.push_back(row);
    }
    return rows;
}

const Rows kLetters = {"ABCD", "EFGH", "IJKL"};

TEST(Projection, OntoAScreenOfTheFramesSizeIsTheFrame) {
    EXPECT_EQ(shown(kLetters, View(), {4, 3}), kLetters);
}

TEST(Projection, StandsInTheMiddleOfALargerScreen) {
    EXPECT_EQ(shown(kLetters, View(), {7, 5}),
              (Rows{".......", ".ABCD..", ".EFGH..", ".IJKL..", "......."}));
}

TEST(Projection, IsEnlargedByWholeFactors) {
    EXPECT_EQ(shown({"AB"}, View(), {5, 3}), (Rows{"AABB.", "AABB.", "....."}));
}

TEST(Projection, IsMadeSmallerWhereTheFrameDoesNotFit) {
    EXPECT_EQ(shown({"ABCDEF", "GHIJKL"}, View(), {3, 3}), (Rows{"...", "ACE", "..."}));
}

TEST(Projection, ShowsThePartThatTheViewNames) {
    EXPECT_EQ(shown(kLetters, View{2, 3, 1, 2}, {4, 3}), (Rows{"JJKK", "JJKK", "JJKK"}));
}

TEST(Projection, LeavesBlackWhatTheZoomDoesNotFill) {
    EXPECT_EQ(shown(kLetters, View{3, 1, 1, 0}, {4, 3}), (Rows{"BBB.", "FFF.", "JJJ."}));
}

TEST(Projection, KnowsWhatAPlaceShows) {
    const Projection projection(View(), {4, 3}, {10, 8}); // twice as large, from (1, 1) on
    const Projection::Pixel first = projection.pixelAt(1, 1);
    EXPECT_EQ(first.x, 0);
    EXPECT_EQ(first.y, 0);
    EXPECT_FALSE(first.beside);
    const Projection::Pixel last = projection.pixelAt(8, 6);
    EXPECT_EQ(last.x, 3);
    EXPECT_EQ(last.y, 2);
    EXPECT_FALSE(last.beside);
    for (const auto& [x, y] : {std::pair(0, 3), {9, 3}, {3, 0}, {3, 7}, {-5, 3}, {3, 30000}}) {
        EXPECT_TRUE(projection.pixelAt(x, y).beside) << x << ' ' << y;
    }
    EXPECT_EQ(projection.pixelAt(30000, -30000).x, 3);
    EXPECT_EQ(projection.pixelAt(30000, -30000).y, 0);
}

TEST(Projection, FindsAllPlacesOfAnAreaAndNoOthers) {
    Random random(testSeed());
    const auto upTo = [&](int most) {
        return static_cast<int>(random.bits() % static_cast<uint32_t>(most)) + 1;
    };
    for (int round = 0; round < 2000; ++round) {
        const Size frame{upTo(20), upTo(20)};
        const Size screen{upTo(50), upTo(50)};
        View view{upTo(4), upTo(4), 0, 0};
        view.left = upTo(frame.width - std::max(1, frame.width / view.zoomX) + 1) - 1;
        view.top = upTo(frame.height - std::max(1, frame.height / view.zoomY) + 1) - 1;
        const Projection projection(view, frame, screen);
        const int left = upTo(frame.width) - 1;
        const int top = upTo(frame.height) - 1;
        const GRect area{static_cast<int16_t>(left), static_cast<int16_t>(top),
                         static_cast<int16_t>(left + upTo(frame.width - left) - 1),
                         static_cast<int16_t>(top + upTo(frame.height - top) - 1)};
        const GRect seen = projection.onScreen(area);
        for (int y = 0; y < screen.height; ++y) {
            for (int x = 0; x < screen.width; ++x) {
                const Projection::Pixel pixel = projection.pixelAt(x, y);
                const bool shows = !pixel.beside && contains(area, pixel.x, pixel.y);
                ASSERT_EQ(contains(seen, x, y), shows)
                    << x << ' ' << y << " round " << round << " seed " << testSeed();
            }
        }
    }
}

TEST(Projection, CopiesAnyPieceOfARow) {
    const Rows frame = {"ABC"};
    const std::vector<uint32_t> rgb(frame[0].begin(), frame[0].end());
    for (const int width : {3, 5, 8}) { // natural, with black beside, enlarged
        const Projection projection(View(), {3, 1}, {width, 1});
        std::vector<uint32_t> whole(static_cast<size_t>(width));
        projection.copyRow(rgb, 0, 0, width, whole.data());
        for (int left = 0; left < width; ++left) {
            for (int count = 1; count <= width - left; ++count) {
                std::vector<uint32_t> piece(static_cast<size_t>(count) + 1, 7);
                projection.copyRow(rgb, 0, left, count, piece.data());
                EXPECT_EQ(piece.back(), 7U);
                piece.pop_back();
                EXPECT_TRUE(std::equal(piece.begin(), piece.end(), whole.begin() + left))
                    << left << ' ' << count << ' ' << width;
            }
        }
    }
}

} // namespace
