// Examines a platform library: which services are there, what the missing ones cost, and whether
// those that can be tried do what their contracts say.
#include "examine.h"
#include "platform.h"
#include "report.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace {

enum ExitStatus { kFit = 0, kProbeFailed = 1, kUnfit = 2, kMisused = 3 };

constexpr std::string_view kUsage = R"(usage: quarlo-doctor [--limit SECONDS] [PLATFORM [NUMBER...]]
       quarlo-doctor --services
       quarlo-doctor --help

Examines a platform library, the host platform without PLATFORM: which services it
has, what the missing ones cost, and whether those that can be tried work. With
numbers it looks at these services alone. A probe that takes longer than the limit,
5 seconds, has failed. --services lists what the library may ask a platform for, in
Markdown.

Exit status: 0 fit; 1 a probe failed; 2 a needed service is missing, or the library
cannot be loaded; 3 wrong usage.
)";

struct Options {
    bool help = false;
    bool services = false;
    std::chrono::seconds limit{5};
    std::string platform = "libgpi.so.1";
    std::set<int32_t> numbers; ///< empty for all services
};

/// A number from 1.
std::optional<int> numberIn(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool valid = error == std::errc() && end == text.data() + text.size() && number > 0;
    return valid ? std::optional(number) : std::nullopt;
}

std::optional<Options> parse(int argc, char** argv) {
    Options options;
    bool named = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--help") {
            options.help = true;
        } else if (word == "--services") {
            options.services = true;
        } else if (word == "--limit" && i + 1 < argc) {
            const auto limit = numberIn(argv[++i]);
            if (!limit) {
                return std::nullopt;
            }
            options.limit = std::chrono::seconds(*limit);
        } else if (!named && !word.starts_with("--")) {
            options.platform = word;
            named = true;
        } else if (const auto number = numberIn(word)) {
            options.numbers.insert(*number);
        } else {
            return std::nullopt;
        }
    }
    return options;
}

ExitStatus verdict(const std::vector<doctor::Finding>& findings) {
    using doctor::Finding;
    using doctor::State;
    const auto any = [&](auto condition) {
        return std::any_of(findings.begin(), findings.end(), condition);
    };
    if (any([](const Finding& finding) {
            return finding.state == State::Missing && finding.service->need == doctor::Need::Needed;
        })) {
        return kUnfit;
    }
    return any([](const Finding& finding) { return finding.state == State::Failed; }) ? kProbeFailed
                                                                                      : kFit;
}

} // namespace

int main(int argc, char** argv) {
    const auto options = parse(argc, argv);
    if (!options) {
        std::cerr << kUsage;
        return kMisused;
    }
    if (options->help) {
        std::cout << kUsage;
        return kFit;
    }
    if (options->services) {
        doctor::printServices(std::cout);
        return kFit;
    }
    setenv("QUARLO_DISPLAY", "memory", 0); // the host platform opens no window for each probe
    const doctor::Platform platform(options->platform);
    if (!platform.isLoaded()) {
        std::cerr << "quarlo-doctor: " << platform.error() << '\n';
        return kUnfit;
    }
    const auto findings = doctor::examine(platform, options->numbers, options->limit);
    doctor::printFindings(std::cout, findings);
    return verdict(findings);
}
