// Events: services 26 and 29 to 35.
#pragma once

#include <cstdint>

namespace gpi {

int32_t startEventLock();
int32_t startEventSignal();
int32_t signalEvent();
int32_t eventTaken();
int32_t countSignals();
int32_t waitEvent(int32_t wait);
int32_t lockEvents(int32_t wait);
int32_t unlockEvents();

} // namespace gpi
