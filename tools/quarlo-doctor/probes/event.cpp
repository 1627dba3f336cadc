// The event queue's lock and signal, messages.
#include "probe.h"

#include <chrono>

namespace doctor {
namespace {

/// Event services report in the low 16 bits.
bool failed(int32_t result) {
    return static_cast<int16_t>(result) < 0;
}

/// Starts what is there of the event system, as GEInitEvent() does.
bool startEvents(const Platform& platform) {
    const auto lock = platform.service<GPIStartEventLock>(GPI_SERVICE_START_EVENT_LOCK);
    const auto signal = platform.service<GPIStartEventSignal>(GPI_SERVICE_START_EVENT_SIGNAL);
    return (lock == nullptr || !failed(lock())) && (signal == nullptr || !failed(signal()));
}

Complaint starts(const Platform& platform) {
    return startEvents(platform) ? "" : "does not start";
}

Complaint signals(const Platform& platform) {
    startEvents(platform);
    const auto wait = platform.service<GPIWaitEvent>(GPI_SERVICE_WAIT_EVENT);
    platform.service<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT)();
    return static_cast<int16_t>(wait(0)) != 0 ? "" : "signals nobody";
}

Complaint waits(const Platform& platform) {
    using std::chrono::milliseconds;
    startEvents(platform);
    const auto wait = platform.service<GPIWaitEvent>(GPI_SERVICE_WAIT_EVENT);
    const auto signal = platform.service<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT);
    if (static_cast<int16_t>(wait(0)) != 0) {
        return "finds a signal that was not given";
    }
    const auto before = std::chrono::steady_clock::now();
    if (static_cast<int16_t>(wait(50)) != 0) {
        return "finds a signal that was not given";
    }
    if (std::chrono::steady_clock::now() - before < milliseconds(40)) {
        return "does not wait";
    }
    signal();
    signal();
    for (int i = 0; i < 2; ++i) {
        if (static_cast<int16_t>(wait(-1)) == 0) {
            return "misses a signal that was given";
        }
    }
    return static_cast<int16_t>(wait(0)) == 0 ? "" : "finds a signal twice";
}

Complaint takes(const Platform& platform) {
    startEvents(platform);
    platform.service<GPIEventTaken>(GPI_SERVICE_EVENT_TAKEN)();
    return "";
}

Complaint locks(const Platform& platform) {
    startEvents(platform);
    const auto lock = platform.service<GPILockEvents>(GPI_SERVICE_LOCK_EVENTS);
    const auto unlock = platform.service<GPIUnlockEvents>(GPI_SERVICE_UNLOCK_EVENTS);
    if (failed(lock(-1))) {
        return "does not lock";
    }
    if (failed(lock(-1))) {
        return "does not let a thread lock twice";
    }
    unlock();
    unlock();
    return failed(lock(-1)) ? "does not lock again" : "";
}

Complaint unlocks(const Platform& platform) {
    startEvents(platform);
    const auto lock = platform.service<GPILockEvents>(GPI_SERVICE_LOCK_EVENTS);
    lock(-1);
    const int32_t result = platform.service<GPIUnlockEvents>(GPI_SERVICE_UNLOCK_EVENTS)();
    return failed(result) ? "does not unlock" : "";
}

/// Nobody posts, so that few messages come; what comes is dropped.
Complaint pumps(const Platform& platform) {
    constexpr int kMost = 1000;
    const auto next = platform.service<GPINextMessage>(GPI_SERVICE_NEXT_MESSAGE);
    GMessage message{};
    for (int i = 0; i < kMost; ++i) {
        if (next(&message) == 0) {
            return "";
        }
    }
    return "never runs out of messages";
}

} // namespace

std::span<const Probe> eventProbes() {
    static const std::vector<int32_t> kPair = {GPI_SERVICE_WAIT_EVENT, GPI_SERVICE_SIGNAL_EVENT};
    static const std::vector<int32_t> kLock = {GPI_SERVICE_LOCK_EVENTS, GPI_SERVICE_UNLOCK_EVENTS};
    static const Probe kProbes[] = {
        {GPI_SERVICE_START_EVENT_LOCK, starts, {}},  {GPI_SERVICE_START_EVENT_SIGNAL, starts, {}},
        {GPI_SERVICE_SIGNAL_EVENT, signals, kPair},  {GPI_SERVICE_WAIT_EVENT, waits, kPair},
        {GPI_SERVICE_EVENT_TAKEN, takes, {}},        {GPI_SERVICE_LOCK_EVENTS, locks, kLock},
        {GPI_SERVICE_UNLOCK_EVENTS, unlocks, kLock}, {GPI_SERVICE_NEXT_MESSAGE, pumps, {}},
    };
    return kProbes;
}

} // namespace doctor
