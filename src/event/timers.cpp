// Periodic timers, which expire when they are checked.
#include "event/time.h"
#include "platform/service_table.h"

#include <quarlo/event.h>
#include <quarlo/timer.h>

#include <algorithm>
#include <array>

using namespace quarlo;

namespace {

using Clock = ForwardTo<GEGetSystemTime, 28>;

struct Timer {
    bool inUse;
    GSystemTime start; ///< when it was set, or posted last
    uint32_t target;
    uint16_t id;
    uint32_t interval;
};

std::array<Timer, G_TIMER_COUNT> timers;

/// Only the low word of the time that has gone by counts.
bool isDue(const Timer& timer, const GSystemTime& now) {
    return timer.inUse && static_cast<uint32_t>(ticksBetween(timer.start, now)) >= timer.interval;
}

} // namespace

int32_t GESetTimer(uint32_t target, uint16_t id, uint32_t interval) {
    const auto timer =
        std::find_if(timers.begin(), timers.end(), [](const Timer& t) { return !t.inUse; });
    if (timer == timers.end() || !Clock::bound()) {
        return 0;
    }
    *timer = {true, {}, target, id, interval};
    Clock::checked(&timer->start);
    return 1;
}

void GEKillTimer(uint32_t target, uint16_t id) {
    const auto timer = std::find_if(timers.begin(), timers.end(), [=](const Timer& t) {
        return t.inUse && t.target == target && t.id == id;
    });
    if (timer != timers.end()) {
        *timer = {};
        GEClearTimerEvent(target, id);
    }
}

void GECheckTimer(void) {
    if (!Clock::bound()) {
        return;
    }
    GSystemTime now{};
    Clock::checked(&now);
    for (Timer& timer : timers) {
        if (!isDue(timer, now)) {
            continue;
        }
        GEventMsg event{};
        GECreateEventMessage(&event, G_EVENT_TIMER, timer.target, timer.id, 0);
        if (GESetEvent(event, 1) == 1) {
            timer.start = now;
        }
    }
}
