// Start and stop.
#include "lifecycle.h"
#include "probe.h"

namespace doctor {

GWord start(const Platform& platform) {
    const auto first = platform.service<GPIStart>(GPI_SERVICE_START);
    const auto second = platform.service<GPIStartSecond>(GPI_SERVICE_START_SECOND);
    const GWord started = first != nullptr ? first(0) : 0;
    return second != nullptr ? second(0) : started;
}

namespace {

GWord stop(const Platform& platform) {
    if (const auto first = platform.service<GPIStopFirst>(GPI_SERVICE_STOP_FIRST)) {
        first();
    }
    return platform.service<GPIStop>(GPI_SERVICE_STOP)();
}

Complaint starts(const Platform& platform) {
    const GWord result = platform.service<GPIStart>(GPI_SERVICE_START)(0);
    return result == 1 ? "" : "does not start the platform";
}

Complaint startsSecond(const Platform& platform) {
    return start(platform) == 1 ? "" : "does not start the platform";
}

Complaint stops(const Platform& platform) {
    start(platform);
    return stop(platform) == 1 ? "" : "does not say that it stopped";
}

Complaint stopsFirst(const Platform& platform) {
    start(platform);
    stop(platform);
    return start(platform) == 1 ? "" : "leaves a platform behind that does not start again";
}

} // namespace

std::span<const Probe> lifecycleProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_START, starts, {}},
        {GPI_SERVICE_START_SECOND, startsSecond, {GPI_SERVICE_START}},
        {GPI_SERVICE_STOP, stops, {GPI_SERVICE_START}},
        {GPI_SERVICE_STOP_FIRST, stopsFirst, {GPI_SERVICE_START, GPI_SERVICE_STOP}},
    };
    return kProbes;
}

} // namespace doctor
