// How little is drawn.
#include "panel_bench.h"

#include <gtest/gtest.h>

namespace panel::test {
namespace {

int32_t areas(const Bench& bench) {
    return bench.context().counters[Counters::Redraws];
}

int32_t pixels(const Bench& bench) {
    return bench.context().counters[Counters::Pixels];
}

TEST(Redraw, NothingWhereNothingChanges) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "key F3\nwait 1510");
    const int32_t before = areas(bench);
    bench.run("wait 900");
    EXPECT_EQ(areas(bench), before);
}

TEST(Redraw, TheClockAlone) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "key F3\nwait 1510");
    const int32_t before = areas(bench);
    const int32_t drawn = pixels(bench);
    bench.run("wait 1000");
    EXPECT_EQ(areas(bench), before + 1);
    const Measures& measures = bench.context().painter.measures();
    EXPECT_LE(pixels(bench) - drawn, 8 * measures.width(Face::Text) * measures.statusHeight / 2);
}

/// Every other X that moves changes the work, relative and machine position, nothing else.
TEST(Redraw, ReadoutsThatMove) {
    Bench bench;
    bench.run(std::string(kMakeReady) + "key F3\ndown PadAdd\nwait 1010");
    const int32_t drawn = pixels(bench);
    bench.run("wait 50");
    const GRect work = bench.context().work;
    EXPECT_GT(pixels(bench), drawn);
    EXPECT_LT(pixels(bench) - drawn, widthOf(work) * heightOf(work) / 4);
}

TEST(Redraw, AllOfItOnDemand) {
    Bench bench;
    const GRect display = bench.context().painter.display();
    const int32_t drawn = pixels(bench);
    bench.run("key F");
    EXPECT_TRUE(bench.context().showDamage);
    EXPECT_EQ(pixels(bench) - drawn, widthOf(display) * heightOf(display));
}

} // namespace
} // namespace panel::test
