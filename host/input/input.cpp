#include "input/input.h"

#include <gpi/keys.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace gpi {
namespace {

/// A second press this soon and this near is a double one. Fingers are no needles.
constexpr uint32_t kDoubleMilliseconds = 500;
constexpr int kDoublePixels = 16;

constexpr GWord kReleased = GWord{1} << 31;

uint32_t millisecondsNow() {
    using namespace std::chrono;
    return static_cast<uint32_t>(
        duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

constexpr uint8_t bitOf(Button button) {
    return static_cast<uint8_t>(button);
}

} // namespace

bool Input::keyDown(Key key) {
    const std::lock_guard lock(mutex_);
    uint8_t& held = state_.keys[key.place];
    if (held != 0) {
        // It repeats as what it went down as, whatever number lock says by now.
        return postKey(G_MESSAGE_KEY_DOWN, {held, key.place}, GPI_KEY_WAS_DOWN);
    }
    const bool posted = postKey(G_MESSAGE_KEY_DOWN, key, 0);
    held = posted ? key.number : uint8_t{0};
    return posted;
}

bool Input::keyUp(uint8_t place) {
    const std::lock_guard lock(mutex_);
    return letGo(place);
}

bool Input::moveTo(int16_t x, int16_t y) {
    const std::lock_guard lock(mutex_);
    if (x == state_.x && y == state_.y) {
        return false;
    }
    state_.x = x;
    state_.y = y;
    return postPointer(G_MESSAGE_POINTER_MOVE);
}

bool Input::press(Button button) {
    const std::lock_guard lock(mutex_);
    if (isDown(button)) {
        return false;
    }
    const Press press{millisecondsNow(), state_.x, state_.y};
    const uint32_t number = numberOf(press, button);
    state_.buttons |= bitOf(button); // the message shows it as held already
    if (!postPointer(number)) {
        state_.buttons &= static_cast<uint8_t>(~bitOf(button));
        return false;
    }
    if (button == Button::Left) {
        state_.single = number == G_MESSAGE_LEFT_DOWN ? std::optional(press) : std::nullopt;
    }
    return true;
}

bool Input::release(Button button) {
    const std::lock_guard lock(mutex_);
    return letGo(button);
}

bool Input::isHeld(Button button) const {
    const std::lock_guard lock(mutex_);
    return isDown(button);
}

void Input::releaseAll() {
    const std::lock_guard lock(mutex_);
    for (size_t place = 0; place < state_.keys.size(); ++place) {
        letGo(static_cast<uint8_t>(place));
    }
    letGo(Button::Left);
    letGo(Button::Right);
}

void Input::expose() {
    const std::lock_guard lock(mutex_);
    post(G_MESSAGE_PAINT, 0, 0);
}

void Input::close() {
    const std::lock_guard lock(mutex_);
    post(G_MESSAGE_QUIT, 0, 0);
}

void Input::reset() {
    const std::lock_guard lock(mutex_);
    state_ = {};
}

bool Input::letGo(uint8_t place) {
    const uint8_t number = std::exchange(state_.keys[place], uint8_t{0});
    return number != 0 && postKey(G_MESSAGE_KEY_UP, {number, place}, kReleased | GPI_KEY_WAS_DOWN);
}

bool Input::letGo(Button button) {
    if (!isDown(button)) {
        return false;
    }
    state_.buttons &= static_cast<uint8_t>(~bitOf(button));
    return postPointer(button == Button::Left ? G_MESSAGE_LEFT_UP : G_MESSAGE_RIGHT_UP);
}

bool Input::isDown(uint8_t number) const {
    return std::find(state_.keys.begin(), state_.keys.end(), number) != state_.keys.end();
}

bool Input::isDown(Button button) const {
    return (state_.buttons & bitOf(button)) != 0;
}

uint32_t Input::numberOf(const Press& press, Button button) const {
    if (button == Button::Right) {
        return G_MESSAGE_RIGHT_DOWN;
    }
    const auto& first = state_.single;
    const bool second = first && press.time - first->time <= kDoubleMilliseconds &&
                        std::abs(press.x - first->x) <= kDoublePixels &&
                        std::abs(press.y - first->y) <= kDoublePixels;
    return second ? G_MESSAGE_LEFT_DOUBLE : G_MESSAGE_LEFT_DOWN;
}

bool Input::postKey(uint32_t number, Key key, GWord bits) {
    constexpr int kPlaceShift = 16;
    constexpr GWord kOnce = 1;
    const GWord extended = isExtended(key.place) ? GWord{GPI_KEY_EXTENDED} : 0;
    const GWord alt = isDown(GPI_KEY_ALT) ? GWord{GPI_KEY_ALT_HELD} : 0;
    return post(number, key.number,
                kOnce | GWord{key.place} << kPlaceShift | extended | alt | bits);
}

bool Input::postPointer(uint32_t number) {
    const GWord shift = isDown(GPI_KEY_SHIFT) ? GWord{GPI_POINTER_SHIFT} : 0;
    const GWord control = isDown(GPI_KEY_CONTROL) ? GWord{GPI_POINTER_CONTROL} : 0;
    const auto column = static_cast<uint16_t>(state_.x);
    const auto row = static_cast<uint16_t>(state_.y);
    return post(number, state_.buttons | shift | control, GWord{row} << 16 | column);
}

bool Input::post(uint32_t number, GWord param1, GWord param2) {
    return messages_.post({nullptr, number, param1, param2, millisecondsNow(), state_.x, state_.y});
}

} // namespace gpi
