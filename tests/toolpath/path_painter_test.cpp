#include "drawing/path_painter.h"

#include "drawn.h"

namespace toolpath {
namespace {

constexpr GRect kAll{0, 0, 99, 99};

/// One pixel a millimetre, x and y from 0 to 94.
class PathPainting : public testing::Test {
  protected:
    PathPainting()
        : drawn(100, 100, 16),
          style(prepareStyle(drawn.handle)),
          view(Projection::Plan, {{0, 0, 0}, {94, 94, 0}}, kAll) {}

    void paint(std::vector<Move> moves) {
        path.moves = std::move(moves);
        const PathPainter painter(drawn.handle, style, path);
        for (const MoveKind kind : {MoveKind::Rapid, MoveKind::Cut, MoveKind::Point}) {
            painter.paint(view, kind, 0, path.moves.size());
        }
    }

    int count(Ink ink) { return drawn.count(kAll, drawn.pixelOf(style, ink)); }

    Drawn drawn;
    Style style;
    View view;
    ToolPath path;
};

TEST_F(PathPainting, DrawsCutsWithoutGaps) {
    paint({{{60, 0, 0}, 1, MoveKind::Cut}, {{60, 30, 0}, 2, MoveKind::Cut}});
    EXPECT_EQ(count(Ink::CutHighest), 60 + 30 + 1);
}

TEST_F(PathPainting, LeavesHalfOfARapidOut) {
    paint({{{64, 0, 0}, 1, MoveKind::Rapid}});
    EXPECT_GE(count(Ink::Rapid), 28);
    EXPECT_LE(count(Ink::Rapid), 36);
}

TEST_F(PathPainting, KeepsTheGapsOfAWayGoneAndComeBack) {
    paint({{{64, 30, 0}, 1, MoveKind::Rapid}});
    const int once = count(Ink::Rapid);
    paint({{{64, 30, 0}, 1, MoveKind::Rapid}, {{0, 0, 0}, 2, MoveKind::Rapid}});
    EXPECT_EQ(count(Ink::Rapid), once);
}

TEST_F(PathPainting, ColoursCutsByTheirHeight) {
    path.start = {0, 10, -8};
    paint({{{60, 10, -8}, 1, MoveKind::Cut},
           {{60, 10, -4}, 2, MoveKind::Rapid},
           {{0, 10, -4}, 2, MoveKind::Rapid},
           {{0, 40, 0}, 3, MoveKind::Rapid},
           {{60, 40, 0}, 3, MoveKind::Cut}});
    EXPECT_EQ(count(Ink::CutDeepest), 61);
    EXPECT_EQ(count(Ink::CutHighest), 61);
}

TEST_F(PathPainting, MarksPointsWithACross) {
    path.start = {47, 47, 2};
    paint({{{47, 47, -5}, 1, MoveKind::Point}});
    EXPECT_EQ(count(Ink::Point), 13);
    const GPoint middle{static_cast<int16_t>(view.pixel({47, 47, 0}).x + 49),
                        static_cast<int16_t>(view.pixel({47, 47, 0}).y + 49)};
    EXPECT_EQ(drawn.at(middle), drawn.pixelOf(style, Ink::Point));
}

TEST_F(PathPainting, DrawsMovesFarSmallerThanAPixel) {
    std::vector<Move> moves;
    for (int i = 1; i <= 6000; ++i) {
        moves.push_back({{0.01 * i, 0, 0}, i, MoveKind::Cut});
    }
    paint(std::move(moves));
    EXPECT_EQ(count(Ink::CutHighest), 61);
}

TEST_F(PathPainting, DrawsTheMovesOfItsSliceOnly) {
    path.moves = {{{20, 0, 0}, 1, MoveKind::Cut},
                  {{40, 0, 0}, 2, MoveKind::Cut},
                  {{60, 0, 0}, 3, MoveKind::Cut}};
    PathPainter(drawn.handle, style, path).paint(view, MoveKind::Cut, 1, 2);
    EXPECT_EQ(count(Ink::CutHighest), 21);
}

} // namespace
} // namespace toolpath
