#include "display/canvas/key_code.h"

#include <gpi/keys.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace {

using namespace gpi;

int numberOf(std::string_view code, std::string_view character = "") {
    const auto key = keyOfCode(code, character);
    return key ? key->number : 0;
}

TEST(KeyCode, OfALetterIsItsKeyShiftedOrNot) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string code = std::string("Key") + letter;
        const char small = static_cast<char>(letter - 'A' + 'a');
        EXPECT_EQ(numberOf(code, std::string(1, letter)), letter);
        EXPECT_EQ(numberOf(code, std::string(1, small)), letter);
    }
}

TEST(KeyCode, NamesLettersAndDigitsByTheUsersKeyboard) {
    EXPECT_EQ(numberOf("KeyZ", "y"), 'Y') << "on a German keyboard";
    EXPECT_EQ(numberOf("KeyB", "\u0438"), 'B') << "on a Russian one";
    EXPECT_EQ(numberOf("Digit1", "&"), '1') << "on a French one";
    EXPECT_EQ(numberOf("Semicolon", "\u00F6"), GPI_KEY_SEMICOLON) << "on a German one";
}

TEST(KeyCode, OfADigitIsItsKeyShiftedOrNot) {
    for (char digit = '0'; digit <= '9'; ++digit) {
        const std::string code = std::string("Digit") + digit;
        EXPECT_EQ(numberOf(code, std::string(1, digit)), digit);
        EXPECT_EQ(numberOf(code, "!"), digit);
    }
}

TEST(KeyCode, HasFunctionKeys) {
    for (int number = 1; number <= 24; ++number) {
        EXPECT_EQ(numberOf(std::string("F").append(std::to_string(number))),
                  GPI_KEY_F1 + number - 1);
    }
    for (const char* const none : {"F0", "F25", "F", "F1x", "F-1", "Fn"}) {
        EXPECT_EQ(numberOf(none), 0) << none;
    }
}

TEST(KeyCode, HasAKeypadWithAndWithoutNumberLock) {
    EXPECT_EQ(numberOf("Numpad4", "4"), GPI_KEY_PAD_0 + 4);
    EXPECT_EQ(numberOf("Numpad4", "ArrowLeft"), GPI_KEY_LEFT);
    EXPECT_EQ(numberOf("Numpad0", "0"), GPI_KEY_PAD_0);
    EXPECT_EQ(numberOf("Numpad0", "Insert"), GPI_KEY_INSERT);
    EXPECT_EQ(numberOf("NumpadDecimal", "."), GPI_KEY_PAD_DECIMAL);
    EXPECT_EQ(numberOf("NumpadDecimal", "Delete"), GPI_KEY_DELETE);
    EXPECT_EQ(numberOf("NumpadAdd", "+"), GPI_KEY_PAD_ADD);
}

TEST(KeyCode, NamesOtherKeysByTheirPlace) {
    EXPECT_EQ(numberOf("Enter", "Enter"), GPI_KEY_ENTER);
    EXPECT_EQ(numberOf("NumpadEnter", "Enter"), GPI_KEY_ENTER);
    EXPECT_EQ(numberOf("Space", " "), GPI_KEY_SPACE);
    EXPECT_EQ(numberOf("ArrowUp", "ArrowUp"), GPI_KEY_UP);
    EXPECT_EQ(numberOf("ControlRight", "Control"), GPI_KEY_CONTROL);
    EXPECT_EQ(numberOf("Backquote", "`"), GPI_KEY_GRAVE);
    const char* const named[] = {
        "Escape",         "Backspace",      "Tab",           "Minus",      "Equal",
        "BracketLeft",    "Backslash",      "BracketRight",  "Quote",      "Comma",
        "Period",         "Slash",          "PrintScreen",   "ScrollLock", "Pause",
        "Insert",         "Home",           "PageUp",        "Delete",     "End",
        "PageDown",       "NumLock",        "CapsLock",      "ArrowDown",  "NumpadDivide",
        "NumpadMultiply", "NumpadSubtract", "IntlBackslash", "ContextMenu"};
    std::set<int> numbers;
    for (const char* const code : named) {
        EXPECT_NE(numberOf(code), 0) << code;
        numbers.insert(numberOf(code));
    }
    EXPECT_EQ(numbers.size(), std::size(named)) << "each is another key";
}

TEST(KeyCode, LeavesOutWhatIsNoKeyHere) {
    for (const char* const none : {"", "Key", "Keya", "KeyAB", "Digit", "Digit10", "Numpad",
                                   "Numpad10", "Unidentified", "MediaPlayPause"}) {
        EXPECT_EQ(numberOf(none, "a"), 0) << none;
    }
}

} // namespace
