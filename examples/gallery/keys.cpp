#include "keys.h"

#include <gpi/host.h>

#include <optional>

namespace gallery {
namespace {

std::optional<Key> keyOf(const GMessage& message) {
    if (message.number == G_MESSAGE_QUIT) {
        return Key::Close;
    }
    if (message.number != G_MESSAGE_KEY_DOWN) {
        return std::nullopt;
    }
    switch (message.param1) {
    case GPI_KEY_PAGE_UP:
    case GPI_KEY_LEFT:
    case GPI_KEY_UP:
        return Key::Previous;
    case GPI_KEY_PAGE_DOWN:
    case GPI_KEY_RIGHT:
    case GPI_KEY_DOWN:
    case GPI_KEY_SPACE:
        return Key::Next;
    case GPI_KEY_HOME:
        return Key::First;
    case GPI_KEY_END:
        return Key::Last;
    case GPI_KEY_ESCAPE:
    case 'Q':
        return Key::Close;
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

Key waitForKey() {
    constexpr int32_t kNoLimit = -1;
    GMessage message;
    while (GPIHostHasWindow() != 0 && GPIHostWaitMessage(&message, kNoLimit) != 0) {
        if (const auto key = keyOf(message)) {
            return *key;
        }
    }
    return Key::Close;
}

} // namespace gallery
