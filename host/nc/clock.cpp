#include "nc/clock.h"

#include <chrono>

namespace gpi::nc {

int64_t steadyMilliseconds() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace gpi::nc
