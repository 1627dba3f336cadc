// What the shared library exports by name for messages and input.
#include "guard.h"
#include "platform.h"

#include <gpi/host.h>

#include <limits>

namespace gpi {
namespace {

bool isPosition(int32_t value) {
    return value >= 0 && value <= std::numeric_limits<int16_t>::max();
}

bool setHeld(Input& input, Button button, bool held) {
    if (held == input.isHeld(button)) {
        return true;
    }
    return held ? input.press(button) : input.release(button);
}

} // namespace
} // namespace gpi

using namespace gpi;

int32_t GPIHostPostMessage(const GMessage* message) {
    return guarded(
        0, [&] { return message != nullptr && platform().messages.post(*message) ? 1 : 0; });
}

int32_t GPIHostWaitMessage(GMessage* message, int32_t wait) {
    return guarded(0, [&] {
        const auto next = message != nullptr ? platform().messages.take(wait) : std::nullopt;
        if (next) {
            *message = *next;
        }
        return next ? 1 : 0;
    });
}

void GPIHostSetMessageHandler(GPIHostMessageHandler handler, void* context) {
    guarded(0, [&] {
        platform().messageHandler.set(handler, context);
        platform().eventSignal.interrupt(); // messages may be waiting for it
        return 0;
    });
}

int32_t GPIHostFeedKey(int32_t key, int32_t down) {
    return guarded(0, [&] {
        const bool byte = key > 0 && key <= std::numeric_limits<uint8_t>::max();
        const auto number = static_cast<uint8_t>(byte ? key : 0);
        const uint8_t place = placeOf(number);
        if (place == 0) {
            return 0;
        }
        Input& input = platform().input;
        return (down != 0 ? input.keyDown({number, place}) : input.keyUp(place)) ? 1 : 0;
    });
}

int32_t GPIHostFeedPointer(int32_t x, int32_t y, uint32_t buttons) {
    return guarded(0, [&] {
        if (!isPosition(x) || !isPosition(y)) {
            return 0;
        }
        Input& input = platform().input;
        input.moveTo(static_cast<int16_t>(x), static_cast<int16_t>(y));
        const bool left = setHeld(input, Button::Left, (buttons & GPI_POINTER_LEFT) != 0);
        const bool right = setHeld(input, Button::Right, (buttons & GPI_POINTER_RIGHT) != 0);
        return left && right ? 1 : 0;
    });
}
