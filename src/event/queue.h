// The one event queue of the process.
#pragma once

#include "event/ring.h"

namespace quarlo {

/// Changed only while lockEvents() holds, but for the calls that say that they take no lock.
extern EventRing eventRing;

} // namespace quarlo
