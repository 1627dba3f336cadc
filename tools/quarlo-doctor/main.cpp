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
#include <string>
#include <string_view>

namespace {

enum ExitStatus { kFit = 0, kProbeFailed = 1, kUnfit = 2, kMisused = 3 };

constexpr std::string_view kUsage = R"(usage: quarlo-doctor [--limit SECONDS] [PLATFORM]
       quarlo-doctor --services

Examines a platform library, the host platform without PLATFORM: which services it
has, what the missing ones cost, and whether those that can be tried work. A probe
that takes longer than the limit, 5 seconds, has failed. --services lists what the
library may ask a platform for, in Markdown.

Exit status: 0 fit; 1 a probe failed; 2 a needed service is missing, or the library
cannot be loaded; 3 wrong usage.
)";

struct Options {
    bool services = false;
    std::chrono::seconds limit{5};
    std::string platform = "libgpi.so.1";
};

std::optional<std::chrono::seconds> secondsIn(std::string_view text) {
    int seconds = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool valid = error == std::errc() && end == text.data() + text.size();
    return valid && seconds > 0 ? std::optional(std::chrono::seconds(seconds)) : std::nullopt;
}

std::optional<Options> parse(int argc, char** argv) {
    Options options;
    bool named = false;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        if (word == "--services") {
            options.services = true;
        } else if (word == "--limit" && i + 1 < argc) {
            const auto limit = secondsIn(argv[++i]);
            if (!limit) {
                return std::nullopt;
            }
            options.limit = *limit;
        } else if (!named && !word.starts_with("--")) {
            options.platform = word;
            named = true;
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
    const auto findings = doctor::examine(platform, options->limit);
    doctor::printFindings(std::cout, findings);
    return verdict(findings);
}
