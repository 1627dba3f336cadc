#include "display/canvas/canvas_input.h"

#include "display/canvas/key_code.h"

namespace gpi {

bool CanvasInput::key(const char* code, const char* character, bool down) {
    const auto key = keyOfCode(code, character);
    if (!key) {
        return false;
    }
    if (down) {
        input_.keyDown(*key);
    } else {
        input_.keyUp(key->place);
    }
    return true;
}

void CanvasInput::pointer(const Projection::Pixel& pixel, int buttons) {
    const bool drags = input_.isHeld(Button::Left) || input_.isHeld(Button::Right);
    if (pixel.beside && !drags) {
        return;
    }
    input_.moveTo(pixel.x, pixel.y);
    for (const Button button : {Button::Left, Button::Right}) {
        setButton(button, (buttons & static_cast<int>(button)) != 0, pixel.beside);
    }
}

void CanvasInput::setButton(Button button, bool down, bool beside) {
    if (!down) {
        input_.release(button);
    } else if (!beside) {
        input_.press(button);
    }
}

} // namespace gpi
