#include "support/started_platform.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

const auto next = service<GPINextMessage>(GPI_SERVICE_NEXT_MESSAGE);

GMessage messageOf(uint32_t number, GWord param1 = 0) {
    GMessage message{};
    message.number = number;
    message.param1 = param1;
    return message;
}

class Messages : public testing::Test {
  protected:
    StartedPlatform platform;
    GMessage message{};
};

TEST_F(Messages, ComeInTheirOrder) {
    EXPECT_EQ(next(&message), 0);
    for (GWord i = 0; i < 5; ++i) {
        const GMessage key = messageOf(G_MESSAGE_KEY_DOWN, i);
        EXPECT_EQ(GPIHostPostMessage(&key), 1);
    }
    for (GWord i = 0; i < 5; ++i) {
        EXPECT_EQ(next(&message), 1);
        EXPECT_EQ(message.number, uint32_t{G_MESSAGE_KEY_DOWN});
        EXPECT_EQ(message.param1, i);
    }
    EXPECT_EQ(next(&message), 0);
}

TEST_F(Messages, EndWithTheQuitMessage) {
    const GMessage quit = messageOf(G_MESSAGE_QUIT, 3);
    const GMessage paint = messageOf(G_MESSAGE_PAINT);
    GPIHostPostMessage(&quit);
    for (int i = 0; i < 1000; ++i) {
        GPIHostPostMessage(&paint);
    }
    for (int i = 0; i < 256; ++i) {
        ASSERT_EQ(next(&message), 1);
        ASSERT_EQ(message.number, uint32_t{G_MESSAGE_PAINT});
    }
    EXPECT_EQ(next(&message), 1);
    EXPECT_EQ(message.number, uint32_t{G_MESSAGE_QUIT});
    EXPECT_EQ(message.param1, GWord{3});
    EXPECT_EQ(next(&message), 0);
}

TEST_F(Messages, RefuseNull) {
    EXPECT_EQ(GPIHostPostMessage(nullptr), 0);
    const GMessage paint = messageOf(G_MESSAGE_PAINT);
    GPIHostPostMessage(&paint);
    EXPECT_EQ(next(nullptr), 0);
    EXPECT_EQ(next(&message), 1);
}

TEST_F(Messages, ComeFromAnyThread) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([] {
            const GMessage key = messageOf(G_MESSAGE_KEY_UP);
            for (int i = 0; i < 50; ++i) {
                GPIHostPostMessage(&key);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    int taken = 0;
    while (next(&message) == 1) {
        ++taken;
    }
    EXPECT_EQ(taken, 200);
}

} // namespace
