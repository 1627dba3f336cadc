#include "event/services.h"

#include "guard.h"
#include "platform.h"

namespace gpi {

int32_t startEventLock() {
    return 1; // it is always there, and may be held already
}

int32_t startEventSignal() {
    return guarded(-1, [] {
        platform().eventSignal.start();
        return 1;
    });
}

int32_t signalEvent() {
    return guarded(-1, [] {
        platform().eventSignal.raise();
        return 1;
    });
}

int32_t eventTaken() {
    return 1; // waiting has counted it already
}

int32_t waitEvent(int32_t wait) {
    return guarded(0, [&] { return platform().eventSignal.wait(wait) ? 1 : 0; });
}

int32_t lockEvents(int32_t wait) {
    return guarded(-1, [&] { return platform().eventLock.lock(wait) ? 1 : -1; });
}

int32_t unlockEvents() {
    return guarded(-1, [] { return platform().eventLock.unlock() ? 1 : -1; });
}

} // namespace gpi
