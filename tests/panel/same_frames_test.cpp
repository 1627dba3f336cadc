// One run of the panel on every display: each frame that arrives is the same, whatever shows it.
#include "far_end.h"
#include "panel_bench.h"
#include "scripted_run.h"
#include "support/png_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

namespace panel::test {
namespace {

using gpi::test::PngPicture;
using gpi::test::readPng;

/// Checksum of a picture file.
uint32_t checksumOf(const std::string& path) {
    const PngPicture picture = readPng(path);
    std::vector<uint32_t> colors = picture.pixels;
    if (picture.palette) {
        std::transform(colors.begin(), colors.end(), colors.begin(),
                       [&](uint32_t index) { return picture.colors[index]; });
    }
    return checksum(colors);
}

class SameFrames : public testing::TestWithParam<ScriptedRun> {
  protected:
    void SetUp() override { ASSERT_NO_FATAL_FAILURE(runInMemory()); }

    Environment::Values on(const Environment::Values& changes) const {
        Environment::Values values = GetParam().settings();
        values.insert(changes.begin(), changes.end());
        return values;
    }

    /// Keeps the checksum of each frame.
    void runInMemory() {
        Bench bench(on({}), GetParam().languageIndex(),
                    [this] { frames_.push_back(GPIHostFrameChecksum()); });
        bench.run(GetParam().lines());
    }

    /// Compares each frame with what has arrived at a far end, up to the first that differs.
    void compareAt(FarEnd& end) const {
        size_t frame = 0;
        bool opened = false;
        bool same = true;
        const auto look = [&] {
            if (!std::exchange(opened, true)) {
                end.open(testing::internal::GetCapturedStderr());
            }
            same = same && frame < frames_.size() && end.shows(frames_[frame]);
            frame += same ? 1 : 0;
        };
        testing::internal::CaptureStderr();
        Bench bench(on(end.settings()), GetParam().languageIndex(), look);
        bench.run(GetParam().lines());
        EXPECT_TRUE(same) << "from frame " << frame << " on";
        EXPECT_EQ(frame, frames_.size());
    }

    std::vector<uint32_t> frames_;
};

TEST_P(SameFrames, AreSeenInAWindow) {
    compareAt(*makeWindow());
}

TEST_P(SameFrames, AreSeenOnTheScreenOfADisplayServer) {
    compareAt(*makeServerScreen(std::stoi(GetParam().width), std::stoi(GetParam().height)));
}

TEST_P(SameFrames, AreSeenByAViewer) {
    compareAt(*makeViewer());
}

TEST_P(SameFrames, AreInFiles) {
    const TemporaryFolder folder;
    const std::string path = folder.path("display.png");
    {
        size_t frame = 0;
        const auto look = [&] {
            ASSERT_EQ(GPIHostWritePng(path.c_str()), 1);
            ASSERT_EQ(checksumOf(path), frames_[frame]) << "frame " << frame;
            ++frame;
        };
        Bench bench(on({{"QUARLO_DISPLAY", "png"}, {"QUARLO_PNG", path}}),
                    GetParam().languageIndex(), look);
        bench.run(GetParam().lines());
        testing::internal::CaptureStderr();
    }
    testing::internal::GetCapturedStderr(); // where it was written to
    EXPECT_EQ(checksumOf(path), frames_.back()) << "the picture that is left";
}

TEST_P(SameFrames, DifferFromEachOther) {
    const std::set<uint32_t> sums(frames_.begin(), frames_.end());
    EXPECT_GE(sums.size(), frames_.size() * 9 / 10);
    EXPECT_GE(sums.size(), 16U);
}

/// A display of each format; the first visits every screen.
const ScriptedRun kRuns[] = {
    {"tour_of_8_bits", "tour", "640", "480", "8", "japanese", ""},
    {"touch_of_15_bits", "touch", "640", "480", "555", "english", ""},
    {"damage_of_16_bits", "damage", "640", "480", "565", "english", ""},
    {"damage_of_24_bits", "damage", "800", "600", "24", "chinese", ""},
};

INSTANTIATE_TEST_SUITE_P(Runs, SameFrames, testing::ValuesIn(kRuns),
                         [](const auto& info) { return info.param.testName(); });

} // namespace
} // namespace panel::test
