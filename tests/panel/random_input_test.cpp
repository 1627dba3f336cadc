// Whatever a person presses, the panel goes on.
#include "panel_bench.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace panel::test {
namespace {

constexpr const char* kKeys[] = {
    "F1", "F2",  "F3", "F4", "F5",    "F6",    "F7",        "F8",          "F9",     "F10",
    "Up", "Tab", "S",  "H",  "B",     "R",     "Down",      "Left",        "Right",  "PageDown",
    "X",  "J",   "5",  ".",  "-",     "Esc",   "Backspace", "Enter",       "PageUp", "Home",
    "P",  "N",   "Z",  "F",  "Enter", "Pause", "PadAdd",    "PadSubtract", "Delete", "End"};

/// A line of a script that a person may have meant or not.
std::string randomLine(std::mt19937& random, const GRect& display) {
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    const std::string place =
        std::to_string(below(widthOf(display))) + " " + std::to_string(below(heightOf(display)));
    const std::string key = kKeys[below(std::size(kKeys))];
    switch (below(8)) {
    case 0:
        return "tap " + place;
    case 1:
        return "press " + place + "\nmove " + place + "\nwait 100\nrelease " + place;
    case 2:
        return "down " + key + "\nwait 300\nup " + key;
    case 3:
        return "wait " + std::to_string(below(2000));
    default:
        return "key " + key;
    }
}

/// Actions of a run; QUARLO_RANDOM_ACTIONS asks for more.
int actions() {
    constexpr int kUsual = 1500;
    const char* const asked = std::getenv("QUARLO_RANDOM_ACTIONS");
    return asked != nullptr ? std::atoi(asked) : kUsual;
}

class RandomInput : public testing::TestWithParam<size_t> {};

TEST_P(RandomInput, DoesNoHarm) {
    const auto seed = static_cast<unsigned>(4711 + GetParam());
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    Bench bench({{"QUARLO_WIDTH", "640"}, {"QUARLO_HEIGHT", "480"}}, GetParam());
    bench.run(kMakeReady);
    const GRect display = bench.context().painter.display();
    for (int i = 0; i < actions(); ++i) {
        const std::string line = randomLine(random, display);
        bench.run(line);
        ASSERT_FALSE(testing::Test::HasFailure()) << "after " << i << " actions: " << line;
    }
    EXPECT_TRUE(bench.context().texts.missing().empty());
    const int32_t events = bench.context().counters[Counters::Events];
    bench.run("wait 2000");
    EXPECT_GT(bench.context().counters[Counters::Events], events) << "it goes on";
}

INSTANTIATE_TEST_SUITE_P(Languages, RandomInput, testing::Values(0, 1, 2));

} // namespace
} // namespace panel::test
