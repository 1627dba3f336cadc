#include "event/queue.h"

#include "event/lock.h"
#include "platform/service_table.h"

#include <gpi/gpi.h>
#include <quarlo/event.h>
#include <quarlo/timer.h>

using namespace quarlo;

namespace quarlo {

EventRing eventRing;

} // namespace quarlo

namespace {

using StartLock = Service<int32_t(), GPI_SERVICE_START_EVENT_LOCK>;
using StartSignal = Service<int32_t(), GPI_SERVICE_START_EVENT_SIGNAL>;
using GetTime = Service<int32_t(GSystemTime*), GPI_SERVICE_GET_SYSTEM_TIME>;
using Signal = Service<int32_t(), GPI_SERVICE_SIGNAL_EVENT>;
using Taken = Service<int32_t(), GPI_SERVICE_EVENT_TAKEN>;
using Wait = Service<int32_t(int32_t), GPI_SERVICE_WAIT_EVENT>;

int16_t forceFlag = 0;

} // namespace

int32_t GEInitEvent(void) {
    eventRing.clear();
    if (failed(StartLock::checked()) || failed(StartSignal::checked())) {
        return 0;
    }
    GSystemTime startTime{};
    return GetTime::checked(&startTime) >= 0;
}

void GEQuitEvent(void) {
    GPIShutdownEvents();
    eventRing.clear();
}

GEventMsg* GECreateEventMessage(GEventMsg* event, uint16_t type, uint32_t target, uint32_t param1,
                                uint32_t param2) {
    *event = {type, target, param1, param2, {0, 0}};
    return event;
}

uint16_t GESetEvent(GEventMsg event, uint16_t unique) {
    if (!lockEvents()) {
        return 0;
    }
    const Posting posting =
        forceFlag == 1 ? eventRing.force(event, unique == 1) : eventRing.append(event, unique == 1);
    if (posting == Posting::Done) {
        Signal::checked();
    }
    unlockEvents();
    return posting != Posting::Refused;
}

int32_t GEGetEvent(GEventMsg* event, int32_t wait) {
    if (Wait::bound() && static_cast<int16_t>(Wait::checked(wait)) == 0) {
        return 0;
    }
    if (!lockEvents()) {
        return 0;
    }
    const bool taken = eventRing.take(*event);
    if (taken) {
        Taken::checked();
    }
    unlockEvents();
    return taken;
}

void GEClearTargetEvent(uint32_t target) {
    if (lockEvents()) {
        eventRing.removeTarget(target);
        unlockEvents();
    }
}

void GEClearTimerEvent(uint32_t target, uint16_t id) {
    for (int32_t left = eventRing.removeTimer(target, id); left > 0; --left) {
        Taken::checked();
    }
}

void GESetForceEventFlag(int16_t flag) {
    forceFlag = flag;
}
