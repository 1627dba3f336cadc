#include "services/service.h"

namespace doctor {

std::span<const Group* const> groups() {
    static constexpr const Group* kGroups[] = {
        &kStartAndStop, &kDisplays,           &kFontsAndText, &kTools,           &kEventsAndTime,
        &kMemorySpaces, &kModulesAndPrograms, &kFiles,        &kDataServerFiles, &kProfiles,
        &kNetwork,      &kMachineData,
    };
    return kGroups;
}

} // namespace doctor
