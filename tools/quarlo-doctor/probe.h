// Trying a service out: as its contract says, and so that nothing of the user's is changed.
#pragma once

#include "apart.h"
#include "platform.h"

#include <cstdint>
#include <span>
#include <vector>

namespace doctor {

/// One service, tried on a platform that was started for it. `with` are services that the probe
/// needs beside it.
struct Probe {
    int32_t number;
    Complaint (*run)(const Platform& platform);
    std::vector<int32_t> with;
};

std::span<const Probe> lifecycleProbes();
std::span<const Probe> surfaceProbes();
std::span<const Probe> drawingProbes();
std::span<const Probe> showingProbes();
std::span<const Probe> fontProbes();
std::span<const Probe> textProbes();
std::span<const Probe> toolProbes();
std::span<const Probe> eventProbes();
std::span<const Probe> timeProbes();
std::span<const Probe> memoryProbes();
std::span<const Probe> moduleProbes();
std::span<const Probe> fileProbes();
std::span<const Probe> dataServerProbes();
std::span<const Probe> profileProbes();
std::span<const Probe> urlProbes();
std::span<const Probe> networkProbes();
std::span<const Probe> transferProbes();
std::span<const Probe> machineProbes();

/// The probe of a service, or null.
const Probe* probeOf(int32_t number);

} // namespace doctor
