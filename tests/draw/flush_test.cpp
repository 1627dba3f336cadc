// Making a rectangle of the display visible.
#include "draw/draw_test.h"

#include "geometry/view.h"
#include "support/random_calls.h"

#include <quarlo/transfer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <ostream>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// A flush function and the service that it calls.
struct Way {
    int32_t (*flush)(GDrawHandle*, int16_t, int16_t, int16_t, int16_t);
    int service;
};

void PrintTo(const Way& way, std::ostream* out) {
    *out << "service " << way.service;
}

class Flush : public HandleTest, public testing::WithParamInterface<Way> {
  protected:
    Flush() {
        platform.forget();
        platform.answer(GetParam().service, 42);
    }

    int32_t flush(int16_t x, int16_t y, int16_t width, int16_t height) {
        return GetParam().flush(handle.get(), x, y, width, height);
    }

    void expectShown(int x, int y, int width, int height) {
        EXPECT_EQ(platform.calls,
                  std::vector{call(GetParam().service, handle.get(), x, y, width, height)});
        platform.forget();
    }

    void expectNothingShown(int16_t x, int16_t y, int16_t width, int16_t height) {
        EXPECT_EQ(flush(x, y, width, height), 0);
        EXPECT_TRUE(platform.calls.empty());
    }
};

INSTANTIATE_TEST_SUITE_P(Screen, Flush,
                         testing::Values(Way{GDFlushScreen, 9}, Way{GDFlushScreenForce, 58}),
                         [](const auto& way) { return way.param.service == 9 ? "Soon" : "Now"; });

TEST_P(Flush, HandsTheRectangleToThePlatform) {
    EXPECT_EQ(flush(10, 20, 30, 40), 42);
    expectShown(10, 20, 30, 40);
}

TEST_P(Flush, CutsToTheView) {
    EXPECT_EQ(flush(-10, -20, 30, 40), 42);
    expectShown(0, 0, 20, 20);
    EXPECT_EQ(flush(630, 470, 30, 40), 42);
    expectShown(630, 470, 10, 10);
    EXPECT_EQ(flush(-1, -1, 32767, 32767), 42);
    expectShown(0, 0, 640, 480);
}

TEST_P(Flush, DoesNotAskTheClip) {
    const GRect clip = {100, 100, 110, 110};
    GDSetClipRect(handle.get(), &clip);
    EXPECT_EQ(flush(10, 20, 30, 40), 42);
    expectShown(10, 20, 30, 40);
}

TEST_P(Flush, OutsideTheViewShowsNothing) {
    expectNothingShown(640, 0, 10, 10);
    expectNothingShown(-10, 0, 10, 10);
    expectNothingShown(0, 480, 10, 10);
    expectNothingShown(0, -10, 10, 10);
}

TEST_P(Flush, OfNoSizeShowsNothing) {
    for (const int16_t size : std::initializer_list<int16_t>{0, -1, -100, -32768}) {
        expectNothingShown(10, 10, size, 10);
        expectNothingShown(10, 10, 10, size);
    }
}

TEST_P(Flush, PastTheLastCoordinateShowsNothing) {
    expectNothingShown(32767, 0, 10, 10);
    expectNothingShown(0, 32760, 10, 32767);
}

TEST_P(Flush, MapsLocalCoordinates) {
    handle->localOrigin = {100, 50};
    EXPECT_EQ(flush(110, 70, 30, 40), 42);
    expectShown(10, 20, 30, 40);
}

TEST_P(Flush, MapsVirtualCoordinates) {
    GDSetVirtualMode(handle.get());
    handle->virtualRect = {0, 0, 999, 999};
    EXPECT_EQ(flush(500, 250, 500, 750), 42);
    expectShown(320, 120, 320, 360);
}

TEST_P(Flush, GivesThePlatformsResult) {
    platform.answer(GetParam().service, 0);
    EXPECT_EQ(flush(0, 0, 1, 1), 0);
    expectShown(0, 0, 1, 1);
}

TEST_P(Flush, WithoutTheServiceGivesZero) {
    platform.remove({GetParam().service});
    expectNothingShown(0, 0, 10, 10);
}

TEST_P(Flush, ShowsWhatLiesInTheView) {
    Random random(testSeed());
    const auto any = [&] { return random.coordinate(-100, 800); };
    for (int round = 0; round < 20000; ++round) {
        handle->modeFlags = random.oneIn(2) ? G_FLAG_VIRTUAL : 0;
        handle->localOrigin = {any(), any()};
        handle->virtualRect = {any(), any(), any(), any()};
        const int16_t x = any();
        const int16_t y = any();
        const int16_t width = any();
        const int16_t height = any();
        GRect rect = {x, y, low16(x + width - 1), low16(y + height - 1)};
        GRMapToScreenRect(handle.get(), &rect);
        const int left = std::max<int>(rect.left, 0);
        const int top = std::max<int>(rect.top, 0);
        const int right = std::min<int>(rect.right, 639);
        const int bottom = std::min<int>(rect.bottom, 479);
        SCOPED_TRACE(testing::Message()
                     << x << ' ' << y << ' ' << width << ' ' << height << " mapped to " << rect);
        const int32_t shown = flush(x, y, width, height);
        if (width > 0 && height > 0 && left <= right && top <= bottom) {
            ASSERT_EQ(shown, 42);
            expectShown(left, top, right - left + 1, bottom - top + 1);
        } else {
            ASSERT_EQ(shown, 0);
            ASSERT_TRUE(platform.calls.empty());
        }
    }
}

} // namespace
