// The keys that turn the gallery's pages, pushed as a window's thread would.
#include "keys.h"

#include <SDL.h>

#include <gtest/gtest.h>

#include <initializer_list>
#include <thread>

using namespace gallery;

namespace {

TEST(GalleryPages, AreTurnedRoundTheEnds) {
    constexpr size_t kCount = 5;
    EXPECT_EQ(turned(2, kCount, Key::Next), 3U);
    EXPECT_EQ(turned(2, kCount, Key::Previous), 1U);
    EXPECT_EQ(turned(4, kCount, Key::Next), 0U);
    EXPECT_EQ(turned(0, kCount, Key::Previous), 4U);
    EXPECT_EQ(turned(2, kCount, Key::First), 0U);
    EXPECT_EQ(turned(2, kCount, Key::Last), 4U);
    EXPECT_EQ(turned(2, kCount, Key::Close), 2U);
}

TEST(GalleryKeys, AreNotWaitedForWithoutAWindow) {
    Keys keys;
    EXPECT_EQ(keys.wait(), Key::Close);
}

class GalleryKeysOfAWindow : public testing::Test {
  protected:
    GalleryKeysOfAWindow() {
        SDL_SetHint(SDL_HINT_VIDEODRIVER, "dummy");
        started_ = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
    }
    ~GalleryKeysOfAWindow() override { SDL_Quit(); }
    void SetUp() override { ASSERT_TRUE(started_) << SDL_GetError(); }

    static void press(SDL_Keycode code) {
        SDL_Event event{};
        event.type = SDL_KEYDOWN;
        event.key.keysym.sym = code;
        SDL_PushEvent(&event);
    }

    static void closeWindow() {
        SDL_Event event{};
        event.type = SDL_WINDOWEVENT;
        event.window.event = SDL_WINDOWEVENT_CLOSE;
        SDL_PushEvent(&event);
    }

  private:
    bool started_;
};

TEST_F(GalleryKeysOfAWindow, ComeInTheirOrder) {
    Keys keys;
    std::thread window([] {
        for (const SDL_Keycode code :
             {SDLK_PAGEDOWN, SDLK_LEFT, SDLK_a, SDLK_SPACE, SDLK_HOME, SDLK_END}) {
            press(code);
        }
        closeWindow();
    });
    for (const Key key : {Key::Next, Key::Previous, Key::Next, Key::First, Key::Last, Key::Close}) {
        EXPECT_EQ(keys.wait(), key);
    }
    window.join();
}

TEST_F(GalleryKeysOfAWindow, OfOtherTimesAreNotTaken) {
    { const Keys before; }
    press(SDLK_RIGHT);
    Keys keys;
    press(SDLK_ESCAPE);
    EXPECT_EQ(keys.wait(), Key::Close);
}

} // namespace
