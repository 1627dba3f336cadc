#include "keys.h"

#include <SDL.h>

#include <optional>

namespace gallery {
namespace {

std::optional<Key> keyOf(SDL_Keycode code) {
    switch (code) {
    case SDLK_PAGEUP:
    case SDLK_LEFT:
    case SDLK_UP:
        return Key::Previous;
    case SDLK_PAGEDOWN:
    case SDLK_RIGHT:
    case SDLK_DOWN:
    case SDLK_SPACE:
        return Key::Next;
    case SDLK_HOME:
        return Key::First;
    case SDLK_END:
        return Key::Last;
    case SDLK_ESCAPE:
    case SDLK_q:
        return Key::Close;
    default:
        return std::nullopt;
    }
}

std::optional<Key> keyOf(const SDL_Event& event) {
    switch (event.type) {
    case SDL_KEYDOWN:
        return keyOf(event.key.keysym.sym);
    case SDL_QUIT:
        return Key::Close;
    case SDL_WINDOWEVENT:
        return event.window.event == SDL_WINDOWEVENT_CLOSE ? std::optional(Key::Close)
                                                           : std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace

size_t turned(size_t sheet, size_t count, Key key) {
    switch (key) {
    case Key::Previous:
        return (sheet + count - 1) % count;
    case Key::Next:
        return (sheet + 1) % count;
    case Key::First:
        return 0;
    case Key::Last:
        return count - 1;
    case Key::Close:
        break;
    }
    return sheet;
}

Keys::Keys() {
    SDL_AddEventWatch(watch, this);
}

Keys::~Keys() {
    SDL_DelEventWatch(watch, this);
}

Key Keys::wait() {
    if (SDL_WasInit(SDL_INIT_VIDEO) == 0) {
        return Key::Close;
    }
    std::unique_lock lock(mutex_);
    pressed_.wait(lock, [this] { return !keys_.empty(); });
    const Key key = keys_.front();
    keys_.pop();
    return key;
}

int Keys::watch(void* keys, SDL_Event* event) {
    static_cast<Keys*>(keys)->take(*event);
    return 0;
}

void Keys::take(const SDL_Event& event) {
    if (const auto key = keyOf(event)) {
        const std::lock_guard lock(mutex_);
        keys_.push(*key);
        pressed_.notify_one();
    }
}

} // namespace gallery
