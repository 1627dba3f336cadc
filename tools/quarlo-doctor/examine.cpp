#include "examine.h"

#include "lifecycle.h"
#include "probe.h"

#include <algorithm>

namespace doctor {
namespace {

/// Whether the probe of a service starts the platform itself.
bool startsItself(int32_t number) {
    const auto starting = lifecycleProbes();
    return std::any_of(starting.begin(), starting.end(),
                       [=](const Probe& probe) { return probe.number == number; });
}

Complaint runProbe(const Platform& platform, const Probe& probe) {
    if (!startsItself(probe.number)) {
        start(platform);
    }
    return probe.run(platform);
}

Finding examineService(const Platform& platform, const Service& service,
                       std::chrono::seconds limit) {
    if (!platform.offers(service.number)) {
        return {&service, State::Missing, ""};
    }
    const Probe* const probe = probeOf(service.number);
    if (probe == nullptr) {
        return {&service, State::Unknown, "has no probe"};
    }
    for (const int32_t other : probe->with) {
        if (!platform.offers(other)) {
            return {&service, State::Unknown, "cannot be probed without " + std::to_string(other)};
        }
    }
    Complaint complaint = runApart([&] { return runProbe(platform, *probe); }, limit);
    const State state = complaint.empty() ? State::Passed : State::Failed;
    return {&service, state, std::move(complaint)};
}

} // namespace

std::vector<Finding> examine(const Platform& platform, const std::set<int32_t>& some,
                             std::chrono::seconds limit) {
    std::vector<Finding> findings;
    for (const Group* const group : groups()) {
        for (const Service& service : group->services) {
            if (some.empty() || some.contains(service.number)) {
                findings.push_back(examineService(platform, service, limit));
            }
        }
    }
    return findings;
}

} // namespace doctor
