// The keys that turn the gallery's pages.
#include "keys.h"

#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

using namespace gallery;
using gpi::test::StartedPlatform;

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

void press(int32_t key) {
    ASSERT_EQ(GPIHostFeedKey(key, 1), 1);
    ASSERT_EQ(GPIHostFeedKey(key, 0), 1);
}

TEST(GalleryKeys, AreNotWaitedForWithoutAWindow) {
    const StartedPlatform platform;
    press(GPI_KEY_RIGHT);
    EXPECT_EQ(waitForKey(), Key::Close);
}

TEST(GalleryKeys, ComeInTheirOrder) {
    const StartedPlatform platform{{"QUARLO_DISPLAY", "sdl"}, {"SDL_VIDEODRIVER", "dummy"}};
    ASSERT_EQ(platform.started(), 1U);
    constexpr int32_t kKeys[] = {GPI_KEY_PAGE_DOWN, GPI_KEY_LEFT, 'A', GPI_KEY_SPACE,
                                 GPI_KEY_HOME,      GPI_KEY_END,  'Q'};
    for (const int32_t key : kKeys) {
        press(key);
    }
    for (const Key key : {Key::Next, Key::Previous, Key::Next, Key::First, Key::Last, Key::Close}) {
        EXPECT_EQ(waitForKey(), key);
    }
}

TEST(GalleryKeys, CloseWithTheWindow) {
    const StartedPlatform platform{{"QUARLO_DISPLAY", "sdl"}, {"SDL_VIDEODRIVER", "dummy"}};
    GMessage quit{};
    quit.number = G_MESSAGE_QUIT;
    GPIHostPostMessage(&quit);
    EXPECT_EQ(waitForKey(), Key::Close);
}

} // namespace
