#include "display/input_source.h"

namespace gpi {
namespace {

constexpr uint8_t bitOf(Button button) {
    return static_cast<uint8_t>(button);
}

} // namespace

InputSource::~InputSource() {
    for (size_t place = 0; place < keys_.size(); ++place) {
        if (keys_[place]) {
            input_.keyUp(static_cast<uint8_t>(place));
        }
    }
    setButton(Button::Left, false, false);
    setButton(Button::Right, false, false);
}

void InputSource::key(Key key, bool down) {
    if (down) {
        keys_[key.place] = input_.keyDown(key) || keys_[key.place];
    } else if (keys_[key.place]) {
        keys_[key.place] = false;
        input_.keyUp(key.place);
    }
}

void InputSource::pointer(const Projection::Pixel& pixel, uint8_t buttons) {
    if (pixel.beside && buttons_ == 0) {
        return;
    }
    input_.moveTo(pixel.x, pixel.y);
    setButton(Button::Left, (buttons & bitOf(Button::Left)) != 0, pixel.beside);
    setButton(Button::Right, (buttons & bitOf(Button::Right)) != 0, pixel.beside);
}

void InputSource::setButton(Button button, bool down, bool beside) {
    const bool held = (buttons_ & bitOf(button)) != 0;
    if (down && !held && !beside && input_.press(button)) {
        buttons_ |= bitOf(button);
    } else if (!down && held) {
        buttons_ &= static_cast<uint8_t>(~bitOf(button));
        input_.release(button);
    }
}

} // namespace gpi
