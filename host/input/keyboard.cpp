#include "input/keyboard.h"

#include <gpi/keys.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>

namespace gpi {
namespace {

/// Key numbers by place, which the USB standard's table of keyboard usages numbers; 0 where there
/// is no key.
class Numbers {
  public:
    constexpr uint8_t at(uint8_t place) const { return numbers_[place]; }

    constexpr uint8_t placeOf(uint8_t number) const {
        const auto* const found = std::find(numbers_.begin(), numbers_.end(), number);
        return static_cast<uint8_t>(found != numbers_.end() ? found - numbers_.begin() : 0);
    }

    /// Enters keys whose places follow each other.
    constexpr void enter(uint8_t place, std::initializer_list<int> numbers) {
        for (const int number : numbers) {
            numbers_[place++] = static_cast<uint8_t>(number);
        }
    }

    /// Enters keys whose places and numbers both follow each other.
    constexpr void enterRange(uint8_t place, int first, int last) {
        for (int number = first; number <= last; ++number) {
            numbers_[place++] = static_cast<uint8_t>(number);
        }
    }

  private:
    std::array<uint8_t, 256> numbers_{};
};

constexpr uint8_t kPadFirst = 0x54;
constexpr uint8_t kPadDigits = 0x59;
constexpr uint8_t kPadDecimal = 0x63;

constexpr Numbers kKeys = [] {
    Numbers keys;
    keys.enterRange(0x04, 'A', 'Z');
    keys.enterRange(0x1E, '1', '9');
    keys.enter(0x27,
               {'0', GPI_KEY_ENTER, GPI_KEY_ESCAPE, GPI_KEY_BACKSPACE, GPI_KEY_TAB, GPI_KEY_SPACE,
                GPI_KEY_MINUS, GPI_KEY_EQUALS, GPI_KEY_LEFT_BRACKET, GPI_KEY_RIGHT_BRACKET,
                GPI_KEY_BACKSLASH, GPI_KEY_BACKSLASH, GPI_KEY_SEMICOLON, GPI_KEY_APOSTROPHE,
                GPI_KEY_GRAVE, GPI_KEY_COMMA, GPI_KEY_PERIOD, GPI_KEY_SLASH, GPI_KEY_CAPS_LOCK});
    keys.enterRange(0x3A, GPI_KEY_F1, GPI_KEY_F1 + 11);
    keys.enter(0x46, {GPI_KEY_PRINT, GPI_KEY_SCROLL_LOCK, GPI_KEY_PAUSE, GPI_KEY_INSERT,
                      GPI_KEY_HOME, GPI_KEY_PAGE_UP, GPI_KEY_DELETE, GPI_KEY_END, GPI_KEY_PAGE_DOWN,
                      GPI_KEY_RIGHT, GPI_KEY_LEFT, GPI_KEY_DOWN, GPI_KEY_UP, GPI_KEY_NUM_LOCK});
    keys.enter(kPadFirst, {GPI_KEY_PAD_DIVIDE, GPI_KEY_PAD_MULTIPLY, GPI_KEY_PAD_SUBTRACT,
                           GPI_KEY_PAD_ADD, GPI_KEY_ENTER});
    keys.enterRange(kPadDigits, GPI_KEY_PAD_0 + 1, GPI_KEY_PAD_9);
    keys.enter(0x62, {GPI_KEY_PAD_0, GPI_KEY_PAD_DECIMAL, GPI_KEY_102ND, GPI_KEY_MENU});
    keys.enterRange(0x68, GPI_KEY_F1 + 12, GPI_KEY_F24);
    keys.enter(0x74, {GPI_KEY_EXECUTE, GPI_KEY_HELP, GPI_KEY_MENU, GPI_KEY_SELECT});
    keys.enter(0x85, {GPI_KEY_PAD_SEPARATOR});
    keys.enter(0x9B, {GPI_KEY_CANCEL, GPI_KEY_CLEAR});
    keys.enter(0xE0, {GPI_KEY_CONTROL, GPI_KEY_SHIFT, GPI_KEY_ALT, GPI_KEY_LEFT_SYSTEM,
                      GPI_KEY_CONTROL, GPI_KEY_SHIFT, GPI_KEY_ALT, GPI_KEY_RIGHT_SYSTEM});
    return keys;
}();

/// The keypad without number lock, from 1 to the decimal point.
constexpr std::array<uint8_t, kPadDecimal - kPadDigits + 1> kPadCursor = {
    GPI_KEY_END,  GPI_KEY_DOWN, GPI_KEY_PAGE_DOWN, GPI_KEY_LEFT,   GPI_KEY_CLEAR, GPI_KEY_RIGHT,
    GPI_KEY_HOME, GPI_KEY_UP,   GPI_KEY_PAGE_UP,   GPI_KEY_INSERT, GPI_KEY_DELETE};

} // namespace

uint8_t numberAt(uint8_t place, bool numberLock) {
    const bool moves = !numberLock && place >= kPadDigits && place <= kPadDecimal;
    return moves ? kPadCursor[size_t{place} - kPadDigits] : kKeys.at(place);
}

uint8_t placeOf(uint8_t number) {
    return number != 0 ? kKeys.placeOf(number) : uint8_t{0};
}

bool isExtended(uint8_t place) {
    constexpr uint8_t kPadDivide = kPadFirst;
    constexpr uint8_t kPadEnter = kPadFirst + 4;
    constexpr uint8_t kRightControl = 0xE4;
    constexpr uint8_t kRightAlt = 0xE6;
    constexpr uint8_t kInsert = 0x49;  // the block of cursor keys begins there
    constexpr uint8_t kNumLock = 0x53; // and ends with this one
    return (place >= kInsert && place <= kNumLock) || place == kPadDivide || place == kPadEnter ||
           place == kRightControl || place == kRightAlt;
}

} // namespace gpi
