// The table of keys, against what the USB standard's table of usages says of their places.
#include "input/keyboard.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace gpi;

TEST(Keyboard, HasLettersDigitsAndFunctionKeysInTheirOrder) {
    for (int letter = 0; letter < 26; ++letter) {
        EXPECT_EQ(numberAt(static_cast<uint8_t>(0x04 + letter), true), 'A' + letter);
    }
    for (int digit = 1; digit < 10; ++digit) {
        EXPECT_EQ(numberAt(static_cast<uint8_t>(0x1D + digit), true), '0' + digit);
    }
    EXPECT_EQ(numberAt(0x27, true), '0');
    for (int function = 0; function < 12; ++function) {
        EXPECT_EQ(numberAt(static_cast<uint8_t>(0x3A + function), true), GPI_KEY_F1 + function);
        EXPECT_EQ(numberAt(static_cast<uint8_t>(0x68 + function), true),
                  GPI_KEY_F1 + 12 + function);
    }
}

TEST(Keyboard, HasAllOthersInTheirPlaces) {
    constexpr Key kKeys[] = {
        {GPI_KEY_ENTER, 0x28},        {GPI_KEY_ESCAPE, 0x29},       {GPI_KEY_BACKSPACE, 0x2A},
        {GPI_KEY_TAB, 0x2B},          {GPI_KEY_SPACE, 0x2C},        {GPI_KEY_MINUS, 0x2D},
        {GPI_KEY_EQUALS, 0x2E},       {GPI_KEY_LEFT_BRACKET, 0x2F}, {GPI_KEY_RIGHT_BRACKET, 0x30},
        {GPI_KEY_BACKSLASH, 0x31},    {GPI_KEY_SEMICOLON, 0x33},    {GPI_KEY_APOSTROPHE, 0x34},
        {GPI_KEY_GRAVE, 0x35},        {GPI_KEY_COMMA, 0x36},        {GPI_KEY_PERIOD, 0x37},
        {GPI_KEY_SLASH, 0x38},        {GPI_KEY_CAPS_LOCK, 0x39},    {GPI_KEY_PRINT, 0x46},
        {GPI_KEY_SCROLL_LOCK, 0x47},  {GPI_KEY_PAUSE, 0x48},        {GPI_KEY_INSERT, 0x49},
        {GPI_KEY_HOME, 0x4A},         {GPI_KEY_PAGE_UP, 0x4B},      {GPI_KEY_DELETE, 0x4C},
        {GPI_KEY_END, 0x4D},          {GPI_KEY_PAGE_DOWN, 0x4E},    {GPI_KEY_RIGHT, 0x4F},
        {GPI_KEY_LEFT, 0x50},         {GPI_KEY_DOWN, 0x51},         {GPI_KEY_UP, 0x52},
        {GPI_KEY_NUM_LOCK, 0x53},     {GPI_KEY_PAD_DIVIDE, 0x54},   {GPI_KEY_PAD_MULTIPLY, 0x55},
        {GPI_KEY_PAD_SUBTRACT, 0x56}, {GPI_KEY_PAD_ADD, 0x57},      {GPI_KEY_PAD_DECIMAL, 0x63},
        {GPI_KEY_102ND, 0x64},        {GPI_KEY_MENU, 0x65},         {GPI_KEY_EXECUTE, 0x74},
        {GPI_KEY_HELP, 0x75},         {GPI_KEY_SELECT, 0x77},       {GPI_KEY_PAD_SEPARATOR, 0x85},
        {GPI_KEY_CANCEL, 0x9B},       {GPI_KEY_CLEAR, 0x9C},        {GPI_KEY_CONTROL, 0xE0},
        {GPI_KEY_SHIFT, 0xE1},        {GPI_KEY_ALT, 0xE2},          {GPI_KEY_LEFT_SYSTEM, 0xE3},
        {GPI_KEY_RIGHT_SYSTEM, 0xE7}};
    for (const auto& [number, place] : kKeys) {
        EXPECT_EQ(numberAt(place, true), number) << int{place};
        EXPECT_EQ(placeOf(number), place) << int{number};
    }
    EXPECT_EQ(numberAt(0x58, true), GPI_KEY_ENTER);
    EXPECT_EQ(numberAt(0xE4, true), GPI_KEY_CONTROL);
    EXPECT_EQ(numberAt(0xE5, true), GPI_KEY_SHIFT);
    EXPECT_EQ(numberAt(0xE6, true), GPI_KEY_ALT);
}

TEST(Keyboard, MovesTheCursorByTheKeypadWithoutNumberLock) {
    constexpr uint8_t kMoves[] = {GPI_KEY_END,  GPI_KEY_DOWN,  GPI_KEY_PAGE_DOWN,
                                  GPI_KEY_LEFT, GPI_KEY_CLEAR, GPI_KEY_RIGHT,
                                  GPI_KEY_HOME, GPI_KEY_UP,    GPI_KEY_PAGE_UP};
    for (uint8_t digit = 1; digit <= 9; ++digit) {
        const auto place = static_cast<uint8_t>(0x58 + digit);
        EXPECT_EQ(numberAt(place, true), GPI_KEY_PAD_0 + digit);
        EXPECT_EQ(numberAt(place, false), kMoves[digit - 1]);
    }
    EXPECT_EQ(numberAt(0x62, true), GPI_KEY_PAD_0);
    EXPECT_EQ(numberAt(0x62, false), GPI_KEY_INSERT);
    EXPECT_EQ(numberAt(0x63, false), GPI_KEY_DELETE);
    EXPECT_EQ(numberAt(0x58, false), GPI_KEY_ENTER);
    EXPECT_EQ(numberAt(0x64, false), GPI_KEY_102ND);
}

TEST(Keyboard, FindsEveryKeyAgainByItsNumber) {
    for (int place = 0; place < 256; ++place) {
        const uint8_t number = numberAt(static_cast<uint8_t>(place), true);
        const uint8_t found = placeOf(number);
        EXPECT_EQ(number == 0, found == 0);
        EXPECT_EQ(numberAt(found, true), number);
    }
    EXPECT_EQ(placeOf(0xFF), 0);
}

TEST(Keyboard, NamesTheKeysThatAreThereOnceMore) {
    const std::set<int> extended = {0x49, 0x4A, 0x4B, 0x4C, 0x4D, 0x4E, 0x4F, 0x50,
                                    0x51, 0x52, 0x53, 0x54, 0x58, 0xE4, 0xE6};
    for (int place = 0; place < 256; ++place) {
        EXPECT_EQ(isExtended(static_cast<uint8_t>(place)), extended.contains(place)) << place;
    }
}

} // namespace
