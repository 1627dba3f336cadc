#include "display/screen/key_code.h"

#include <linux/input-event-codes.h>

#include <array>
#include <initializer_list>

namespace gpi {
namespace {

/// Places by code.
class Places {
  public:
    constexpr uint8_t at(unsigned code) const { return code < places_.size() ? places_[code] : 0; }

    /// Enters the codes of keys whose places follow each other.
    constexpr void enter(uint8_t place, std::initializer_list<unsigned> codes) {
        for (const unsigned code : codes) {
            places_[code] = place++;
        }
    }

  private:
    std::array<uint8_t, KEY_CLEAR + 1> places_{};
};

constexpr Places kPlaces = [] {
    Places places;
    places.enter(0x04, {KEY_A, KEY_B, KEY_C, KEY_D, KEY_E, KEY_F, KEY_G, KEY_H, KEY_I,
                        KEY_J, KEY_K, KEY_L, KEY_M, KEY_N, KEY_O, KEY_P, KEY_Q, KEY_R,
                        KEY_S, KEY_T, KEY_U, KEY_V, KEY_W, KEY_X, KEY_Y, KEY_Z});
    places.enter(0x1E, {KEY_1,     KEY_2,     KEY_3,         KEY_4,          KEY_5,
                        KEY_6,     KEY_7,     KEY_8,         KEY_9,          KEY_0,
                        KEY_ENTER, KEY_ESC,   KEY_BACKSPACE, KEY_TAB,        KEY_SPACE,
                        KEY_MINUS, KEY_EQUAL, KEY_LEFTBRACE, KEY_RIGHTBRACE, KEY_BACKSLASH});
    places.enter(0x33, {KEY_SEMICOLON, KEY_APOSTROPHE, KEY_GRAVE, KEY_COMMA, KEY_DOT, KEY_SLASH,
                        KEY_CAPSLOCK, KEY_F1, KEY_F2, KEY_F3, KEY_F4, KEY_F5, KEY_F6, KEY_F7,
                        KEY_F8, KEY_F9, KEY_F10, KEY_F11, KEY_F12});
    places.enter(0x46, {KEY_SYSRQ, KEY_SCROLLLOCK, KEY_PAUSE, KEY_INSERT, KEY_HOME, KEY_PAGEUP,
                        KEY_DELETE, KEY_END, KEY_PAGEDOWN, KEY_RIGHT, KEY_LEFT, KEY_DOWN, KEY_UP,
                        KEY_NUMLOCK});
    places.enter(0x54, {KEY_KPSLASH, KEY_KPASTERISK, KEY_KPMINUS, KEY_KPPLUS, KEY_KPENTER, KEY_KP1,
                        KEY_KP2, KEY_KP3, KEY_KP4, KEY_KP5, KEY_KP6, KEY_KP7, KEY_KP8, KEY_KP9,
                        KEY_KP0, KEY_KPDOT, KEY_102ND, KEY_COMPOSE});
    places.enter(0x68,
                 {KEY_F13, KEY_F14, KEY_F15, KEY_F16, KEY_F17, KEY_F18, KEY_F19, KEY_F20, KEY_F21,
                  KEY_F22, KEY_F23, KEY_F24, KEY_OPEN, KEY_HELP, KEY_MENU, KEY_SELECT});
    places.enter(0x85, {KEY_KPCOMMA});
    places.enter(0x9B, {KEY_CANCEL, KEY_CLEAR});
    places.enter(0xE0, {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_LEFTALT, KEY_LEFTMETA, KEY_RIGHTCTRL,
                        KEY_RIGHTSHIFT, KEY_RIGHTALT, KEY_RIGHTMETA});
    return places;
}();

} // namespace

uint8_t placeOfCode(unsigned code) {
    return kPlaces.at(code);
}

} // namespace gpi
