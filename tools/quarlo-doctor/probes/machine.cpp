// Numerical-control data: read where reading does no harm, written only where it must be refused.
#include "probe.h"

namespace doctor {
namespace {

constexpr int32_t kNothing = 30000; // no channel, area, string, variable or system value
constexpr const char* kKnowsAll = "knows what there is not";

Complaint setsValue(const Platform& platform) {
    const double value = 0.0;
    const auto set = platform.service<GPISetNCValue>(GPI_SERVICE_SET_NC_VALUE);
    return set(1, kNothing, 0, 0, &value) < 0 ? "" : kKnowsAll;
}

Complaint getsValue(const Platform& platform) {
    double value = 0.0;
    const auto get = platform.service<GPIGetNCValue>(GPI_SERVICE_GET_NC_VALUE);
    if (get(1, kNothing, 0, 0, &value) >= 0 || get(kNothing, G_NC_FEED, 0, 0, &value) >= 0) {
        return kKnowsAll;
    }
    return get(1, G_NC_FEED, 0, 0, nullptr) < 0 ? "" : "reads into no value";
}

Complaint setsString(const Platform& platform) {
    const auto set = platform.service<GPISetNCString>(GPI_SERVICE_SET_NC_STRING);
    return set(1, kNothing, 0, u"") < 0 ? "" : kKnowsAll;
}

Complaint getsString(const Platform& platform) {
    char16_t text[64] = {};
    const auto get = platform.service<GPIGetNCString>(GPI_SERVICE_GET_NC_STRING);
    if (get(1, kNothing, 0, text, 64) >= 0) {
        return kKnowsAll;
    }
    return get(1, G_NC_CONTROL_NAME, 0, text, 0) < 0 ? "" : "reads into no room";
}

Complaint tellsUnset(const Platform& platform) {
    const auto tell = platform.service<GPIIsNCValueUnset>(GPI_SERVICE_IS_NC_VALUE_UNSET);
    return tell(1, kNothing) < 0 ? "" : kKnowsAll;
}

Complaint setsSystemValue(const Platform& platform) {
    const auto set = platform.service<GPISetNCSystemValue>(GPI_SERVICE_SET_NC_SYSTEM_VALUE);
    return set(kNothing, 0) < 0 ? "" : kKnowsAll;
}

Complaint getsSystemValue(const Platform& platform) {
    int32_t value = 0;
    const auto get = platform.service<GPIGetNCSystemValue>(GPI_SERVICE_GET_NC_SYSTEM_VALUE);
    if (get(kNothing, &value) >= 0) {
        return kKnowsAll;
    }
    return get(G_NC_SYSTEM_MODE, nullptr) < 0 ? "" : "reads into no value";
}

} // namespace

std::span<const Probe> machineProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_SET_NC_VALUE, setsValue, {}},
        {GPI_SERVICE_GET_NC_VALUE, getsValue, {}},
        {GPI_SERVICE_SET_NC_STRING, setsString, {}},
        {GPI_SERVICE_GET_NC_STRING, getsString, {}},
        {GPI_SERVICE_IS_NC_VALUE_UNSET, tellsUnset, {}},
        {GPI_SERVICE_SET_NC_SYSTEM_VALUE, setsSystemValue, {}},
        {GPI_SERVICE_GET_NC_SYSTEM_VALUE, getsSystemValue, {}},
    };
    return kProbes;
}

} // namespace doctor
