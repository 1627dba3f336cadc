// The example of a main loop, used by a person who waits for each effect before going on.
#include "support/environment.h"
#include "support/png_reader.h"
#include "support/started_platform.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

extern "C" {
int runExample();
int32_t observeFlush(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t height);
int32_t observeWait(GEventMsg* event, int32_t wait);
}

namespace {

using namespace gpi::test;

/// What the person waits for, and does then.
struct Act {
    std::function<bool()> ready;
    std::function<void()> act;
};

std::vector<Act> acts;
size_t nextAct;
int waits;
GDrawHandle* panel;

/// The colour of a pixel: the display keeps red in the low byte.
uint32_t colorAt(int16_t x, int16_t y) {
    const uint32_t value = GDGetPixel(panel, x, y);
    return (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
}

void press(int32_t key) {
    GPIHostFeedKey(key, 1);
    GPIHostFeedKey(key, 0);
}

void quit() {
    GMessage message{};
    message.number = G_MESSAGE_QUIT;
    GPIHostPostMessage(&message);
}

bool always() {
    return true;
}

class MainLoop : public testing::Test {
  protected:
    MainLoop() {
        nextAct = 0;
        waits = 0;
    }

    /// Runs the example. What it left on the display.
    PngPicture run(std::vector<Act> script) {
        acts = std::move(script);
        EXPECT_EQ(runExample(), 0);
        EXPECT_EQ(nextAct, acts.size());
        return readPng(folder_.path("panel.png"));
    }

    TemporaryFolder folder_;
    Environment environment_{settings({{"QUARLO_DISPLAY", "png"},
                                       {"QUARLO_PNG", folder_.path("panel.png")},
                                       {"QUARLO_FORMAT", "24"},
                                       {"QUARLO_WIDTH", "480"},
                                       {"QUARLO_HEIGHT", "240"}})};
};

constexpr uint32_t kCross = 0xFFD060;
constexpr uint32_t kPressed = 0x88929C;
constexpr uint32_t kReleased = 0xA0AAB4;
constexpr uint32_t kFilled = 0x40C080;

bool isCrossAt(int16_t x, int16_t y) {
    return colorAt(x, y) == kCross && colorAt(static_cast<int16_t>(x + 12), y) == kCross &&
           colorAt(x, static_cast<int16_t>(y - 12)) == kCross;
}

bool isButton(uint32_t color) {
    return colorAt(330, 30) == color;
}

TEST_F(MainLoop, LooksAsItWasFoundGood) {
    const PngPicture picture =
        run({{always,
              [] {
                  press(GPI_KEY_RIGHT);
                  press(GPI_KEY_RIGHT);
                  press(GPI_KEY_UP);
                  press(GPI_KEY_F1); // means nothing
              }},
             {[] { return isCrossAt(175, 111); },
              [] { GPIHostFeedPointer(400, 50, GPI_POINTER_LEFT); }},
             {[] { return isButton(kPressed); }, [] { GPIHostFeedPointer(401, 51, 0); }},
             {[] { return isButton(kReleased) && colorAt(460, 208) == kFilled; },
              [] { GPIHostFeedPointer(400, 50, GPI_POINTER_LEFT); }},
             {[] { return isButton(kPressed); }, quit}});
    const PngPicture reviewed = readPng(MAIN_LOOP_PICTURE);
    EXPECT_EQ(picture.width, 480);
    EXPECT_EQ(picture.height, 240);
    EXPECT_TRUE(picture.pixels == reviewed.pixels) << "not the picture " MAIN_LOOP_PICTURE;
    EXPECT_LT(waits, 100) << "it does not sleep";
}

TEST_F(MainLoop, StopsTheCrossAtTheEdge) {
    run({{always,
          [] {
              GPIHostFeedKey(GPI_KEY_LEFT, 1);
              for (int i = 0; i < 100; ++i) {
                  GPIHostFeedKey(GPI_KEY_LEFT, 1);
                  GPIHostFeedPointer(i % 2, 0, 0); // so that repeats come one by one
              }
          }},
         {[] { return isCrossAt(39, 119); }, [] { press(GPI_KEY_ESCAPE); }}});
}

TEST_F(MainLoop, StartsNothingWhenTheButtonIsLeft) {
    run({{always, [] { GPIHostFeedPointer(400, 50, GPI_POINTER_LEFT); }},
         {[] { return isButton(kPressed); }, [] { GPIHostFeedPointer(10, 10, 0); }},
         {[] { return isButton(kReleased); }, quit}});
    EXPECT_LT(waits, 20) << "no timer runs";
}

} // namespace

/// Lets the person see what the example shows.
int32_t observeFlush(GDrawHandle* handle, int16_t x, int16_t y, int16_t width, int16_t height) {
    const int32_t shown = GDFlushScreen(handle, x, y, width, height);
    panel = handle;
    if (nextAct < acts.size() && acts[nextAct].ready()) {
        acts[nextAct++].act();
    }
    return shown;
}

int32_t observeWait(GEventMsg* event, int32_t wait) {
    ++waits;
    return GEGetEvent(event, wait);
}
