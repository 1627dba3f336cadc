// Programs that stand in for a person.
#include "support/started_platform.h"

#include "input/message_reader.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

using Texts = std::vector<std::string>;

constexpr int32_t kNoWait = 0;

class Feed : public testing::Test {
  protected:
    static Texts taken() {
        Texts texts;
        GMessage message;
        while (GPIHostWaitMessage(&message, kNoWait) == 1) {
            texts.push_back(textOf(message));
        }
        return texts;
    }

    StartedPlatform platform;
};

TEST_F(Feed, PressesKeys) {
    EXPECT_EQ(GPIHostFeedKey(GPI_KEY_F1, 1), 1);
    EXPECT_EQ(taken(), Texts{"key down 112"});
    EXPECT_EQ(GPIHostFeedKey(GPI_KEY_F1, 1), 1);
    EXPECT_EQ(GPIHostFeedKey(GPI_KEY_F1, 0), 1);
    EXPECT_EQ(GPIHostFeedKey(GPI_KEY_F1, 0), 0) << "it is up";
    EXPECT_EQ(taken(), (Texts{"key down 112", "key up 112"}));
}

TEST_F(Feed, PressesKeysWhereTheyAre) {
    GMessage message;
    GPIHostFeedKey('A', 1);
    ASSERT_EQ(GPIHostWaitMessage(&message, kNoWait), 1);
    EXPECT_EQ(message.param2, GWord{0x00040001});
    GPIHostFeedKey(GPI_KEY_LEFT, 1);
    ASSERT_EQ(GPIHostWaitMessage(&message, kNoWait), 1);
    EXPECT_EQ(message.param2, GWord{0x01500001});
}

TEST_F(Feed, RefusesWhatIsNoKey) {
    for (const int32_t key : {-1, 0, 1, 0xFF, 0x100, 0x141, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(GPIHostFeedKey(key, 1), 0) << key;
    }
    EXPECT_EQ(taken(), Texts{});
}

TEST_F(Feed, MovesAndPresses) {
    EXPECT_EQ(GPIHostFeedPointer(10, 20, 0), 1);
    EXPECT_EQ(GPIHostFeedPointer(10, 20, GPI_POINTER_LEFT), 1);
    EXPECT_EQ(GPIHostFeedPointer(30, 20, GPI_POINTER_LEFT | GPI_POINTER_RIGHT), 1);
    EXPECT_EQ(GPIHostFeedPointer(30, 20, 0xFFFFFFF0), 1) << "other bits mean nothing";
    EXPECT_EQ(taken(),
              (Texts{"move 10,20", "left down 10,20 held 1", "move 30,20 held 1",
                     "right down 30,20 held 3", "left up 30,20 held 2", "right up 30,20"}));
}

TEST_F(Feed, RefusesWhatIsNoPosition) {
    for (const int32_t value : {-1, 0x8000, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(GPIHostFeedPointer(value, 0, GPI_POINTER_LEFT), 0);
        EXPECT_EQ(GPIHostFeedPointer(0, value, GPI_POINTER_LEFT), 0);
    }
    EXPECT_EQ(taken(), Texts{});
    EXPECT_EQ(GPIHostFeedPointer(0x7FFF, 0x7FFF, 0), 1);
    EXPECT_EQ(taken(), Texts{"move 32767,32767"});
}

TEST_F(Feed, FloodsNothing) {
    for (int i = 0; i < 10'000; ++i) {
        GPIHostFeedPointer(i % 640, i % 480, 0);
        GPIHostFeedKey('A', 1);
    }
    EXPECT_EQ(GPIHostFeedKey('B', 1), 0);
    EXPECT_EQ(GPIHostFeedPointer(1, 1, GPI_POINTER_LEFT), 0);
    EXPECT_EQ(GPIHostFeedKey('A', 0), 1);
    const Texts all = taken();
    EXPECT_EQ(all.size(), 225U);
    EXPECT_EQ(all.back(), "key up 65");
}

TEST_F(Feed, StartsAnewWithThePlatform) {
    GPIHostFeedKey('A', 1);
    platform.stop();
    service<GPIStart>(GPI_SERVICE_START)(0);
    EXPECT_EQ(GPIHostFeedKey('A', 0), 0);
    EXPECT_EQ(taken(), Texts{});
    service<GPIStop>(GPI_SERVICE_STOP)();
}

TEST_F(Feed, ComesFromAnyThreadWholeAndInOrder) {
    constexpr int kRounds = 5'000;
    const auto pressing = [](int32_t key) {
        return [key] {
            for (int i = 0; i < kRounds; ++i) {
                while (GPIHostFeedKey(key, 1) == 0) {
                    std::this_thread::yield();
                }
                GPIHostFeedKey(key, 0);
            }
        };
    };
    std::thread a(pressing('A'));
    std::thread b(pressing('B'));
    std::vector<bool> down(256);
    int presses = 0;
    GMessage message;
    for (int taken = 0; taken < 4 * kRounds; ++taken) {
        ASSERT_EQ(GPIHostWaitMessage(&message, 10'000), 1) << "after " << taken;
        const bool press = message.number == G_MESSAGE_KEY_DOWN;
        ASSERT_NE(down[message.param1], press) << "a release follows a press";
        down[message.param1] = press;
        presses += press ? 1 : 0;
    }
    a.join();
    b.join();
    EXPECT_EQ(presses, 2 * kRounds);
    EXPECT_EQ(taken(), Texts{});
}

} // namespace
