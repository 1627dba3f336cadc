// Time: services 27, 28, 76 and 77.
#pragma once

#include <quarlo/timer.h>

namespace gpi {

int32_t setSystemTime(const GSystemTime* time);
int32_t getSystemTime(GSystemTime* time);
uint32_t timeOfDay(uint32_t* time);
GBrokenDownTime* breakDownTime(GBrokenDownTime* out, uint32_t time);

} // namespace gpi
