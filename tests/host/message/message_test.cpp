// The queue of messages: its order, its bounds, waiting, and what programs post.
#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

constexpr GWord kPlaces = 224;    ///< for any message
constexpr GWord kAllPlaces = 256; ///< with those for releases
constexpr int32_t kNoLimit = -1;

const auto next = service<GPINextMessage>(GPI_SERVICE_NEXT_MESSAGE);

GMessage messageOf(uint32_t number, GWord param1 = 0, GWord param2 = 0) {
    GMessage message{};
    message.number = number;
    message.param1 = param1;
    message.param2 = param2;
    return message;
}

int32_t post(uint32_t number, GWord param1 = 0, GWord param2 = 0) {
    const GMessage message = messageOf(number, param1, param2);
    return GPIHostPostMessage(&message);
}

class Messages : public testing::Test {
  protected:
    /// The number of the next message; 0 when there is none.
    uint32_t take() {
        message = {};
        return next(&message) == 1 ? message.number : 0;
    }

    StartedPlatform platform;
    GMessage message{};
};

TEST_F(Messages, ComeInTheirOrder) {
    EXPECT_EQ(next(&message), 0);
    for (GWord i = 0; i < 5; ++i) {
        EXPECT_EQ(post(G_MESSAGE_KEY_DOWN, i), 1);
    }
    for (GWord i = 0; i < 5; ++i) {
        EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_DOWN});
        EXPECT_EQ(message.param1, i);
    }
    EXPECT_EQ(next(&message), 0);
}

TEST_F(Messages, AreCopiedWhole) {
    int window = 0;
    const GMessage posted{&window, 0x7001, ~GWord{0}, 5, 0xFFFFFFFF, -3, 70000};
    GPIHostPostMessage(&posted);
    ASSERT_EQ(next(&message), 1);
    EXPECT_EQ(message.window, &window);
    EXPECT_EQ(message.number, 0x7001U);
    EXPECT_EQ(message.param1, ~GWord{0});
    EXPECT_EQ(message.param2, 5U);
    EXPECT_EQ(message.time, 0xFFFFFFFF);
    EXPECT_EQ(message.x, -3);
    EXPECT_EQ(message.y, 70000);
}

TEST_F(Messages, PaintAndQuitWaitBehindAllOthers) {
    post(G_MESSAGE_QUIT, 3);
    post(G_MESSAGE_PAINT, 1);
    post(G_MESSAGE_KEY_DOWN, 'A');
    post(G_MESSAGE_PAINT, 2);
    post(G_MESSAGE_KEY_UP, 'A');
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_DOWN});
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_UP});
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_PAINT});
    EXPECT_EQ(message.param1, 2U) << "one paint is as good as many";
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_QUIT});
    EXPECT_EQ(message.param1, 3U);
    EXPECT_EQ(take(), 0U);
}

TEST_F(Messages, AreRefusedWhenTooManyWait) {
    for (GWord i = 0; i < kPlaces; ++i) {
        ASSERT_EQ(post(0x400, i), 1);
    }
    EXPECT_EQ(post(0x400, kPlaces), 0);
    EXPECT_EQ(post(G_MESSAGE_KEY_DOWN, 'A'), 0);
    for (GWord i = kPlaces; i < kAllPlaces; ++i) {
        ASSERT_EQ(post(i % 2 == 0 ? G_MESSAGE_KEY_UP : G_MESSAGE_LEFT_UP), 1);
    }
    EXPECT_EQ(post(G_MESSAGE_RIGHT_UP), 0);
    EXPECT_EQ(post(G_MESSAGE_PAINT), 1);
    EXPECT_EQ(post(G_MESSAGE_QUIT), 1);
    for (GWord i = 0; i < kPlaces; ++i) {
        ASSERT_EQ(take(), 0x400U);
        ASSERT_EQ(message.param1, i);
    }
    for (GWord i = kPlaces; i < kAllPlaces; ++i) {
        ASSERT_NE(take(), 0U);
    }
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_PAINT});
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_QUIT});
    EXPECT_EQ(post(0x400), 1);
}

TEST_F(Messages, OfOnePointerMoveBecomeOne) {
    post(G_MESSAGE_POINTER_MOVE, 0, 1);
    post(G_MESSAGE_POINTER_MOVE, 0, 2);
    post(G_MESSAGE_LEFT_DOWN, 0, 2);
    post(G_MESSAGE_POINTER_MOVE, 0, 3);
    post(G_MESSAGE_POINTER_MOVE, 0, 4);
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_POINTER_MOVE});
    EXPECT_EQ(message.param2, 2U);
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_LEFT_DOWN});
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_POINTER_MOVE});
    EXPECT_EQ(message.param2, 4U);
    EXPECT_EQ(take(), 0U);
}

TEST_F(Messages, OfOneKeyThatRepeatsAreCounted) {
    post(G_MESSAGE_KEY_DOWN, 'A', 1);
    post(G_MESSAGE_KEY_DOWN, 'A', GPI_KEY_WAS_DOWN | 1);
    post(G_MESSAGE_KEY_DOWN, 'A', GPI_KEY_WAS_DOWN | 2);
    post(G_MESSAGE_KEY_DOWN, 'B', GPI_KEY_WAS_DOWN | 1);
    post(G_MESSAGE_KEY_DOWN, 'B', 1); // not a repeat
    post(G_MESSAGE_KEY_DOWN, 'B', GPI_KEY_WAS_DOWN | 0xFFFF);
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_DOWN});
    EXPECT_EQ(message.param2, 4U);
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_DOWN});
    EXPECT_EQ(message.param1, GWord{'B'});
    EXPECT_EQ(message.param2, GPI_KEY_WAS_DOWN | 1U);
    EXPECT_EQ(take(), uint32_t{G_MESSAGE_KEY_DOWN});
    EXPECT_EQ(message.param2, 0xFFFFU) << "a count that is full stays full";
    EXPECT_EQ(take(), 0U);
}

TEST_F(Messages, RefuseNull) {
    EXPECT_EQ(GPIHostPostMessage(nullptr), 0);
    post(G_MESSAGE_PAINT);
    EXPECT_EQ(next(nullptr), 0);
    EXPECT_EQ(GPIHostWaitMessage(nullptr, kNoLimit), 0);
    EXPECT_EQ(next(&message), 1);
}

TEST_F(Messages, OfAnEarlierRunAreForgotten) {
    post(G_MESSAGE_KEY_DOWN);
    post(G_MESSAGE_PAINT);
    post(G_MESSAGE_QUIT);
    platform.stop();
    service<GPIStart>(GPI_SERVICE_START)(0);
    EXPECT_EQ(take(), 0U);
    service<GPIStop>(GPI_SERVICE_STOP)();
}

TEST_F(Messages, AreWaitedForInTime) {
    using namespace std::chrono;
    message.number = 77;
    const auto start = steady_clock::now();
    EXPECT_EQ(GPIHostWaitMessage(&message, 20), 0);
    EXPECT_GE(steady_clock::now() - start, milliseconds(20));
    EXPECT_EQ(GPIHostWaitMessage(&message, 0), 0);
    EXPECT_EQ(message.number, 77U);
}

TEST_F(Messages, OfAnotherThreadWakeTheOneThatWaits) {
    constexpr uint32_t kNumbers[] = {0x400, G_MESSAGE_PAINT, G_MESSAGE_QUIT};
    for (const uint32_t number : kNumbers) {
        auto waiting =
            std::async(std::launch::async, [&] { return GPIHostWaitMessage(&message, kNoLimit); });
        post(number);
        EXPECT_EQ(waiting.get(), 1);
        EXPECT_EQ(message.number, number);
    }
}

TEST_F(Messages, ComeFromAnyThread) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([] {
            for (int i = 0; i < 50; ++i) {
                post(G_MESSAGE_KEY_UP);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    int taken = 0;
    while (take() != 0) {
        ++taken;
    }
    EXPECT_EQ(taken, 200);
}

} // namespace
