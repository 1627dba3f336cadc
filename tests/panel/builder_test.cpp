// The machine builder's module, loaded or not.
#include "panel_bench.h"

#include <gtest/gtest.h>

namespace panel::test {
namespace {

constexpr const char* kLastScreen = "key F10\nkey F9\nwait 100";

Environment::Values modules(const char* folder) {
    return {{"QUARLO_MODULES", folder}};
}

std::u16string_view screenOf(Bench& bench) {
    return bench.panel().screen().title();
}

TEST(Builder, AddsAScreenInPlaceOfHelp) {
    Bench bench(modules(PANEL_MODULES));
    ASSERT_NE(bench.context().builder.screen(), nullptr);
    bench.run(kLastScreen);
    EXPECT_EQ(screenOf(bench), u"Service");
    bench.run("key Help");
    EXPECT_EQ(screenOf(bench), u"Help");
}

TEST(Builder, RedrawsWhatHasChangedOnly) {
    Bench bench(modules(PANEL_MODULES));
    bench.run(std::string(kLastScreen) + "\nwait 910");
    const int32_t areas = bench.context().counters[Counters::Redraws];
    bench.run("wait 900");
    EXPECT_EQ(bench.context().counters[Counters::Redraws], areas);
}

TEST(Builder, IsNotThereWithoutAModule) {
    Bench bench(modules("none"));
    EXPECT_EQ(bench.context().builder.screen(), nullptr);
    bench.run(kLastScreen);
    EXPECT_EQ(screenOf(bench), u"Help");
}

TEST(Builder, OfAnotherVersionIsLeftAlone) {
    Bench bench(modules(PANEL_OTHER_MODULES));
    EXPECT_EQ(bench.context().builder.screen(), nullptr);
    bench.run(kLastScreen);
    EXPECT_EQ(screenOf(bench), u"Help");
}

} // namespace
} // namespace panel::test
