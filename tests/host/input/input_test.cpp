// What keys and pointer become, whoever moves them.
#include "input/input.h"

#include "input/message_reader.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace gpi;
using gpi::test::textOf;

using Texts = std::vector<std::string>;

constexpr Key kA{'A', 0x04};
constexpr Key kShift{GPI_KEY_SHIFT, 0xE1};
constexpr Key kRightShift{GPI_KEY_SHIFT, 0xE5};
constexpr Key kControl{GPI_KEY_CONTROL, 0xE0};
constexpr Key kAlt{GPI_KEY_ALT, 0xE2};
constexpr GWord kReleased = GWord{1} << 31;

class Person : public testing::Test {
  protected:
    Texts taken() {
        Texts texts;
        while (const auto message = messages.take()) {
            texts.push_back(textOf(*message));
        }
        return texts;
    }

    /// The second parameter of the next message.
    GWord wordOfNext() {
        const auto message = messages.take();
        EXPECT_TRUE(message);
        return message ? message->param2 : 0;
    }

    /// Fills the queue to its last place for anything but releases.
    void fill() {
        GMessage message{};
        message.number = 0x400;
        while (messages.post(message)) {
        }
    }

    Signal events;
    MessageQueue messages{events};
    Input input{messages};
};

TEST_F(Person, PressesAndReleasesKeys) {
    EXPECT_TRUE(input.keyDown(kA));
    EXPECT_TRUE(input.keyUp(kA.place));
    EXPECT_EQ(taken(), (Texts{"key down 65", "key up 65"}));
    EXPECT_FALSE(input.keyUp(kA.place)) << "it is up";
    EXPECT_EQ(taken(), Texts{});
}

TEST_F(Person, IsToldApartByTheWordOfAKey) {
    input.keyDown(kA);
    EXPECT_EQ(wordOfNext(), 0x00040001U);
    input.keyDown(kA);
    EXPECT_EQ(wordOfNext(), 0x00040001U | GPI_KEY_WAS_DOWN);
    input.keyDown(kAlt);
    EXPECT_EQ(wordOfNext(), 0x00E20001U);
    input.keyUp(kA.place);
    EXPECT_EQ(wordOfNext(), 0x00040001U | GPI_KEY_ALT_HELD | GPI_KEY_WAS_DOWN | kReleased);
    input.keyDown({GPI_KEY_LEFT, 0x50});
    EXPECT_EQ(wordOfNext(), 0x00500001U | GPI_KEY_ALT_HELD | GPI_KEY_EXTENDED);
    input.keyUp(kAlt.place);
    EXPECT_EQ(wordOfNext(), 0x00E20001U | GPI_KEY_WAS_DOWN | kReleased);
}

TEST_F(Person, WhoHoldsAKeyRepeatsIt) {
    input.keyDown(kA);
    EXPECT_EQ(wordOfNext(), 0x00040001U);
    for (int i = 0; i < 3; ++i) {
        input.keyDown(kA);
    }
    input.keyUp(kA.place);
    EXPECT_EQ(wordOfNext(), 0x00040003U | GPI_KEY_WAS_DOWN) << "three repeats, counted";
    EXPECT_EQ(taken(), Texts{"key up 65"});
    input.keyDown(kA);
    input.keyDown(kA);
    EXPECT_EQ(wordOfNext(), 0x00040002U) << "a press and its repeat";
}

TEST_F(Person, ReleasesWhatWasPressedThoughTheKeyMeansSomethingElseByNow) {
    input.keyDown({GPI_KEY_PAD_0 + 4, 0x5C});
    EXPECT_EQ(taken(), Texts{"key down 100"});
    input.keyDown({GPI_KEY_LEFT, 0x5C}); // number lock went off
    input.keyUp(0x5C);
    EXPECT_EQ(taken(), (Texts{"key down 100", "key up 100"}));
}

TEST_F(Person, MayHoldBothShiftKeys) {
    input.keyDown(kShift);
    input.keyDown(kRightShift);
    input.keyUp(kShift.place);
    taken();
    input.moveTo(1, 1);
    EXPECT_EQ(taken(), Texts{"move 1,1 held 4"});
    input.keyUp(kRightShift.place);
    input.moveTo(2, 2);
    EXPECT_EQ(taken(), (Texts{"key up 16", "move 2,2"}));
}

TEST_F(Person, MovesAndClicks) {
    input.moveTo(10, 20);
    EXPECT_TRUE(input.press(Button::Left));
    EXPECT_TRUE(input.isHeld(Button::Left));
    EXPECT_FALSE(input.press(Button::Left)) << "it is down";
    input.moveTo(11, 20);
    EXPECT_TRUE(input.release(Button::Left));
    EXPECT_FALSE(input.release(Button::Left)) << "it is up";
    EXPECT_TRUE(input.press(Button::Right));
    EXPECT_TRUE(input.release(Button::Right));
    EXPECT_EQ(taken(), (Texts{"move 10,20", "left down 10,20 held 1", "move 11,20 held 1",
                              "left up 11,20", "right down 11,20 held 2", "right up 11,20"}));
}

TEST_F(Person, WhoDoesNotMoveSaysNothing) {
    EXPECT_TRUE(input.moveTo(3, 4));
    EXPECT_FALSE(input.moveTo(3, 4));
    EXPECT_EQ(taken(), Texts{"move 3,4"});
}

TEST_F(Person, HoldsKeysAndButtonsTogether) {
    input.keyDown(kShift);
    input.keyDown(kControl);
    input.press(Button::Left);
    input.press(Button::Right);
    input.release(Button::Left);
    EXPECT_EQ(taken(), (Texts{"key down 16", "key down 17", "left down 0,0 held 13",
                              "right down 0,0 held 15", "left up 0,0 held 14"}));
}

TEST_F(Person, ClicksTwice) {
    const auto click = [&](int16_t x, int16_t y) {
        input.moveTo(x, y);
        input.press(Button::Left);
        input.release(Button::Left);
    };
    const auto pressesOf = [&](auto... places) {
        taken();
        (click(places.x, places.y), ...);
        Texts presses;
        for (const std::string& text : taken()) {
            if (text.starts_with("left d")) {
                presses.push_back(text.substr(0, text.find(' ', 5)));
            }
        }
        return presses;
    };
    const GPoint here{100, 100};
    EXPECT_EQ(pressesOf(here, here, here, here),
              (Texts{"left down", "left double", "left down", "left double"}));
    EXPECT_EQ(pressesOf(GPoint{300, 100}, GPoint{316, 84}), (Texts{"left down", "left double"}));
    EXPECT_EQ(pressesOf(GPoint{300, 100}, GPoint{317, 100}), (Texts{"left down", "left down"}));
    EXPECT_EQ(pressesOf(GPoint{500, 100}, GPoint{500, 83}), (Texts{"left down", "left down"}));
}

TEST_F(Person, ClicksTwiceOnlyInQuickSuccession) {
    input.press(Button::Left);
    input.release(Button::Left);
    taken();
    EXPECT_FALSE(messages.take(501));
    input.press(Button::Left);
    EXPECT_EQ(taken(), Texts{"left down 0,0 held 1"});
}

TEST_F(Person, HasAPointerWhileTyping) {
    input.moveTo(7, 8);
    input.keyDown(kA);
    messages.take();
    const auto key = messages.take();
    ASSERT_TRUE(key);
    EXPECT_EQ(key->x, 7);
    EXPECT_EQ(key->y, 8);
    EXPECT_EQ(key->window, nullptr);
}

TEST_F(Person, TellsTheTimeOfASteadyClock) {
    input.keyDown(kA);
    input.keyUp(kA.place);
    const uint32_t pressed = messages.take()->time;
    const uint32_t released = messages.take()->time;
    EXPECT_LT(released - pressed, 60'000U);
}

TEST_F(Person, LetsGoOfEverything) {
    input.keyDown(kA);
    input.keyDown(kShift);
    input.press(Button::Left);
    input.press(Button::Right);
    taken();
    input.releaseAll();
    EXPECT_EQ(taken(), (Texts{"key up 65", "key up 16", "left up 0,0 held 2", "right up 0,0"}));
    input.releaseAll();
    EXPECT_EQ(taken(), Texts{});
    input.keyDown(kA);
    EXPECT_EQ(taken(), Texts{"key down 65"});
}

TEST_F(Person, IsForgotten) {
    input.keyDown(kA);
    input.press(Button::Left);
    input.moveTo(5, 5);
    taken();
    input.reset();
    EXPECT_FALSE(input.keyUp(kA.place));
    EXPECT_FALSE(input.release(Button::Left));
    EXPECT_FALSE(input.moveTo(0, 0));
    EXPECT_EQ(taken(), Texts{});
}

TEST_F(Person, IsNotHeldWhenThereIsNoRoom) {
    fill();
    EXPECT_FALSE(input.keyDown(kA));
    EXPECT_FALSE(input.press(Button::Left));
    EXPECT_FALSE(input.moveTo(1, 2));
    messages.clear();
    EXPECT_FALSE(input.keyUp(kA.place)) << "it was never seen to go down";
    EXPECT_FALSE(input.release(Button::Left));
    EXPECT_EQ(taken(), Texts{});
    EXPECT_TRUE(input.press(Button::Left));
    EXPECT_EQ(taken(), Texts{"left down 1,2 held 1"});
}

TEST_F(Person, ReleasesThoughThereIsRoomForNothingElse) {
    input.keyDown(kA);
    input.press(Button::Left);
    fill();
    EXPECT_TRUE(input.keyUp(kA.place));
    EXPECT_TRUE(input.release(Button::Left));
    const Texts all = taken();
    ASSERT_EQ(all.size(), 226U);
    EXPECT_EQ(all[224], "key up 65");
    EXPECT_EQ(all[225], "left up 0,0");
}

TEST_F(Person, SeesAndClosesTheWindow) {
    input.close();
    input.expose();
    input.expose();
    EXPECT_EQ(taken(), (Texts{"paint", "quit"}));
}

} // namespace
