// Keys and pointer as a display server tells of them, moved from outside.
#include "input/message_reader.h"
#include "support/started_platform.h"
#include "x_server.h"

#include <gpi/host.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace gpi::test;

constexpr int32_t kLong = 60'000;

class ServerInput : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_NE(server_.display(), "");
        ASSERT_EQ(platform_.started(), 1U);
        // There is no window manager that would hand out the keyboard.
        xdotool({"search", "--sync", "--name", "input test", "windowfocus", "--sync", "%1"});
    }

    static void xdotool(std::vector<std::string> words) {
        words.insert(words.begin(), XDOTOOL);
        EXPECT_EQ(run(words), 0);
    }

    /// The next message that is no paint and, unless asked for, no move: the server puts the
    /// pointer where it likes at first.
    std::string next(bool moves = false) {
        GMessage message{};
        do {
            if (GPIHostWaitMessage(&message, kLong) == 0) {
                return "nothing";
            }
        } while (message.number == G_MESSAGE_PAINT ||
                 (!moves && message.number == G_MESSAGE_POINTER_MOVE));
        return textOf(message);
    }

    XServer server_;
    StartedPlatform platform_{{"QUARLO_DISPLAY", std::nullopt},  {"DISPLAY", server_.display()},
                              {"WAYLAND_DISPLAY", std::nullopt}, {"SDL_VIDEODRIVER", std::nullopt},
                              {"QUARLO_TITLE", "input test"},    {"QUARLO_SCALE", "2"},
                              {"QUARLO_WIDTH", "200"},           {"QUARLO_HEIGHT", "100"}};
};

TEST_F(ServerInput, HasKeysAndModifiers) {
    EXPECT_EQ(GPIHostHasWindow(), 1);
    xdotool({"key", "a"});
    EXPECT_EQ(next(), "key down 65");
    EXPECT_EQ(next(), "key up 65");
    xdotool({"keydown", "shift", "keydown", "F5", "keyup", "F5", "keyup", "shift"});
    EXPECT_EQ(next(), "key down 16");
    EXPECT_EQ(next(), "key down 116");
    EXPECT_EQ(next(), "key up 116");
    EXPECT_EQ(next(), "key up 16");
}

TEST_F(ServerInput, HasAPointerOfThePicturesPixels) {
    xdotool({"search", "--name", "input test", "mousemove", "--window", "%1", "60", "30"});
    xdotool({"mousedown", "1"});
    EXPECT_EQ(next(), "left down 30,15 held 1");
    xdotool({"search", "--name", "input test", "mousemove", "--window", "%1", "161", "121"});
    EXPECT_EQ(next(true), "move 80,60 held 1");
    xdotool({"mouseup", "1"});
    EXPECT_EQ(next(), "left up 80,60");
    xdotool({"click", "3"});
    EXPECT_EQ(next(), "right down 80,60 held 2");
    EXPECT_EQ(next(), "right up 80,60");
}

TEST_F(ServerInput, PaintsWhenTheWindowComesBack) {
    GMessage message{};
    do {
        ASSERT_EQ(GPIHostWaitMessage(&message, kLong), 1);
    } while (message.number != G_MESSAGE_PAINT); // it was never seen before
    xdotool({"search", "--name", "input test", "windowunmap", "--sync", "%1"});
    while (GPIHostWaitMessage(&message, 0) == 1) {
    }
    xdotool({"search", "--name", "input test", "windowmap", "--sync", "%1"});
    do {
        ASSERT_EQ(GPIHostWaitMessage(&message, kLong), 1);
    } while (message.number != G_MESSAGE_PAINT);
}

TEST_F(ServerInput, ReleasesKeysWhenTheWindowLosesTheKeyboard) {
    xdotool({"keydown", "a"});
    EXPECT_EQ(next(), "key down 65");
    xdotool({"search", "--name", "input test", "windowunmap"});
    std::string released = next();
    while (released == "key down 65") {
        released = next(); // the server repeats keys
    }
    EXPECT_EQ(released, "key up 65");
    xdotool({"keyup", "a"});
}

} // namespace
