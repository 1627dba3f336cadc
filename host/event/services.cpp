#include "event/services.h"

#include "guard.h"
#include "platform.h"

#include <algorithm>

namespace gpi {
namespace {

/// Hands the next message to the program's handler and sees to those behind it.
void offerMessage(Platform& self) {
    if (self.messageHandler.offer(self.messages)) {
        self.eventSignal.interrupt();
    }
}

/// Waits for a signal. Messages are handed over one each wait while there are signals, so that
/// neither holds up the other, and all of them while there are none.
bool waitForSignal(Platform& self, Wait wait) {
    const Deadline deadline(wait);
    if (self.eventSignal.takeInterruption()) {
        offerMessage(self);
    }
    for (;;) {
        const Wake wake = self.eventSignal.wait(deadline);
        if (wake != Wake::Interrupted) {
            return wake == Wake::Signalled;
        }
        offerMessage(self);
    }
}

} // namespace

int32_t startEventLock() {
    return guarded(-1, [] {
        platform().eventLock.start();
        return 1;
    });
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

int32_t countSignals() {
    return guarded(-1, [] {
        const uint64_t count = platform().eventSignal.count();
        return static_cast<int32_t>(std::min<uint64_t>(count, INT32_MAX));
    });
}

int32_t waitEvent(int32_t wait) {
    return guarded(0, [&] { return waitForSignal(platform(), wait) ? 1 : 0; });
}

int32_t lockEvents(int32_t wait) {
    return guarded(-1, [&] { return platform().eventLock.lock(wait) ? 1 : -1; });
}

int32_t unlockEvents() {
    return guarded(-1, [] { return platform().eventLock.unlock() ? 1 : -1; });
}

} // namespace gpi
