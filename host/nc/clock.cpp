#include "nc/clock.h"

#include "clock/time_source.h"

namespace gpi::nc {

int64_t steadyMilliseconds() {
    return gpi::steadyMilliseconds();
}

} // namespace gpi::nc
