#include "probe.h"

#include <map>

namespace doctor {
namespace {

std::map<int32_t, const Probe*> indexed() {
    std::map<int32_t, const Probe*> probes;
    for (const auto& group :
         {lifecycleProbes(), surfaceProbes(), drawingProbes(), showingProbes(), fontProbes(),
          textProbes(), toolProbes(), eventProbes(), timeProbes(), memoryProbes(), moduleProbes(),
          fileProbes(), dataServerProbes(), profileProbes(), urlProbes(), networkProbes(),
          transferProbes(), machineProbes()}) {
        for (const Probe& probe : group) {
            probes[probe.number] = &probe;
        }
    }
    return probes;
}

} // namespace

const Probe* probeOf(int32_t number) {
    static const std::map<int32_t, const Probe*> kProbes = indexed();
    const auto found = kProbes.find(number);
    return found != kProbes.end() ? found->second : nullptr;
}

} // namespace doctor
