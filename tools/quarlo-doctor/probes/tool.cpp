// What a platform tells of itself.
#include "probe.h"

namespace doctor {
namespace {

Complaint describes(const Platform& platform) {
    const char16_t* const name = platform.service<GPIDescribe>(GPI_SERVICE_DESCRIBE)();
    return name != nullptr && *name != u'\0' ? "" : "has no name";
}

Complaint countsSurfaces(const Platform& platform) {
    const int32_t count = platform.service<GPICountSurfaces>(GPI_SERVICE_COUNT_SURFACES)();
    const auto get = platform.service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE);
    GDrawHandle handle{};
    for (int32_t number = 0; number < count; ++number) {
        if (get(&handle, number) == nullptr) {
            return "counts surfaces that there are not";
        }
    }
    return get(&handle, count) == nullptr ? "" : "does not count all surfaces";
}

Complaint countsSignals(const Platform& platform) {
    const auto count = platform.service<GPICountSignals>(GPI_SERVICE_COUNT_SIGNALS);
    const auto signal = platform.service<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT);
    const int32_t before = count();
    signal();
    signal();
    return before >= 0 && count() == before + 2 ? "" : "does not count signals";
}

} // namespace

std::span<const Probe> toolProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_DESCRIBE, describes, {}},
        {GPI_SERVICE_COUNT_SURFACES, countsSurfaces, {GPI_SERVICE_GET_SURFACE}},
        {GPI_SERVICE_COUNT_SIGNALS, countsSignals, {GPI_SERVICE_SIGNAL_EVENT}},
    };
    return kProbes;
}

} // namespace doctor
