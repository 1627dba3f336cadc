// Scripted runs against pictures that somebody has looked at. scripts/update-panel-pictures draws
// them anew.
#include "panel_bench.h"
#include "scripted_run.h"
#include "support/png_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace panel::test {
namespace {

using gpi::test::PngPicture;
using gpi::test::readPng;

std::set<std::string> picturesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

/// 0x00RRGGBB of every pixel: a tool may keep few colours as a palette.
std::vector<uint32_t> colorsOf(const PngPicture& picture) {
    std::vector<uint32_t> colors = picture.pixels;
    if (picture.palette) {
        for (uint32_t& pixel : colors) {
            pixel = picture.colors[pixel];
        }
    }
    return colors;
}

testing::AssertionResult same(const std::string& kept, const std::string& drawn) {
    const PngPicture a = readPng(kept);
    const PngPicture b = readPng(drawn);
    if (a.width != b.width || a.height != b.height) {
        return testing::AssertionFailure() << "another size";
    }
    const auto expected = colorsOf(a);
    const auto got = colorsOf(b);
    const auto [at, other] = std::mismatch(expected.begin(), expected.end(), got.begin());
    if (at == expected.end()) {
        return testing::AssertionSuccess();
    }
    const auto first = static_cast<int>(at - expected.begin());
    return testing::AssertionFailure()
           << "first differs at (" << first % a.width << ", " << first / a.width << ")";
}

class Pictures : public testing::TestWithParam<ScriptedRun> {};

TEST_P(Pictures, AreWhatTheyWere) {
    const ScriptedRun& run = GetParam();
    Bench bench(run.settings(), run.languageIndex());
    bench.run(run.lines());
    EXPECT_TRUE(bench.context().texts.missing().empty());

    const std::string kept = PANEL_TESTS "/pictures/" + run.folder;
    const auto names = picturesIn(kept);
    EXPECT_FALSE(names.empty());
    EXPECT_EQ(names, picturesIn(bench.shots()));
    for (const std::string& name : names) {
        EXPECT_TRUE(same(kept + "/" + name, bench.shots() + "/" + name))
            << run.folder << "/" << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Runs, Pictures, testing::ValuesIn(scriptedRuns()),
                         [](const auto& info) { return info.param.testName(); });

} // namespace
} // namespace panel::test
