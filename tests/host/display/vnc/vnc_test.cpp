// The display as a viewer gets it, and what a viewer's person does.
#include "input/message_reader.h"
#include "support/random_calls.h"
#include "vnc/served_display.h"
#include "vnc/viewer.h"

#include <rfb/keysym.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace {

using namespace gpi::test;
using quarlo::test::Random;
using quarlo::test::testSeed;

const auto flush = service<GPIFlush>(GPI_SERVICE_FLUSH);
const auto fillRect = service<GPIFillRect>(GPI_SERVICE_FILL_RECT);
const auto setPalette = service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);
const auto setZoom = service<GPISetZoomScale>(GPI_SERVICE_SET_ZOOM_SCALE);
const auto setScroll = service<GPISetScrollPos>(GPI_SERVICE_SET_SCROLL_POS);

constexpr int kLeft = 1;
constexpr int kRight = 4;
constexpr int32_t kNoWait = 0;

Environment::Values small(const std::string& format = "24") {
    return {{"QUARLO_FORMAT", format}, {"QUARLO_WIDTH", "64"}, {"QUARLO_HEIGHT", "48"}};
}

/// Fills an area of the display in a grey that is the same in both byte orders.
void paint(const GRect& area, uint32_t grey) {
    fillRect(nullptr, StartedPlatform::surface(), &area, grey * 0x10101, G_MODE_COPY);
}

int32_t flushArea(const GRect& area) {
    return flush(nullptr, area.left, area.top, static_cast<int16_t>(area.right - area.left + 1),
                 static_cast<int16_t>(area.bottom - area.top + 1));
}

void scribble(GVram& surface, Random& random) {
    for (int at = 0; at < surface.height * surface.bytesPerLine; ++at) {
        surface.pixels[at] = static_cast<uint8_t>(random.bits());
    }
}

/// The next message as text; a viewer has been synchronised with before.
std::string nextMessage() {
    GMessage message{};
    return GPIHostWaitMessage(&message, kNoWait) == 1 ? textOf(message) : "nothing";
}

class EveryFormat : public testing::TestWithParam<const char*> {};

TEST_P(EveryFormat, IsSeenPixelForPixel) {
    const ServedDisplay display(small(GetParam()));
    ASSERT_TRUE(display.started()) << display.said();
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    EXPECT_EQ(viewer.width(), 64);
    EXPECT_EQ(viewer.height(), 48);
    Random random(testSeed());
    for (int round = 0; round < 5; ++round) {
        scribble(*StartedPlatform::surface(), random);
        StartedPlatform::flushAll();
        const auto frame = display.frame();
        EXPECT_TRUE(viewer.until([&] { return viewer.picture() == frame; }))
            << "seed " << testSeed();
    }
}

INSTANTIATE_TEST_SUITE_P(Vnc, EveryFormat, testing::Values("8", "555", "565", "24"));

TEST(Vnc, GetsWhatWasDrawnBeforeItCame) {
    const ServedDisplay display(small());
    paint(StartedPlatform::surface()->bounds, 0x7F);
    StartedPlatform::flushAll();
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    EXPECT_EQ(viewer.at(63, 47), 0x7F7F7FU);
}

TEST(Vnc, GetsChangedAreasOnly) {
    const ServedDisplay display(small());
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    const GRect readout{10, 20, 29, 25};
    paint(StartedPlatform::surface()->bounds, 0xFF);
    flushArea(readout);
    ASSERT_TRUE(viewer.update());
    ASSERT_EQ(viewer.areas().size(), 1U);
    const GRect seen = viewer.areas()[0];
    EXPECT_EQ(seen.left, 10);
    EXPECT_EQ(seen.top, 20);
    EXPECT_EQ(seen.right, 29);
    EXPECT_EQ(seen.bottom, 25);
    EXPECT_EQ(viewer.at(29, 25), 0xFFFFFFU);
    EXPECT_EQ(viewer.at(30, 25), 0U);
}

TEST(Vnc, SeesPaletteChangesAtOnce) {
    const ServedDisplay display(small("8"));
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    const uint32_t color = 0xABCDEF;
    ASSERT_EQ(setPalette(nullptr, 0, 1, &color), 1U);
    EXPECT_TRUE(viewer.until([&] { return viewer.at(5, 5) == 0xABCDEF; }));
}

TEST(Vnc, GetsAFrameInOneUpdateOnceFramesAreMarked) {
    const ServedDisplay display(small());
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    ASSERT_EQ(GPIHostEndFrame(), 1);
    constexpr GRect kTop{0, 0, 63, 3};
    constexpr GRect kBottom{0, 44, 63, 47};
    paint(kTop, 0x11);
    paint(kBottom, 0x22);
    flushArea(kTop);
    ASSERT_TRUE(viewer.sync());
    EXPECT_EQ(viewer.at(0, 0), 0U) << "the frame is not finished";
    flushArea(kBottom);
    GPIHostEndFrame();
    ASSERT_TRUE(viewer.until([&] { return viewer.at(0, 0) != 0; }));
    EXPECT_EQ(viewer.areas().size(), 2U);
    EXPECT_EQ(viewer.at(63, 3), 0x111111U);
    EXPECT_EQ(viewer.at(63, 47), 0x222222U);
}

TEST(Vnc, NeverSeesPartsOfTwoFrames) {
    const ServedDisplay display(small());
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    constexpr uint32_t kLast = 250;
    GPIHostEndFrame();
    std::atomic<bool> watching = true;
    std::thread program([&] {
        uint32_t grey = 0;
        while (watching) {
            grey = grey % kLast + 1;
            for (int16_t top = 0; top < 48; top = static_cast<int16_t>(top + 8)) {
                const GRect strip{0, top, 63, static_cast<int16_t>(top + 7)};
                paint(strip, grey);
                flushArea(strip);
            }
            GPIHostEndFrame();
        }
    });
    for (int seen = 0; seen < 200 && viewer.update(); ++seen) {
        const auto picture = viewer.picture();
        EXPECT_EQ(std::count(picture.begin(), picture.end(), picture[0]),
                  static_cast<long>(picture.size()));
    }
    watching = false;
    program.join();
    EXPECT_NE(viewer.at(0, 0), 0U);
}

TEST(Vnc, TakesAnUnmarkedFrameByForce) {
    const ServedDisplay display(small());
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    GPIHostEndFrame();
    paint(StartedPlatform::surface()->bounds, 0x33);
    StartedPlatform::flushAll();
    EXPECT_TRUE(viewer.until([&] { return viewer.at(40, 40) == 0x333333; }));
}

TEST(Vnc, ServesSeveralViewersAlike) {
    const ServedDisplay display(small());
    Viewer first(display.port());
    Viewer second(display.port());
    ASSERT_TRUE(first.connected() && second.connected());
    Random random(testSeed());
    scribble(*StartedPlatform::surface(), random);
    StartedPlatform::flushAll();
    const auto frame = display.frame();
    EXPECT_TRUE(first.until([&] { return first.picture() == frame; }));
    EXPECT_TRUE(second.until([&] { return second.picture() == frame; }));
}

TEST(Vnc, ShowsTheZoomedPartAndPointsIntoIt) {
    const ServedDisplay display(small());
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    const GRect pixel{21, 31, 21, 31};
    paint(pixel, 0xFF);
    StartedPlatform::flushAll();
    ASSERT_EQ(setZoom(nullptr, 4, 2), 1U);
    ASSERT_EQ(setScroll(nullptr, 20, 20), 1U);
    ASSERT_TRUE(viewer.until([&] { return viewer.at(4, 22) != 0; }));
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 64; ++x) {
            const bool lit = x >= 4 && x <= 7 && y >= 22 && y <= 23;
            ASSERT_EQ(viewer.at(x, y), lit ? 0xFFFFFFU : 0U) << x << ' ' << y;
        }
    }
    paint(pixel, 0x80);
    StartedPlatform::flushAll();
    ASSERT_TRUE(viewer.until([&] { return viewer.at(7, 23) == 0x808080; }));
    ASSERT_EQ(viewer.areas().size(), 1U);
    viewer.pointer(7, 23, kLeft);
    ASSERT_TRUE(viewer.sync());
    EXPECT_EQ(nextMessage(), "move 21,31");
    EXPECT_EQ(nextMessage(), "left down 21,31 held 1");
}

TEST(VncInput, TakesTheWayOfTheWindows) {
    const ServedDisplay display(small());
    EXPECT_EQ(GPIHostHasWindow(), 1);
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    viewer.key(XK_Shift_L, true);
    viewer.key('A', true);
    viewer.key(XK_Shift_L, false);
    viewer.key('a', false); // the symbol follows the shift key, the key is the same
    viewer.key(XK_F5, true);
    viewer.key(XK_F5, true);
    viewer.key(XK_F5, false);
    viewer.pointer(20, 30, 0);
    viewer.pointer(20, 30, kLeft);
    viewer.pointer(63, 47, kLeft);
    viewer.pointer(63, 47, kLeft | kRight);
    viewer.pointer(63, 47, 0);
    ASSERT_TRUE(viewer.sync());
    for (const char* const expected :
         {"key down 16", "key down 65", "key up 16", "key up 65", "key down 116", "key up 116",
          "move 20,30", "left down 20,30 held 1", "move 63,47 held 1", "right down 63,47 held 3",
          "left up 63,47 held 2", "right up 63,47"}) {
        EXPECT_EQ(nextMessage(), expected);
    }
    EXPECT_EQ(nextMessage(), "nothing");
}

TEST(VncInput, IsReleasedWhenItsViewerGoes) {
    const ServedDisplay display(small());
    Viewer stays(display.port());
    ASSERT_TRUE(stays.connected());
    {
        Viewer goes(display.port());
        ASSERT_TRUE(goes.connected());
        goes.key('x', true);
        goes.pointer(3, 4, kRight);
        ASSERT_TRUE(goes.sync());
        stays.key('y', true);
        ASSERT_TRUE(stays.sync());
    }
    for (const char* const expected :
         {"key down 88", "move 3,4", "right down 3,4 held 2", "key down 89"}) {
        EXPECT_EQ(nextMessage(), expected);
    }
    GMessage message{};
    constexpr int32_t kLong = 60'000;
    ASSERT_EQ(GPIHostWaitMessage(&message, kLong), 1);
    EXPECT_EQ(textOf(message), "key up 88");
    ASSERT_EQ(GPIHostWaitMessage(&message, kLong), 1);
    EXPECT_EQ(textOf(message), "right up 3,4");
    ASSERT_TRUE(stays.sync());
    EXPECT_EQ(nextMessage(), "nothing") << "the other viewer holds its key";
}

TEST(VncInput, IsNoneWhereViewersMayOnlyLook) {
    auto settings = small();
    settings["QUARLO_VNC_VIEW_ONLY"] = "yes";
    const ServedDisplay display(settings);
    Viewer viewer(display.port());
    ASSERT_TRUE(viewer.connected());
    viewer.key('a', true);
    viewer.key('a', false);
    viewer.pointer(5, 5, kLeft);
    ASSERT_TRUE(viewer.sync());
    EXPECT_EQ(nextMessage(), "nothing");
}

} // namespace
