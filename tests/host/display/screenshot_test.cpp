// The window as a person sees it: on a display server, photographed from outside.
#include "support/png_reader.h"
#include "support/started_platform.h"
#include "x_server.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

const auto fillRect = service<GPIFillRect>(GPI_SERVICE_FILL_RECT);
const auto flushForce = service<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE);

constexpr int kWidth = 200;
constexpr int kHeight = 100;

class Screenshot : public testing::TestWithParam<const char*> {
  protected:
    PngPicture photograph() const {
        const std::string path = folder_.path("root.png");
        EXPECT_EQ(
            run({IMPORT, "-window", "root", "-depth", "8", "-define", "png:color-type=2", path}),
            0);
        return readPng(path);
    }

    XServer server_;
    TemporaryFolder folder_;
};

/// Where a picture begins in another one that is black otherwise.
std::pair<int, int> cornerOf(const PngPicture& picture) {
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (picture.at(x, y) != 0) {
                return {x, y};
            }
        }
    }
    return {0, 0};
}

TEST_P(Screenshot, EqualsWhatWasDrawn) {
    ASSERT_NE(server_.display(), "");
    const StartedPlatform platform{{"QUARLO_DISPLAY", std::nullopt}, // found without being asked
                                   {"DISPLAY", server_.display()},
                                   {"WAYLAND_DISPLAY", std::nullopt},
                                   {"SDL_VIDEODRIVER", std::nullopt},
                                   {"QUARLO_FORMAT", GetParam()},
                                   {"QUARLO_SCALE", "2"},
                                   {"QUARLO_WIDTH", std::to_string(kWidth)},
                                   {"QUARLO_HEIGHT", std::to_string(kHeight)}};
    ASSERT_EQ(platform.started(), 1U);
    GVram* const surface = platform.surface();
    fillRect(nullptr, surface, &surface->bounds, 0xFFFFFF, G_MODE_COPY);
    for (int16_t at = 0; at < 10; ++at) {
        const GRect bar{static_cast<int16_t>(at * 20), static_cast<int16_t>(at * 10),
                        static_cast<int16_t>(at * 20 + 9), static_cast<int16_t>(at * 10 + 4)};
        fillRect(nullptr, surface, &bar, 0x1234567U * static_cast<uint32_t>(at), G_MODE_COPY);
    }
    ASSERT_EQ(flushForce(nullptr, 0, 0, kWidth, kHeight), 1);
    ASSERT_EQ(GPIHostWritePng(folder_.path("display.png").c_str()), 1);
    const PngPicture drawn = readPng(folder_.path("display.png"));
    // The server works through its requests in order; the one for a picture comes after ours, but
    // on another connection. Ask until the window is there.
    PngPicture seen = photograph();
    for (int tries = 0; tries < 100 && cornerOf(seen) == std::pair(0, 0); ++tries) {
        seen = photograph();
    }
    const auto [left, top] = cornerOf(seen);
    // The first pixel is black: bar 0. The row above the first white one is the corner's.
    ASSERT_LE(left + kWidth, seen.width);
    ASSERT_LE(top + kHeight, seen.height);
    const int originX = left - 20;
    const int originY = top;
    for (int y = 0; y < kHeight * 2; ++y) {
        for (int x = 0; x < kWidth * 2; ++x) {
            const uint32_t value = drawn.at(x / 2, y / 2);
            ASSERT_EQ(seen.at(originX + x, originY + y),
                      drawn.palette ? drawn.colors[value] : value)
                << x << ' ' << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, Screenshot, testing::Values("8", "555", "565", "24"));

} // namespace
