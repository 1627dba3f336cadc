#include "display/vnc/keysym.h"

#include <gpi/keys.h>
#include <rfb/keysym.h>

#include <gtest/gtest.h>

namespace {

using namespace gpi;

int numberOf(uint32_t symbol) {
    const auto key = keyOfSymbol(symbol);
    return key ? key->number : 0;
}

int placeOfSymbol(uint32_t symbol) {
    const auto key = keyOfSymbol(symbol);
    return key ? key->place : 0;
}

TEST(Keysym, OfALetterIsItsKeyShiftedOrNot) {
    for (uint32_t letter = 'A'; letter <= 'Z'; ++letter) {
        const uint32_t small = letter - 'A' + 'a';
        EXPECT_EQ(numberOf(letter), static_cast<int>(letter));
        EXPECT_EQ(numberOf(small), static_cast<int>(letter));
        EXPECT_EQ(placeOfSymbol(letter), placeOfSymbol(small));
    }
}

TEST(Keysym, OfACharacterIsTheKeyThatHasIt) {
    const char* const pairs[] = {"1!", "2@", "3#", "4$",  "5%", "6^",  "7&", "8*", "9(", "0)", "-_",
                                 "=+", "[{", "]}", "\\|", ";:", "'\"", "`~", ",<", ".>", "/?"};
    for (const char* const pair : pairs) {
        const auto plain = static_cast<uint32_t>(pair[0]);
        const auto shifted = static_cast<uint32_t>(pair[1]);
        EXPECT_NE(numberOf(plain), 0) << pair;
        EXPECT_EQ(numberOf(plain), numberOf(shifted)) << pair;
        EXPECT_EQ(placeOfSymbol(plain), placeOfSymbol(shifted)) << pair;
    }
    EXPECT_EQ(numberOf('7'), '7');
    EXPECT_EQ(numberOf(' '), GPI_KEY_SPACE);
    EXPECT_EQ(numberOf(';'), GPI_KEY_SEMICOLON);
    EXPECT_EQ(numberOf('?'), GPI_KEY_SLASH);
    EXPECT_EQ(numberOf('|'), GPI_KEY_BACKSLASH);
}

TEST(Keysym, OfEveryPrintableCharacterIsAKey) {
    for (uint32_t character = ' '; character <= '~'; ++character) {
        EXPECT_NE(numberOf(character), 0) << static_cast<char>(character);
    }
}

TEST(Keysym, OfNamedKeysIsThatKey) {
    const std::pair<uint32_t, int> keys[] = {{XK_Return, GPI_KEY_ENTER},
                                             {XK_Escape, GPI_KEY_ESCAPE},
                                             {XK_BackSpace, GPI_KEY_BACKSPACE},
                                             {XK_Tab, GPI_KEY_TAB},
                                             {0xFE20, GPI_KEY_TAB},
                                             {XK_Delete, GPI_KEY_DELETE},
                                             {XK_Insert, GPI_KEY_INSERT},
                                             {XK_Home, GPI_KEY_HOME},
                                             {XK_End, GPI_KEY_END},
                                             {XK_Page_Up, GPI_KEY_PAGE_UP},
                                             {XK_Page_Down, GPI_KEY_PAGE_DOWN},
                                             {XK_Left, GPI_KEY_LEFT},
                                             {XK_Right, GPI_KEY_RIGHT},
                                             {XK_Up, GPI_KEY_UP},
                                             {XK_Down, GPI_KEY_DOWN},
                                             {XK_F1, GPI_KEY_F1},
                                             {XK_F12, GPI_KEY_F1 + 11},
                                             {XK_F13, GPI_KEY_F1 + 12},
                                             {XK_F24, GPI_KEY_F24},
                                             {XK_Shift_L, GPI_KEY_SHIFT},
                                             {XK_Shift_R, GPI_KEY_SHIFT},
                                             {XK_Control_R, GPI_KEY_CONTROL},
                                             {XK_Alt_L, GPI_KEY_ALT},
                                             {XK_Meta_L, GPI_KEY_ALT},
                                             {0xFE03, GPI_KEY_ALT},
                                             {XK_Super_L, GPI_KEY_LEFT_SYSTEM},
                                             {XK_Super_R, GPI_KEY_RIGHT_SYSTEM},
                                             {XK_Menu, GPI_KEY_MENU},
                                             {XK_Caps_Lock, GPI_KEY_CAPS_LOCK},
                                             {XK_Num_Lock, GPI_KEY_NUM_LOCK},
                                             {XK_Scroll_Lock, GPI_KEY_SCROLL_LOCK},
                                             {XK_Print, GPI_KEY_PRINT},
                                             {XK_Pause, GPI_KEY_PAUSE},
                                             {XK_Cancel, GPI_KEY_CANCEL},
                                             {XK_Clear, GPI_KEY_CLEAR},
                                             {XK_Help, GPI_KEY_HELP},
                                             {XK_Select, GPI_KEY_SELECT},
                                             {XK_Execute, GPI_KEY_EXECUTE}};
    for (const auto& [symbol, number] : keys) {
        EXPECT_EQ(numberOf(symbol), number) << std::hex << symbol;
    }
}

TEST(Keysym, OfTheKeypadSaysWhatNumberLockIs) {
    for (uint32_t digit = 0; digit <= 9; ++digit) {
        EXPECT_EQ(numberOf(XK_KP_0 + digit), GPI_KEY_PAD_0 + static_cast<int>(digit));
    }
    const std::pair<uint32_t, uint32_t> cursor[] = {
        {XK_KP_Home, XK_KP_7},   {XK_KP_Up, XK_KP_8},          {XK_KP_Page_Up, XK_KP_9},
        {XK_KP_Left, XK_KP_4},   {XK_KP_Begin, XK_KP_5},       {XK_KP_Right, XK_KP_6},
        {XK_KP_End, XK_KP_1},    {XK_KP_Down, XK_KP_2},        {XK_KP_Page_Down, XK_KP_3},
        {XK_KP_Insert, XK_KP_0}, {XK_KP_Delete, XK_KP_Decimal}};
    for (const auto& [moves, writes] : cursor) {
        EXPECT_EQ(placeOfSymbol(moves), placeOfSymbol(writes));
        EXPECT_NE(numberOf(moves), numberOf(writes));
    }
    EXPECT_EQ(numberOf(XK_KP_Home), GPI_KEY_HOME);
    EXPECT_EQ(numberOf(XK_KP_Delete), GPI_KEY_DELETE);
    EXPECT_EQ(numberOf(XK_KP_Enter), GPI_KEY_ENTER);
    EXPECT_NE(placeOfSymbol(XK_KP_Enter), placeOfSymbol(XK_Return));
    EXPECT_EQ(numberOf(XK_KP_Divide), GPI_KEY_PAD_DIVIDE);
    EXPECT_EQ(numberOf(XK_KP_Add), GPI_KEY_PAD_ADD);
    EXPECT_EQ(numberOf(XK_KP_Decimal), GPI_KEY_PAD_DECIMAL);
}

TEST(Keysym, ThatNoKeyHasIsNone) {
    for (const uint32_t symbol : {0U, 1U, 0x7FU, 0xE4U, 0xFFFFU + 1, 0x1000394U, ~0U}) {
        EXPECT_FALSE(keyOfSymbol(symbol)) << symbol;
    }
}

} // namespace
