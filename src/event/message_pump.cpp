// Emptying the message queue of the calling thread together with the event queue.
#include "event/lock.h"
#include "event/queue.h"
#include "platform/service_table.h"
#include "platform/system.h"

#include <quarlo/event.h>

using namespace quarlo;

namespace {

using NextMessage = Service<int32_t(GMessage*), GPI_SERVICE_NEXT_MESSAGE>;

bool isInput(const GMessage& message) {
    return message.number >= G_MESSAGE_KEY_DOWN && message.number < G_MESSAGE_FIRST_NOT_INPUT;
}

/// Whether the thread was asked to end.
bool pumpUntilQuit() {
    GMessage message{};
    while (NextMessage::checked(&message) != 0) {
        if (message.number == G_MESSAGE_QUIT) {
            return true;
        }
        if (!isInput(message)) {
            translateMessage(message);
            dispatchMessage(message);
        }
    }
    return false;
}

} // namespace

int32_t GEClearWindowsEvent(void) {
    if (!lockEvents()) {
        return 0;
    }
    if (pumpUntilQuit()) {
        GEventMsg quit{};
        GESetEvent(*GECreateEventMessage(&quit, G_EVENT_QUIT, 0, 0, 0), 0);
        return 1; // the lock stays held: the program is about to end
    }
    eventRing.removeAll();
    unlockEvents();
    return 1;
}
