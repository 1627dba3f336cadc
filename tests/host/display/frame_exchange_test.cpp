#include "display/frame_exchange.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <array>
#include <future>
#include <thread>

namespace {

using namespace gpi;

class Exchange : public testing::Test {
  protected:
    bool readable() const {
        pollfd descriptor{exchange_.descriptor(), POLLIN, 0};
        return poll(&descriptor, 1, 0) == 1;
    }

    void put(uint8_t value, const GRect& area) {
        for (int y = area.top; y <= area.bottom; ++y) {
            for (int x = area.left; x <= area.right; ++x) {
                std::fill_n(frame_.at(x, y), 3, value);
            }
        }
        exchange_.put(frame_, {&area, 1});
    }

    /// How many areas there were to take, and the colour of the first pixel.
    struct Taken {
        size_t areas = 0;
        uint32_t pixel = 0;
        bool view = false;
    };
    Taken take() {
        Taken taken;
        EXPECT_TRUE(exchange_.take([&](const FrameExchange::News& news) {
            taken = {news.areas.size(), news.rgb[0], news.view != nullptr};
        }));
        return taken;
    }

    Frame frame_{8, 4, kFormat24};
    FrameExchange exchange_{frame_};
};

TEST_F(Exchange, StartsWithTheWholeFrame) {
    EXPECT_TRUE(readable());
    const Taken taken = take();
    EXPECT_EQ(taken.areas, 1U);
    EXPECT_TRUE(taken.view);
    EXPECT_FALSE(readable());
    EXPECT_EQ(take().areas, 0U);
}

TEST_F(Exchange, GathersWhatComesTooFast) {
    take();
    put(1, {0, 0, 0, 0});
    put(2, {4, 2, 5, 3});
    put(3, {0, 0, 0, 0});
    EXPECT_TRUE(readable());
    const Taken taken = take();
    EXPECT_EQ(taken.areas, 2U);
    EXPECT_EQ(taken.pixel, 0x030303U);
    EXPECT_FALSE(taken.view);
}

TEST_F(Exchange, HandsOverAViewOnce) {
    take();
    exchange_.setView(View{2, 2, 1, 1});
    EXPECT_TRUE(readable());
    EXPECT_TRUE(take().view);
    EXPECT_FALSE(take().view);
}

TEST_F(Exchange, SettlesWhenWhatWasPutIsConfirmed) {
    put(1, {0, 0, 0, 0});
    auto settled = std::async(std::launch::async, [&] { exchange_.settle(); });
    take();
    EXPECT_EQ(settled.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    exchange_.confirm();
    settled.get();
    put(2, {0, 0, 0, 0});
    exchange_.confirm(); // of what was taken before
    auto again = std::async(std::launch::async, [&] { exchange_.settle(); });
    EXPECT_EQ(again.wait_for(std::chrono::milliseconds(20)), std::future_status::timeout);
    exchange_.end();
    again.get();
}

TEST_F(Exchange, StopsAtOnce) {
    take();
    auto ended = std::async(std::launch::async, [&] { exchange_.waitForEnd(); });
    exchange_.stop();
    EXPECT_TRUE(readable());
    EXPECT_FALSE(exchange_.take([](const FrameExchange::News&) { ADD_FAILURE(); }));
    exchange_.end();
    ended.get();
}

} // namespace
