// What the shared library exports by name for time.
#include "clock/time_source.h"
#include "guard.h"

#include <gpi/host.h>

using namespace gpi;

int32_t GPIHostHoldClock(uint32_t timeOfDay) {
    return guarded(0, [&] {
        holdTime(timeOfDay);
        return 1;
    });
}

int32_t GPIHostStepClock(uint32_t milliseconds) {
    return guarded(0, [&] { return stepTime(milliseconds) ? 1 : 0; });
}
