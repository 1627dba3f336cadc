#include "display/vnc/vnc_input.h"

#include "display/vnc/keysym.h"

namespace gpi {
namespace {

constexpr int kLeft = 1 << 0;
constexpr int kRight = 1 << 2;

constexpr uint8_t bitOf(Button button) {
    return static_cast<uint8_t>(button);
}

} // namespace

VncInput::~VncInput() {
    for (size_t place = 0; place < keys_.size(); ++place) {
        if (keys_[place]) {
            input_.keyUp(static_cast<uint8_t>(place));
        }
    }
    setButton(Button::Left, false, false);
    setButton(Button::Right, false, false);
}

void VncInput::key(uint32_t symbol, bool down) {
    const auto key = keyOfSymbol(symbol);
    if (!key) {
        return;
    }
    if (down) {
        keys_[key->place] = input_.keyDown(*key) || keys_[key->place];
    } else if (keys_[key->place]) {
        keys_[key->place] = false;
        input_.keyUp(key->place);
    }
}

void VncInput::pointer(const Projection::Pixel& pixel, int buttons) {
    if (pixel.beside && buttons_ == 0) {
        return;
    }
    input_.moveTo(pixel.x, pixel.y);
    setButton(Button::Left, (buttons & kLeft) != 0, pixel.beside);
    setButton(Button::Right, (buttons & kRight) != 0, pixel.beside);
}

void VncInput::setButton(Button button, bool down, bool beside) {
    const bool held = (buttons_ & bitOf(button)) != 0;
    if (down && !held && !beside && input_.press(button)) {
        buttons_ |= bitOf(button);
    } else if (!down && held) {
        buttons_ &= static_cast<uint8_t>(~bitOf(button));
        input_.release(button);
    }
}

} // namespace gpi
