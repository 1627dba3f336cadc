// The window without a display server: SDL's dummy driver, read back through its renderer.
#include "display/sdl_back_end.h"

#include "display/area.h"
#include "support/environment.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace {

using namespace gpi;
using gpi::test::Environment;

Settings smallWindow(int scale = 1) {
    Settings settings;
    settings.display = DisplayKind::Sdl;
    settings.width = 6;
    settings.height = 4;
    settings.scale = scale;
    return settings;
}

class Window : public testing::Test {
  protected:
    /// Opens a window whose pixel (x, y) is 0x00YYXX80 at first.
    void open(int scale = 1) {
        window_ = SdlWindow::open(smallWindow(scale), VideoDriver::Any);
        ASSERT_NE(window_, nullptr) << SDL_GetError();
        for (uint32_t at = 0; at < rgb_.size(); ++at) {
            rgb_[at] = at / 6 << 16 | at % 6 << 8 | 0x80;
        }
        window_->upload(rgb_, wholeArea(6, 4));
    }

    /// The pixel that the window shows at a place.
    uint32_t shownAt(int x, int y) const {
        const SDL_Rect place{x, y, 1, 1};
        uint32_t pixel = 0;
        EXPECT_EQ(
            SDL_RenderReadPixels(window_->renderer(), &place, SDL_PIXELFORMAT_ARGB8888, &pixel, 4),
            0)
            << SDL_GetError();
        return pixel & 0xFFFFFF;
    }

    Environment environment_{{"SDL_VIDEODRIVER", "dummy"}};
    std::vector<uint32_t> rgb_ = std::vector<uint32_t>(24);
    std::unique_ptr<SdlWindow> window_;
};

TEST_F(Window, ShowsEveryPixel) {
    open();
    window_->present(View());
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(shownAt(x, y), rgb_[static_cast<size_t>(y * 6 + x)]);
        }
    }
}

TEST_F(Window, TakesOverOnlyTheGivenArea) {
    open();
    const std::vector<uint32_t> other(24, 0xFFFFFF);
    window_->upload(other, GRect{2, 1, 3, 2});
    window_->present(View());
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            const bool given = x >= 2 && x <= 3 && y >= 1 && y <= 2;
            EXPECT_EQ(shownAt(x, y), given ? 0xFFFFFF : rgb_[static_cast<size_t>(y * 6 + x)]);
        }
    }
}

TEST_F(Window, EnlargesByTheScale) {
    open(3);
    window_->present(View());
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 18; ++x) {
            EXPECT_EQ(shownAt(x, y), rgb_[static_cast<size_t>(y / 3 * 6 + x / 3)]);
        }
    }
}

TEST_F(Window, CentresTheEnlargedPictureOnBlack) {
    open();
    SDL_SetWindowSize(window_->window(), 15, 9);
    SDL_PumpEvents();
    window_->present(View());
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 15; ++x) {
            const bool picture = x >= 1 && x < 13 && y < 8;
            EXPECT_EQ(shownAt(x, y),
                      picture ? rgb_[static_cast<size_t>(y / 2 * 6 + (x - 1) / 2)] : 0U)
                << x << ' ' << y;
        }
    }
}

TEST_F(Window, ShowsThePartThatTheViewNames) {
    open();
    window_->present(View{2, 4, 3, 2}); // 3 x 1 pixels
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 6; ++x) {
            EXPECT_EQ(shownAt(x, y), rgb_[static_cast<size_t>(2 * 6 + 3 + x / 2)]);
        }
    }
}

TEST(NoWindow, IsNotADisplayServer) {
    const Environment environment{
        {"SDL_VIDEODRIVER", "dummy"}, {"DISPLAY", ":not-there"}, {"WAYLAND_DISPLAY", {}}};
    EXPECT_EQ(SdlWindow::open(smallWindow(), VideoDriver::DisplayServer), nullptr);
}

TEST(NoWindow, GivesAPictureFileUnlessOneWasAskedFor) {
    const Environment environment{
        {"SDL_VIDEODRIVER", "x11"}, {"DISPLAY", {}}, {"WAYLAND_DISPLAY", {}}};
    Settings settings = smallWindow();
    const Frame frame(6, 4, kFormat555);
    Signal events;
    MessageQueue messages(events);
    Input input(messages);
    testing::internal::CaptureStderr();
    EXPECT_EQ(openBackEnd(settings, frame, input), nullptr);
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(said.rfind("gpi: cannot open a window: ", 0), 0U) << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
    settings.display = DisplayKind::Automatic;
    testing::internal::CaptureStderr();
    const auto backEnd = openBackEnd(settings, frame, input);
    ASSERT_NE(backEnd, nullptr);
    EXPECT_FALSE(backEnd->waitForClose());
    EXPECT_FALSE(backEnd->isWindow());
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

constexpr std::array<GRect, 1> kWhole{GRect{0, 0, 5, 3}};
constexpr std::array<GRect, 1> kPart{GRect{1, 1, 2, 2}};

class WindowThread : public testing::Test {
  protected:
    std::unique_ptr<BackEnd> open() {
        return openSdlBackEnd(smallWindow(), frame_, input_, VideoDriver::Any);
    }

    Environment environment_{{"SDL_VIDEODRIVER", "dummy"}};
    Frame frame_{6, 4, kFormat24};
    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
};

TEST_F(WindowThread, SettlesAfterEveryChange) {
    const auto backEnd = open();
    ASSERT_NE(backEnd, nullptr);
    for (int round = 0; round < 1000; ++round) {
        backEnd->show(frame_, kWhole);
        backEnd->setView(View{1 + round % 4, 1, 0, 0});
        backEnd->settle();
    }
    EXPECT_TRUE(backEnd->finish(frame_));
}

TEST_F(WindowThread, EndsWhateverItWasTold) {
    for (int round = 0; round < 20; ++round) {
        const auto backEnd = open();
        ASSERT_NE(backEnd, nullptr);
        for (int shows = 0; shows < round * 50; ++shows) {
            backEnd->show(frame_, kPart);
        }
    }
}

TEST_F(WindowThread, WaitsForTheUserToCloseIt) {
    const auto backEnd = open();
    ASSERT_NE(backEnd, nullptr);
    std::atomic<bool> pushed = false;
    std::thread user([&] {
        SDL_Event event{};
        event.type = SDL_WINDOWEVENT;
        event.window.event = SDL_WINDOWEVENT_CLOSE;
        pushed = true;
        SDL_PushEvent(&event);
    });
    EXPECT_TRUE(backEnd->waitForClose());
    EXPECT_TRUE(pushed);
    user.join();
    EXPECT_TRUE(backEnd->waitForClose()); // closed already
    backEnd->show(frame_, kWhole);
    backEnd->settle();
}

} // namespace
