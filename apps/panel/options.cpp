#include "options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace panel {
namespace {

constexpr std::array<std::string_view, 3> kLanguageNames{"english", "japanese", "chinese"};

std::optional<size_t> languageNamed(std::string_view name) {
    const auto* const found = std::find(kLanguageNames.begin(), kLanguageNames.end(), name);
    if (found == kLanguageNames.end()) {
        return std::nullopt;
    }
    return static_cast<size_t>(found - kLanguageNames.begin());
}

std::optional<uint32_t> rateOf(std::string_view text) {
    uint32_t rate = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, rate);
    const bool sound = error == std::errc() && stop == end && rate >= 5 && rate <= 100;
    return sound ? std::optional(rate) : std::nullopt;
}

} // namespace

std::optional<Options> parseOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const char* const value = i + 1 < argc ? argv[i + 1] : nullptr;
        if (word == "--measure") {
            options.measure = true;
        } else if (word == "--script" && value != nullptr) {
            options.script = argv[++i];
        } else if (word == "--shots" && value != nullptr) {
            options.shots = argv[++i];
        } else if (word == "--language" && value != nullptr) {
            options.language = languageNamed(argv[++i]);
            if (!options.language) {
                return std::nullopt;
            }
        } else if (word == "--rate" && value != nullptr) {
            const auto rate = rateOf(argv[++i]);
            if (!rate) {
                return std::nullopt;
            }
            options.rate = *rate;
        } else if (word.substr(0, 1) != "-" && options.program.empty()) {
            options.program = word;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace panel
