// Draws every primitive of the library in every style, a sheet each kind: in a window, or into
// picture files.
#include "display.h"
#include "keys.h"
#include "page.h"
#include "sheet.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

namespace {

enum ExitStatus { kDone = 0, kFailed = 1, kMisused = 2 };

constexpr std::string_view kUsage = R"(usage: gallery [--format FORMAT] [SHEET]
       gallery [--format FORMAT] --png FOLDER
       gallery --list

Shows a sheet, the first one without SHEET, until its window is closed: the page and
arrow keys, Home and End turn to others, Escape closes. Or writes a PNG file of each
sheet. FORMAT is 8, 555, 565 or 24 bits a pixel.
)";

struct Options {
    bool list = false;
    std::string format = "24";
    std::string folder; ///< empty to show a window
    size_t sheet = 0;
};

std::optional<size_t> sheetNamed(std::string_view name) {
    const auto& all = gallery::sheets();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const gallery::Sheet& sheet) { return sheet.name == name; });
    if (found == all.end()) {
        return std::nullopt;
    }
    return static_cast<size_t>(found - all.begin());
}

std::optional<Options> parse(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view word = argv[i];
        const bool hasValue = i + 1 < argc;
        if (word == "--list") {
            options.list = true;
        } else if (word == "--format" && hasValue) {
            options.format = argv[++i];
        } else if (word == "--png" && hasValue) {
            options.folder = argv[++i];
        } else if (const auto sheet = sheetNamed(word)) {
            options.sheet = *sheet;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

void list() {
    for (const gallery::Sheet& sheet : gallery::sheets()) {
        std::cout << sheet.name << '\n';
    }
}

/// The host platform's display: a page's size, in memory when files are written.
void configureHost(const Options& options) {
    constexpr int kOverwrite = 1;
    setenv("QUARLO_FORMAT", options.format.c_str(), kOverwrite);
    setenv("QUARLO_WIDTH", std::to_string(gallery::kPageWidth).c_str(), kOverwrite);
    setenv("QUARLO_HEIGHT", std::to_string(gallery::kPageHeight).c_str(), kOverwrite);
    setenv("QUARLO_TITLE", "Gallery", kOverwrite);
    if (!options.folder.empty()) {
        setenv("QUARLO_DISPLAY", "memory", kOverwrite);
    }
}

ExitStatus writeAll(gallery::Display& display, const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    for (size_t i = 0; i < gallery::sheets().size(); ++i) {
        const std::string file = std::string(gallery::sheets()[i].name) + ".png";
        display.show(i);
        if (!display.write((folder / file).string())) {
            return kFailed;
        }
    }
    return kDone;
}

void showFrom(gallery::Display& display, size_t sheet) {
    gallery::Key key;
    do {
        display.show(sheet);
        key = gallery::waitForKey();
        sheet = gallery::turned(sheet, gallery::sheets().size(), key);
    } while (key != gallery::Key::Close);
}

} // namespace

int main(int argc, char** argv) {
    const auto options = parse(argc, argv);
    if (!options) {
        std::cerr << kUsage;
        return kMisused;
    }
    if (options->list) {
        list();
        return kDone;
    }
    configureHost(*options);
    gallery::Display display;
    if (!display.ready()) {
        std::cerr << "gallery: there is no display\n";
        return kFailed;
    }
    if (!options->folder.empty()) {
        return writeAll(display, options->folder);
    }
    showFrom(display, options->sheet);
    return kDone;
}
