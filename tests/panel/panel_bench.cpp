#include "panel_bench.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <utility>

namespace panel::test {
namespace {

Environment::Values valuesFor(const Environment::Values& changes, const std::string& user,
                              const std::string& files) {
    std::filesystem::copy(PANEL_FOLDER "/programs", files);
    Environment::Values values{{"QUARLO_PROFILES", PANEL_FOLDER "/profiles"},
                               {"QUARLO_USER_PROFILES", user},
                               {"QUARLO_FILES", files},
                               {"QUARLO_DATA_SERVER", PANEL_FOLDER "/data_server"},
                               {"QUARLO_FORMAT", "565"}};
    for (const auto& [name, value] : changes) {
        values[name] = value;
    }
    return values;
}

} // namespace

Bench::Bench(const Environment::Values& changes, size_t language, std::function<void()> onFrame,
             uint32_t rate)
    : platform_(valuesFor(changes, user_.path(), files_.path())) {
    GetGPIFunction();
    GPIHostHoldClock(kStartTime);
    PanelOptions options;
    options.scripted = true;
    options.language = language;
    options.onFrame = std::move(onFrame);
    options.rate = rate;
    EXPECT_TRUE(canPaint());
    panel_.emplace(options);
}

void Bench::run(const std::string& lines) {
    std::istringstream stream(lines);
    const auto wrong = Script(*panel_, shots_.path()).run(stream);
    EXPECT_FALSE(wrong) << *wrong;
}

} // namespace panel::test
