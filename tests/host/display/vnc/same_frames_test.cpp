// One program drawn on every display: what is seen is the same, whatever shows it.
#include "display.h"
#include "page.h"
#include "sheet.h"
#include "vnc/served_display.h"
#include "vnc/viewer.h"

#include <SDL.h>

#include <cstring>
#include <functional>
#include <set>

namespace {

using namespace gpi::test;

constexpr size_t kPixels = size_t{gallery::kPageWidth} * gallery::kPageHeight;

/// FNV-1a over the colours of a picture of a page's size.
uint64_t checksum(const std::vector<uint32_t>& pixels) {
    EXPECT_EQ(pixels.size(), kPixels);
    uint64_t sum = 0xCBF29CE484222325;
    for (const uint32_t pixel : pixels) {
        sum = (sum ^ (pixel & 0xFFFFFF)) * 0x100000001B3;
    }
    return sum;
}

std::vector<uint32_t> colorsOf(const PngPicture& picture) {
    std::vector<uint32_t> colors = picture.pixels;
    if (picture.palette) {
        for (uint32_t& color : colors) {
            color = picture.colors[color];
        }
    }
    return colors;
}

/// The picture in the only window that there is.
std::vector<uint32_t> colorsInWindow() {
    constexpr uint32_t kMostWindows = 1000;
    SDL_Window* window = nullptr;
    for (uint32_t id = 1; id < kMostWindows && window == nullptr; ++id) {
        window = SDL_GetWindowFromID(id);
    }
    const SDL_Surface* const surface = window != nullptr ? SDL_GetWindowSurface(window) : nullptr;
    std::vector<uint32_t> colors;
    for (int y = 0; surface != nullptr && y < surface->h; ++y) {
        const auto* const row = static_cast<const uint8_t*>(surface->pixels) + y * surface->pitch;
        for (int x = 0; x < surface->w; ++x) {
            uint32_t pixel = 0;
            std::memcpy(&pixel, row + ptrdiff_t{x} * surface->format->BytesPerPixel, sizeof pixel);
            uint8_t red = 0;
            uint8_t green = 0;
            uint8_t blue = 0;
            SDL_GetRGB(pixel, surface->format, &red, &green, &blue);
            colors.push_back(uint32_t{red} << 16 | uint32_t{green} << 8 | blue);
        }
    }
    return colors;
}

class SameFrames : public testing::TestWithParam<const char*> {
  protected:
    /// The display's settings, of which a test chooses where it is shown.
    Environment::Values on(Environment::Values changes) const {
        changes["QUARLO_FORMAT"] = GetParam();
        changes["QUARLO_WIDTH"] = std::to_string(gallery::kPageWidth);
        changes["QUARLO_HEIGHT"] = std::to_string(gallery::kPageHeight);
        return settings(changes);
    }

    /// Draws a sheet on a display.
    /// @param look gives the colours that are seen there
    uint64_t shown(size_t sheet, const std::function<std::vector<uint32_t>(int port)>& look) const {
        testing::internal::CaptureStderr();
        gallery::Display display;
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_TRUE(display.ready()) << said;
        display.show(sheet);
        return checksum(look(portIn(said)));
    }

    uint64_t inMemory(size_t sheet) const {
        const Environment environment(on({{"QUARLO_DISPLAY", "memory"}}));
        return shown(sheet, [&](int) {
            const std::string path = folder_.path("memory.png");
            EXPECT_EQ(GPIHostWritePng(path.c_str()), 1);
            return colorsOf(readPng(path));
        });
    }

    uint64_t inAFile(size_t sheet) const {
        const std::string path = folder_.path("file.png");
        const Environment environment(on({{"QUARLO_DISPLAY", "png"}, {"QUARLO_PNG", path}}));
        {
            gallery::Display display;
            display.show(sheet);
            testing::internal::CaptureStderr();
        }
        testing::internal::GetCapturedStderr(); // where it was written to
        return checksum(colorsOf(readPng(path)));
    }

    uint64_t inAWindow(size_t sheet) const {
        const Environment environment(
            on({{"QUARLO_DISPLAY", "sdl"}, {"SDL_VIDEODRIVER", "dummy"}}));
        return shown(sheet, [](int) { return colorsInWindow(); });
    }

    uint64_t atAViewer(size_t sheet) const {
        const Environment environment(on({{"QUARLO_DISPLAY", "vnc"}, {"QUARLO_VNC_PORT", "0"}}));
        return shown(sheet, [](int port) { return Viewer(port).picture(); });
    }

    TemporaryFolder folder_;
};

TEST_P(SameFrames, AreSeenEverywhere) {
    std::set<uint64_t> sums;
    constexpr size_t kEvery = 4;
    size_t sheets = 0;
    for (size_t sheet = 0; sheet < gallery::sheets().size(); sheet += kEvery, ++sheets) {
        const uint64_t sum = inMemory(sheet);
        EXPECT_EQ(inAFile(sheet), sum) << gallery::sheets()[sheet].name;
        EXPECT_EQ(inAWindow(sheet), sum) << gallery::sheets()[sheet].name;
        EXPECT_EQ(atAViewer(sheet), sum) << gallery::sheets()[sheet].name;
        sums.insert(sum);
    }
    EXPECT_EQ(sums.size(), sheets) << "every sheet looks different";
}

INSTANTIATE_TEST_SUITE_P(Formats, SameFrames, testing::Values("8", "555", "565", "24"));

} // namespace
