// Keyboards, mice and touch screens, as the kernel tells of them.
#include "display/screen/device_events.h"

#include "display/screen/key_code.h"
#include "input/message_reader.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace gpi;
using gpi::test::textOf;

using Texts = std::vector<std::string>;

constexpr Size kFrame{100, 80};
constexpr Size kScreen{220, 160}; // twice as large, with 10 black columns at each side

class Devices : public testing::Test {
  protected:
    DeviceEvents device(std::optional<DevicePlaces> places = std::nullopt, bool numberLock = true) {
        return DeviceEvents(input_, pointer_, places, numberLock);
    }

    Texts taken() {
        Texts texts;
        while (const auto message = messages_.take()) {
            texts.push_back(textOf(*message));
        }
        return texts;
    }

    Signal events_;
    MessageQueue messages_{events_};
    Input input_{messages_};
    ScreenPointer pointer_{Projection(View(), kFrame, kScreen), kFrame, kScreen};
};

void report(DeviceEvents& device, unsigned type, unsigned code, int value) {
    device.handle(type, code, value);
    device.handle(EV_SYN, SYN_REPORT, 0);
}

TEST_F(Devices, TypeKeys) {
    DeviceEvents keyboard = device();
    report(keyboard, EV_KEY, KEY_A, 1);
    report(keyboard, EV_KEY, KEY_A, 2);
    report(keyboard, EV_KEY, KEY_A, 2);
    report(keyboard, EV_KEY, KEY_A, 0);
    report(keyboard, EV_KEY, KEY_POWER, 1);
    report(keyboard, EV_KEY, 0x2FF, 1);
    EXPECT_EQ(taken(), (Texts{"key down 65", "key up 65"})) << "repeats are counted in one";
}

TEST_F(Devices, TypeDigitsOnTheKeypadByNumberLock) {
    DeviceEvents keyboard = device(std::nullopt, false);
    report(keyboard, EV_KEY, KEY_KP7, 1);
    report(keyboard, EV_KEY, KEY_KP7, 0);
    report(keyboard, EV_KEY, KEY_NUMLOCK, 1);
    report(keyboard, EV_KEY, KEY_NUMLOCK, 2);
    report(keyboard, EV_KEY, KEY_NUMLOCK, 0);
    EXPECT_TRUE(keyboard.numberLock());
    report(keyboard, EV_KEY, KEY_KP7, 1);
    EXPECT_EQ(taken(),
              (Texts{"key down 36", "key up 36", "key down 144", "key up 144", "key down 103"}));
}

TEST_F(Devices, ReleaseWhatTheyHeldWhenTheyGo) {
    {
        DeviceEvents keyboard = device();
        DeviceEvents mouse = device();
        report(keyboard, EV_KEY, KEY_F1, 1);
        report(mouse, EV_KEY, BTN_LEFT, 1);
        taken();
    }
    EXPECT_EQ(taken(), (Texts{"left up 50,40", "key up 112"}));
}

TEST_F(Devices, MoveAnArrowWithinThePicture) {
    DeviceEvents mouse = device();
    EXPECT_TRUE(isEmpty(pointer_.arrow()));
    mouse.handle(EV_REL, REL_X, 4);
    mouse.handle(EV_REL, REL_Y, -10);
    EXPECT_EQ(taken(), Texts()) << "the report has not ended";
    mouse.handle(EV_SYN, SYN_REPORT, 0);
    EXPECT_FALSE(isEmpty(pointer_.arrow()));
    EXPECT_EQ(taken(), (Texts{"move 52,35"}));
    report(mouse, EV_REL, REL_X, -1000);
    report(mouse, EV_REL, REL_Y, 1000);
    report(mouse, EV_REL, REL_WHEEL, 1);
    EXPECT_EQ(taken(), (Texts{"move 0,79"}));
}

TEST_F(Devices, PressAndReleaseButtons) {
    DeviceEvents mouse = device();
    report(mouse, EV_KEY, BTN_LEFT, 1);
    report(mouse, EV_KEY, BTN_LEFT, 0);
    report(mouse, EV_KEY, BTN_RIGHT, 1);
    report(mouse, EV_KEY, BTN_RIGHT, 0);
    report(mouse, EV_KEY, BTN_MIDDLE, 1);
    EXPECT_EQ(taken(), (Texts{"move 50,40", "left down 50,40 held 1", "left up 50,40",
                              "right down 50,40 held 2", "right up 50,40"}));
}

TEST_F(Devices, PressWhereTheyAreTouched) {
    DeviceEvents glass = device(DevicePlaces{{0, 2199}, {100, 1699}});
    glass.handle(EV_KEY, BTN_TOUCH, 1);
    glass.handle(EV_ABS, ABS_X, 110);
    glass.handle(EV_ABS, ABS_Y, 1699);
    glass.handle(EV_SYN, SYN_REPORT, 0);
    EXPECT_TRUE(isEmpty(pointer_.arrow())) << "a finger needs none";
    report(glass, EV_ABS, ABS_X, 0);
    report(glass, EV_KEY, BTN_TOUCH, 0);
    EXPECT_EQ(taken(), (Texts{"move 0,79", "left down 0,79 held 1", "left up 0,79"}));
}

TEST_F(Devices, PressNothingBesideThePicture) {
    DeviceEvents glass = device(DevicePlaces{{0, 219}, {0, 159}});
    glass.handle(EV_KEY, BTN_TOUCH, 1);
    glass.handle(EV_ABS, ABS_X, 5);
    glass.handle(EV_SYN, SYN_REPORT, 0);
    report(glass, EV_KEY, BTN_TOUCH, 0);
    EXPECT_EQ(taken(), Texts());
}

TEST_F(Devices, HoverWithAnArrowWhereTheyAreNotTouched) {
    DeviceEvents tablet = device(DevicePlaces{{0, 219}, {0, 159}});
    report(tablet, EV_ABS, ABS_X, 209);
    EXPECT_EQ(pointer_.arrow().left, 209);
    EXPECT_EQ(taken(), (Texts{"move 99,0"}));
}

TEST_F(Devices, HaveNoPlacesUnlessTheySaySo) {
    DeviceEvents stick = device();
    report(stick, EV_ABS, ABS_X, 100);
    EXPECT_EQ(taken(), Texts());
}

TEST(KeyCode, EveryKeyHasOne) {
    std::array<unsigned, 256> codes{};
    for (unsigned code = 0; code <= KEY_MAX + 1; ++code) {
        const uint8_t place = placeOfCode(code);
        if (place != 0) {
            EXPECT_NE(numberAt(place, true), 0) << code;
            EXPECT_EQ(codes[place], 0U) << code << " has the place of another";
            codes[place] = code;
        }
    }
    for (unsigned place = 0; place < codes.size(); ++place) {
        constexpr unsigned kOtherBackslash = 0x32; // the kernel has one code for both
        const bool key = numberAt(static_cast<uint8_t>(place), true) != 0;
        EXPECT_EQ(key && place != kOtherBackslash, codes[place] != 0) << place;
    }
    EXPECT_EQ(numberAt(placeOfCode(KEY_Q), true), 'Q');
    EXPECT_EQ(numberAt(placeOfCode(KEY_0), true), '0');
    EXPECT_EQ(numberAt(placeOfCode(KEY_F10), true), GPI_KEY_F1 + 9);
    EXPECT_EQ(numberAt(placeOfCode(KEY_KPENTER), true), GPI_KEY_ENTER);
    EXPECT_EQ(numberAt(placeOfCode(KEY_RIGHT), true), GPI_KEY_RIGHT);
    EXPECT_EQ(numberAt(placeOfCode(KEY_LEFTBRACE), true), GPI_KEY_LEFT_BRACKET);
}

} // namespace
