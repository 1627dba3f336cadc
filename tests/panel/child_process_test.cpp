#include "child_process.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <vector>

namespace panel::test {
namespace {

TEST(ChildProcess, HasNothingToTellOfAGoodEnd) {
    EXPECT_EQ(inChildProcess([] { return ""; }), "");
}

TEST(ChildProcess, TellsWhatWasWrong) {
    EXPECT_EQ(inChildProcess([] { return "the cause"; }), "exit status 1: the cause");
}

TEST(ChildProcess, TellsItsLastWords) {
    const std::string end = inChildProcess([] {
        std::cerr << "the last words";
        std::abort();
        return "";
    });
    EXPECT_EQ(end, "signal 6: the last words");
}

TEST(ChildProcess, ShowsItsProgress) {
    Progress progress;
    EXPECT_EQ(progress.steps(), 0U);
    inChildProcess([&] {
        progress.set(7);
        std::_Exit(EXIT_FAILURE);
        return "";
    });
    EXPECT_EQ(progress.steps(), 7U);
}

TEST(AllocatedBytes, AreThoseInUse) {
    constexpr size_t kMuch = 1 << 20;
    const size_t before = allocatedBytes();
    std::vector<char> much(kMuch);
    EXPECT_GE(allocatedBytes(), before + kMuch);
    std::vector<char>().swap(much);
    EXPECT_LT(allocatedBytes(), before + kMuch);
}

} // namespace
} // namespace panel::test
