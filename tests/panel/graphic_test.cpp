#include "graphic/progress.h"
#include "graphic/view.h"
#include "model/path_tracer.h"
#include "panel_bench.h"

#include <gtest/gtest.h>

namespace panel::test {
namespace {

ToolPath trace(const char* program) {
    toolpath::Remarks remarks;
    return toolpath::tracePath(program, remarks);
}

Snapshot at(int32_t line, Place work, int32_t state = G_NC_STATE_RUNNING) {
    Snapshot now;
    now.state = state;
    now.line = line;
    now.work = work;
    return now;
}

TEST(Progress, CountsTheMovesBeforeTheLineThatRuns) {
    const ToolPath path = trace("G1 X10 F100\nG1 Y10\nG1 X0\n");
    Progress progress;
    EXPECT_TRUE(progress.follow(path, at(2, {10, 5, 0})));
    EXPECT_EQ(progress.done(), 1U);
    EXPECT_TRUE(progress.follow(path, at(3, {4, 10, 0})));
    EXPECT_EQ(progress.done(), 2U);
}

TEST(Progress, FindsThePieceOfAnArcThatTheToolIsOn) {
    const ToolPath path = trace("G17 G2 X0 Y0 I50 J0 F100\n");
    ASSERT_GT(path.moves.size(), 16U);
    Progress progress;
    progress.follow(path, at(1, {0, 0, 0}));
    EXPECT_EQ(progress.done(), 0U) << "a circle ends where it begins";
    size_t before = 0;
    for (size_t piece = 0; piece < path.moves.size(); ++piece) {
        EXPECT_TRUE(progress.follow(path, at(1, path.moves[piece].end)));
        EXPECT_GE(progress.done(), before);
        EXPECT_NEAR(static_cast<double>(progress.done()), static_cast<double>(piece), 1.0);
        before = progress.done();
    }
}

TEST(Progress, BeginsAnewWithTheProgram) {
    const ToolPath path = trace("G1 X10 F100\nG1 Y10\nG1 X0\n");
    Progress progress;
    progress.follow(path, at(3, {4, 10, 0}));
    EXPECT_TRUE(progress.follow(path, at(0, {0, 0, 0}, G_NC_STATE_IDLE)));
    EXPECT_EQ(progress.done(), 2U) << "what was cut stays in view";
    EXPECT_FALSE(progress.follow(path, at(1, {1, 0, 0})));
    EXPECT_EQ(progress.done(), 0U);
}

TEST(View, FitsABoxIntoItsArea) {
    for (const Projection projection :
         {Projection::Plan, Projection::Elevation, Projection::Isometric}) {
        View view(projection, {400, 300});
        view.fit({{-10, -20, -5}, {30, 20, 5}});
        for (const double x : {-10.0, 30.0}) {
            for (const double y : {-20.0, 20.0}) {
                const GPoint pixel = view.pixel({x, y, 5});
                EXPECT_LT(std::abs(pixel.x), 200);
                EXPECT_LT(std::abs(pixel.y), 150);
            }
        }
    }
}

TEST(View, ZoomsAboutTheMiddleAndPansByPixels) {
    View view(Projection::Plan, {400, 300});
    view.fit({{-10, -10, 0}, {10, 10, 0}});
    view.zoom(2.0);
    EXPECT_EQ(view.pixel({0, 0, 0}).x, 0);
    view.pan(25, -15);
    EXPECT_EQ(view.pixel({0, 0, 0}).x, 25);
    EXPECT_EQ(view.pixel({0, 0, 0}).y, -15);
}

TEST(View, StaysUsableHoweverOneZooms) {
    View view(Projection::Isometric, {400, 300});
    view.fit({});
    for (int i = 0; i < 1000; ++i) {
        view.zoom(10.0);
    }
    EXPECT_LE(view.scale(), 500.0);
    for (int i = 0; i < 1000; ++i) {
        view.zoom(0.1);
    }
    EXPECT_GE(view.scale(), 0.05);
}

TEST(GridStep, IsRoundAndLeavesRoom) {
    EXPECT_EQ(gridStep(1.4), 10.0);
    EXPECT_EQ(gridStep(3.0), 5.0);
    EXPECT_EQ(gridStep(10.0), 2.0);
    EXPECT_NEAR(gridStep(200.0), 0.1, 1e-12);
}

/// What is cut while the graphic is not in view is there when it comes back.
TEST(GraphicScreen, DrawsLittleWhileTheToolMoves) {
    Bench bench;
    bench.run(std::string(kMakeReady) +
              "key F4\nkey F5\nkey Down\nkey Enter\nwait 300\nkey F10\nkey F3\nkey F1\nwait 9000");
    ASSERT_EQ(bench.machine().state, G_NC_STATE_RUNNING);
    const Counters& counters = bench.context().counters;
    const int32_t pixels = counters[Counters::Pixels];
    bench.run("wait 50");
    EXPECT_GT(counters[Counters::Pixels], pixels);
    EXPECT_LT(counters[Counters::Pixels] - pixels, 40'000);
}

} // namespace
} // namespace panel::test
