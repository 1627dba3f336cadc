// The operator panel of a milling machine.
#include "measure.h"
#include "options.h"
#include "panel.h"
#include "script/script.h"
#include "settings.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <time.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace {

enum ExitStatus { kDone = 0, kFailed = 1, kMisused = 2 };

/// 2024-03-01 08:00:00: scripts begin at the same time of the same day.
constexpr uint32_t kScriptTime = 1'709'280'000;

uint64_t microseconds() {
    using namespace std::chrono;
    return static_cast<uint64_t>(
        duration_cast<std::chrono::microseconds>(steady_clock::now().time_since_epoch()).count());
}

ExitStatus runScript(const panel::Options& options, panel::PanelOptions start) {
    std::ifstream lines(*options.script);
    if (!lines) {
        std::cerr << "panel: " << *options.script << " cannot be read\n";
        return kMisused;
    }
    GPIHostHoldClock(kScriptTime);
    start.scripted = true;
    panel::Panel panel(start);
    if (const auto wrong = panel::Script(panel, options.shots).run(lines)) {
        std::cerr << "panel: " << *options.script << ": " << *wrong << '\n';
        return kFailed;
    }
    return kDone;
}

/// Of the drawing thread, so that other programs do not count.
uint64_t processorMicroseconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<uint64_t>(used.tv_sec) * 1'000'000 +
           static_cast<uint64_t>(used.tv_nsec) / 1000;
}

ExitStatus runMeasure(panel::PanelOptions start) {
    start.microseconds = processorMicroseconds;
    {
        panel::Panel panel(start);
        panel::measureStart(std::cout);
        panel::measureIdle(panel, std::cout);
    }
    GPIHostHoldClock(kScriptTime);
    start.scripted = true;
    panel::Panel panel(start);
    panel::measureDrawing(panel, std::cout);
    return kDone;
}

/// Says where the texts of a language were looked for, if there are none.
void reportTexts(size_t language) {
    if (!panel::Texts::keysOf(language).empty()) {
        return;
    }
    const std::u16string file = panel::kLanguages[language].file;
    const char* const folder = std::getenv("QUARLO_PROFILES");
    std::cerr << "panel: no " << std::string(file.begin(), file.end()) << " in "
              << (folder != nullptr ? folder : "the folder of profiles")
              << " (QUARLO_PROFILES): in English\n";
}

ExitStatus runPanel(panel::PanelOptions start) {
    start.microseconds = microseconds;
    panel::Panel panel(start);
    if (GPIHostHasWindow() != 0) {
        panel.run();
    } else {
        panel.handlePending(); // nobody could see more than the first picture, or end it
    }
    return kDone;
}

} // namespace

int main(int argc, char** argv) {
    const auto options = panel::parseOptions(argc, argv);
    if (!options) {
        std::cerr << panel::kUsage;
        return kMisused;
    }
    GetGPIFunction();
    if (GDInitPlatform(0) == 0) {
        std::cerr << "panel: the platform did not start\n";
        return kFailed;
    }
    panel::PanelOptions start;
    start.language = options->language.value_or(panel::keptLanguage());
    start.program = options->program;
    start.rate = options->rate;
    if (!panel::canPaint()) {
        std::cerr << "panel: there is no display, or no font\n";
        GDQuitPlatform();
        return kFailed;
    }
    reportTexts(start.language);
    const ExitStatus status = options->script    ? runScript(*options, start)
                              : options->measure ? runMeasure(start)
                                                 : runPanel(start);
    return GDQuitPlatform() != 0 ? status : kFailed;
}
