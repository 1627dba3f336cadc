// Scripted runs against pictures that somebody has looked at. scripts/update-panel-pictures draws
// them anew.
#include "panel_bench.h"
#include "support/png_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace panel::test {
namespace {

using gpi::test::PngPicture;
using gpi::test::readPng;

/// A line of runs.txt.
struct ScriptedRun {
    std::string folder;
    std::string script;
    std::string width;
    std::string height;
    std::string format;
    std::string language;
};

std::vector<ScriptedRun> runs() {
    std::ifstream lines(PANEL_TESTS "/runs.txt");
    std::vector<ScriptedRun> all;
    for (std::string line; std::getline(lines, line);) {
        ScriptedRun run;
        std::istringstream words(line);
        words >> run.folder >> run.script >> run.width >> run.height >> run.format >> run.language;
        if (words && run.folder[0] != '#') {
            all.push_back(run);
        }
    }
    return all;
}

size_t languageOf(const ScriptedRun& run) {
    return run.language == "english" ? 0 : run.language == "japanese" ? 1 : 2;
}

std::string textOf(const std::string& path) {
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

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
    Bench bench(
        {{"QUARLO_WIDTH", run.width}, {"QUARLO_HEIGHT", run.height}, {"QUARLO_FORMAT", run.format}},
        languageOf(run));
    bench.run(textOf(PANEL_TESTS "/scripts/" + run.script + ".txt"));
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

INSTANTIATE_TEST_SUITE_P(Runs, Pictures, testing::ValuesIn(runs()), [](const auto& info) {
    std::string name = info.param.folder;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
} // namespace panel::test
