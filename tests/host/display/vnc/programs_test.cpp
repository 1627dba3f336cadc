// Programs that people use: they connect, photograph the display, and press its keys.
#include "input/message_reader.h"
#include "support/process.h"
#include "support/random_calls.h"
#include "vnc/served_display.h"
#include "x_server.h"

#include <cmath>
#include <cstdlib>

namespace {

using namespace gpi::test;
using quarlo::test::Random;
using quarlo::test::testSeed;

constexpr int kWidth = 160;
constexpr int kHeight = 120;

Environment::Values shown(const char* format, const std::string& password = "") {
    return {{"QUARLO_FORMAT", format},
            {"QUARLO_WIDTH", std::to_string(kWidth)},
            {"QUARLO_HEIGHT", std::to_string(kHeight)},
            {"QUARLO_TITLE", "viewed display"},
            {"QUARLO_VNC_PASSWORD", password}};
}

/// Rectangles of any colours.
void draw() {
    Random random(testSeed());
    GVram* const surface = StartedPlatform::surface();
    for (int16_t y = 0; y < kHeight; y = static_cast<int16_t>(y + 8)) {
        for (int16_t x = 0; x < kWidth; x = static_cast<int16_t>(x + 8)) {
            const GRect tile{x, y, static_cast<int16_t>(x + 7), static_cast<int16_t>(y + 7)};
            service<GPIFillRect>(GPI_SERVICE_FILL_RECT)(
                nullptr, surface, &tile, static_cast<uint32_t>(random.bits()), G_MODE_COPY);
        }
    }
    StartedPlatform::flushAll();
}

/// A display's number as viewers count: from port 5900 on.
std::string numberOf(const ServedDisplay& display) {
    return "127.0.0.1:" + std::to_string(display.port() - 5900);
}

class EveryFormat : public testing::TestWithParam<const char*> {};

TEST_P(EveryFormat, IsCapturedPixelForPixel) {
    const TemporaryFolder folder;
    const ServedDisplay display(shown(GetParam()));
    ASSERT_TRUE(display.started()) << display.said();
    draw();
    const std::string file = folder.path("captured.png");
    ASSERT_EQ(run({GVNCCAPTURE, "-q", numberOf(display), folder.path("capture.png")}), 0);
    // What is transparent in that file has no meaning.
    ASSERT_EQ(run({CONVERT, folder.path("capture.png"), "-alpha", "off", "-depth", "8", "-define",
                   "png:color-type=2", file}),
              0);
    const PngPicture picture = readPng(file);
    EXPECT_EQ(picture.width, kWidth);
    EXPECT_EQ(picture.pixels, display.frame());
}

TEST_P(EveryFormat, IsInASnapshot) {
    const TemporaryFolder folder;
    const ServedDisplay display(shown(GetParam()));
    draw();
    ASSERT_EQ(run({VNCSNAPSHOT, "-quiet", "-nojpeg", "-quality", "100", numberOf(display),
                   folder.path("snapshot.jpg")}),
              0);
    const std::string file = folder.path("snapshot.png");
    ASSERT_EQ(run({CONVERT, folder.path("snapshot.jpg"), "-depth", "8", "-define",
                   "png:color-type=2", file}),
              0);
    const PngPicture picture = readPng(file);
    const auto frame = display.frame();
    ASSERT_EQ(picture.pixels.size(), frame.size());
    // The file has its colours at half the resolution and rounded, so only the middles of tiles
    // are what they were, nearly.
    constexpr int kRounding = 4;
    for (int y = 4; y < kHeight; y += 8) {
        for (int x = 4; x < kWidth; x += 8) {
            const auto at = static_cast<size_t>(y * kWidth + x);
            for (const int shift : {0, 8, 16}) {
                const int seen = static_cast<int>(picture.pixels[at] >> shift & 0xFF);
                const int sent = static_cast<int>(frame[at] >> shift & 0xFF);
                ASSERT_LE(std::abs(seen - sent), kRounding) << x << ' ' << y;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Vnc, EveryFormat, testing::Values("8", "555", "565", "24"));

/// A viewer's window on a display server.
class ViewerWindow : public testing::Test {
  protected:
    static constexpr const char* kPassword = "spindle";

    void SetUp() override {
        ASSERT_NE(server_.display(), "");
        ASSERT_TRUE(display_.started()) << display_.said();
        draw();
    }

    /// Starts the viewer. Without a window manager somebody has to hand out the keyboard.
    void open() {
        const std::string file = folder_.path("password");
        ASSERT_EQ(run({"/bin/sh", "-c",
                       std::string("printf %s ") + kPassword + " | " VNCPASSWD " -f >" + file}),
                  0);
        viewer_.emplace(std::vector<std::string>{
            VNCVIEWER, "-passwd", file, "-AlertOnFatalError=0", "-ReconnectOnError=0",
            "-AutoSelect=0", "-LowColorLevel=0", "-FullColor=1", "-PreferredEncoding=Raw",
            "-MenuKey=F8", "127.0.0.1::" + std::to_string(display_.port())});
        xdotool({"search", "--sync", "--onlyvisible", "--name", "viewed display", "windowmove", "0",
                 "0", "windowfocus", "--sync", "%1"});
    }

    static void xdotool(std::vector<std::string> words) {
        words.insert(words.begin(), XDOTOOL);
        EXPECT_EQ(run(words), 0);
    }

    std::string next() {
        constexpr int32_t kLong = 60'000;
        GMessage message{};
        do {
            if (GPIHostWaitMessage(&message, kLong) == 0) {
                return "nothing";
            }
        } while (message.number == G_MESSAGE_POINTER_MOVE);
        return textOf(message);
    }

    XServer server_;
    TemporaryFolder folder_;
    Environment environment_{{"DISPLAY", server_.display()},
                             {"WAYLAND_DISPLAY", std::nullopt},
                             {"HOME", folder_.path()}};
    ServedDisplay display_{shown("565", kPassword)};
    std::optional<Process> viewer_;
};

TEST_F(ViewerWindow, ShowsTheDisplayAndHandsOnKeysAndPointer) {
    open();
    const auto frame = display_.frame();
    const std::string file = folder_.path("root.png");
    const auto photograph = [&] {
        EXPECT_EQ(run({IMPORT, "-window", "root", "-crop",
                       std::to_string(kWidth) + "x" + std::to_string(kHeight) + "+0+0", "+repage",
                       "-depth", "8", "-define", "png:color-type=2", file}),
                  0);
        return readPng(file).pixels;
    };
    auto seen = photograph();
    for (int tries = 0; tries < 100 && seen != frame; ++tries) {
        seen = photograph(); // the window fills as the viewer gets to it
    }
    EXPECT_EQ(seen, frame);

    xdotool({"key", "a"});
    EXPECT_EQ(next(), "key down 65");
    EXPECT_EQ(next(), "key up 65");
    xdotool({"key", "F5"});
    EXPECT_EQ(next(), "key down 116");
    EXPECT_EQ(next(), "key up 116");
    xdotool({"mousemove", "100", "50", "mousedown", "1"});
    EXPECT_EQ(next(), "left down 100,50 held 1");
    xdotool({"mousemove", "30", "110", "mouseup", "1"});
    EXPECT_EQ(next(), "left up 30,110");
    xdotool({"click", "3"});
    EXPECT_EQ(next(), "right down 30,110 held 2");
    EXPECT_EQ(next(), "right up 30,110");
}

} // namespace
