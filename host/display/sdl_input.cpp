#include "display/sdl_input.h"

#include <limits>
#include <optional>

namespace gpi {
namespace {

/// The key that SDL means. Letters and digits go by what the user's keyboard has on them, all other
/// keys by their place, which SDL numbers as the USB standard does.
std::optional<Key> keyOf(const SDL_Keysym& keysym) {
    if (keysym.scancode <= 0 || keysym.scancode > std::numeric_limits<uint8_t>::max()) {
        return std::nullopt;
    }
    const auto place = static_cast<uint8_t>(keysym.scancode);
    if (keysym.sym >= SDLK_a && keysym.sym <= SDLK_z) {
        return Key{static_cast<uint8_t>(keysym.sym - SDLK_a + 'A'), place};
    }
    if (keysym.sym >= SDLK_0 && keysym.sym <= SDLK_9) {
        return Key{static_cast<uint8_t>(keysym.sym), place};
    }
    const uint8_t number = numberAt(place, (keysym.mod & KMOD_NUM) != 0);
    return number != 0 ? std::optional(Key{number, place}) : std::nullopt;
}

std::optional<Button> buttonOf(uint8_t button) {
    switch (button) {
    case SDL_BUTTON_LEFT:
        return Button::Left;
    case SDL_BUTTON_RIGHT:
        return Button::Right;
    default:
        return std::nullopt;
    }
}

} // namespace

void SdlInput::handle(const SDL_Event& event) {
    switch (event.type) {
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        handleKey(event.key);
        break;
    case SDL_MOUSEMOTION:
        handleMove(event.motion);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        handleButton(event.button);
        break;
    case SDL_WINDOWEVENT:
        handleWindow(event.window);
        break;
    case SDL_QUIT:
        input_.close();
        break;
    default:
        break;
    }
}

void SdlInput::handleKey(const SDL_KeyboardEvent& event) {
    const auto key = keyOf(event.keysym);
    if (!key) {
        return;
    }
    if (event.type == SDL_KEYDOWN) {
        input_.keyDown(*key);
    } else {
        input_.keyUp(key->place);
    }
}

void SdlInput::handleMove(const SDL_MouseMotionEvent& event) {
    const auto pixel = window_.pixelAt(event.x, event.y);
    if (!pixel.beside || isDragging()) {
        input_.moveTo(pixel.x, pixel.y);
    }
}

void SdlInput::handleButton(const SDL_MouseButtonEvent& event) {
    const auto button = buttonOf(event.button);
    const auto pixel = window_.pixelAt(event.x, event.y);
    if (!button || (pixel.beside && !isDragging())) {
        return;
    }
    input_.moveTo(pixel.x, pixel.y);
    if (event.type == SDL_MOUSEBUTTONUP) {
        input_.release(*button);
    } else if (!pixel.beside) {
        input_.press(*button);
    }
}

void SdlInput::handleWindow(const SDL_WindowEvent& event) {
    switch (event.event) {
    case SDL_WINDOWEVENT_CLOSE:
        input_.close();
        break;
    case SDL_WINDOWEVENT_EXPOSED:
        input_.expose();
        break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
        input_.releaseAll(); // the releases themselves are told to another window
        break;
    default:
        break;
    }
}

bool SdlInput::isDragging() const {
    return input_.isHeld(Button::Left) || input_.isHeld(Button::Right);
}

} // namespace gpi
