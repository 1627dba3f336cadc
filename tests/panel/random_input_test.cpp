// Whatever a person presses, the panel goes on, and needs no more memory than before.
#include "child_process.h"
#include "panel_bench.h"
#include "scripted_run.h"
#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace panel::test {
namespace {

using quarlo::test::Random;
using quarlo::test::shortest;
using quarlo::test::testSeed;

constexpr int kWidth = 640;
constexpr int kHeight = 480;

/// What a person does, and how long that takes.
struct Input {
    std::string lines; ///< of a script
    int milliseconds;
};

/// All but Q, which quits.
constexpr const char* kKeys[] = {
    "F1",    "F2",     "F3",       "F4",     "F5",          "F6",    "F7",    "F8",    "F9",
    "F10",   "F10",    "F10",      "Up",     "Down",        "Left",  "Right", "Tab",   "Home",
    "End",   "PageUp", "PageDown", "Delete", "Backspace",   "Esc",   "Esc",   "Enter", "Enter",
    "Enter", "Pause",  "PadAdd",   "PadAdd", "PadSubtract", "Shift", "Help",  "A",     "B",
    "C",     "D",      "E",        "F",      "G",           "H",     "I",     "J",     "K",
    "L",     "M",      "N",        "O",      "P",           "R",     "S",     "T",     "U",
    "V",     "W",      "X",        "Y",      "Z",           "0",     "1",     "2",     "5",
    "9",     "-",      "."};

std::string placeOn(Random& random) {
    return std::to_string(random.between(0, kWidth - 1)) + " " +
           std::to_string(random.between(0, kHeight - 1));
}

Input randomInput(Random& random) {
    const std::string key = random.pick(kKeys);
    switch (random.between(0, 7)) {
    case 0:
        return {"tap " + placeOn(random), 0};
    case 1:
        return {"press " + placeOn(random) + "\nmove " + placeOn(random) + "\nwait 100\nrelease " +
                    placeOn(random),
                100};
    case 2:
        return {"down " + key + "\nwait 300\nup " + key, 300};
    case 3: {
        const int milliseconds = random.between(0, 2000);
        return {"wait " + std::to_string(milliseconds), milliseconds};
    }
    default:
        return {"key " + key, 0};
    }
}

/// Of the panel's clock; QUARLO_RANDOM_MINUTES sets another length.
int minutes() {
    constexpr int kUsual = 10;
    const char* const asked = std::getenv("QUARLO_RANDOM_MINUTES");
    return asked != nullptr ? std::atoi(asked) : kUsual;
}

std::vector<Input> randomInputs(uint64_t seed) {
    constexpr int kMinute = 60'000;
    Random random(seed);
    std::vector<Input> inputs;
    for (int left = minutes() * kMinute; left > 0; left -= inputs.back().milliseconds) {
        inputs.push_back(randomInput(random));
    }
    return inputs;
}

/// The memory in use while inputs come. Each program that is open counts for itself: what it takes,
/// with its path, is no growth.
class Growth {
  public:
    /// Needs no more memory for so many steps.
    explicit Growth(size_t steps) { uses_.reserve(steps); }

    void note(const std::u16string& program) {
        const auto known = std::find(programs_.begin(), programs_.end(), program);
        const auto number = static_cast<size_t>(known - programs_.begin());
        if (known == programs_.end()) {
            programs_.push_back(program);
        }
        stay_ = number == open_ ? stay_ + 1 : 0;
        open_ = number;
        if (stay_ >= kSettled) {
            uses_.push_back({number, allocatedBytes()});
        }
    }

    std::string text() const {
        std::ostringstream text;
        text << "bytes in use, first half and second:";
        for (size_t number = 0; number < programs_.size(); ++number) {
            const auto [first, second] = leastOfHalves(number);
            text << ' ' << std::string(programs_[number].begin(), programs_[number].end()) << ' '
                 << first << ' ' << second;
        }
        return text.str();
    }

    std::string complaint() const {
        bool grows = false;
        for (size_t number = 0; number < programs_.size(); ++number) {
            const auto [first, second] = leastOfHalves(number);
            grows = grows || second > first + kAllowed;
        }
        return grows ? "memory grows, " + text() : "";
    }

  private:
    static constexpr size_t kSettled = 500; ///< steps; no path of the program before is left then
    static constexpr size_t kAllowed = 64 * 1024;

    struct Use {
        size_t program;
        size_t bytes;
    };

    /// While a program was open; 0 if it never was for long.
    std::pair<size_t, size_t> leastOfHalves(size_t program) const {
        std::vector<size_t> bytes;
        for (const Use& use : uses_) {
            if (use.program == program) {
                bytes.push_back(use.bytes);
            }
        }
        if (bytes.size() < 2) {
            return {0, 0};
        }
        const auto middle = bytes.begin() + static_cast<std::ptrdiff_t>(bytes.size() / 2);
        return {*std::min_element(bytes.begin(), middle), *std::min_element(middle, bytes.end())};
    }

    std::vector<std::u16string> programs_;
    size_t open_ = 0;
    size_t stay_ = 0; ///< steps since it was opened
    std::vector<Use> uses_;
};

/// The lines of a script that visits all there is, so that nothing is made for the first time
/// behind it.
std::string everyScreen() {
    std::istringstream tour(ScriptedRun{"", "tour", "", "", "", "", ""}.lines());
    std::string lines;
    for (std::string line; std::getline(tour, line);) {
        if (line.find("shot") != 0) {
            lines += line + '\n';
        }
    }
    return lines;
}

/// What a panel does wrong that gets these inputs, once it has shown every screen.
std::string complaintAbout(const std::vector<Input>& inputs, size_t language, Progress& progress,
                           Growth& growth) {
    Bench bench(
        {{"QUARLO_WIDTH", std::to_string(kWidth)}, {"QUARLO_HEIGHT", std::to_string(kHeight)}},
        language);
    bench.run(everyScreen());
    for (size_t step = 0; step < inputs.size(); ++step) {
        progress.set(step + 1);
        bench.run(inputs[step].lines);
        growth.note(bench.context().program.path());
        if (testing::Test::HasFailure()) {
            return "it refused";
        }
    }
    const int32_t events = bench.context().counters[Counters::Events];
    bench.run("wait 2000");
    if (bench.context().counters[Counters::Events] == events) {
        return "it stands still";
    }
    return bench.context().texts.missing().empty() ? "" : "texts are missing";
}

/// The same in a process of its own.
std::string fate(const std::vector<Input>& inputs, size_t language, Progress& progress) {
    return inChildProcess([&] {
        Growth growth(inputs.size());
        const std::string wrong = complaintAbout(inputs, language, progress, growth);
        if (!wrong.empty()) {
            return wrong;
        }
        std::cout << inputs.size() << " inputs; " << growth.text() << '\n';
        return growth.complaint();
    });
}

std::string textOf(const std::vector<Input>& inputs) {
    std::string text;
    for (const Input& input : inputs) {
        text += input.lines + '\n';
    }
    return text;
}

/// Cuts inputs that a panel does not survive down to those that matter, as far as time allows.
std::vector<Input> shortened(std::vector<Input> inputs, size_t language, Progress& progress) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::minutes(10);
    inputs.resize(std::min(inputs.size(), progress.steps()));
    return shortest(std::move(inputs), [&](const std::vector<Input>& fewer) {
        return std::chrono::steady_clock::now() < deadline &&
               !fate(fewer, language, progress).empty();
    });
}

class RandomInput : public testing::TestWithParam<size_t> {};

TEST_P(RandomInput, DoesNoHarm) {
    const size_t language = GetParam();
    Progress progress;
    const std::vector<Input> inputs = randomInputs(testSeed() * 1'000'003 + language);
    const std::string wrong = fate(inputs, language, progress);
    if (!wrong.empty()) {
        FAIL() << "QUARLO_TEST_SEED=" << testSeed() << ", language " << language << ": " << wrong
               << "\nafter the tour and these lines of a script:\n"
               << textOf(shortened(inputs, language, progress));
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, RandomInput, testing::Values(0, 1, 2));

} // namespace
} // namespace panel::test
